#include "check_command.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "captured_io.h"
#include "libraries.h"
#include "temp_folder.h"

namespace mivo {
namespace {

struct Outcome {
  ExitCode code;
  std::string output;
};

Outcome Check(const std::string& content, bool strict) {
  CapturedIo captured;
  captured.input = content;
  const ExitCode code = RunCheck({{"-"}, strict}, captured.io);
  EXPECT_EQ(captured.errors, "");
  return {code, captured.output};
}

TEST(Check, AGoodLibraryPrintsNothing) {
  for (const bool strict : {false, true}) {
    const Outcome outcome = Check(kGoodLibrary, strict);
    EXPECT_EQ(outcome.code, ExitCode::Fine);
    EXPECT_EQ(outcome.output, "");
  }
}

TEST(Check, PrintsEveryWarning) {
  const Outcome outcome = Check(
      LibraryOf("STRANGE:1\n" + ComponentRecord("R") + ComponentRecord("R") + "+X\n-X\n"), false);
  EXPECT_EQ(outcome.code, ExitCode::Findings);
  EXPECT_EQ(outcome.output,
            "-:4: warning: unknown key is ignored: \"STRANGE:1\"\n"
            "-:14: warning: name is taken already and gets a number: \"R(1)\"\n"
            "-:15: warning: unknown record is skipped: \"+X\"\n");
}

TEST(Check, PrintsTheErrorThatFailedTheLoad) {
  for (const bool strict : {false, true}) {
    const Outcome outcome = Check(kFailingLibrary, strict);
    EXPECT_EQ(outcome.code, ExitCode::Findings);
    EXPECT_EQ(outcome.output, "-:10: error: invalid value: \"X:-4\" in +COMP\n");
  }
}

TEST(Check, WhatIsNoLibraryIsAnError) {
  const Outcome outcome = Check("no library\n", false);
  EXPECT_EQ(outcome.code, ExitCode::Findings);
  EXPECT_EQ(outcome.output,
            "-:1: error: this is neither a component library nor a schematic: \"no library\"\n");
}

TEST(Check, WhatIsNoLibraryIsShownInUtf8) {
  EXPECT_EQ(Check("Stück \xC3\n", false).output,
            "-:1: error: this is neither a component library nor a schematic: \"Stück \uFFFD\"\n");
}

TEST(Check, AFileOfALaterVersionIsAWarning) {
  const Outcome outcome = Check("+TARSL_LIB_V.1.0\nVER:83\nPROP:\n-TARSL_LIB_V.1.0\n", false);
  EXPECT_EQ(outcome.code, ExitCode::Findings);
  EXPECT_EQ(outcome.output,
            "-:2: warning: file of a later version: what only that version knows is lost: "
            "\"VER:83\"\n");
}

TEST(Check, ALineOfOutputStaysOne) {
  const Outcome outcome = Check(LibraryOf("A%0A%1B:1\n"), false);
  EXPECT_EQ(outcome.output, "-:4: warning: unknown key is ignored: \"A\\n\\u001b:1\"\n");
}

TEST(Check, WithoutStrictTheFormDoesNotMatter) {
  const std::string library = LibraryOf(ComponentRecord("R") + "\n");
  EXPECT_EQ(Check(library, false).code, ExitCode::Fine);
  EXPECT_EQ(Check(library, false).output, "");
}

TEST(Check, StrictTellsTheFirstLineThatSavingWouldChange) {
  const Outcome outcome =
      Check(LibraryOf(ComponentRecord("R") + "\n" + ComponentRecord("S")), true);
  EXPECT_EQ(outcome.code, ExitCode::Findings);
  EXPECT_EQ(outcome.output, "-:9: error: saving would change the file from here on\n");
}

TEST(Check, StrictTellsAlsoWhatSavingWouldLeaveOut) {
  const Outcome outcome = Check(std::string(kEmptyLibrary) + "\n", true);
  EXPECT_EQ(outcome.code, ExitCode::Findings);
  EXPECT_EQ(outcome.output, "-:5: error: saving would change the file from here on\n");
}

TEST(Check, ALastLineWithoutItsEndIsExplained) {
  const Outcome outcome =
      Check(std::string(kEmptyLibrary.substr(0, kEmptyLibrary.size() - 1)), true);
  EXPECT_EQ(outcome.code, ExitCode::Findings);
  EXPECT_EQ(outcome.output,
            "-:4: error: closing tag does not belong here: \"-TARSL_LIB_V.1.0\" (cut off by the "
            "end of the data)\n");
}

TEST(Check, StrictDoesNotTakeASchematic) {
  const Outcome outcome = Check(kSchematic, true);
  EXPECT_EQ(outcome.code, ExitCode::Findings);
  EXPECT_NE(outcome.output.find("-:1: error: saving would change the file from here on\n"),
            std::string::npos);
}

TEST(Check, ChecksEveryFile) {
  const TempFolder folder;
  const std::string good = folder.Put("good.ZLB", kGoodLibrary).string();
  const std::string bad = folder.Put("bad.ZLB", kFailingLibrary).string();
  const std::string warned = folder.Put("warned.ZLB", LibraryOf("STRANGE:1\n")).string();
  CapturedIo captured;
  EXPECT_EQ(RunCheck({{bad, good, warned}, false}, captured.io), ExitCode::Findings);
  EXPECT_EQ(captured.output, bad + ":10: error: invalid value: \"X:-4\" in +COMP\n" + warned +
                                 ":4: warning: unknown key is ignored: \"STRANGE:1\"\n");
}

TEST(Check, AFileThatCannotBeReadOutweighsFindingsAndStopsNothing) {
  const TempFolder folder;
  const std::string none = (folder / "none").string();
  const std::string bad = folder.Put("bad.ZLB", kFailingLibrary).string();
  CapturedIo captured;
  EXPECT_EQ(RunCheck({{none, bad}, false}, captured.io), ExitCode::Failure);
  EXPECT_THAT(captured.errors, testing::StartsWith("mivo-cli: " + none + ": "));
  EXPECT_EQ(captured.output, bad + ":10: error: invalid value: \"X:-4\" in +COMP\n");
}

}  // namespace
}  // namespace mivo
