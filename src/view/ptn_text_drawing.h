#ifndef MIVO_VIEW_PTN_TEXT_DRAWING_H
#define MIVO_VIEW_PTN_TEXT_DRAWING_H

#include "color.h"
#include "common_font.h"
#include "drawing_surface.h"
#include "ptn_obj_drawing.h"
#include "ptn_obj_text.h"

namespace mivo {

/// Draws a pattern text in its own font, or in `commonFont` when it names none, and stores in it
/// the extent with which it was drawn, in component units. Underline and strikeout are not drawn.
void DrawPtnText(DrawingSurface& surface, SPtnObjText& text, Color color,
                 const PtnPlacement& placement, const SCommonFont& commonFont);

}  // namespace mivo

#endif
