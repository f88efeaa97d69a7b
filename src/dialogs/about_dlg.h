#ifndef MIVO_DIALOGS_ABOUT_DLG_H
#define MIVO_DIALOGS_ABOUT_DLG_H

#include "form_dialog.h"

namespace mivo {

/// Shows the icon of the window in front of which it opens, and the version.
class CAboutDlg final : public FormDialog {
 public:
  CAboutDlg(const TextTable& texts, QWidget* parent);
};

}  // namespace mivo

#endif
