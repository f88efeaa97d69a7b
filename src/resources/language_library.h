#ifndef MIVO_RESOURCES_LANGUAGE_LIBRARY_H
#define MIVO_RESOURCES_LANGUAGE_LIBRARY_H

#include <filesystem>
#include <string_view>

#include "text_table.h"

namespace mivo {

/// The language library's file name, on every system.
inline constexpr std::string_view kLanguageLibraryName = "mivo_lang.dll";

/// Loads a language library (see mivo_language.h) for the rest of the process; null when there is
/// none at `path` or what is there is no such library, which is nobody's fault. A text that is no
/// UTF-8 or too long counts as missing.
[[nodiscard]] TextTable::Translation LoadLanguageLibrary(const std::filesystem::path& path);

}  // namespace mivo

#endif
