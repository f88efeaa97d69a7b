#include "allocation_meter.h"

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <limits>
#include <new>

namespace {

std::atomic<std::size_t> calls;
std::atomic<std::size_t> bytes;
std::atomic<std::size_t> live;
std::atomic<std::size_t> peak;
std::atomic<std::size_t> goodCalls = std::numeric_limits<std::size_t>::max();  // before they fail

/// In front of what is handed out stands its size. Any heap adds about as much.
constexpr std::size_t kHeader = alignof(std::max_align_t);

void Forget(void* memory) {
  if (memory == nullptr) return;
  auto* const block = static_cast<std::size_t*>(memory) - kHeader / sizeof(std::size_t);
  live -= *block;
  std::free(block);
}

}  // namespace

// The forms for arrays, and those that do not throw, call these two.

void* operator new(std::size_t size) {
  calls += 1;
  bytes += size;
  if (calls > goodCalls) throw std::bad_alloc();
  const std::size_t whole = size + kHeader;
  auto* const block = whole > size ? static_cast<std::size_t*>(std::malloc(whole)) : nullptr;
  if (block == nullptr) throw std::bad_alloc();
  *block = whole;
  live += whole;
  peak = std::max(peak.load(), live.load());
  return block + kHeader / sizeof(std::size_t);
}

void operator delete(void* memory) noexcept {
  Forget(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept {
  Forget(memory);
}

namespace mivo {

AllocationMeter::AllocationMeter() : callsBefore_(calls), bytesBefore_(bytes), liveBefore_(live) {
  peak = live.load();
}

std::size_t AllocationMeter::Calls() const {
  return calls - callsBefore_;
}

std::size_t AllocationMeter::Bytes() const {
  return bytes - bytesBefore_;
}

std::size_t AllocationMeter::Peak() const {
  return peak - liveBefore_;
}

AllocationFault::AllocationFault(std::size_t good) {
  goodCalls = calls + good;
}

AllocationFault::~AllocationFault() {
  goodCalls = std::numeric_limits<std::size_t>::max();
}

}  // namespace mivo
