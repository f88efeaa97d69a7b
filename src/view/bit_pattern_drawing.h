#ifndef MIVO_VIEW_BIT_PATTERN_DRAWING_H
#define MIVO_VIEW_BIT_PATTERN_DRAWING_H

#include <cstdint>

#include "bit_image.h"
#include "bit_pattern.h"
#include "color.h"
#include "draw_flags.h"
#include "drawing_surface.h"
#include "geometry.h"
#include "view_scale.h"

namespace mivo {

/// The stored part of `bits`, a pattern of `size` pixels, as an image.
[[nodiscard]] BitImageView ViewOf(const SBitPattern& bits, SPoint size) noexcept;

/// How a bit pattern is turned: quarter turns clockwise on the screen, then a left-right mirror.
struct BitOrientation {
  std::int32_t quarterTurns = 0;  ///< the lowest two bits count
  bool mirrored = false;
};

/// Draws `bits` with its top left pixel on `position` (component units), each pixel as large as a
/// component unit and centred on its point. Set bits are painted in `color` with the normal or the
/// selected flag and black with the monochrome flag alone; otherwise nothing is drawn.
void DrawBitPattern(DrawingSurface& surface, SPoint position, const BitImageView& bits,
                    DrawFlags flags, Color color, BitOrientation orientation,
                    const ViewScale& scale);

}  // namespace mivo

#endif
