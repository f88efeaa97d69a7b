#include "settings_location.h"

#include <fstream>

#include "profile.h"

namespace mivo {
namespace {

constexpr const char* kFileName = "MIVO.INI";
constexpr const char* kUserFolder = "HallvarnONLINE";

bool CanBeRead(const std::filesystem::path& path) {
  std::error_code error;
  return std::filesystem::is_regular_file(path, error) && std::ifstream(path).is_open();
}

}  // namespace

std::filesystem::path ChooseSettingsFile(const SettingsFolders& folders) {
  if (folders.current.native() != folders.executable.native()) {
    const std::filesystem::path inCurrent = folders.current / kFileName;
    if (CanBeRead(inCurrent)) return inCurrent;
  }
  if (!folders.localAppData.empty()) {
    const std::filesystem::path ofUser = folders.localAppData / kUserFolder / kFileName;
    if (CanBeRead(ofUser)) return ofUser;
  }
  const std::filesystem::path besideProgram = folders.executable / kFileName;
  std::error_code error;
  if (!std::filesystem::exists(besideProgram, error) && !error) {
    std::ofstream(besideProgram, std::ios::binary) << Profile().Bytes();
  }
  return besideProgram;
}

}  // namespace mivo
