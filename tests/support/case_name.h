#ifndef MIVO_TESTS_SUPPORT_CASE_NAME_H
#define MIVO_TESTS_SUPPORT_CASE_NAME_H

#include <string>

namespace mivo {

/// Names the instances of a table-driven test after the member `name` of their cases.
inline constexpr auto kCaseName = [](const auto& info) { return std::string(info.param.name); };

/// The same for all pairs of the cases of two tables.
inline constexpr auto kCasePairName = [](const auto& info) {
  const auto& [first, second] = info.param;
  return std::string(first.name) + '_' + second.name;
};

}  // namespace mivo

#endif
