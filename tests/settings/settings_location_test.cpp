#include "settings_location.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

#include "temp_folder.h"

namespace mivo {
namespace {

namespace fs = std::filesystem;

class SettingsLocationTest : public testing::Test {
 protected:
  SettingsLocationTest() {
    for (const fs::path& folder : {Executable(), Current(), User()}) fs::create_directories(folder);
  }

  [[nodiscard]] fs::path Executable() const { return root_ / "program"; }
  [[nodiscard]] fs::path Current() const { return root_ / "work"; }
  [[nodiscard]] fs::path User() const { return root_ / "share" / "HallvarnONLINE"; }

  [[nodiscard]] fs::path Choose() const {
    return ChooseSettingsFile({Executable(), Current(), root_ / "share"});
  }
  [[nodiscard]] fs::path ChooseStartedFromOwnFolder() const {
    return ChooseSettingsFile({Executable(), Executable(), root_ / "share"});
  }

  static void Make(const fs::path& folder) {
    std::ofstream(folder / "MIVO.INI", std::ios::binary) << "[Setting]\n";
  }
  static std::string Content(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }

 private:
  const TempFolder root_;
};

TEST_F(SettingsLocationTest, CreatedBesideTheProgramWithTheByteOrderMarkAlone) {
  EXPECT_EQ(ChooseStartedFromOwnFolder(), Executable() / "MIVO.INI");
  EXPECT_EQ(Content(Executable() / "MIVO.INI"), "\xFF\xFE");
}

TEST_F(SettingsLocationTest, FileBesideTheProgramIsLeftAsItIs) {
  Make(Executable());
  EXPECT_EQ(Choose(), Executable() / "MIVO.INI");
  EXPECT_EQ(Content(Executable() / "MIVO.INI"), "[Setting]\n");
}

TEST_F(SettingsLocationTest, CurrentDirectoryComesFirst) {
  Make(Current());
  Make(User());
  Make(Executable());
  EXPECT_EQ(Choose(), Current() / "MIVO.INI");
}

TEST_F(SettingsLocationTest, UsersOwnComesBeforeTheOneBesideTheProgram) {
  Make(User());
  Make(Executable());
  EXPECT_EQ(Choose(), User() / "MIVO.INI");
}

TEST_F(SettingsLocationTest, ProgramFolderAsCurrentDirectoryDoesNotComeFirst) {
  Make(User());
  Make(Executable());
  EXPECT_EQ(ChooseStartedFromOwnFolder(), User() / "MIVO.INI");
}

TEST_F(SettingsLocationTest, UsersFolderIsNeverCreated) {
  fs::remove_all(User());
  EXPECT_EQ(Choose(), Executable() / "MIVO.INI");
  EXPECT_FALSE(fs::exists(User()));
}

TEST_F(SettingsLocationTest, FolderOfThatNameIsNoSettingsFile) {
  fs::create_directory(Current() / "MIVO.INI");
  EXPECT_EQ(Choose(), Executable() / "MIVO.INI");
}

TEST_F(SettingsLocationTest, SystemWithoutUserFolder) {
  EXPECT_EQ(ChooseSettingsFile({Executable(), Current(), {}}), Executable() / "MIVO.INI");
}

TEST_F(SettingsLocationTest, PathIsUsedEvenIfTheFileCannotBeCreated) {
  fs::remove_all(Executable());
  EXPECT_EQ(Choose(), Executable() / "MIVO.INI");
  EXPECT_FALSE(fs::exists(Executable()));
}

}  // namespace
}  // namespace mivo
