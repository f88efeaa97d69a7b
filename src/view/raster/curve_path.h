#ifndef MIVO_VIEW_RASTER_CURVE_PATH_H
#define MIVO_VIEW_RASTER_CURVE_PATH_H

#include <array>
#include <vector>

#include "pixel_geometry.h"

namespace mivo {

/// A place in the plane of pixel centres: pixel (x, y) is the point (x, y).
struct PathPoint {
  double x = 0;
  double y = 0;
};

/// The region in which a path has to be true to its curve; elsewhere it may cut corners, as long as
/// it stays outside.
struct PathRegion {
  double left;
  double top;
  double right;
  double bottom;

  /// `clip` and `margin` pixels around it.
  [[nodiscard]] static PathRegion Around(const PixelRect& clip, double margin) noexcept {
    return {clip.left - margin, clip.top - margin, clip.right + margin, clip.bottom + margin};
  }
};

/// Points on the cubic Bézier curve with this control polygon, both ends included, whose straight
/// connections stay within a fraction of a pixel of it. The count grows with what `region` shows of
/// the curve, not with its length.
[[nodiscard]] std::vector<PathPoint> BezierPath(const std::array<PixelPoint, 4>& control,
                                                const PathRegion& region);

/// Where an ellipse that touches the edges of a box from inside has its axes.
struct EllipseShape {
  PathPoint center;
  double radiusX;
  double radiusY;

  /// The line that a pen follows: through the pixels along the box's edges.
  [[nodiscard]] static EllipseShape Inside(const PixelRect& box) noexcept;
  /// The angle at which the ray from the centre to `toward` meets the ellipse, as the parameter of
  /// cosine and sine, 0 up to but without a full turn, counter-clockwise on the screen.
  [[nodiscard]] double ParameterToward(PixelPoint toward) const noexcept;
};

/// Points on the ellipse from parameter `from` on, counter-clockwise through `sweep` (radians,
/// above 0, at most a full turn), as BezierPath's.
[[nodiscard]] std::vector<PathPoint> EllipsePath(const EllipseShape& shape, double from,
                                                 double sweep, const PathRegion& region);

/// Points on the ellipse between two directions: counter-clockwise from that of `from` to that of
/// `to`, all around when they are the same.
[[nodiscard]] std::vector<PathPoint> ArcPath(const EllipseShape& shape, PixelPoint from,
                                             PixelPoint to, const PathRegion& region);

/// The pixels nearest to `path`, without immediate repetitions.
[[nodiscard]] std::vector<PixelPoint> NearestPixels(const std::vector<PathPoint>& path);

}  // namespace mivo

#endif
