#ifndef MIVO_VIEW_RASTER_ELLIPSE_RING_H
#define MIVO_VIEW_RASTER_ELLIPSE_RING_H

#include <vector>

#include "pixel_geometry.h"

namespace mivo {

/// Longest side of a box for which the ring of an ellipse is worked out pixel by pixel.
inline constexpr std::int64_t kMaxRingSide = 16384;

/// The outline of the ellipse that touches all four edges of `box` from inside, one pixel thick:
/// symmetrical about both axes, each pixel once, counter-clockwise on the screen from the right
/// end. `box` is not empty and no side exceeds kMaxRingSide.
[[nodiscard]] std::vector<PixelPoint> EllipseRing(const PixelRect& box);

/// The pixels of EllipseRing from the one nearest to the direction of `from`, seen from the centre
/// of the box, counter-clockwise to the one nearest to that of `to`; all of them when the
/// directions are the same.
[[nodiscard]] std::vector<PixelPoint> EllipseRingPart(const PixelRect& box, PixelPoint from,
                                                      PixelPoint to);

}  // namespace mivo

#endif
