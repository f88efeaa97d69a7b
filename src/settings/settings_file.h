#ifndef MIVO_SETTINGS_SETTINGS_FILE_H
#define MIVO_SETTINGS_SETTINGS_FILE_H

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "profile.h"

namespace mivo {

/// The program's settings in their file. A file that cannot be read gives the defaults, one that
/// cannot be written keeps the changes in memory: settings never disturb the user.
class SettingsFile {
 public:
  /// Reads the file.
  explicit SettingsFile(std::filesystem::path path);

  [[nodiscard]] const std::filesystem::path& Path() const noexcept { return path_; }

  // See Profile.
  [[nodiscard]] std::int32_t GetInt(std::u16string_view section, std::u16string_view key,
                                    std::int32_t fallback) const;
  [[nodiscard]] std::u16string GetString(std::u16string_view section, std::u16string_view key,
                                         std::u16string_view fallback) const;

  /// Changes the value in the file as it is now, so that what another running program wrote there
  /// stays. Nothing is written when the value is there already.
  void SetInt(std::u16string_view section, std::u16string_view key, std::int32_t value);

 private:
  std::filesystem::path path_;
  Profile profile_;
};

}  // namespace mivo

#endif
