#ifndef MIVO_BASE_NUMBER_TEXT_H
#define MIVO_BASE_NUMBER_TEXT_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

// Numbers as files and edit fields hold them. Nothing here fails: text that is no number is 0, so
// that one bad value never costs a user the rest of a file.

namespace mivo {

/// Decimal integer after leading white space and an optional sign, up to the first other character;
/// 0 without digits. Saturates at the 32-bit limits.
[[nodiscard]] std::int32_t ParseInt(std::u16string_view text) noexcept;

/// Hexadecimal integer after leading white space, an optional sign ("-" negates modulo 2³²) and an
/// optional "0x", up to the first other character; 0 without digits. Saturates at 0xFFFFFFFF.
[[nodiscard]] std::uint32_t ParseHex(std::u16string_view text) noexcept;

/// Signed decimal digits of a 32-bit integer without an allocation.
class IntText {
 public:
  explicit IntText(std::int32_t value) noexcept;
  operator std::u16string_view() const noexcept {
    return std::u16string_view(digits_.data(), digits_.size()).substr(first_);
  }

 private:
  std::array<char16_t, 11> digits_;
  std::size_t first_;
};

/// Eight characters: an unsigned 32-bit integer in upper-case hexadecimal, padded on the left with
/// blanks.
class HexText {
 public:
  explicit HexText(std::uint32_t value) noexcept;
  operator std::u16string_view() const noexcept { return {digits_.data(), digits_.size()}; }

 private:
  std::array<char16_t, 8> digits_;
};

}  // namespace mivo

#endif
