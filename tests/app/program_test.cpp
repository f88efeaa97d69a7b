// The program as people start it: a process, with its files beside it.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "child_process.h"
#include "language_library.h"
#include "temp_folder.h"

namespace mivo {
namespace {

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::HasSubstr;
using testing::UnorderedElementsAre;

/// A copy of the program in a folder of its own, started from another one.
class ProgramTest : public testing::Test {
 protected:
  ProgramTest() {
    fs::create_directory(Program().parent_path());
    fs::create_directory(Work());
    fs::copy_file(MIVO_PROGRAM, Program());
  }

  [[nodiscard]] fs::path Program() const { return folder_ / "program" / "mivo"; }
  [[nodiscard]] fs::path Work() const { return folder_ / "work"; }

  [[nodiscard]] ProgramResult Run(const fs::path& program,
                                  std::vector<std::string> arguments) const {
    arguments.insert(arguments.end(), {"-platform", "offscreen"});
    return RunProgram(program, arguments, Work());
  }

  [[nodiscard]] std::vector<std::string> FilesBesideTheProgram() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(Program().parent_path())) {
      names.push_back(entry.path().filename().string());
    }
    return names;
  }

 private:
  const TempFolder folder_;
};

TEST_F(ProgramTest, TellsItsVersion) {
  const ProgramResult result = Run(Program(), {"--version"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.output, "mivo 0.84.00\n");
}

TEST_F(ProgramTest, SpeaksEnglishByItself) {
  EXPECT_THAT(Run(Program(), {"--help"}).output,
              HasSubstr("Editor of schematic component libraries"));
}

TEST_F(ProgramTest, SpeaksTheLanguageOfTheLibraryBesideIt) {
  fs::copy_file(MIVO_GERMAN, Program().parent_path() / kLanguageLibraryName);
  const ProgramResult result = Run(Program(), {"--help"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_THAT(result.output, HasSubstr("Bibliotheken von Schaltplan-Bauteilen"));
}

TEST_F(ProgramTest, StartedThroughALinkLooksBesideTheProgramItself) {
  fs::copy_file(MIVO_GERMAN, Program().parent_path() / kLanguageLibraryName);
  const fs::path link = Work() / "link";
  fs::create_symlink(Program(), link);
  EXPECT_THAT(Run(link, {"--help"}).output, HasSubstr("Bibliotheken von Schaltplan-Bauteilen"));
  EXPECT_THAT(FilesBesideTheProgram(), UnorderedElementsAre("mivo", "mivo_lang.dll", "MIVO.INI"));
  EXPECT_FALSE(fs::exists(Work() / "MIVO.INI"));
}

TEST_F(ProgramTest, FirstStartCreatesSettingsOfTwoBytes) {
  static_cast<void>(Run(Program(), {"--version"}));
  EXPECT_EQ(BytesOf(Program().parent_path() / "MIVO.INI"), "\xFF\xFE");
}

// A file that reaches the limit of the process ends it otherwise.
TEST_F(ProgramTest, SettingsThatMayNotGrowDoNotEndIt) {
  const ProgramResult result =
      RunProgram("/bin/sh",
                 {"-c", "ulimit -f 0; exec \"$0\" --version -platform offscreen >/dev/null",
                  Program().string()},
                 Work());
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(BytesOf(Program().parent_path() / "MIVO.INI"), "");
}

TEST_F(ProgramTest, UnknownOptionIsRefused) {
  const ProgramResult result = Run(Program(), {"--nonsense"});
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_THAT(result.errors, HasSubstr("nonsense"));
}

}  // namespace
}  // namespace mivo
