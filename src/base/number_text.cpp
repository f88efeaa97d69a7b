#include "number_text.h"

#include <array>
#include <limits>

namespace mivo {
namespace {

bool IsSpace(char16_t c) {
  return c == u' ' || (c >= u'\t' && c <= u'\r');
}

/// Skips leading white space and a sign; returns whether the sign was "-".
bool TakeSign(std::u16string_view& text) {
  std::size_t i = 0;
  while (i < text.size() && IsSpace(text[i])) ++i;
  bool negative = false;
  if (i < text.size() && (text[i] == u'-' || text[i] == u'+')) negative = text[i++] == u'-';
  text.remove_prefix(i);
  return negative;
}

constexpr std::uint8_t kNoDigit = 16;

/// Values of the hexadecimal digits, and kNoDigit for the other characters of ASCII.
constexpr auto kHexDigits = [] {
  std::array<std::uint8_t, 0x80> values{};
  values.fill(kNoDigit);
  for (std::uint8_t i = 0; i < 10; ++i) values[u'0' + i] = i;
  for (std::uint8_t i = 0; i < 6; ++i) {
    values[u'A' + i] = values[u'a' + i] = static_cast<std::uint8_t>(10 + i);
  }
  return values;
}();

/// Value of a hexadecimal digit, or kNoDigit.
std::uint32_t HexDigit(char16_t c) {
  return c < kHexDigits.size() ? kHexDigits[c] : kNoDigit;
}

}  // namespace

std::int32_t ParseInt(std::u16string_view text) noexcept {
  constexpr std::int64_t kLimit = std::int64_t{1} << 31;
  const bool negative = TakeSign(text);
  std::int64_t value = 0;
  for (const char16_t c : text) {
    if (c < u'0' || c > u'9') break;
    value = value * 10 + (c - u'0');
    if (value >= kLimit) {
      return negative ? std::numeric_limits<std::int32_t>::min()
                      : std::numeric_limits<std::int32_t>::max();
    }
  }
  return static_cast<std::int32_t>(negative ? -value : value);
}

std::uint32_t ParseHex(std::u16string_view text) noexcept {
  const bool negative = TakeSign(text);
  if (text.size() > 2 && text[0] == u'0' && (text[1] == u'x' || text[1] == u'X') &&
      HexDigit(text[2]) != kNoDigit) {
    text.remove_prefix(2);
  }
  std::uint64_t value = 0;
  for (const char16_t c : text) {
    const std::uint32_t digit = HexDigit(c);
    if (digit == kNoDigit) break;
    value = value * 16 + digit;
    if (value > 0xFFFFFFFFu) return 0xFFFFFFFFu;
  }
  const auto result = static_cast<std::uint32_t>(value);
  return negative ? 0u - result : result;
}

IntText::IntText(std::int32_t value) noexcept {
  first_ = digits_.size();
  std::uint32_t rest =
      value < 0 ? 0u - static_cast<std::uint32_t>(value) : static_cast<std::uint32_t>(value);
  do {
    digits_[--first_] = static_cast<char16_t>(u'0' + rest % 10);
    rest /= 10;
  } while (rest != 0);
  if (value < 0) digits_[--first_] = u'-';
}

HexText::HexText(std::uint32_t value) noexcept {
  digits_.fill(u' ');
  std::size_t i = digits_.size();
  do {
    digits_[--i] = u"0123456789ABCDEF"[value & 15];
    value >>= 4;
  } while (value != 0);
}

}  // namespace mivo
