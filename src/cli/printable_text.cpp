#include "printable_text.h"

#include "text_encoding.h"

namespace mivo {
namespace {

bool IsControl(char16_t c) {
  return c < 0x20 || (c >= 0x7F && c < 0xA0);
}

void AppendEscape(std::string& out, char16_t c) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  out += '\\';
  switch (c) {
    case u'\t':
      out += 't';
      return;
    case u'\n':
      out += 'n';
      return;
    case u'\r':
      out += 'r';
      return;
    case u'\\':
      out += '\\';
      return;
    default:
      out += "u00";
      out += kDigits[c >> 4];
      out += kDigits[c & 15];
  }
}

template <typename Predicate>
void AppendEscaped(std::string& out, std::u16string_view text, Predicate needsEscape) {
  std::size_t start = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (!needsEscape(text[i])) continue;
    AppendUtf8(out, text.substr(start, i - start));
    AppendEscape(out, text[i]);
    start = i + 1;
  }
  AppendUtf8(out, text.substr(start));
}

}  // namespace

void AppendColumn(std::string& out, std::u16string_view text) {
  AppendEscaped(out, text, [](char16_t c) { return IsControl(c) || c == u'\\'; });
}

void AppendMessage(std::string& out, std::u16string_view text) {
  AppendEscaped(out, text, IsControl);
}

void AppendMessage(std::string& out, std::string_view bytes) {
  AppendMessage(out, Utf8ToUtf16(bytes));
}

}  // namespace mivo
