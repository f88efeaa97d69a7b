#ifndef MIVO_DIALOGS_PTN_TEXT_DLG_H
#define MIVO_DIALOGS_PTN_TEXT_DLG_H

#include <optional>

#include "form_dialog.h"
#include "property_values.h"
#include "ptn_form.h"

class QCheckBox;
class QGroupBox;
class QPushButton;
class QRadioButton;

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
  QGroupBox* MakeHorizontalGroup();
  QGroupBox* MakeVerticalGroup();
  void FollowCommonFontCheck();
  void ChooseFont();
  [[nodiscard]] HorizontalAnchor Horizontal() const;
  [[nodiscard]] VerticalAnchor Vertical() const;

  TextValues values_;
  QLineEdit* text_ = nullptr;
  QRadioButton* left_ = nullptr;
  QRadioButton* horizontalCenter_ = nullptr;
  QRadioButton* right_ = nullptr;
  QRadioButton* upper_ = nullptr;
  QRadioButton* verticalCenter_ = nullptr;
  QRadioButton* lower_ = nullptr;
  QCheckBox* useCommonFont_ = nullptr;
  QPushButton* font_ = nullptr;
};

}  // namespace mivo

#endif
