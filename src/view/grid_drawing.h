#ifndef MIVO_VIEW_GRID_DRAWING_H
#define MIVO_VIEW_GRID_DRAWING_H

#include "drawing_surface.h"
#include "geometry.h"
#include "view_scale.h"

namespace mivo {

/// The component points that fall on `bounds`, edges included.
[[nodiscard]] SRect VisibleUnits(const PixelRect& bounds, const ViewScale& scale) noexcept;

/// Draws a point for every cell corner in sight and, from zoom factor 5 on, for every component
/// unit; those on the lines between cells in the colour of the corners.
void DrawGrid(DrawingSurface& surface, const ViewScale& scale);

}  // namespace mivo

#endif
