#include "pin_grid_style.h"

#include <algorithm>

namespace mivo {

std::size_t PinGridStyleEntry(std::int32_t type) noexcept {
  const auto found =
      std::find(kPinGridStyles.begin(), kPinGridStyles.end(), type & SCompPin::kShapeMask);
  return found != kPinGridStyles.end() ? static_cast<std::size_t>(found - kPinGridStyles.begin())
                                       : 0;
}

std::int32_t TypeWithPinGridStyle(std::int32_t type, std::size_t entry) noexcept {
  return (type & SCompPin::kHideNumber) | kPinGridStyles[entry];
}

}  // namespace mivo
