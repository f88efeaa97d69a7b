// Prints the program's texts for the stories: on each line a text, and after a tab what a language
// library has for it.
//
//   text_list LANGUAGE_LIBRARY

#include <iostream>
#include <string>
#include <string_view>

#include "language_library.h"
#include "text_encoding.h"
#include "text_table.h"

namespace {

/// On one line without tabs, as a JSON string would be.
std::string Escaped(std::u16string_view text) {
  std::string escaped;
  for (const char c : mivo::Utf16ToUtf8(text)) {
    switch (c) {
      case '\t':
        escaped += "\\t";
        break;
      case '\n':
        escaped += "\\n";
        break;
      case '\\':
        escaped += "\\\\";
        break;
      default:
        escaped += c;
        break;
    }
  }
  return escaped;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: text_list LANGUAGE_LIBRARY\n";
    return 2;
  }
  const mivo::TextTable::Translation translated = mivo::LoadLanguageLibrary(argv[1]);
  if (!translated) {
    std::cerr << argv[1] << " is no language library\n";
    return 1;
  }
  for (const mivo::TextId id : mivo::AllTextIds()) {
    std::cout << Escaped(mivo::BuiltInText(id)) << '\t' << Escaped(translated(id)) << '\n';
  }
}
