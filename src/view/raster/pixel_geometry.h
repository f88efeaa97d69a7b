#ifndef MIVO_VIEW_RASTER_PIXEL_GEOMETRY_H
#define MIVO_VIEW_RASTER_PIXEL_GEOMETRY_H

#include <algorithm>
#include <cstdint>
#include <limits>

namespace mivo {

// Device pixels, as opposed to the component units of geometry.h. Coordinates may be anything: they
// come from files by way of a multiplication that wraps.

struct PixelPoint {
  std::int32_t x = 0;
  std::int32_t y = 0;
  bool operator==(const PixelPoint&) const = default;
};

struct PixelSize {
  std::int32_t width = 0;
  std::int32_t height = 0;
  bool operator==(const PixelSize&) const = default;
};

/// Box of pixels: the left and top edges belong to it, the right and bottom ones do not.
struct PixelRect {
  std::int32_t left = 0;
  std::int32_t top = 0;
  std::int32_t right = 0;
  std::int32_t bottom = 0;
  bool operator==(const PixelRect&) const = default;

  /// The smallest box with both corner pixels in it. At the end of the range its right or bottom
  /// edge stays at the largest integer.
  [[nodiscard]] static constexpr PixelRect Around(PixelPoint a, PixelPoint b) noexcept {
    return {std::min(a.x, b.x), std::min(a.y, b.y), Next(std::max(a.x, b.x)),
            Next(std::max(a.y, b.y))};
  }

  [[nodiscard]] constexpr bool IsEmpty() const noexcept { return left >= right || top >= bottom; }

  [[nodiscard]] constexpr bool Meets(const PixelRect& other) const noexcept {
    return std::max(left, other.left) < std::min(right, other.right) &&
           std::max(top, other.top) < std::min(bottom, other.bottom);
  }

  // 64 bits: a box can be wider than the largest 32-bit integer.
  [[nodiscard]] constexpr std::int64_t Width() const noexcept { return std::int64_t{right} - left; }
  [[nodiscard]] constexpr std::int64_t Height() const noexcept {
    return std::int64_t{bottom} - top;
  }

 private:
  [[nodiscard]] static constexpr std::int32_t Next(std::int32_t edge) noexcept {
    return edge < std::numeric_limits<std::int32_t>::max() ? edge + 1 : edge;
  }
};

}  // namespace mivo

#endif
