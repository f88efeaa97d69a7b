#ifndef MIVO_EDIT_PIN_GEOMETRY_H
#define MIVO_EDIT_PIN_GEOMETRY_H

#include <cstdint>

#include "comp_pin.h"
#include "geometry.h"

// Pins on the outline of a body. Body sizes are grid cells, points and rectangles component units.

namespace mivo {

/// Component units per grid cell.
inline constexpr std::int32_t kUnitsPerCell = 10;

/// Width and height in component units of a body of `bodySize` cells; wraps at 32 bits.
[[nodiscard]] SPoint BodyUnits(SPoint bodySize) noexcept;

/// The point where a pin meets the body.
[[nodiscard]] SPoint PinPoint(SPinLocation location, SPoint bodySize) noexcept;

/// Where a pin is hit: along its 10 units outward from the body, 4 units to either side.
[[nodiscard]] SRect PinRect(SPinLocation location, SPoint bodySize) noexcept;

/// The place on the outline that is nearest to `point`: by the diagonals that leave the corners
/// outside, by the nearest edge inside. The offset stays within what a pin can have.
[[nodiscard]] SPinLocation PinLocationFromPoint(SPoint point, SPoint bodySize) noexcept;

}  // namespace mivo

#endif
