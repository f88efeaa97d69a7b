#include "settings_file.h"

#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "temp_folder.h"

#ifndef _WIN32
#include "unprivileged_user.h"
#endif

namespace mivo {
namespace {

namespace fs = std::filesystem;

class SettingsFileTest : public testing::Test {
 protected:
  [[nodiscard]] fs::path File() const { return folder_ / "MIVO.INI"; }
  void Put(std::string_view content) const { std::ofstream(File(), std::ios::binary) << content; }
  [[nodiscard]] std::string Content() const {
    std::ifstream stream(File(), std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }

 private:
  const TempFolder folder_;
};

TEST_F(SettingsFileTest, WritesAChangedValueAndNothingElse) {
  Put("; mine\n[Setting]\nEditWindowMargin=0\n");
  SettingsFile settings(File());
  settings.SetInt(u"Setting", u"EditWindowMargin", 80);
  EXPECT_EQ(settings.GetInt(u"Setting", u"EditWindowMargin", 0), 80);
  EXPECT_EQ(Content(), "; mine\n[Setting]\nEditWindowMargin=80\n");
}

TEST_F(SettingsFileTest, SameValueLeavesTheFileAlone) {
  Put("[Setting]\nEditWindowMargin=0\n");
  SettingsFile settings(File());
  fs::last_write_time(File(), fs::last_write_time(File()) - std::chrono::hours(1));
  const fs::file_time_type before = fs::last_write_time(File());
  settings.SetInt(u"Setting", u"EditWindowMargin", 0);
  EXPECT_EQ(fs::last_write_time(File()), before);
}

TEST_F(SettingsFileTest, KeepsWhatAnotherProgramWroteMeanwhile) {
  Put("[Setting]\na=1\n");
  SettingsFile settings(File());
  Put("[Setting]\na=1\nb=2\n");
  settings.SetInt(u"Setting", u"a", 3);
  EXPECT_EQ(Content(), "[Setting]\na=3\nb=2\n");
}

TEST_F(SettingsFileTest, FileThatCannotBeReadGivesDefaultsAndIsNotCreated) {
  SettingsFile settings(File());
  EXPECT_EQ(settings.GetInt(u"Setting", u"a", 7), 7);
  EXPECT_EQ(settings.GetString(u"LabelFont", u"FaceName", u"Tahoma"), u"Tahoma");
  settings.SetInt(u"Setting", u"a", 3);
  EXPECT_EQ(settings.GetInt(u"Setting", u"a", 7), 3);
  EXPECT_FALSE(fs::exists(File()));
}

// As on a disk that can only be read: nothing is written, and nobody is disturbed.
TEST(ReadOnlySettingsFile, KeepsTheChangeInMemory) {
  const TempFolder folder;
  const fs::path path = folder.Put("MIVO.INI", "[A]\r\nk=1\r\n");
#ifndef _WIN32  // nobody there is above what is read-only
  const UnprivilegedUser user;
#endif
  fs::permissions(path, fs::perms::owner_read);
  fs::permissions(folder.Path(), fs::perms::owner_read | fs::perms::owner_exec);
  SettingsFile settings(path);
  settings.SetInt(u"A", u"k", 2);
  EXPECT_EQ(settings.GetInt(u"A", u"k", 0), 2);
  fs::permissions(folder.Path(), fs::perms::owner_all);
  EXPECT_EQ(BytesOf(path), "[A]\r\nk=1\r\n");
  EXPECT_EQ(folder.Names(), std::vector<std::string>{"MIVO.INI"});
  fs::permissions(path, fs::perms::owner_all);
}

TEST_F(SettingsFileTest, HugeFileIsNoSettingsFile) {
  Put("[Setting]\na=1\n" + std::string(std::size_t{2} << 20, ';'));
  const std::string before = Content();
  SettingsFile settings(File());
  EXPECT_EQ(settings.GetInt(u"Setting", u"a", 7), 7);
  settings.SetInt(u"Setting", u"a", 3);
  EXPECT_EQ(Content(), before);
}

}  // namespace
}  // namespace mivo
