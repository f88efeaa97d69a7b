#ifndef MIVO_TESTS_SUPPORT_HOSTILE_LIBRARY_H
#define MIVO_TESTS_SUPPORT_HOSTILE_LIBRARY_H

#include <cstddef>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace mivo {

/// Records that take as much memory or work for their length as any that were found.
struct HostileCase {
  const char* name;
  std::function<std::string(std::size_t)> records;  ///< about as many bytes as asked for
};

void PrintTo(const HostileCase& hostile, std::ostream* out);

[[nodiscard]] const std::vector<HostileCase>& HostileCases();

/// A library file of that version with about `bytes` of these records.
[[nodiscard]] std::string HostileLibrary(const HostileCase& hostile, std::size_t bytes,
                                         int version = 82);

}  // namespace mivo

#endif
