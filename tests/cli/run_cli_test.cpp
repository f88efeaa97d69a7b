#include "run_cli.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "captured_io.h"
#include "libraries.h"
#include "temp_folder.h"

namespace mivo {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

TEST(RunCli, TellsItsVersion) {
  CapturedIo captured;
  EXPECT_EQ(RunCli({"--version"}, captured.io), ExitCode::Fine);
  EXPECT_EQ(captured.output, "mivo-cli 0.84.00\n");
  EXPECT_EQ(captured.errors, "");
}

TEST(RunCli, HelpNamesEveryCommand) {
  CapturedIo captured;
  EXPECT_EQ(RunCli({"--help"}, captured.io), ExitCode::Fine);
  for (const char* name : {"list", "convert", "check", "--version", "Exit status"}) {
    EXPECT_THAT(captured.output, HasSubstr(name));
  }
  EXPECT_EQ(captured.errors, "");
}

TEST(RunCli, EveryCommandHasItsOwnHelp) {
  const struct {
    const char* command;
    std::vector<const char*> parts;
  } kCases[] = {{"list", {"FILE", "--json"}},
                {"convert", {"IN", "OUT", "--keep-partial"}},
                {"check", {"FILE...", "--strict"}}};
  for (const auto& [command, parts] : kCases) {
    CapturedIo captured;
    EXPECT_EQ(RunCli({command, "--help"}, captured.io), ExitCode::Fine);
    for (const char* part : parts) EXPECT_THAT(captured.output, HasSubstr(part));
  }
}

class WrongUsage : public testing::TestWithParam<std::vector<std::string>> {};

TEST_P(WrongUsage, IsAFailureWithAMessage) {
  CapturedIo captured;
  EXPECT_EQ(RunCli(GetParam(), captured.io), ExitCode::Failure);
  EXPECT_EQ(captured.output, "");
  EXPECT_THAT(captured.errors, StartsWith("mivo-cli: usage: "));
  EXPECT_THAT(captured.errors, HasSubstr("Try 'mivo-cli --help'.\n"));
}

INSTANTIATE_TEST_SUITE_P(
    All, WrongUsage,
    testing::Values(std::vector<std::string>{}, std::vector<std::string>{"draw"},
                    std::vector<std::string>{"list"}, std::vector<std::string>{"list", "-", "-"},
                    std::vector<std::string>{"list", "--xml", "-"},
                    std::vector<std::string>{"list", "--strict", "-"},
                    std::vector<std::string>{"--json"}, std::vector<std::string>{"convert"},
                    std::vector<std::string>{"convert", "-"},
                    std::vector<std::string>{"convert", "-", "-", "-"},
                    std::vector<std::string>{"check"},
                    std::vector<std::string>{"check", "--strict"},
                    std::vector<std::string>{"check", "--json", "-"},
                    std::vector<std::string>{"list", "-", "check", "-"}));

TEST(RunCli, OptionsStandAnywhereBehindTheCommand) {
  for (const auto& arguments : {std::vector<std::string>{"list", "--json", "-"},
                                std::vector<std::string>{"list", "-", "--json"}}) {
    CapturedIo captured;
    captured.input = kEmptyLibrary;
    EXPECT_EQ(RunCli(arguments, captured.io), ExitCode::Fine);
    EXPECT_EQ(captured.output, "{\"version\":82,\"property\":\"\",\"names\":[\n]}\n");
  }
}

TEST(RunCli, PassesTheOptionsOfConvert) {
  CapturedIo captured;
  captured.input = kFailingLibrary;
  EXPECT_EQ(RunCli({"convert", "-", "-", "--keep-partial"}, captured.io), ExitCode::Findings);
  EXPECT_EQ(captured.output, LibraryOf(ComponentRecord("GOOD")));
}

TEST(RunCli, PassesTheOptionsOfCheck) {
  CapturedIo captured;
  captured.input = "\n" + std::string(kEmptyLibrary);
  EXPECT_EQ(RunCli({"check", "-"}, captured.io), ExitCode::Fine);
  EXPECT_EQ(RunCli({"check", "--strict", "-"}, captured.io), ExitCode::Findings);
}

class FileName : public testing::TestWithParam<const char*> {};

// Each of these could be taken for something else than a name.
TEST_P(FileName, IsTakenAsItIs) {
  const TempFolder folder;
  folder.Put(GetParam(), LibraryOf("STRANGE:1\n"));
  std::filesystem::current_path(folder.Path());
  CapturedIo captured;
  EXPECT_EQ(RunCli({"check", "--", GetParam(), GetParam()}, captured.io), ExitCode::Findings);
  std::filesystem::current_path("/");
  const std::string line =
      std::string(GetParam()) + ":4: warning: unknown key is ignored: \"STRANGE:1\"\n";
  EXPECT_EQ(captured.errors, "");
  EXPECT_THAT(captured.output, testing::AnyOf(line + line, "./" + line + "./" + line));
}

INSTANTIATE_TEST_SUITE_P(All, FileName,
                         testing::Values("list", "check", "[a,b]", "[]", "--json", "-x", "a b",
                                         "a=b", "{a}", "%%", "'a'", "\"a\""));

TEST(RunCli, ANameLikeACommandNeedsNoSeparator) {
  const TempFolder folder;
  folder.Put("list", std::string(kEmptyLibrary));
  std::filesystem::current_path(folder.Path());
  CapturedIo captured;
  EXPECT_EQ(RunCli({"check", "list", "list"}, captured.io), ExitCode::Fine);
  std::filesystem::current_path("/");
  EXPECT_EQ(captured.errors, "");
}

}  // namespace
}  // namespace mivo
