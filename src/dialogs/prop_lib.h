#ifndef MIVO_DIALOGS_PROP_LIB_H
#define MIVO_DIALOGS_PROP_LIB_H

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "form_dialog.h"

namespace mivo {

class NoteEdit;

/// Edits the property text of a library.
class CPropLib final : public FormDialog {
 public:
  static constexpr std::size_t kMaxLength = 255;

  CPropLib(const TextTable& texts, std::u16string_view content, QWidget* parent);

  [[nodiscard]] std::u16string Content() const;

  /// Lets the user edit `content`; nothing after Cancel.
  [[nodiscard]] static std::optional<std::u16string> Ask(const TextTable& texts,
                                                         std::u16string_view content,
                                                         QWidget* parent);

  void accept() override;

 private:
  NoteEdit* text_;
};

}  // namespace mivo

#endif
