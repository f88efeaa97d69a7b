#include "canonical_path.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "temp_folder.h"

namespace mivo {
namespace {

namespace fs = std::filesystem;

class CanonicalPathTest : public testing::Test {
 protected:
  CanonicalPathTest() {
    fs::create_directory(folder_ / "sub");
    folder_.Put("sub/file", "");
  }

  const TempFolder folder_;
  const fs::path real_ = fs::canonical(folder_.Path());
};

TEST_F(CanonicalPathTest, IsThatOfTheFileWhateverLeadsThere) {
  fs::create_directory_symlink("sub", folder_ / "folder link");
  fs::create_symlink("folder link/file", folder_ / "link");
  fs::create_symlink(folder_ / "link", folder_ / "second link");
  for (const char* path :
       {"sub/file", "./sub//file", "sub/../sub/file", "folder link/file", "link", "second link"}) {
    EXPECT_EQ(CanonicalPath(folder_ / path), real_ / "sub/file") << path;
  }
}

TEST_F(CanonicalPathTest, OfARelativePathIsComplete) {
  const fs::path before = fs::current_path();
  fs::current_path(folder_ / "sub");
  EXPECT_EQ(CanonicalPath("file"), real_ / "sub/file");
  EXPECT_EQ(CanonicalPath("none"), real_ / "sub/none");
  fs::current_path(before);
}

TEST_F(CanonicalPathTest, StaysWhenTheFileIsMadeAndWhenItGoes) {
  fs::create_symlink("sub/new", folder_ / "link");
  for (const char* path : {"sub/../sub/new", "link"}) {
    EXPECT_EQ(CanonicalPath(folder_ / path), real_ / "sub/new") << path;
  }
  folder_.Put("sub/new", "");
  EXPECT_EQ(CanonicalPath(folder_ / "link"), real_ / "sub/new");
}

TEST_F(CanonicalPathTest, TellsFilesApart) {
  folder_.Put("sub/FILE", "");
  fs::create_hard_link(folder_ / "sub/file", folder_ / "sub/other name");
  EXPECT_NE(CanonicalPath(folder_ / "sub/FILE"), CanonicalPath(folder_ / "sub/file"));
  EXPECT_NE(CanonicalPath(folder_ / "sub/other name"), CanonicalPath(folder_ / "sub/file"));
}

TEST_F(CanonicalPathTest, IsThePathAsGivenWhereTheSystemCannotTell) {
  fs::create_symlink("loop", folder_ / "loop");
  const fs::path endless(std::string(5000, 'n'));
  for (const fs::path& path : {folder_ / "loop/file", endless, fs::path()}) {
    EXPECT_EQ(CanonicalPath(path), path);
  }
}

}  // namespace
}  // namespace mivo
