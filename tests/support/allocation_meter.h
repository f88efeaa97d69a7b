#ifndef MIVO_TESTS_SUPPORT_ALLOCATION_METER_H
#define MIVO_TESTS_SUPPORT_ALLOCATION_METER_H

#include <cstddef>

namespace mivo {

/// Counts what the program asks of operator new from the moment it is made. Work that grows faster
/// than its input shows here without a clock. One meter at a time. A test program that uses it has
/// allocation_meter.cpp among its sources, which replaces operator new.
class AllocationMeter {
 public:
  AllocationMeter();

  [[nodiscard]] std::size_t Calls() const;
  /// Bytes asked for, whether freed since or not.
  [[nodiscard]] std::size_t Bytes() const;
  /// The most bytes that there were at any time more than at the beginning, with what a heap adds
  /// to each allocation.
  [[nodiscard]] std::size_t Peak() const;

 private:
  std::size_t callsBefore_;
  std::size_t bytesBefore_;
  std::size_t liveBefore_;
};

/// Lets `good` allocations succeed and all later ones fail, as long as it lives. One at a time.
class AllocationFault {
 public:
  explicit AllocationFault(std::size_t good);
  ~AllocationFault();
  AllocationFault(const AllocationFault&) = delete;
  AllocationFault& operator=(const AllocationFault&) = delete;
};

}  // namespace mivo

#endif
