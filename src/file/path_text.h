#ifndef MIVO_FILE_PATH_TEXT_H
#define MIVO_FILE_PATH_TEXT_H

#include <filesystem>
#include <string>
#include <string_view>

// The paths of the file layer are std::filesystem::path, which holds what the system holds: bytes,
// or UTF-16 on Windows. The core and the window know a path as UTF-16 text. A file name that is not
// UTF-8 has no such text; it can be opened by whoever holds the path itself.

namespace mivo {

[[nodiscard]] std::filesystem::path PathFromText(std::u16string_view text);

/// For display and for the core; bytes that are not UTF-8 become U+FFFD.
[[nodiscard]] std::u16string TextFromPath(const std::filesystem::path& path);

/// The path that a command line argument means: the argument's very bytes, or UTF-8 on Windows.
[[nodiscard]] std::filesystem::path PathFromArgument(std::string_view argument);

}  // namespace mivo

#endif
