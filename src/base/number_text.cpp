#include "number_text.h"

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

/// Value of a hexadecimal digit, or 16.
std::uint32_t HexDigit(char16_t c) {
  if (c >= u'0' && c <= u'9') return static_cast<std::uint32_t>(c - u'0');
  if (c >= u'A' && c <= u'F') return static_cast<std::uint32_t>(c - u'A' + 10);
  if (c >= u'a' && c <= u'f') return static_cast<std::uint32_t>(c - u'a' + 10);
  return 16;
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
      HexDigit(text[2]) < 16) {
    text.remove_prefix(2);
  }
  std::uint64_t value = 0;
  for (const char16_t c : text) {
    const std::uint32_t digit = HexDigit(c);
    if (digit == 16) break;
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
