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

/// The record of a drawing object that could keep a careless renderer busy: coordinates, pens and
/// fonts at the limits of 32 bits, and beside it one of a kind that anybody draws.
struct HostileObject {
  const char* name;
  std::string record;
};

void PrintTo(const HostileObject& object, std::ostream* out);

/// The first is the one that anybody draws.
[[nodiscard]] const std::vector<HostileObject>& HostileObjects();

/// A library file of one component of 50 by 50 cells with that object in it.
[[nodiscard]] std::string LibraryWith(const HostileObject& object);

/// A library file of that version with about `bytes` of these records.
[[nodiscard]] std::string HostileLibrary(const HostileCase& hostile, std::size_t bytes,
                                         int version = 82);

}  // namespace mivo

#endif
