#ifndef MIVO_VIEW_RASTER_WIDE_STROKE_H
#define MIVO_VIEW_RASTER_WIDE_STROKE_H

#include <cstdint>
#include <span>

#include "color.h"
#include "curve_path.h"
#include "raster_canvas.h"

namespace mivo {

/// Strokes `path` with a round pen of `width` pixels, 2 or more, whose ends and corners are round.
///
/// A pixel is covered when its centre is nearer to the path than half the width. For an even width
/// the path is shifted up and left by half a pixel, so that a straight stroke along the axes is
/// exactly `width` pixels thick.
void StrokeWide(RasterCanvas& canvas, std::span<const PathPoint> path, std::int32_t width,
                Color color);

/// The same in dashes of twice the width, each with round ends, and gaps of twice the width between
/// them, counted along the path from its start.
void StrokeWideDashed(RasterCanvas& canvas, std::span<const PathPoint> path, std::int32_t width,
                      Color color);

}  // namespace mivo

#endif
