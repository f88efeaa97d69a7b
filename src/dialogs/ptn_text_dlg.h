#ifndef MIVO_DIALOGS_PTN_TEXT_DLG_H
#define MIVO_DIALOGS_PTN_TEXT_DLG_H

#include <array>
#include <optional>

#include "form_dialog.h"
#include "property_values.h"

class QButtonGroup;
class QCheckBox;
class QGroupBox;
class QPushButton;

namespace mivo {

/// Edits a text of a pattern, new or old.
class CPtnTextDlg final : public FormDialog {
 public:
  CPtnTextDlg(const TextTable& texts, TextValues values, QWidget* parent);

  /// What was accepted.
  [[nodiscard]] const TextValues& Values() const noexcept { return values_; }

  /// Lets the user edit `values`; nothing after Cancel.
  [[nodiscard]] static std::optional<TextValues> Ask(const TextTable& texts,
                                                     const TextValues& values, QWidget* parent);

  void accept() override;

 private:
  struct AnchorButton {
    const char* objectName;
    TextId text;
    int anchor;
  };

  /// A box of buttons for one direction, whose ids are the anchors.
  QGroupBox* MakeAnchorGroup(TextId title, const std::array<AnchorButton, 3>& buttons,
                             QButtonGroup& group, int chosen);
  QGroupBox* MakeHorizontalGroup();
  QGroupBox* MakeVerticalGroup();
  void FollowCommonFontCheck();
  void ChooseFont();

  TextValues values_;
  QLineEdit* text_ = nullptr;
  QButtonGroup* horizontal_;
  QButtonGroup* vertical_;
  QCheckBox* useCommonFont_ = nullptr;
  QPushButton* font_ = nullptr;
};

}  // namespace mivo

#endif
