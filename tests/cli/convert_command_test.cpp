#include "convert_command.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>

#include "captured_io.h"
#include "case_name.h"
#include "libraries.h"
#include "temp_folder.h"
#include "unprivileged_user.h"

namespace mivo {
namespace {

using testing::ElementsAre;

TEST(Convert, SavesALibraryAsItIs) {
  const TempFolder folder;
  CapturedIo captured;
  const auto in = folder.Put("in.ZLB", kGoodLibrary);
  EXPECT_EQ(RunConvert({in.string(), (folder / "out.ZLB").string(), false}, captured.io),
            ExitCode::Fine);
  EXPECT_EQ(BytesOf(folder / "out.ZLB"), kGoodLibrary);
  EXPECT_EQ(captured.output + captured.errors, "");
}

TEST(Convert, SavesASchematicAsALibrary) {
  CapturedIo captured;
  captured.input = kSchematic;
  EXPECT_EQ(RunConvert({"-", "-", false}, captured.io), ExitCode::Fine);
  EXPECT_EQ(captured.output, LibraryOf(ComponentRecord("R") + ComponentRecord("R(1)")));
}

TEST(Convert, SavesAnOldLibraryAsUtf8) {
  std::string old = LibraryOf(ComponentRecord("10k\xB5\x80"));
  old.replace(old.find("VER:82"), 6, "VER:70");
  CapturedIo captured;
  captured.input = old;
  EXPECT_EQ(RunConvert({"-", "-", false}, captured.io), ExitCode::Fine);
  EXPECT_EQ(captured.output, LibraryOf(ComponentRecord("10k\u00B5\u20AC")));
}

TEST(Convert, TheInputMayBeTheOutput) {
  const TempFolder folder;
  CapturedIo captured;
  const auto path = folder.Put("a.ZLB", kSchematic);
  EXPECT_EQ(RunConvert({path.string(), path.string(), false}, captured.io), ExitCode::Fine);
  EXPECT_EQ(BytesOf(path), LibraryOf(ComponentRecord("R") + ComponentRecord("R(1)")));
  EXPECT_THAT(folder.Names(), ElementsAre("a.ZLB"));
}

TEST(Convert, AFailedLoadWritesNothing) {
  const TempFolder folder;
  CapturedIo captured;
  const auto in = folder.Put("in.ZLB", kFailingLibrary);
  const auto out = folder.Put("out.ZLB", "old");
  EXPECT_EQ(RunConvert({in.string(), out.string(), false}, captured.io), ExitCode::Findings);
  EXPECT_EQ(captured.errors, in.string() + ":10: invalid value: \"X:-4\" in +COMP\n");
  EXPECT_EQ(BytesOf(out), "old");
  EXPECT_THAT(folder.Names(), ElementsAre("in.ZLB", "out.ZLB"));
}

TEST(Convert, AFailedLoadCreatesNothing) {
  const TempFolder folder;
  CapturedIo captured;
  captured.input = "no library\n";
  EXPECT_EQ(RunConvert({"-", (folder / "out.ZLB").string(), false}, captured.io),
            ExitCode::Findings);
  EXPECT_EQ(captured.errors,
            "-:1: this is neither a component library nor a schematic: \"no library\"\n");
  EXPECT_THAT(folder.Names(), ElementsAre());
}

TEST(Convert, AFailedLoadPrintsNothingToTheStandardOutput) {
  CapturedIo captured;
  captured.input = kFailingLibrary;
  EXPECT_EQ(RunConvert({"-", "-", false}, captured.io), ExitCode::Findings);
  EXPECT_EQ(captured.output, "");
}

TEST(Convert, WhatWasReadBeforeAFailureCanBeKept) {
  const TempFolder folder;
  CapturedIo captured;
  const auto in = folder.Put("in.ZLB", kFailingLibrary);
  EXPECT_EQ(RunConvert({in.string(), (folder / "out.ZLB").string(), true}, captured.io),
            ExitCode::Findings);
  EXPECT_EQ(captured.errors, in.string() + ":10: invalid value: \"X:-4\" in +COMP\n");
  EXPECT_EQ(BytesOf(folder / "out.ZLB"), LibraryOf(ComponentRecord("GOOD")));
}

TEST(Convert, KeepingTheRestOfAGoodLoadChangesNothing) {
  CapturedIo captured;
  captured.input = kGoodLibrary;
  EXPECT_EQ(RunConvert({"-", "-", true}, captured.io), ExitCode::Fine);
  EXPECT_EQ(captured.output, kGoodLibrary);
}

struct OutName {
  const char* name;
  const char* file;
};

class ConvertToSchematic : public testing::TestWithParam<OutName> {};

TEST_P(ConvertToSchematic, IsRefusedBeforeAnythingIsRead) {
  const TempFolder folder;
  CapturedIo captured;
  const std::string out = folder.Put(GetParam().file, kSchematic).string();
  for (const bool keepPartial : {false, true}) {
    captured.errors.clear();
    EXPECT_EQ(RunConvert({"none.ZLB", out, keepPartial}, captured.io), ExitCode::Failure);
    EXPECT_EQ(captured.errors, "mivo-cli: " + out + ": a library cannot be saved as a schematic\n");
  }
  EXPECT_EQ(BytesOf(out), kSchematic);
}

INSTANTIATE_TEST_SUITE_P(All, ConvertToSchematic,
                         testing::Values(OutName{"UpperCase", "a.ZSC"},
                                         OutName{"LowerCase", "a.zsc"},
                                         OutName{"MixedCase", "a.zSc"},
                                         OutName{"SecondExtension", "a.ZLB.ZSC"},
                                         OutName{"NothingElse", ".ZSC"}),
                         kCaseName);

class ConvertToOther : public testing::TestWithParam<OutName> {};

TEST_P(ConvertToOther, IsDone) {
  const TempFolder folder;
  CapturedIo captured;
  captured.input = kEmptyLibrary;
  const auto out = folder / GetParam().file;
  EXPECT_EQ(RunConvert({"-", out.string(), false}, captured.io), ExitCode::Fine);
  EXPECT_EQ(BytesOf(out), kEmptyLibrary);
}

INSTANTIATE_TEST_SUITE_P(
    All, ConvertToOther,
    testing::Values(OutName{"Library", "a.ZLB"}, OutName{"WithoutPoint", "aZSC"},
                    OutName{"WholeName", "ZSC"}, OutName{"FirstExtension", "a.ZSC.ZLB"},
                    OutName{"LongerExtension", "a.ZSCX"}, OutName{"ShortName", "a"}),
    kCaseName);

TEST(Convert, AnInputThatCannotBeReadIsAFailure) {
  const TempFolder folder;
  CapturedIo captured;
  const std::string in = folder.Path().string();
  EXPECT_EQ(RunConvert({in, (folder / "out.ZLB").string(), true}, captured.io), ExitCode::Failure);
  EXPECT_EQ(captured.errors, "mivo-cli: " + in + ": Is a directory\n");
  EXPECT_THAT(folder.Names(), ElementsAre());
}

TEST(Convert, AnOutputThatCannotBeWrittenIsAFailure) {
  const TempFolder folder;
  CapturedIo captured;
  captured.input = kFailingLibrary;
  const std::string out = (folder / "none/out.ZLB").string();
  EXPECT_EQ(RunConvert({"-", out, true}, captured.io), ExitCode::Failure);
  EXPECT_THAT(captured.errors,
              testing::EndsWith("mivo-cli: " + out + ": No such file or directory\n"));
}

TEST(Convert, AnOutputThatIsProtectedStays) {
  const TempFolder folder;
  CapturedIo captured;
  captured.input = kGoodLibrary;
  const auto out = folder.Put("out.ZLB", "old");
  ASSERT_EQ(chmod(out.c_str(), 0444), 0);
  const UnprivilegedUser user;
  EXPECT_EQ(RunConvert({"-", out.string(), false}, captured.io), ExitCode::Failure);
  EXPECT_EQ(captured.errors, "mivo-cli: " + out.string() + ": Permission denied\n");
  EXPECT_EQ(BytesOf(out), "old");
  EXPECT_THAT(folder.Names(), ElementsAre("out.ZLB"));
}

TEST(Convert, AStandardOutputThatFailsIsAFailure) {
  CapturedIo captured;
  FailingOnceSink sink;
  const CommandIo io{[] { return FileResult<std::string>(kGoodLibrary); }, sink,
                     captured.errorSink};
  EXPECT_EQ(RunConvert({"-", "-", false}, io), ExitCode::Failure);
}

}  // namespace
}  // namespace mivo
