// What files cost that are made to take as much work as they can: CPU time of loading 10 MB of
// each, as a ratio to a plain look at every byte, and to loading half of it, which tells whether it
// grows with the length alone. Fails when one takes more than 2 seconds.

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <string>

#include "hostile_library.h"
#include "mivo_doc.h"

namespace mivo::bench {
namespace {

constexpr std::size_t kBytes = 10'000'000;
constexpr double kLimitSeconds = 2;
constexpr int kRounds = 3;

/// The shortest CPU time of several runs, in seconds.
template <typename Work>
double CpuSeconds(Work work) {
  double shortest = 1e9;
  for (int round = 0; round < kRounds; ++round) {
    const std::clock_t start = std::clock();
    work();
    shortest = std::min(shortest, static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
  }
  return shortest;
}

/// Loads the file and drops it again.
double SecondsOfLoading(const std::string& file) {
  return CpuSeconds([&] {
    SMivoDoc library;
    static_cast<void>(library.Load(file, u"library"));
  });
}

double SecondsOfLooking(const std::string& file) {
  volatile std::size_t sink = 0;
  return CpuSeconds([&] {
    std::size_t state = 0;
    for (const char byte : file) state = state * 31 + static_cast<unsigned char>(byte);
    sink = sink + state;
  });
}

int MeasureAll() {
  std::printf("Loading 10 MB of hostile records; CPU time, shortest of %d\n", kRounds);
  std::printf("%-28s %9s %9s %12s\n", "records", "seconds", "/ look", "/ half of it");
  bool tooSlow = false;
  for (const HostileCase& hostile : HostileCases()) {
    const std::string file = HostileLibrary(hostile, kBytes);
    const double seconds = SecondsOfLoading(file);
    const double half = SecondsOfLoading(HostileLibrary(hostile, kBytes / 2));
    std::printf("%-28s %9.3f %9.1f %12.2f\n", hostile.name, seconds,
                seconds / SecondsOfLooking(file), seconds / half);
    std::fflush(stdout);
    tooSlow = tooSlow || seconds > kLimitSeconds;
  }
  return tooSlow ? 1 : 0;
}

}  // namespace
}  // namespace mivo::bench

int main() {
  return mivo::bench::MeasureAll();
}
