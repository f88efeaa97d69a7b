// What the window costs: starting, as a ratio to an empty window of the toolkit, and opening a
// large library, as a ratio to the command-line tool listing it. All windows are shown on a display
// of their own.

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "file_byte_sink.h"
#include "generated_library.h"
#include "measured_process.h"

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

void PrintRow(const char* what, double baseline, double measured) {
  std::printf("%-40s %10.1f %10.1f %8.2f\n", what, 1000 * baseline, 1000 * measured,
              measured / baseline);
  std::fflush(stdout);
}

void MeasureStart() {
  std::vector<ProcessCost> empty, word, parts, mivo;
  for (int round = 0; round < kStarts; ++round) {
    empty.push_back(RunMeasured({MIVO_BARE_WINDOW}));
    word.push_back(RunMeasured({MIVO_BARE_WINDOW, "word"}));
    parts.push_back(RunMeasured({MIVO_BARE_WINDOW, "parts"}));
    mivo.push_back(RunMeasured({MIVO_WINDOW, "start", MIVO_SAMPLE_LIBRARY}));
  }
  std::printf("To the first painted window, median of %d starts each\n", kStarts);
  std::printf("%-40s %10s %10s %8s\n", "", "empty, ms", "this, ms", "ratio");
  const ProcessCost baseline = MedianCost(empty);
  PrintRow("a window with two words, elapsed", baseline.elapsedSeconds,
           MedianCost(word).elapsedSeconds);
  PrintRow("a window with two words, processor", baseline.cpuSeconds, MedianCost(word).cpuSeconds);
  PrintRow("a window with such parts, elapsed", baseline.elapsedSeconds,
           MedianCost(parts).elapsedSeconds);
  PrintRow("a window with such parts, processor", baseline.cpuSeconds,
           MedianCost(parts).cpuSeconds);
  PrintRow("Mivo, elapsed", baseline.elapsedSeconds, MedianCost(mivo).elapsedSeconds);
  PrintRow("Mivo, processor", baseline.cpuSeconds, MedianCost(mivo).cpuSeconds);
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
  std::sort(open.begin(), open.end());
  std::printf("\nOpening %d components, median of %d runs each\n", kComponents, kOpens);
  std::printf("%-40s %10s %10s %8s\n", "", "list, ms", "open, ms", "ratio");
  PrintRow("processor", MedianCost(list).cpuSeconds, open[open.size() / 2]);
}

}  // namespace
}  // namespace mivo::bench

int main() {
  std::string folder = std::filesystem::temp_directory_path() / "mivo-bench-XXXXXX";
  if (mkdtemp(folder.data()) == nullptr) return 1;
  static const mivo::bench::Display display;  // ends also when a measurement fails
  mivo::bench::MeasureStart();
  mivo::bench::MeasureOpen(folder);
  std::filesystem::remove_all(folder);
  return 0;
}
