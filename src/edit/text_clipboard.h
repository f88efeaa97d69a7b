#ifndef MIVO_EDIT_TEXT_CLIPBOARD_H
#define MIVO_EDIT_TEXT_CLIPBOARD_H

#include <optional>
#include <string>
#include <string_view>

namespace mivo {

/// The Unicode text on the system's clipboard.
class TextClipboard {
 public:
  virtual ~TextClipboard() = default;

  /// Replaces whatever the clipboard holds. False when the clipboard cannot be had.
  [[nodiscard]] virtual bool SetText(std::u16string_view text) = 0;
  /// Nothing when the clipboard holds no text or cannot be had.
  [[nodiscard]] virtual std::optional<std::u16string> GetText() = 0;
};

}  // namespace mivo

#endif
