// The program as people run it on Windows: a process in a fresh folder.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "child_process.h"
#include "libraries.h"
#include "temp_folder.h"

namespace mivo {
namespace {

namespace fs = std::filesystem;

using testing::HasSubstr;

class Program : public testing::Test {
 protected:
  ProgramResult Run(const std::vector<std::string>& arguments, std::string_view input = {}) {
    return RunProgram(MIVO_CLI, arguments, folder_.Path(), input);
  }

  const TempFolder folder_;
};

TEST_F(Program, WritesLineFeedsAlone) {
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

TEST_F(Program, ConvertsFilesOfAnyName) {
  folder_.Put("in.ZSC", kSchematic);
  fs::rename(folder_ / "in.ZSC", folder_.Path() / L"St\u00FCck \u2126 \U0001F600.ZSC");
  const ProgramResult result =
      Run({"convert", "St\u00FCck \u2126 \U0001F600.ZSC", "\u0416\u03A9.ZLB"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.output + result.errors, "");
  EXPECT_EQ(BytesOf(folder_.Path() / L"\u0416\u03A9.ZLB"),
            LibraryOf(ComponentRecord("R") + ComponentRecord("R(1)")));
}

TEST_F(Program, ConvertsToTheStandardOutputByteByByte) {
  const ProgramResult result = Run({"convert", "-", "-"}, kSchematic);
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.output, LibraryOf(ComponentRecord("R") + ComponentRecord("R(1)")));
}

TEST_F(Program, TellsWhichFileIsMissing) {
  const ProgramResult result = Run({"list", "none.ZLB"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_THAT(result.errors, HasSubstr("mivo-cli: none.ZLB: "));
}

}  // namespace
}  // namespace mivo
