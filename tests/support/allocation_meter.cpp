#include "allocation_meter.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::size_t> calls;
std::atomic<std::size_t> bytes;

}  // namespace

// The forms for arrays, and those that do not throw, call these two.

void* operator new(std::size_t size) {
  calls += 1;
  bytes += size;
  void* const memory = std::malloc(size == 0 ? 1 : size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

void operator delete(void* memory) noexcept {
  std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept {
  std::free(memory);
}

namespace mivo {

AllocationMeter::AllocationMeter() : callsBefore_(calls), bytesBefore_(bytes) {}

std::size_t AllocationMeter::Calls() const {
  return calls - callsBefore_;
}

std::size_t AllocationMeter::Bytes() const {
  return bytes - bytesBefore_;
}

}  // namespace mivo
