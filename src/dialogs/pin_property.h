#ifndef MIVO_DIALOGS_PIN_PROPERTY_H
#define MIVO_DIALOGS_PIN_PROPERTY_H

#include <optional>

#include "common_font.h"
#include "form_dialog.h"
#include "pin_form.h"

class QButtonGroup;
class QCheckBox;
class QGroupBox;
class QPushButton;

namespace mivo {

class BlockSpinBox;

/// Edits one pin.
class CPinProperty final : public FormDialog {
 public:
  /// The pictures of the styles are lettered with `font`.
  CPinProperty(const TextTable& texts, PinValues values, const SCommonFont& font, QWidget* parent);

  /// What was accepted.
  [[nodiscard]] const PinValues& Values() const noexcept { return form_.Values(); }

  /// Lets the user edit `values`; nothing after Cancel.
  [[nodiscard]] static std::optional<PinValues> Ask(const TextTable& texts, const PinValues& values,
                                                    const SCommonFont& font, QWidget* parent);

  void accept() override;

 private:
  QGroupBox* MakeNumberGroup();
  QGroupBox* MakeStyleGroup(const SCommonFont& font);
  void ShowNumber();
  void FollowBlockEdit();
  void ChooseNameParts();

  const TextTable& texts_;
  PinForm form_;
  QLineEdit* name_ = nullptr;
  QPushButton* showHide_ = nullptr;
  QLineEdit* number_ = nullptr;
  BlockSpinBox* block_ = nullptr;
  QCheckBox* hideNumber_ = nullptr;
  QButtonGroup* styles_ = nullptr;  ///< the ids are indexes of PinForm::kStyles
};

}  // namespace mivo

#endif
