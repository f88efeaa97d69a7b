#ifndef MIVO_BENCH_MEDIAN_H
#define MIVO_BENCH_MEDIAN_H

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <vector>

namespace mivo::bench {

/// How long `work` takes, in milliseconds.
template <typename Work>
[[nodiscard]] double Milliseconds(Work work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
      .count();
}

/// The middle one of `values`, of which there is at least one.
[[nodiscard]] inline double Median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

/// The median time of several runs of `work`, which gets the number of the run, in milliseconds.
template <typename Work>
[[nodiscard]] double MedianMilliseconds(Work work) {
  constexpr int kRounds = 9;
  std::vector<double> times;
  for (int round = 0; round < kRounds; ++round) {
    times.push_back(Milliseconds([&] { work(round); }));
  }
  return Median(times);
}

}  // namespace mivo::bench

#endif
