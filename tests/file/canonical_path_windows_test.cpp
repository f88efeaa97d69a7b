// One file of Windows has many spellings.

#define NOMINMAX
#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>

#include "canonical_path.h"
#include "temp_folder.h"

namespace mivo {
namespace {

namespace fs = std::filesystem;

fs::path UpperCase(std::wstring path) {
  CharUpperBuffW(path.data(), static_cast<DWORD>(path.size()));
  return path;
}

fs::path LowerCase(std::wstring path) {
  CharLowerBuffW(path.data(), static_cast<DWORD>(path.size()));
  return path;
}

/// With the short names of what is there; a file system may have none.
fs::path ShortNames(const fs::path& path) {
  std::wstring names(MAX_PATH, L'\0');
  names.resize(GetShortPathNameW(path.c_str(), names.data(), MAX_PATH));
  return names;
}

fs::path ForwardSlashes(std::wstring path) {
  std::replace(path.begin(), path.end(), L'\\', L'/');
  return path;
}

class CanonicalPathTest : public testing::Test {
 protected:
  CanonicalPathTest() {
    fs::create_directory(sub_);
    std::ofstream(file_).put('a');
  }

  const TempFolder folder_;
  const fs::path sub_ = folder_ / "Library Folder";
  const fs::path file_ = sub_ / L"P\u00E4rts of all.ZLB";
};

TEST_F(CanonicalPathTest, IsThatOfTheFileHoweverItIsSpelt) {
  const fs::path path = CanonicalPath(file_);
  EXPECT_EQ(path.filename(), file_.filename());
  EXPECT_EQ(CanonicalPath(UpperCase(file_.native())), path);
  EXPECT_EQ(CanonicalPath(LowerCase(file_.native())), path);
  EXPECT_EQ(CanonicalPath(ShortNames(file_)), path) << ShortNames(file_);
  EXPECT_EQ(CanonicalPath(ForwardSlashes(file_.native())), path);
  EXPECT_EQ(CanonicalPath(L"\\\\?\\" + file_.native()), path);
  EXPECT_EQ(CanonicalPath(sub_ / L"..\\Library Folder\\.\\" / file_.filename()), path);
}

TEST_F(CanonicalPathTest, OfARelativePathIsComplete) {
  const fs::path before = fs::current_path();
  fs::current_path(sub_);
  EXPECT_EQ(CanonicalPath(LowerCase(file_.filename().native())), CanonicalPath(file_));
  EXPECT_EQ(CanonicalPath(sub_.root_name().native() + file_.filename().native()),
            CanonicalPath(file_));
  EXPECT_EQ(CanonicalPath(L"new.ZLB"), CanonicalPath(sub_ / "new.ZLB"));
  fs::current_path(before);
}

TEST_F(CanonicalPathTest, StaysWhenTheFileIsMadeAndWhenItGoes) {
  const fs::path file = sub_ / "New.ZLB";
  const fs::path path = CanonicalPath(file);
  EXPECT_EQ(CanonicalPath(UpperCase(sub_.native()) / file.filename()), path);
  EXPECT_EQ(CanonicalPath(ShortNames(sub_) / file.filename()), path);
  EXPECT_EQ(CanonicalPath(ForwardSlashes(file.native())), path);
  EXPECT_EQ(CanonicalPath(L"\\\\?\\" + file.native()), path);
  folder_.Put("Library Folder/New.ZLB", "");
  EXPECT_EQ(CanonicalPath(file), path);
  EXPECT_EQ(CanonicalPath(LowerCase(file.native())), path);
}

// Wine does not know the volume's spelling of so long a path.
TEST_F(CanonicalPathTest, OfALongPathIsWithoutItsMarkToo) {
  fs::path deep = folder_.Path();
  while (deep.native().size() < 400) {
    deep /= std::wstring(60, L'n');
    ASSERT_TRUE(CreateDirectoryW((L"\\\\?\\" + deep.native()).c_str(), nullptr));
  }
  const std::wstring file = (deep / "a.ZLB").native();
  const fs::path path = CanonicalPath(file);
  EXPECT_EQ(path.root_name(), folder_.Path().root_name());
  EXPECT_EQ(CanonicalPath(L"\\\\?\\" + file), path);
  EXPECT_EQ(CanonicalPath(ForwardSlashes(file)), path);
}

TEST_F(CanonicalPathTest, OfAFileOnAServerIsComplete) {
  const fs::path share = L"\\\\mivo-test\\share";  // of packaging/windows/wine-environment
  if (!fs::exists(share)) GTEST_SKIP() << "there is no such server";
  const fs::path path = CanonicalPath(share / "a.ZLB");
  EXPECT_EQ(CanonicalPath(L"\\\\?\\UNC\\mivo-test\\share\\a.ZLB"), path);
  EXPECT_EQ(CanonicalPath(L"//mivo-test/share/a.ZLB"), path);
}

TEST_F(CanonicalPathTest, DoesNotNeedToReadTheFile) {
  const fs::path path = CanonicalPath(file_);
  const HANDLE other = CreateFileW(file_.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                                   OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(other, INVALID_HANDLE_VALUE);
  EXPECT_EQ(CanonicalPath(LowerCase(file_.native())), path);
  CloseHandle(other);
}

TEST_F(CanonicalPathTest, TellsFilesApart) {
  EXPECT_NE(CanonicalPath(sub_ / "a.ZLB"), CanonicalPath(sub_ / "b.ZLB"));
  EXPECT_NE(CanonicalPath(folder_ / "a.ZLB"), CanonicalPath(sub_ / "a.ZLB"));
}

TEST_F(CanonicalPathTest, IsThePathAsGivenWhereTheSystemCannotTell) {
  const fs::path nowhere = folder_ / "none\\a.ZLB";
  EXPECT_EQ(CanonicalPath(nowhere), nowhere);
  EXPECT_EQ(CanonicalPath(L""), L"");
  EXPECT_EQ(CanonicalPath(L"\\\\?\\"), CanonicalPath(L"\\\\?\\"));
  EXPECT_FALSE(CanonicalPath(std::wstring(40000, L'n')).empty());
}

}  // namespace
}  // namespace mivo
