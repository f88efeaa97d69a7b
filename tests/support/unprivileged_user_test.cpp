#include "unprivileged_user.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace mivo {
namespace {

namespace fs = std::filesystem;

TEST(UnprivilegedUser, IsRefusedWhatRootMayDo) {
  const fs::path folder = fs::temp_directory_path() / "read-only";
  fs::create_directory(folder);
  const UnprivilegedUser user;
  fs::permissions(folder, fs::perms::owner_read | fs::perms::owner_exec);

  EXPECT_FALSE(std::ofstream(folder / "file").is_open());
  EXPECT_NE(access(folder.c_str(), W_OK), 0);
}

TEST(UnprivilegedUser, KeepsTheRightsInThePrivateFolder) {
  const UnprivilegedUser user;
  EXPECT_TRUE(std::ofstream(fs::temp_directory_path() / "file").is_open());
}

TEST(UnprivilegedUser, HandsItsUserDownToProgramsItStarts) {
  const UnprivilegedUser user;
  EXPECT_NE(std::system("test \"$(id -u)\" -ne 0"), -1);
  EXPECT_EQ(std::system("test \"$(id -u)\" -ne 0"), 0);
}

TEST(UnprivilegedUser, GivesTheRightsBackAtTheEnd) {
  const uid_t user = geteuid();
  const gid_t group = getegid();
  { const UnprivilegedUser unprivileged; }
  EXPECT_EQ(geteuid(), user);
  EXPECT_EQ(getegid(), group);
}

}  // namespace
}  // namespace mivo
