#ifndef MIVO_TESTS_SUPPORT_RECORDED_PROGRESS_H
#define MIVO_TESTS_SUPPORT_RECORDED_PROGRESS_H

#include <cstdint>
#include <utility>
#include <vector>

#include "progress.h"

namespace mivo {

/// Remembers what it was told.
class RecordedProgress final : public ProgressSink {
 public:
  void Advance(std::uint64_t done, std::uint64_t total) override {
    calls.emplace_back(done, total);
  }
  /// Whether `done` never shrank.
  [[nodiscard]] bool Ascends() const {
    for (std::size_t i = 1; i < calls.size(); ++i) {
      if (calls[i].first < calls[i - 1].first) return false;
    }
    return true;
  }

  std::vector<std::pair<std::uint64_t, std::uint64_t>> calls;  ///< done and total
};

}  // namespace mivo

#endif
