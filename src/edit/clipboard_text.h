#ifndef MIVO_EDIT_CLIPBOARD_TEXT_H
#define MIVO_EDIT_CLIPBOARD_TEXT_H

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "comp_edit_elm.h"

// The texts in which pins and drawing objects travel through the clipboard.

namespace mivo {

/// The selection as text: a single pin as pin text, anything else as pattern text, which leaves
/// pins out. Objects are written relative to `origin`, the top left corner of the selection.
[[nodiscard]] std::u16string WriteClipboardText(std::span<const SCompEditElm> selection,
                                                SPoint origin);

/// Whether `text` begins like a pin or pattern text. It may hold nothing to paste all the same.
[[nodiscard]] bool CanPaste(std::u16string_view text) noexcept;

/// What a pin text holds: the last pin in it that could be read, if any.
struct PinText {
  std::optional<SCompPin> pin;
};

/// What a pattern text holds: the drawing objects that could be read, where the text places them.
struct PatternText {
  std::vector<std::unique_ptr<SPtnObj>> objects;
};

/// Neither, for a text whose first field is no header.
using ClipboardContent = std::variant<std::monostate, PinText, PatternText>;

/// Reads any text whatever, up to its first NUL. Records that cannot be read are dropped. A pin
/// gets one number slot for each of `blockCount` blocks.
[[nodiscard]] ClipboardContent ReadClipboardText(std::u16string_view text, std::int32_t blockCount);

}  // namespace mivo

#endif
