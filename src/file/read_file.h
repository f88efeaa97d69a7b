#ifndef MIVO_FILE_READ_FILE_H
#define MIVO_FILE_READ_FILE_H

#include <filesystem>
#include <string>

#include "file_result.h"

namespace mivo {

/// The whole content of a file, byte by byte. Refuses what is not a regular file: a directory has
/// no content, a pipe or a device may never come to an end.
[[nodiscard]] FileResult<std::string> ReadFile(const std::filesystem::path& path);

/// Everything up to the end of the standard input, byte by byte.
[[nodiscard]] FileResult<std::string> ReadStandardInput();

}  // namespace mivo

#endif
