#ifndef MIVO_BASE_TEXT_ENCODING_H
#define MIVO_BASE_TEXT_ENCODING_H

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

// All conversions between bytes and the UTF-16 text that the program works with stand here. None of
// them fails: bytes or code units that mean nothing become U+FFFD.

namespace mivo {

struct DecodeProgress {
  std::size_t bytesRead;
  std::size_t unitsWritten;
};

/// Decodes UTF-8 from the front of `bytes` until `out` is full or the bytes are used up. A sequence
/// that the end of `bytes` cuts off is left unread unless `last` says that no more will follow.
/// Malformed input becomes one U+FFFD per maximal ill-formed sequence. `out` holds at least 2
/// units.
DecodeProgress DecodeUtf8(std::string_view bytes, std::span<char16_t> out, bool last) noexcept;

[[nodiscard]] std::u16string Utf8ToUtf16(std::string_view bytes);

/// Appends `text` to `out` as UTF-8; a lone surrogate becomes U+FFFD.
void AppendUtf8(std::string& out, std::u16string_view text);

[[nodiscard]] std::string Utf16ToUtf8(std::u16string_view text);

/// Decodes the 8-bit text of old library files: in the system's own code page on Windows, in
/// Windows-1252 elsewhere (its five unassigned bytes become the C1 controls of the same number).
[[nodiscard]] std::u16string DecodeSystemCodePage(std::string_view bytes);

}  // namespace mivo

#endif
