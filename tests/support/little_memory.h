#ifndef MIVO_TESTS_SUPPORT_LITTLE_MEMORY_H
#define MIVO_TESTS_SUPPORT_LITTLE_MEMORY_H

#include <functional>
#include <string>

namespace mivo {

#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool kHasSanitizer = true;
#elif defined(__has_feature)
inline constexpr bool kHasSanitizer = __has_feature(address_sanitizer);
#else
inline constexpr bool kHasSanitizer = false;
#endif

/// Runs `action` in a process that gets 16 MB more than it has, see RunInChild. Means nothing under
/// a sanitizer, which takes memory without limit.
[[nodiscard]] std::string RunWithLittleMemory(const std::function<std::string()>& action);

}  // namespace mivo

#endif
