// The window system goes away under a running Mivo.

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <string>
#include <vector>

#include "frame_rig.h"

namespace mivo {
namespace {

const std::string kTwoParts = LibraryFile(ComponentRecord("first") + ComponentRecord("second"));

/// A process of its own, ended with its object, that writes lines to a pipe.
class StartedProgram {
 public:
  /// The pipe is descriptor 3 there and the standard output as well. `variables` come before those
  /// of this process.
  StartedProgram(std::vector<std::string> command, const std::vector<std::string>& variables) {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) return;
    out_ = ends[0];
    std::vector<char*> arguments;
    for (std::string& argument : command) arguments.push_back(argument.data());
    arguments.push_back(nullptr);
    std::vector<std::string> environment = variables;
    for (char** variable = environ; *variable != nullptr; ++variable) {
      environment.emplace_back(*variable);
    }
    std::vector<char*> pointers;
    for (std::string& variable : environment) pointers.push_back(variable.data());
    pointers.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, ends[1], 3);
    if (posix_spawnp(&id_, arguments[0], &actions, nullptr, arguments.data(), pointers.data()) !=
        0) {
      id_ = -1;
    }
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
  }
  ~StartedProgram() {
    End(SIGKILL);
    close(out_);
  }
  StartedProgram(const StartedProgram&) = delete;
  StartedProgram& operator=(const StartedProgram&) = delete;

  /// The next line, without its end; empty when there is none any more.
  [[nodiscard]] std::string ReadLine() const {
    std::string line;
    char character;
    while (read(out_, &character, 1) == 1 && character != '\n') line += character;
    return line;
  }

  void End(int signal) {
    if (id_ > 0) kill(id_, signal);
    static_cast<void>(WaitForEnd());
  }

  /// The exit code, or -N when signal N ended it.
  int WaitForEnd() {
    int status = 0;
    if (id_ > 0) waitpid(id_, &status, 0);
    id_ = -1;
    return WIFSIGNALED(status) ? -WTERMSIG(status) : WEXITSTATUS(status);
  }

 private:
  pid_t id_ = -1;
  int out_ = -1;
};

class LostDisplayTest : public FrameTest {};

TEST_F(LostDisplayTest, UnsavedWorkIsOfferedAtTheNextStart) {
  Put("parts.ZLB", kTwoParts);
  StartedProgram display(
      {"Xvfb", "-displayfd", "3", "-screen", "0", "800x600x24", "-nolisten", "tcp"}, {});
  const std::string number = display.ReadLine();
  ASSERT_FALSE(number.empty()) << "there is no Xvfb";
  // Under the sanitizers: the system's keyboard library copies strings that end without a NUL.
  StartedProgram mivo(
      {MIVO_LOST_DISPLAY_PROGRAM, PathOf("parts.ZLB").toStdString()},
      {"DISPLAY=:" + number, "QT_QPA_PLATFORM=xcb", "ASAN_OPTIONS=strict_string_checks=0"});
  ASSERT_EQ(mivo.ReadLine(), "edited");
  EXPECT_FALSE(Frame().OfferRecovery()) << "it is still running";

  display.End(SIGTERM);  // it takes its sockets away then, and no leave of its windows
  EXPECT_GT(mivo.WaitForEnd(), 0) << "it ends by itself, and tells that something was wrong";
  EXPECT_EQ(Content("parts.ZLB"), kTwoParts);
  Prompts().recoveryAnswers = {RecoveryAnswer::Restore};
  EXPECT_TRUE(Frame().OfferRecovery());
  EXPECT_EQ(Frame().View().Editor().Component()->Pins().size(), 1u);
}

}  // namespace
}  // namespace mivo
