#ifndef MIVO_DIALOGS_ADD_ALIAS_H
#define MIVO_DIALOGS_ADD_ALIAS_H

#include <optional>
#include <string>
#include <string_view>

#include "form_dialog.h"

namespace mivo {

/// Asks for a further name of a component. Any text will do: the library makes it unique.
class CAddAlias final : public FormDialog {
 public:
  /// For the component that is listed as `name`.
  CAddAlias(const TextTable& texts, std::u16string_view name, QWidget* parent);

  [[nodiscard]] std::u16string Alias() const;

  /// The alias that the user enters; nothing after Cancel.
  [[nodiscard]] static std::optional<std::u16string> Ask(const TextTable& texts,
                                                         std::u16string_view name, QWidget* parent);

 private:
  QLineEdit* alias_;
};

}  // namespace mivo

#endif
