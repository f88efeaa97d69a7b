#include "language_library.h"

#include <algorithm>
#include <string>
#include <system_error>

#include "elf_file.h"
#include "mivo_language.h"
#include "text_encoding.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace mivo {
namespace {

// The library is never unloaded: whoever holds a text of it need not know where it comes from.
MivoLanguageFunction LoadFunction(const std::filesystem::path& path) {
#ifdef _WIN32
  // By default the system itself complains in a window about a file that is no library.
  DWORD oldMode = 0;
  SetThreadErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX, &oldMode);
  const HMODULE library = LoadLibraryW(path.c_str());
  SetThreadErrorMode(oldMode, nullptr);
  if (library == nullptr) return nullptr;
  return reinterpret_cast<MivoLanguageFunction>(
      reinterpret_cast<void*>(GetProcAddress(library, MIVO_LANGUAGE_FUNCTION)));
#else
#ifdef __linux__
  if (!IsWholeElfFile(path)) return nullptr;
#endif
  void* const library = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) return nullptr;
  return reinterpret_cast<MivoLanguageFunction>(dlsym(library, MIVO_LANGUAGE_FUNCTION));
#endif
}

std::u16string Decoded(const char* text) {
  if (text == nullptr) return {};
  const char* const limit = text + MIVO_LANGUAGE_MAX_BYTES;
  const char* const end = std::find(text, limit, '\0');
  if (end == limit) return {};
  std::u16string decoded = Utf8ToUtf16({text, static_cast<std::size_t>(end - text)});
  return decoded.find(u'\uFFFD') == std::u16string::npos ? decoded : std::u16string();
}

}  // namespace

TextTable::Translation LoadLanguageLibrary(const std::filesystem::path& path) {
  // A path without a folder would be searched for all over the system, and a pipe waited for. Not
  // is_absolute, which on Windows knows no server.
  std::error_code error;
  if (!path.has_root_directory() || !std::filesystem::is_regular_file(path, error)) return nullptr;
  const MivoLanguageFunction function = LoadFunction(path);
  if (function == nullptr) return nullptr;
  return [function](TextId id) {
    return Decoded(function(static_cast<std::int32_t>(id.kind), id.number, id.control));
  };
}

}  // namespace mivo
