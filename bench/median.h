#ifndef MIVO_BENCH_MEDIAN_H
#define MIVO_BENCH_MEDIAN_H

#include <algorithm>
#include <chrono>
#include <vector>

namespace mivo::bench {

/// The median time of several runs of `work`, which gets the number of the run, in milliseconds.
template <typename Work>
[[nodiscard]] double MedianMilliseconds(Work work) {
  constexpr int kRounds = 9;
  std::vector<double> times;
  for (int round = 0; round < kRounds; ++round) {
    const auto start = std::chrono::steady_clock::now();
    work(round);
    const std::chrono::duration<double, std::milli> elapsed =
        std::chrono::steady_clock::now() - start;
    times.push_back(elapsed.count());
  }
  std::nth_element(times.begin(), times.begin() + kRounds / 2, times.end());
  return times[kRounds / 2];
}

}  // namespace mivo::bench

#endif
