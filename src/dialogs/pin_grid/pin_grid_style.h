#ifndef MIVO_DIALOGS_PIN_GRID_STYLE_H
#define MIVO_DIALOGS_PIN_GRID_STYLE_H

#include <array>
#include <cstddef>
#include <cstdint>

#include "comp_pin.h"

namespace mivo {

/// The styles in the order of the pin grid's list, see SCompPin::type. The pin property dialog
/// shows them in another order.
inline constexpr std::array<std::int32_t, 6> kPinGridStyles = {
    0,
    SCompPin::kNegation,
    SCompPin::kClock,
    SCompPin::kNegation | SCompPin::kClock,
    SCompPin::kShapeS,
    SCompPin::kShapeZ};

/// The entry of the list that stands for the style of a pin of `type`; the first one for a style
/// that is not in the list.
[[nodiscard]] std::size_t PinGridStyleEntry(std::int32_t type) noexcept;

/// The type of a pin of `type` once entry `entry` was chosen for it: whether its number is hidden
/// stays.
[[nodiscard]] std::int32_t TypeWithPinGridStyle(std::int32_t type, std::size_t entry) noexcept;

}  // namespace mivo

#endif
