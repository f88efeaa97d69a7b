#include "block_text_surface.h"

#include "integer.h"
#include "recording_surface.h"

namespace mivo {

TextExtent BlockTextSurface::MeasureText(std::u16string_view text, const Font& font) {
  return BlockTextExtent(text, font);
}

void BlockTextSurface::Text(PixelPoint at, std::u16string_view text, const Font& font,
                            Color color) {
  const TextExtent extent = BlockTextExtent(text, font);
  FillRect(
      font.vertical
          ? PixelRect{at.x, WrapSub(at.y, extent.width), WrapAdd(at.x, extent.cellHeight), at.y}
          : PixelRect{at.x, at.y, WrapAdd(at.x, extent.width), WrapAdd(at.y, extent.cellHeight)},
      color);
}

}  // namespace mivo
