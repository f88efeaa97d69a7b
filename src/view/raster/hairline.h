#ifndef MIVO_VIEW_RASTER_HAIRLINE_H
#define MIVO_VIEW_RASTER_HAIRLINE_H

#include <cstdint>
#include <span>

#include "color.h"
#include "pixel_geometry.h"
#include "raster_canvas.h"

namespace mivo {

/// Draws lines one pixel thick, solid or dotted: three pixels on, three off, counted along the path
/// from its first pixel, wherever the image begins.
///
/// A segment covers, for each step along its longer axis, the pixel nearest to the true line, both
/// ends included. It covers the same pixels in either direction.
class Hairline {
 public:
  /// `canvas` must outlive the pen.
  Hairline(RasterCanvas& canvas, Color color, bool dotted) noexcept
      : canvas_(canvas), color_(color), dotted_(dotted) {}

  /// Joins `points` in order; each common end is one pixel of the path. A closed path returns to
  /// its first point. A single point is one pixel.
  void Polyline(std::span<const PixelPoint> points, bool closed) noexcept;

  /// Covers `path`, whose pixels follow each other.
  void Pixels(std::span<const PixelPoint> path) noexcept;

 private:
  enum class Ends { Both, NotFirst, Inner };

  void Segment(PixelPoint from, PixelPoint to, Ends ends) noexcept;
  [[nodiscard]] bool IsOn(std::uint64_t index) const noexcept {
    constexpr std::uint64_t kRun = 3;
    return !dotted_ || (passed_ + index) % (2 * kRun) < kRun;
  }

  RasterCanvas& canvas_;
  Color color_;
  bool dotted_;
  std::uint64_t passed_ = 0;  // pixels of the path in front of the current segment
};

}  // namespace mivo

#endif
