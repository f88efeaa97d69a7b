#include "private_environment.h"

#include <stdlib.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <system_error>

namespace mivo {
namespace {

namespace fs = std::filesystem;

class PrivateEnvironment {
 public:
  PrivateEnvironment() {
    std::string name = (fs::temp_directory_path() / "mivo-test.XXXXXX").string();
    if (!mkdtemp(name.data())) throw std::system_error(errno, std::generic_category(), name);
    folder_ = name;

    PointTo("HOME", "home");
    PointTo("XDG_CONFIG_HOME", "home/.config");
    PointTo("XDG_DATA_HOME", "home/.local/share");
    PointTo("XDG_STATE_HOME", "home/.local/state");
    PointTo("XDG_CACHE_HOME", "home/.cache");
    PointTo("XDG_RUNTIME_DIR", "run");
    PointTo("TMPDIR", "tmp");
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    setenv("LC_ALL", "C.UTF-8", 1);
    unsetenv("LANGUAGE");
  }

  // A forked child that ends leaves the folder to its parent.
  ~PrivateEnvironment() {
    if (getpid() != owner_) return;
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
  }

  PrivateEnvironment(const PrivateEnvironment&) = delete;
  PrivateEnvironment& operator=(const PrivateEnvironment&) = delete;

  [[nodiscard]] const fs::path& Folder() const { return folder_; }

 private:
  void PointTo(const char* variable, const char* name) {
    const fs::path folder = folder_ / name;
    fs::create_directories(folder);
    fs::permissions(folder, fs::perms::owner_all);
    setenv(variable, folder.c_str(), 1);
  }

  fs::path folder_;
  pid_t owner_ = getpid();
};

// Before main, so that a test program with a main of its own is covered too.
const PrivateEnvironment environment;

}  // namespace

const fs::path& PrivateFolder() {
  return environment.Folder();
}

}  // namespace mivo
