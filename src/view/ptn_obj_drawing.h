#ifndef MIVO_VIEW_PTN_OBJ_DRAWING_H
#define MIVO_VIEW_PTN_OBJ_DRAWING_H

#include <cstdint>

#include "color.h"
#include "common_font.h"
#include "drawing_surface.h"
#include "geometry.h"
#include "ptn_obj.h"

namespace mivo {

/// How a pattern is placed on a surface. A point is first turned and mirrored within `box`, then
/// moved by `offset`, then scaled; all in wrapping 32-bit arithmetic.
struct PtnPlacement {
  // Orientation codes: quarter turns clockwise on the screen, then a left-right mirror.
  static constexpr std::int32_t kTurnMask = 3;
  static constexpr std::int32_t kMirrored = 4;

  std::int32_t orientation = 0;
  SPoint box;                    ///< component units; used only with an orientation
  SPoint offset;                 ///< component units
  std::int32_t numerator = 1;    ///< not 0
  std::int32_t denominator = 1;  ///< not 0

  [[nodiscard]] SPoint Oriented(SPoint p) const noexcept;
  /// Oriented and moved, but not yet scaled.
  [[nodiscard]] SPoint Placed(SPoint p) const noexcept { return Oriented(p) + offset; }
  [[nodiscard]] PixelPoint Map(SPoint p) const noexcept;
  [[nodiscard]] std::int32_t Scaled(std::int32_t length) const noexcept;
};

/// Draws any pattern object; one of unknown type draws nothing. A text object stores the extent
/// with which it was drawn.
void DrawPtnObj(DrawingSurface& surface, SPtnObj& object, Color color,
                const PtnPlacement& placement, const SCommonFont& commonFont);

}  // namespace mivo

#endif
