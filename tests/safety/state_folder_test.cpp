#include "state_folder.h"

#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>

#include "child_process.h"
#include "temp_folder.h"

namespace mivo {
namespace {

namespace fs = std::filesystem;

/// What is found with these variables, null for one that is not set.
std::string FoundWith(const char* state, const char* home) {
  return RunInChild([&] {
    const auto set = [](const char* name, const char* value) {
      if (value != nullptr) {
        setenv(name, value, 1);
      } else {
        unsetenv(name);
      }
    };
    set("XDG_STATE_HOME", state);
    set("HOME", home);
    return FindStateFolder().string();
  });
}

TEST(StateFolder, IsWhereTheEnvironmentSays) {
  EXPECT_EQ(FoundWith("/state", "/home/u"), "/state/mivo");
  EXPECT_EQ(FoundWith(nullptr, "/home/u"), "/home/u/.local/state/mivo");
  EXPECT_EQ(FoundWith("", "/home/u"), "/home/u/.local/state/mivo");
  EXPECT_EQ(FoundWith("relative", "/home/u"), "/home/u/.local/state/mivo");
  EXPECT_EQ(FoundWith(nullptr, nullptr), "");
}

TEST(StateFolder, NewFoldersAreForTheUserAlone) {
  const TempFolder folder;
  ASSERT_TRUE(CreatePrivateFolder(folder / "a/b"));
  for (const char* name : {"a", "a/b"}) {
    struct stat status {};
    ASSERT_EQ(stat((folder / name).c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0700u) << name;
  }
  EXPECT_TRUE(CreatePrivateFolder(folder / "a/b"));
}

TEST(StateFolder, AFileInTheWayIsNoFolder) {
  const TempFolder folder;
  folder.Put("a", "a file");
  EXPECT_FALSE(CreatePrivateFolder(folder / "a/b"));
  EXPECT_FALSE(CreatePrivateFolder(folder / "a"));
  EXPECT_FALSE(CreatePrivateFolder(""));
}

TEST(NameForPath, TellsThePathAndDiffersFromPathToPath) {
  const std::string name = NameForPath("/home/user/libs/parts.ZLB").string();
  EXPECT_TRUE(name.starts_with("%home%user%libs%parts.ZLB-")) << name;
  EXPECT_NE(name, NameForPath("/home/user%libs/parts.ZLB").string());
  EXPECT_EQ(name, NameForPath("/home/user/libs/parts.ZLB").string());
}

TEST(NameForPath, IsTheSameThroughALink) {
  const TempFolder folder;
  fs::create_directory(folder / "real");
  folder.Put("real/parts.ZLB", "");
  fs::create_symlink("real", folder / "link");
  EXPECT_EQ(NameForPath(folder / "link/parts.ZLB"), NameForPath(folder / "real/parts.ZLB"));
}

TEST(NameForPath, FitsIntoAFileSystemHoweverLongThePathIs) {
  std::string path;
  for (int i = 0; i < 100; ++i) path += "/\xE2\x82\xAC\xE2\x82\xAC\xE2\x82\xAC";  // euro signs
  EXPECT_LE(NameForPath(path).string().size(), 255u);
  EXPECT_NE(NameForPath(path), NameForPath("/a" + path));
}

TEST(NameForPath, TakesNamesThatAreNoText) {
  const std::string path = "/folder/\xFF\xFE.ZLB";
  EXPECT_FALSE(NameForPath(path).empty());
  EXPECT_NE(NameForPath(path), NameForPath("/folder/\xFE\xFF.ZLB"));
}

}  // namespace
}  // namespace mivo
