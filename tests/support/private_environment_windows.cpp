#define NOMINMAX
#include <windows.h>

#include <stdlib.h>

#include <string>

#include "private_environment.h"

namespace mivo {
namespace {

namespace fs = std::filesystem;

class PrivateEnvironment {
 public:
  PrivateEnvironment()
      : folder_(fs::temp_directory_path() /
                (L"mivo-test." + std::to_wstring(GetCurrentProcessId()))) {
    std::error_code ignored;
    fs::remove_all(folder_, ignored);  // of a process of that number that crashed
    for (const wchar_t* const variable : {L"TMP", L"TEMP"}) PointTo(variable, "tmp");
    PointTo(L"APPDATA", "roaming");
    PointTo(L"LOCALAPPDATA", "local");
    if (_wgetenv(L"QT_QPA_PLATFORM") == nullptr) _wputenv_s(L"QT_QPA_PLATFORM", L"offscreen");
  }
  ~PrivateEnvironment() {
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
  }
  PrivateEnvironment(const PrivateEnvironment&) = delete;
  PrivateEnvironment& operator=(const PrivateEnvironment&) = delete;

  [[nodiscard]] const fs::path& Folder() const { return folder_; }

 private:
  void PointTo(const wchar_t* variable, const char* name) {
    const fs::path folder = folder_ / name;
    fs::create_directories(folder);
    // The C runtime's environment is a copy that only its own function changes along.
    _wputenv_s(variable, folder.c_str());
  }

  fs::path folder_;
};

// Before main, so that a test program with a main of its own is covered too.
const PrivateEnvironment environment;

}  // namespace

const fs::path& PrivateFolder() {
  return environment.Folder();
}

}  // namespace mivo
