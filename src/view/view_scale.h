#ifndef MIVO_VIEW_VIEW_SCALE_H
#define MIVO_VIEW_VIEW_SCALE_H

#include <algorithm>
#include <cstdint>

#include "geometry.h"
#include "integer.h"
#include "pixel_geometry.h"

namespace mivo {

/// How component units become device pixels, and how large things are that keep their size on the
/// screen whatever the zoom.
struct ViewScale {
  std::int32_t multiplier = 1;  ///< device pixels per `divisor` component units, above 0
  std::int32_t divisor = 1;     ///< above 0
  std::int32_t factor = 1;      ///< entry of the zoom table, without regard to the display
  std::int32_t markPixels = 1;  ///< side of a grid point, unit of marks and tolerances

  bool operator==(const ViewScale&) const = default;

  [[nodiscard]] constexpr std::int32_t Scaled(std::int32_t length) const noexcept {
    return WrapScale(length, multiplier, divisor);
  }
  [[nodiscard]] constexpr PixelPoint Map(SPoint p) const noexcept {
    return {Scaled(p.x), Scaled(p.y)};
  }
  /// Truncated toward zero.
  [[nodiscard]] constexpr SPoint Unmap(PixelPoint p) const noexcept {
    return {WrapScale(p.x, divisor, multiplier), WrapScale(p.y, divisor, multiplier)};
  }
  /// Width of a pen one component unit wide.
  [[nodiscard]] constexpr std::int32_t UnitWidth() const noexcept { return multiplier / divisor; }
};

}  // namespace mivo

#endif
