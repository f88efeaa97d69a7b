#ifndef MIVO_TESTS_VIEW_SUPPORT_PIXEL_ART_H
#define MIVO_TESTS_VIEW_SUPPORT_PIXEL_ART_H

#include <string>
#include <string_view>

#include "raster_image.h"

namespace mivo {

/// A white colour image to draw on.
[[nodiscard]] RasterImage WhiteImage(PixelSize size);

/// The pixels as text, a line per row: "." white, "#" black, "r", "g" and "b" for what is mostly of
/// that colour, "+" for anything else.
[[nodiscard]] std::string PixelArt(const RasterImage& image);

/// A picture as a test writes it, `rows` of a raw string: blanks at the start of lines and empty
/// lines at both ends are left out.
[[nodiscard]] std::string Picture(std::string_view rows);

}  // namespace mivo

#endif
