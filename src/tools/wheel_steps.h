#ifndef MIVO_TOOLS_WHEEL_STEPS_H
#define MIVO_TOOLS_WHEEL_STEPS_H

#include <cstdint>

namespace mivo {

/// Turns wheel movements of any size into whole notches and keeps the rest.
class WheelSteps {
 public:
  static constexpr std::int32_t kNotch = 120;

  /// Whole notches that `delta` completes; positive away from the user.
  [[nodiscard]] std::int32_t Take(std::int32_t delta) noexcept {
    const std::int64_t sum = std::int64_t{rest_} + delta;
    rest_ = static_cast<std::int32_t>(sum % kNotch);
    return static_cast<std::int32_t>(sum / kNotch);
  }

 private:
  std::int32_t rest_ = 0;
};

}  // namespace mivo

#endif
