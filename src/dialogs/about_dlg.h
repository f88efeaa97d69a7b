#ifndef MIVO_DIALOGS_ABOUT_DLG_H
#define MIVO_DIALOGS_ABOUT_DLG_H

#include "form_dialog.h"

namespace mivo {

/// Shows the program's icon (that of the application's windows) and version.
class CAboutDlg final : public FormDialog {
 public:
  CAboutDlg(const TextTable& texts, QWidget* parent);
};

}  // namespace mivo

#endif
