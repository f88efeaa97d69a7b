#include "entered_text.h"

#include <algorithm>

#include "number_text.h"

namespace mivo {
namespace {

constexpr char16_t kLineSeparator = 0x2028;
constexpr char16_t kParagraphSeparator = 0x2029;
constexpr char16_t kDelete = 0x7F;
constexpr char16_t kReplacement = 0xFFFD;

bool IsSeparator(char16_t c) noexcept {
  return c == kLineSeparator || c == kParagraphSeparator;
}

}  // namespace

std::u16string WithStoredLineBreaks(std::u16string_view text) {
  std::u16string stored;
  stored.reserve(text.size() + text.size() / 32);
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char16_t c = text[i];
    if (c == u'\r' || c == u'\n' || IsSeparator(c)) {
      if (c == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n') ++i;
      stored += u"\r\n";
    } else {
      stored.push_back(c);
    }
  }
  return stored;
}

std::u16string WithVisibleControls(std::u16string_view text) {
  std::u16string shown(text);
  std::replace_if(
      shown.begin(), shown.end(),
      [](char16_t c) { return c < u' ' || c == kDelete || IsSeparator(c); }, kReplacement);
  return shown;
}

std::u16string TooLongMessage(std::u16string_view pattern, std::size_t limit) {
  std::u16string message(pattern);
  const std::size_t place = message.find(u"%d");
  if (place != std::u16string::npos) {
    message.replace(place, 2, IntText(static_cast<std::int32_t>(limit)));
  }
  return message;
}

}  // namespace mivo
