#include "child_process.h"

#include <gtest/gtest.h>

#include <csignal>
#include <stdexcept>
#include <string>

#include "temp_folder.h"

namespace mivo {
namespace {

TEST(RunInChild, ReturnsWhatTheChildReturns) {
  int touched = 0;
  EXPECT_EQ(RunInChild([&] {
              touched = 1;
              return std::string(100000, 'x');
            }),
            std::string(100000, 'x'));
  EXPECT_EQ(touched, 0);
}

TEST(RunInChild, TellsHowTheChildEnded) {
  EXPECT_EQ(RunInChild([]() -> std::string { throw std::runtime_error("reason"); }),
            "exception: reason");
  EXPECT_EQ(RunInChild([]() -> std::string {
              raise(SIGKILL);
              return "alive";
            }),
            "signal 9");
}

TEST(RunProgram, PassesArgumentsInputAndFolderAndNothingElse) {
  const TempFolder folder;
  folder.Put("here", "");
  const ProgramResult result = RunProgram(
      "/bin/sh", {"-c", "echo \"$1\"; ls; cat; echo $HOME; echo no >&2; exit 3", "sh", "a b"},
      folder.Path(), "in put\n");
  EXPECT_EQ(result.exitCode, 3);
  EXPECT_EQ(result.output, "a b\nhere\nin put\n\n");
  EXPECT_EQ(result.errors, "no\n");
}

TEST(RunProgram, TellsTheSignalThatEndedIt) {
  const TempFolder folder;
  EXPECT_EQ(RunProgram("/bin/sh", {"-c", "kill -9 $$"}, folder.Path()).exitCode, -9);
}

TEST(RunProgram, TellsWhenThereIsNoSuchProgram) {
  const TempFolder folder;
  EXPECT_EQ(RunProgram(folder / "none", {}, folder.Path()).exitCode, 127);
}

}  // namespace
}  // namespace mivo
