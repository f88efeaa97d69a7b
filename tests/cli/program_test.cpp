// The program as people run it: a process in a fresh folder.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "child_process.h"
#include "libraries.h"
#include "temp_folder.h"

namespace mivo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

class Program : public testing::Test {
 protected:
  ProgramResult Run(const std::vector<std::string>& arguments, std::string_view input = {}) {
    return RunProgram(MIVO_CLI, arguments, folder_.Path(), input);
  }

  const TempFolder folder_;
};

TEST_F(Program, Lists) {
  folder_.Put("a.ZLB", kGoodLibrary);
  const ProgramResult result = Run({"list", "a.ZLB"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.output,
            "7400\t0\t4x3\t2\tGEN\t1\t-\t0\n"
            "LED\t1\t2x1\t1\tFXB\t0\t1\t44\n"
            "74HC00\t0\t4x3\t2\tGEN\t1\t-\t0\n");
  EXPECT_EQ(result.errors, "");
}

TEST_F(Program, ListsTheStandardInput) {
  EXPECT_EQ(Run({"list", "-"}, kGoodLibrary).output.substr(0, 7), "7400\t0\t");
}

TEST_F(Program, Converts) {
  folder_.Put("a.ZSC", kSchematic);
  const ProgramResult result = Run({"convert", "a.ZSC", "a.ZLB"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.output + result.errors, "");
  EXPECT_EQ(BytesOf(folder_ / "a.ZLB"), LibraryOf(ComponentRecord("R") + ComponentRecord("R(1)")));
  EXPECT_THAT(folder_.Names(), ElementsAre("a.ZLB", "a.ZSC"));
}

TEST_F(Program, ConvertsFilesOfAnyName) {
  folder_.Put("in.ZSC", kSchematic);
  std::filesystem::rename(folder_ / "in.ZSC",
                          folder_.Path() / u8"St\u00FCck \u2126 \U0001F600.ZSC");
  const ProgramResult result =
      Run({"convert", "St\u00FCck \u2126 \U0001F600.ZSC", "\u0416\u03A9.ZLB"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.output + result.errors, "");
  EXPECT_EQ(BytesOf(folder_.Path() / u8"\u0416\u03A9.ZLB"),
            LibraryOf(ComponentRecord("R") + ComponentRecord("R(1)")));
}

TEST_F(Program, ConvertsFromStandardInputToStandardOutput) {
  const ProgramResult result = Run({"convert", "-", "-"}, kGoodLibrary);
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.output, kGoodLibrary);
  EXPECT_THAT(folder_.Names(), IsEmpty());
}

TEST_F(Program, AFailedLoadWritesNothing) {
  folder_.Put("a.ZLB", kFailingLibrary);
  const ProgramResult result = Run({"convert", "a.ZLB", "b.ZLB"});
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(result.output, "");
  EXPECT_EQ(result.errors, "a.ZLB:10: invalid value: \"X:-4\" in +COMP\n");
  EXPECT_THAT(folder_.Names(), ElementsAre("a.ZLB"));
}

TEST_F(Program, Checks) {
  folder_.Put("a.ZLB", LibraryOf("STRANGE:1\n"));
  const ProgramResult result = Run({"check", "a.ZLB"});
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(result.output, "a.ZLB:4: warning: unknown key is ignored: \"STRANGE:1\"\n");
  EXPECT_EQ(result.errors, "");
}

TEST_F(Program, WrongUsage) {
  const ProgramResult result = Run({"list"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_EQ(result.output, "");
  EXPECT_THAT(result.errors, StartsWith("mivo-cli: usage: "));
}

TEST_F(Program, TellsItsVersion) {
  EXPECT_EQ(Run({"--version"}).output, "mivo-cli 0.84.00\n");
}

TEST_F(Program, FindsNothingWrongWithTheSamples) {
  int count = 0;
  for (const auto& entry : std::filesystem::directory_iterator(MIVO_SAMPLES)) {
    if (entry.path().extension() != ".ZLB") continue;
    ++count;
    const ProgramResult result = Run({"check", entry.path().string()});
    EXPECT_EQ(result.exitCode, 0) << entry.path();
    EXPECT_EQ(result.output + result.errors, "") << entry.path();
  }
  EXPECT_GE(count, 3);
}

/// The options that `text` names.
std::set<std::string> OptionsIn(const std::string& text) {
  const std::regex option("--[a-z-]+");
  return {std::sregex_token_iterator(text.begin(), text.end(), option),
          std::sregex_token_iterator()};
}

TEST_F(Program, TheManualKnowsTheSameOptionsAsTheHelp) {
  using Commands = std::vector<std::vector<std::string>>;
  std::string help;
  for (const std::vector<std::string>& command :
       Commands{{"--help"}, {"list", "--help"}, {"convert", "--help"}, {"check", "--help"}}) {
    help += Run(command).output;
  }
  // The manual writes a hyphen as \-, as the language of manual pages wants it.
  const std::string manual =
      std::regex_replace(BytesOf(MIVO_CLI_MANUAL), std::regex(R"(\\-)"), "-");
  EXPECT_GE(OptionsIn(help).size(), 5u);
  EXPECT_EQ(OptionsIn(manual), OptionsIn(help));
}

TEST_F(Program, TheManualIsOfThisVersion) {
  EXPECT_THAT(BytesOf(MIVO_CLI_MANUAL), testing::HasSubstr("\"mivo-cli 0.84.00\""));
}

#ifndef _WIN32

// --- What takes a shell --------------------------------------------------------------------------

class ProgramInShell : public Program {
 protected:
  /// Runs a line of the shell in which $0 is the program.
  ProgramResult RunShell(const std::string& line) {
    return RunProgram("/bin/sh", {"-c", line, MIVO_CLI}, folder_.Path());
  }
};

TEST_F(ProgramInShell, AFullStandardOutputIsAFailure) {
  folder_.Put("a.ZLB", kGoodLibrary);
  for (const char* command : {"list a.ZLB", "list --json a.ZLB", "convert a.ZLB -", "--help"}) {
    const ProgramResult result = RunShell("\"$0\" " + std::string(command) + " >/dev/full");
    EXPECT_EQ(result.exitCode, 2) << command;
    EXPECT_EQ(result.errors, "mivo-cli: standard output: No space left on device\n") << command;
  }
}

TEST_F(ProgramInShell, AClosedStandardInputIsAFailure) {
  const ProgramResult result = RunShell("\"$0\" list - <&-");
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_EQ(result.errors, "mivo-cli: standard input: Bad file descriptor\n");
}

TEST_F(ProgramInShell, AFileThatReachesTheSizeLimitLeavesTheOldOne) {
  folder_.Put("a.ZLB", LibraryOf(NumberedComponents(1000)));
  folder_.Put("b.ZLB", "old");
  const ProgramResult result = RunShell("ulimit -f 8; exec \"$0\" convert a.ZLB b.ZLB");
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_EQ(result.errors, "mivo-cli: b.ZLB: File too large\n");
  EXPECT_EQ(BytesOf(folder_ / "b.ZLB"), "old");
  EXPECT_THAT(folder_.Names(), ElementsAre("a.ZLB", "b.ZLB"));
}

#endif

}  // namespace
}  // namespace mivo
