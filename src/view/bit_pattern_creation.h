#ifndef MIVO_VIEW_BIT_PATTERN_CREATION_H
#define MIVO_VIEW_BIT_PATTERN_CREATION_H

#include "common_font.h"
#include "comp_edit_doc.h"
#include "component.h"
#include "drawing_surface.h"

namespace mivo {

/// Turns the drawing of the component under edit into its bit pattern: one pixel per component
/// unit, every alive drawing object in black, pins not at all. What reaches out is cut off.
/// Releases the selection first, once there is something to draw into.
///
/// False, with the bit pattern unchanged, when `component` is null or has no bit pattern to
/// overwrite, when the document has no elements, when the bit pattern is not of the pattern's size,
/// or when the work image cannot be had. The change is no operation: undo does not bring the old
/// bits back.
bool CreateBitPattern(SComponent* component, SCompEditDoc& document, SurfaceFactory& surfaces,
                      const SCommonFont& commonFont);

}  // namespace mivo

#endif
