#ifndef MIVO_VIEW_RASTER_AREA_FILL_H
#define MIVO_VIEW_RASTER_AREA_FILL_H

#include <span>

#include "bit_image.h"
#include "color.h"
#include "pixel_geometry.h"
#include "raster_canvas.h"

namespace mivo {

void FillBox(RasterCanvas& canvas, const PixelRect& box, Color color);

/// Covers the pixels whose centres lie inside or on the ellipse that runs through the pixels along
/// the edges of `box`.
void FillEllipse(RasterCanvas& canvas, const PixelRect& box, Color color);

/// Covers the pixels whose centres lie inside the polygon by the alternating rule: a line from
/// there to the left crosses an odd number of edges. The outline itself is left to the pen.
void FillPolygon(RasterCanvas& canvas, std::span<const PixelPoint> points, Color color);

/// Stretches `bits` over `box`: set bits in `color`, what is under the clear ones stays. When it
/// shrinks, a pixel with any set bit in it is covered.
void FillBits(RasterCanvas& canvas, const PixelRect& box, const BitImageView& bits, Color color);

/// Inverts every other pixel of the frame one pixel thick along the inner edges of `box`: those
/// with an even sum of coordinates.
void InvertDottedFrame(RasterCanvas& canvas, const PixelRect& box);

}  // namespace mivo

#endif
