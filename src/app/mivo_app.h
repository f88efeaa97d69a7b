#ifndef MIVO_APP_MIVO_APP_H
#define MIVO_APP_MIVO_APP_H

#include <QStringList>
#include <QTranslator>
#include <memory>

#include "settings_file.h"
#include "settings_location.h"
#include "text_table.h"

namespace mivo {

class CMainFrame;

/// Brings the program up: chooses the settings file, takes the language library and the style,
/// makes the main window with the size and state it had, and opens the file named on the command
/// line.
class CMivoApp {
 public:
  /// Looks for settings and the language library where this process runs.
  CMivoApp();
  explicit CMivoApp(const SettingsFolders& folders);
  ~CMivoApp();

  /// Takes the command line, the program's name first. Asking for help or the version, or a mistake
  /// in it, ends the process here.
  void InitInstance(const QStringList& arguments);

  /// Only after InitInstance.
  [[nodiscard]] CMainFrame& Frame() const noexcept { return *frame_; }

 private:
  /// Lets the toolkit's own dialogs and menus speak the program's language.
  void TranslateToolkit();
  void ShowFrame();

  SettingsFile settings_;
  std::filesystem::path languageLibrary_;
  TextTable texts_;
  QTranslator toolkitTexts_;
  std::unique_ptr<CMainFrame> frame_;
};

}  // namespace mivo

#endif
