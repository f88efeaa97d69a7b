#ifndef MIVO_RESOURCES_ELF_FILE_H
#define MIVO_RESOURCES_ELF_FILE_H

#include <filesystem>

namespace mivo {

/// Whether the file is an ELF file of this machine's kind that holds all that its headers promise.
/// The system's loader maps a file that is cut off as it is, and ends the process with a signal as
/// soon as what is missing is touched.
[[nodiscard]] bool IsWholeElfFile(const std::filesystem::path& path);

}  // namespace mivo

#endif
