#ifndef MIVO_DIALOGS_PIN_NAME_SHOW_HIDE_H
#define MIVO_DIALOGS_PIN_NAME_SHOW_HIDE_H

#include <cstdint>
#include <optional>
#include <string_view>

#include "form_dialog.h"

class QListWidget;

namespace mivo {

/// Chooses which parts of a pin's name are shown.
class CDlgPinNameShowHide final : public FormDialog {
 public:
  /// `name` as people type it, `mask` as SCompPin::nameMask.
  CDlgPinNameShowHide(const TextTable& texts, std::u16string_view name, std::uint32_t mask,
                      QWidget* parent);

  [[nodiscard]] std::uint32_t Mask() const;

  /// The mask that the user chooses; nothing after Cancel.
  [[nodiscard]] static std::optional<std::uint32_t> Ask(const TextTable& texts,
                                                        std::u16string_view name,
                                                        std::uint32_t mask, QWidget* parent);

 private:
  void CheckAll(bool isShown);

  QListWidget* parts_;
};

}  // namespace mivo

#endif
