#ifndef MIVO_BENCH_MEASURED_PROCESS_H
#define MIVO_BENCH_MEASURED_PROCESS_H

#include <string>
#include <vector>

namespace mivo::bench {

/// What a finished process cost, by the system's own accounting.
struct ProcessCost {
  double elapsedSeconds = 0;
  double cpuSeconds = 0;
  double peakMegabytes = 0;
};

/// Runs a command (found on the path) with its standard output thrown away. Ends this process with
/// a message when the command cannot be run or fails: a measurement of a failure is worth nothing.
[[nodiscard]] ProcessCost RunMeasured(const std::vector<std::string>& command);

/// Median of each figure by itself.
[[nodiscard]] ProcessCost MedianCost(std::vector<ProcessCost> costs);

}  // namespace mivo::bench

#endif
