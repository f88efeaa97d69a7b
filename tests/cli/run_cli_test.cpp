#include "run_cli.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "captured_io.h"
#include "case_name.h"
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

struct Usage {
  const char* name;
  std::vector<std::string> arguments;
};

class WrongUsage : public testing::TestWithParam<Usage> {};

TEST_P(WrongUsage, IsAFailureWithAMessage) {
  CapturedIo captured;
  EXPECT_EQ(RunCli(GetParam().arguments, captured.io), ExitCode::Failure);
  EXPECT_EQ(captured.output, "");
  EXPECT_THAT(captured.errors, StartsWith("mivo-cli: usage: "));
  EXPECT_THAT(captured.errors, HasSubstr("Try 'mivo-cli --help'.\n"));
}

INSTANTIATE_TEST_SUITE_P(All, WrongUsage,
                         testing::Values(Usage{"Nothing", {}}, Usage{"UnknownCommand", {"draw"}},
                                         Usage{"OptionAlone", {"--json"}},
                                         Usage{"ListWithoutFile", {"list"}},
                                         Usage{"ListOfTwoFiles", {"list", "-", "-"}},
                                         Usage{"UnknownOption", {"list", "--xml", "-"}},
                                         Usage{"OptionOfCheck", {"list", "--strict", "-"}},
                                         Usage{"ConvertWithoutFiles", {"convert"}},
                                         Usage{"ConvertWithoutOut", {"convert", "-"}},
                                         Usage{"ConvertOfThree", {"convert", "-", "-", "-"}},
                                         Usage{"CheckWithoutFile", {"check"}},
                                         Usage{"CheckOfNothing", {"check", "--strict"}},
                                         Usage{"OptionOfList", {"check", "--json", "-"}},
                                         Usage{"TwoCommands", {"list", "-", "check", "-"}}),
                         kCaseName);

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

struct File {
  const char* name;
  const char* file;
};

class FileName : public testing::TestWithParam<File> {};

// Each of these could be taken for something else than a name.
TEST_P(FileName, IsTakenAsItIs) {
  const std::string file = GetParam().file;
#ifdef _WIN32
  if (file.find('"') != std::string::npos) GTEST_SKIP() << "no file can be called so";
#endif
  const TempFolder folder;
  folder.Put(file, LibraryOf("STRANGE:1\n"));
  std::filesystem::current_path(folder.Path());
  CapturedIo captured;
  EXPECT_EQ(RunCli({"check", "--", file, file}, captured.io), ExitCode::Findings);
  std::filesystem::current_path("/");
  const std::string line = file + ":4: warning: unknown key is ignored: \"STRANGE:1\"\n";
  EXPECT_EQ(captured.errors, "");
  EXPECT_THAT(captured.output, testing::AnyOf(line + line, "./" + line + "./" + line));
}

INSTANTIATE_TEST_SUITE_P(All, FileName,
                         testing::Values(File{"Command", "list"}, File{"SameCommand", "check"},
                                         File{"LongOption", "--strict"}, File{"ShortOption", "-x"},
                                         File{"List", "[a,b]"}, File{"EmptyList", "[]"},
                                         File{"Blank", "a b"}, File{"Assignment", "a=b"},
                                         File{"Braces", "{a}"}, File{"Separator", "%%"},
                                         File{"SingleQuotes", "'a'"},
                                         File{"DoubleQuotes", "\"a\""}),
                         kCaseName);

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
