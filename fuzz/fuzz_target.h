#ifndef MIVO_FUZZ_FUZZ_TARGET_H
#define MIVO_FUZZ_FUZZ_TARGET_H

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

/// What each fuzz target defines: takes any bytes and returns 0. The name is libFuzzer's.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace mivo {

inline std::string_view InputBytes(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

/// Ends the program, which the fuzzer and the replay take as a find, unless `holds`.
inline void Require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "Does not hold: %s\n", what);
  std::abort();
}

}  // namespace mivo

#endif
