#include "unprivileged_user.h"

#include <grp.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "private_environment.h"

namespace mivo {
namespace {

namespace fs = std::filesystem;

constexpr uid_t kRoot = 0;
constexpr uid_t kNobody = 65534;
constexpr gid_t kNoGroup = 65534;

void Check(int result, const char* call) {
  if (result < 0) throw std::system_error(errno, std::generic_category(), call);
}

void HandOver(const fs::path& path) {
  Check(lchown(path.c_str(), kNobody, kNoGroup), "lchown");
}

}  // namespace

UnprivilegedUser::UnprivilegedUser() : wasRoot_(geteuid() == kRoot) {
  if (!wasRoot_) return;
  HandOver(PrivateFolder());
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(PrivateFolder())) {
    HandOver(entry.path());
  }

  const int count = getgroups(0, nullptr);
  Check(count, "getgroups");
  groups_.resize(static_cast<std::size_t>(count));
  Check(getgroups(count, groups_.data()), "getgroups");

  // Root stays the saved user, which is the way back. The group goes first: only root may change
  // it.
  Check(setgroups(0, nullptr), "setgroups");
  Check(setresgid(kNoGroup, kNoGroup, 0), "setresgid");
  Check(setresuid(kNobody, kNobody, kRoot), "setresuid");
}

UnprivilegedUser::~UnprivilegedUser() {
  if (!wasRoot_) return;
  if (setresuid(kRoot, kRoot, kRoot) != 0 || setresgid(0, 0, 0) != 0 ||
      setgroups(groups_.size(), groups_.data()) != 0) {
    std::abort();  // later tests would fail for the wrong reason
  }
}

}  // namespace mivo
