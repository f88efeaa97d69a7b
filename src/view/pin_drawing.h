#ifndef MIVO_VIEW_PIN_DRAWING_H
#define MIVO_VIEW_PIN_DRAWING_H

#include <cstdint>
#include <string_view>

#include "common_font.h"
#include "comp_pin.h"
#include "draw_flags.h"
#include "drawing_surface.h"
#include "geometry.h"
#include "view_scale.h"

namespace mivo {

/// What of a pin is drawn, and where.
struct PinPicture {
  SPoint point;  ///< where it meets the body, component units
  PinSide side = PinSide::Left;
  std::int32_t type = 0;     ///< as SCompPin::type
  std::u16string_view name;  ///< as stored, with overline bits
  std::uint32_t nameMask = SCompPin::kWholeNameShown;
  std::u16string_view number;  ///< of the block that is shown

  /// `pin` of a body of `bodySize` cells as it shows in `block`, counted from 0.
  [[nodiscard]] static PinPicture Of(const SCompPin& pin, SPoint bodySize, std::int32_t block);
};

/// Draws a pin: its line and shape marks and, if the flags and the scale allow, its name and
/// number. What lies wholly outside `clip` (component units; null for no clip) is skipped. Without
/// a colour among the flags only texts are drawn.
void DrawPin(DrawingSurface& surface, const PinPicture& pin, DrawFlags flags,
             const ViewScale& scale, const SCommonFont& commonFont, const SRect* clip);

}  // namespace mivo

#endif
