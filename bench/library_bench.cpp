// Cost of loading and saving libraries as whole processes, as ratios to iconv converting the same
// file in the same run.
//
// Without arguments it runs itself and iconv in turn and prints the table; with a task and a file
// it is one of the processes that are measured.

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include "file_byte_sink.h"
#include "generated_library.h"
#include "measured_process.h"
#include "mivo_doc.h"

namespace mivo::bench {
namespace {

constexpr int kRounds = 5;

std::string ReadWhole(const std::string& path) {
  std::string bytes(std::filesystem::file_size(path), '\0');
  std::ifstream(path, std::ios::binary)
      .read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return bytes;
}

int RunTask(std::string_view task, const std::string& path) {
  if (task == "empty") return 0;
  if (task == "read") return ReadWhole(path).empty() ? 1 : 0;
  SMivoDoc doc;
  {
    const std::string bytes = ReadWhole(path);
    if (!doc.Load(bytes, u"library")) return 1;
  }
  if (task == "load+save") {
    FileByteSink sink("/dev/null");
    if (!doc.Write(sink)) return 1;
  }
  // What the program would tear down at its end is no part of loading and saving.
  std::_Exit(0);
}

void MeasureLibrary(const std::string& self, const std::string& folder, std::int32_t components,
                    Names names) {
  const std::string path = folder + "/library.ZLB";
  {
    FileByteSink sink(path);
    if (!WriteGeneratedLibrary(sink, components, names)) std::exit(1);
  }
  const double megabytes =
      static_cast<double>(std::filesystem::file_size(path)) / (1024.0 * 1024.0);
  std::vector<ProcessCost> empty, iconv, load, save;
  for (int round = 0; round < kRounds; ++round) {
    empty.push_back(RunMeasured({self, "empty", path}));
    iconv.push_back(
        RunMeasured({"iconv", "-f", "UTF-8", "-t", "UTF-16LE", "-o", "/dev/null", path}));
    load.push_back(RunMeasured({self, "load", path}));
    save.push_back(RunMeasured({self, "load+save", path}));
  }
  const double iconvCpu = MedianCost(iconv).cpuSeconds;
  const double loadCpu = MedianCost(load).cpuSeconds;
  const double saveCpu = MedianCost(save).cpuSeconds - loadCpu;
  const double peak = MedianCost(load).peakMegabytes - MedianCost(empty).peakMegabytes;
  std::printf("%9d %-8s %8.1f %9.0f %9.2f %9.0f %9.2f %9.2f %12.2f\n", components,
              names == Names::Distinct ? "distinct" : "same", megabytes, megabytes / loadCpu,
              loadCpu / iconvCpu, megabytes / saveCpu, saveCpu / iconvCpu, peak / megabytes,
              1e6 * loadCpu / components);
  std::fflush(stdout);
}

void MeasureAll(const std::string& self) {
  std::string folder = std::filesystem::temp_directory_path() / "mivo-bench-XXXXXX";
  if (mkdtemp(folder.data()) == nullptr) std::exit(1);
  std::printf("Loading and saving; CPU time, median of %d runs each; iconv -f UTF-8 -t UTF-16LE\n",
              kRounds);
  std::printf("%9s %-8s %8s %9s %9s %9s %9s %9s %12s\n", "comps", "names", "MB", "load MB/s",
              "/ iconv", "save MB/s", "/ iconv", "peak/file", "us per comp");
  for (const std::int32_t components : {1000, 10000, 100000}) {
    MeasureLibrary(self, folder, components, Names::Distinct);
    MeasureLibrary(self, folder, components, Names::AllTheSame);
  }
  std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace mivo::bench

int main(int argc, char** argv) {
  if (argc == 3) return mivo::bench::RunTask(argv[1], argv[2]);
  mivo::bench::MeasureAll(std::filesystem::read_symlink("/proc/self/exe"));
  return 0;
}
