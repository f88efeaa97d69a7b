#ifndef MIVO_SETTINGS_SETTINGS_LOCATION_H
#define MIVO_SETTINGS_SETTINGS_LOCATION_H

#include <filesystem>

namespace mivo {

/// The folders in which a settings file is looked for.
struct SettingsFolders {
  std::filesystem::path executable;    ///< of the running program, links resolved
  std::filesystem::path current;       ///< the current directory at the start
  std::filesystem::path localAppData;  ///< the user's own; empty when the system has none
};

/// Chooses the settings file "MIVO.INI": the one in the current directory, unless that is the
/// program's own folder; else the user's own, which an installer makes and the program never does;
/// else the one beside the program, which is created when it is missing, with nothing but the
/// byte-order mark of UTF-16. When that fails the path is returned all the same.
[[nodiscard]] std::filesystem::path ChooseSettingsFile(const SettingsFolders& folders);

}  // namespace mivo

#endif
