#ifndef MIVO_VIEW_PIN_TEXT_H
#define MIVO_VIEW_PIN_TEXT_H

#include <cstdint>
#include <string_view>

#include "color.h"
#include "common_font.h"
#include "drawing_surface.h"
#include "geometry.h"
#include "view_scale.h"

namespace mivo {

/// Where a pin's name or number stands.
struct PinTextPlace {
  SPoint anchor;  ///< component units
  bool vertical = false;
  std::int32_t align = 0;  ///< alignment bits of SPtnObjText
};

struct PinNameColors {
  Color shown;
  Color hidden;
};

/// Draws the name of a pin in the label font: its parts between slashes in the colour that `mask`
/// chooses by one bit per part, bit 0 the first (parts behind the 32nd are shown), and bars over
/// the overlined characters. Characters without a glyph in ASCII are blanks. At most `maxLength`
/// characters are drawn; below 0 or above 1024 it counts as 1024. Returns the extent of the whole.
TextExtent DrawPinName(DrawingSurface& surface, const PinTextPlace& place, std::u16string_view name,
                       std::int32_t maxLength, const PinNameColors& colors, std::uint32_t mask,
                       const ViewScale& scale, const SCommonFont& commonFont);

/// Draws the number of a pin in the same way, without parts and bars.
void DrawPinNumber(DrawingSurface& surface, const PinTextPlace& place, std::u16string_view number,
                   Color color, const ViewScale& scale, const SCommonFont& commonFont);

}  // namespace mivo

#endif
