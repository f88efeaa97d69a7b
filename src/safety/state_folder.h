#ifndef MIVO_SAFETY_STATE_FOLDER_H
#define MIVO_SAFETY_STATE_FOLDER_H

#include <filesystem>

// What the program keeps for the user without being asked lies in one folder, out of the way of the
// user's own files.

namespace mivo {

/// $XDG_STATE_HOME/mivo, or .local/state/mivo in the home folder; on Windows "mivo" in the local
/// application-data folder. Empty when the environment names none of them.
[[nodiscard]] std::filesystem::path FindStateFolder();

/// Creates the folder and those around it, what is new for the user alone; true when it is there.
bool CreatePrivateFolder(const std::filesystem::path& folder);

/// A name that stands for the file at `path`, however it is reached: the end of its path, for a
/// person to read, and a number that differs from path to path.
[[nodiscard]] std::filesystem::path NameForPath(const std::filesystem::path& path);

}  // namespace mivo

#endif
