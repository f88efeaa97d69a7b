#ifndef MIVO_FILE_CANONICAL_PATH_H
#define MIVO_FILE_CANONICAL_PATH_H

#include <filesystem>

namespace mivo {

/// The one path that stands for the file at `path`, however that is spelt: complete, through no
/// links, and on Windows in the volume's own spelling. It is for telling files from each other, not
/// for opening them, and not for showing. The file need not exist; where the system cannot tell,
/// the path as given serves. Further names of a file (hard links) are other files.
[[nodiscard]] std::filesystem::path CanonicalPath(const std::filesystem::path& path);

}  // namespace mivo

#endif
