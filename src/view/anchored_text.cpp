#include "anchored_text.h"

#include <algorithm>

#include "integer.h"
#include "ptn_obj_text.h"

namespace mivo {

std::u16string DrawableText(std::u16string_view text) {
  std::u16string drawn(text.substr(0, kMaxDrawnText));
  std::replace_if(
      drawn.begin(), drawn.end(), [](char16_t c) { return c < u' ' || c == 0x7F; }, u' ');
  return drawn;
}

AcrossShifts AcrossShifts::OfEm(const TextExtent& extent) noexcept {
  return {extent.emHeight, 0, extent.emHeight / 2};
}

AcrossShifts AcrossShifts::OfLabel(const TextExtent& extent) noexcept {
  const std::int32_t height = extent.cellHeight;
  return {height - height / 4, 0, height - height * 5 / 8};
}

AcrossShifts AcrossShifts::OfCell(const TextExtent& extent) noexcept {
  return {extent.cellHeight, 0, extent.cellHeight - extent.cellHeight / 2};
}

PixelPoint TextStart(PixelPoint anchor, const TextExtent& extent, bool vertical, std::int32_t align,
                     const AcrossShifts& shifts) noexcept {
  std::int32_t back = 0;  // from the anchor to the start, against the reading direction
  switch (align & SPtnObjText::kAlongMask) {
    case SPtnObjText::kRight:
      back = extent.width;
      break;
    case SPtnObjText::kCenter:
      back = extent.width / 2;
      break;
    default:
      break;
  }
  std::int32_t up = shifts.lower;
  if ((align & SPtnObjText::kMiddle) != 0) {
    up = shifts.middle;
  } else if ((align & SPtnObjText::kUpper) != 0) {
    up = shifts.upper;
  }
  return vertical ? PixelPoint{WrapSub(anchor.x, up), WrapAdd(anchor.y, back)}
                  : PixelPoint{WrapSub(anchor.x, back), WrapSub(anchor.y, up)};
}

}  // namespace mivo
