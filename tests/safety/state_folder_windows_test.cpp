#include <gtest/gtest.h>
#include <wchar.h>

#include <filesystem>
#include <string>

#include "state_folder.h"
#include "temp_folder.h"

namespace mivo {
namespace {

namespace fs = std::filesystem;

/// Where the state folder is when the local application-data folder is `local`.
fs::path FoundWith(const wchar_t* local) {
  const std::wstring before = _wgetenv(L"LOCALAPPDATA");
  _wputenv_s(L"LOCALAPPDATA", local);
  fs::path found = FindStateFolder();
  _wputenv_s(L"LOCALAPPDATA", before.c_str());
  return found;
}

TEST(StateFolder, IsInTheLocalApplicationDataOfAUserOfAnyName) {
  EXPECT_EQ(FoundWith(L"C:\\Users\\J\u00FCrgen \u0416\\AppData\\Local"),
            L"C:\\Users\\J\u00FCrgen \u0416\\AppData\\Local\\mivo");
  EXPECT_EQ(FoundWith(L"\\\\server\\homes\\u\\Local"), L"\\\\server\\homes\\u\\Local\\mivo");
  EXPECT_EQ(FoundWith(L"relative"), L"");
  EXPECT_EQ(FoundWith(L""), L"");
}

TEST(StateFolder, IsMadeWithTheFoldersAboveIt) {
  const TempFolder folder;
  const fs::path state = folder.Path() / L"J\u00FCrgen \u0416" / "mivo";
  EXPECT_TRUE(CreatePrivateFolder(state));
  EXPECT_TRUE(fs::is_directory(state));
  EXPECT_TRUE(CreatePrivateFolder(state));
}

TEST(StateFolder, AFileInTheWayIsNoFolder) {
  const TempFolder folder;
  folder.Put("a", "a file");
  EXPECT_FALSE(CreatePrivateFolder(folder / "a\\b"));
  EXPECT_FALSE(CreatePrivateFolder(folder / "a"));
  EXPECT_FALSE(CreatePrivateFolder(""));
}

TEST(NameForPath, TellsThePathAndDiffersFromPathToPath) {
  const std::wstring name = NameForPath(L"C:\\Users\\u\\libs\\parts.ZLB").native();
  EXPECT_TRUE(name.starts_with(L"C%%Users%u%libs%parts.ZLB-")) << fs::path(name);
  EXPECT_EQ(name, NameForPath(L"C:/Users/u/libs/parts.ZLB").native());
  EXPECT_NE(name, NameForPath(L"D:\\Users\\u\\libs\\parts.ZLB").native());
}

class NameForPathOfAnyKind : public testing::TestWithParam<const wchar_t*> {};

TEST_P(NameForPathOfAnyKind, CanNameAFile) {
  const TempFolder folder;
  const fs::path name = NameForPath(GetParam());
  EXPECT_EQ(name, name.filename());
  EXPECT_TRUE(fs::create_directory(folder.Path() / name)) << name;
}

INSTANTIATE_TEST_SUITE_P(Paths, NameForPathOfAnyKind,
                         testing::Values(L"C:\\a.ZLB", L"C:/a.ZLB", L"\\\\server\\share\\a.ZLB",
                                         L"\\\\?\\C:\\a.ZLB", L"\\\\?\\UNC\\server\\share\\a.ZLB",
                                         L"C:\\J\u00FCrgen \u0416 \u4E16\u754C\\a.ZLB"));

}  // namespace
}  // namespace mivo
