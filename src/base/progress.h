#ifndef MIVO_BASE_PROGRESS_H
#define MIVO_BASE_PROGRESS_H

#include <cstdint>

namespace mivo {

/// Hears how far a long task has come.
class ProgressSink {
 public:
  virtual ~ProgressSink() = default;

  /// `done` never shrinks while a task goes on. Both are in whatever unit the task counts in;
  /// `total` is an estimate that may be passed, and 0 when there is none.
  virtual void Advance(std::uint64_t done, std::uint64_t total) = 0;
};

}  // namespace mivo

#endif
