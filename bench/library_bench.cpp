// Cost of loading, saving, converting and listing libraries as whole processes, as ratios to what
// iconv and wc take for the same file in the same run. CPU time of the process and of the system
// for it; the least of several runs, which comes nearest to what an undisturbed machine takes.
//
// Without arguments it runs itself and the others in turn and prints rows of the table; with a task
// and a file it is one of the processes that are measured.

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <limits>
#include <string>
#include <string_view>

#include "file_byte_sink.h"
#include "file_source.h"
#include "generated_library.h"
#include "measured_process.h"
#include "mivo_doc.h"
#include "record_reader.h"
#include "table_row.h"

namespace mivo::bench {
namespace {

constexpr int kRounds = 5;

int RunTask(std::string_view task, const std::string& path) {
  if (task == "empty") return 0;
  FileSource file(path);
  if (task == "fields") {
    SRecordReader reader;
    reader.AttachFile(file, ByteDecoding::Utf8);
    std::u16string_view field;
    while (reader.ReadField(field) == FieldStatus::Ok) {
    }
    return file.Error().empty() ? 0 : 1;
  }
  SMivoDoc doc;
  if (!doc.Load(file, file.SizeHint(), u"library")) return 1;
  if (task == "load+save") {
    FileByteSink sink("/dev/null");
    if (!doc.Write(sink)) return 1;
  }
  // What the program would tear down at its end is no part of loading and saving.
  std::_Exit(0);
}

/// The least of each figure by itself.
struct Least {
  double cpuSeconds = std::numeric_limits<double>::infinity();
  double peakMegabytes = std::numeric_limits<double>::infinity();

  void Take(const ProcessCost& cost) {
    cpuSeconds = std::min(cpuSeconds, cost.cpuSeconds);
    peakMegabytes = std::min(peakMegabytes, cost.peakMegabytes);
  }
};

void MeasureLibrary(const std::string& self, const std::string& folder, std::int32_t components) {
  const std::string path = folder + "/library.ZLB";
  const std::string converted = folder + "/converted.ZLB";
  {
    FileByteSink sink(path);
    if (!WriteGeneratedLibrary(sink, components, Names::Distinct)) std::exit(1);
  }
  const double megabytes = static_cast<double>(std::filesystem::file_size(path)) / (1 << 20);
  Least empty, iconv, wc, fields, load, loadAndSave, convert, list;
  for (int round = 0; round < kRounds; ++round) {
    empty.Take(RunMeasured({self, "empty", path}));
    iconv.Take(RunMeasured({"iconv", "-f", "UTF-8", "-t", "UTF-16LE", "-o", "/dev/null", path}));
    wc.Take(RunMeasured({"wc", "-m", path}));
    fields.Take(RunMeasured({self, "fields", path}));
    load.Take(RunMeasured({self, "load", path}));
    loadAndSave.Take(RunMeasured({self, "load+save", path}));
    convert.Take(RunMeasured({MIVO_CLI, "convert", path, converted}));
    list.Take(RunMeasured({MIVO_CLI, "list", path}));
  }
  const std::string count = std::to_string(components / 1000) + ",000 components";
  const auto print = [&](const char* what, double seconds, double limit) {
    const std::string name = what + count;
    PrintRow({name, megabytes / seconds, "MB/s", seconds / iconv.cpuSeconds, "iconv", limit});
    PrintRow({name, megabytes / seconds, "MB/s", seconds / wc.cpuSeconds, "wc -m"});
  };
  print("find nothing but the fields of ", fields.cpuSeconds, 0);
  print("load ", load.cpuSeconds, 2.5);
  print("save ", loadAndSave.cpuSeconds - load.cpuSeconds, 1.5);
  print("convert ", convert.cpuSeconds, 0);
  print("list ", list.cpuSeconds, 0);
  const double peak = load.peakMegabytes - empty.peakMegabytes;
  PrintRow({"memory to load " + count, peak, "MB", peak / megabytes, "the file", 4});
}

void MeasureAll(const std::string& self) {
  std::string folder = std::filesystem::temp_directory_path() / "mivo-bench-XXXXXX";
  if (mkdtemp(folder.data()) == nullptr) std::exit(1);
  for (const std::int32_t components : {10'000, 100'000}) MeasureLibrary(self, folder, components);
  std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace mivo::bench

int main(int argc, char** argv) {
  if (argc == 3) return mivo::bench::RunTask(argv[1], argv[2]);
  mivo::bench::MeasureAll(std::filesystem::read_symlink("/proc/self/exe"));
  return 0;
}
