#ifndef MIVO_APP_MIVO_APP_H
#define MIVO_APP_MIVO_APP_H

#include <memory>

#include "settings_file.h"
#include "text_table.h"

namespace mivo {

class CMainFrame;

/// Brings the program up: chooses the settings file, makes the main window with the size and state
/// it had, and opens the file named on the command line.
class CMivoApp {
 public:
  CMivoApp();
  ~CMivoApp();

  /// Takes the command line of the QApplication.
  void InitInstance();

 private:
  void ShowFrame();

  SettingsFile settings_;
  TextTable texts_;
  std::unique_ptr<CMainFrame> frame_;
};

}  // namespace mivo

#endif
