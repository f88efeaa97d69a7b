#include "path_text.h"

#include "text_encoding.h"

namespace mivo {

// std::filesystem's own conversions throw on a lone surrogate, so only unconverted text is handed
// to it.

#ifdef _WIN32

std::filesystem::path PathFromText(std::u16string_view text) {
  return std::filesystem::path(std::wstring(text.begin(), text.end()));
}

std::u16string TextFromPath(const std::filesystem::path& path) {
  return std::u16string(path.native().begin(), path.native().end());
}

std::filesystem::path PathFromArgument(std::string_view argument) {
  return PathFromText(Utf8ToUtf16(argument));
}

#else

std::filesystem::path PathFromText(std::u16string_view text) {
  return std::filesystem::path(Utf16ToUtf8(text));
}

std::u16string TextFromPath(const std::filesystem::path& path) {
  return Utf8ToUtf16(path.native());
}

std::filesystem::path PathFromArgument(std::string_view argument) {
  return std::filesystem::path(argument);
}

#endif

}  // namespace mivo
