// What the window costs: starting, as a ratio to an empty window of the toolkit, and opening a
// large library, as a ratio to the command-line tool listing it. All windows are shown on a display
// of their own.

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "file_byte_sink.h"
#include "generated_library.h"
#include "measured_process.h"
#include "median.h"
#include "table_row.h"

namespace mivo::bench {
namespace {

constexpr int kStarts = 15;
constexpr int kOpens = 5;
constexpr std::int32_t kComponents = 100'000;

/// A virtual display, for as long as it lives.
class Display {
 public:
  Display() {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) std::exit(1);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], 3);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    const char* const command[] = {"Xvfb",         "-displayfd", "3",   "-screen",  "0",
                                   "1600x1200x24", "-nolisten",  "tcp", "-noreset", nullptr};
    const int error = posix_spawnp(&server_, command[0], &actions, nullptr,
                                   const_cast<char* const*>(command), environ);
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    std::string name = ":";
    char next = 0;
    while (read(ends[0], &next, 1) == 1 && next != '\n') name += next;
    close(ends[0]);
    if (error != 0 || next != '\n') {
      std::fprintf(stderr, "Xvfb failed\n");
      std::exit(1);
    }
    setenv("DISPLAY", name.c_str(), 1);
    setenv("QT_QPA_PLATFORM", "xcb", 1);
  }
  ~Display() {
    kill(server_, SIGTERM);
    waitpid(server_, nullptr, 0);
  }
  Display(const Display&) = delete;
  Display& operator=(const Display&) = delete;

 private:
  pid_t server_ = 0;
};

void MeasureStart() {
  std::vector<ProcessCost> empty, word, parts, mivo;
  for (int round = 0; round < kStarts; ++round) {
    empty.push_back(RunMeasured({MIVO_BARE_WINDOW}));
    word.push_back(RunMeasured({MIVO_BARE_WINDOW, "word"}));
    parts.push_back(RunMeasured({MIVO_BARE_WINDOW, "parts"}));
    mivo.push_back(RunMeasured({MIVO_WINDOW, "start", MIVO_SAMPLE_LIBRARY}));
  }
  const ProcessCost baseline = MedianCost(empty);
  const auto print = [&](const std::string& what, const std::vector<ProcessCost>& starts,
                         double limit) {
    const ProcessCost cost = MedianCost(starts);
    PrintRow({what + ", elapsed", 1000 * cost.elapsedSeconds, "ms",
              cost.elapsedSeconds / baseline.elapsedSeconds, "empty window", limit});
    PrintRow({what + ", processor", 1000 * cost.cpuSeconds, "ms",
              cost.cpuSeconds / baseline.cpuSeconds, "empty window"});
  };
  print("start to the first window", mivo, 1.25);
  print("a window of two words", word, 0);
  print("a window of such parts", parts, 0);
}

void MeasureOpen(const std::string& folder) {
  const std::string library = folder + "/large.ZLB";
  const std::string result = folder + "/result";
  {
    FileByteSink sink(library);
    if (!WriteGeneratedLibrary(sink, kComponents, Names::Distinct)) std::exit(1);
  }
  std::vector<ProcessCost> list;
  std::vector<double> open;
  for (int round = 0; round < kOpens; ++round) {
    list.push_back(RunMeasured({MIVO_CLI, "list", library}));
    static_cast<void>(RunMeasured({MIVO_WINDOW, "open", library, result}));
    double seconds = 0;
    std::ifstream(result) >> seconds;
    open.push_back(seconds);
  }
  const double seconds = Median(open);
  PrintRow({"open 100,000 components in the running window", 1000 * seconds, "ms",
            seconds / MedianCost(list).cpuSeconds, "mivo-cli list", 1.5});
}

}  // namespace
}  // namespace mivo::bench

int main() {
  std::string folder = std::filesystem::temp_directory_path() / "mivo-bench-XXXXXX";
  if (mkdtemp(folder.data()) == nullptr) return 1;
  // Neither the user's settings nor what is there to recover may have a part in it.
  for (const char* const name :
       {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME", "XDG_RUNTIME_DIR"}) {
    setenv(name, folder.c_str(), 1);
  }
  static const mivo::bench::Display display;  // ends also when a measurement fails
  mivo::bench::MeasureStart();
  mivo::bench::MeasureOpen(folder);
  std::filesystem::remove_all(folder);
  return 0;
}
