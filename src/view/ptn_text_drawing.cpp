#include "ptn_text_drawing.h"

#include "anchored_text.h"
#include "integer.h"

namespace mivo {
namespace {

constexpr std::size_t kMaxFaceName = 32;
constexpr std::int32_t kNormalWeight = 400;
constexpr std::int32_t kBoldWeight = 700;

struct TextLayout {
  bool horizontal;
  std::int32_t align;
};

// Text stays readable from below or from the right in every orientation: instead of turning over,
// it changes the side of its anchor.
TextLayout Oriented(const SPtnObjText& text, std::int32_t orientation) noexcept {
  TextLayout layout{text.IsHorizontal(), text.Align()};
  if (orientation == 0) return layout;
  const bool isCentered = (layout.align & SPtnObjText::kCenter) != 0;
  const bool isMiddle = (layout.align & SPtnObjText::kMiddle) != 0;
  const std::int32_t turns = orientation & PtnPlacement::kTurnMask;
  const bool changesSides = layout.horizontal ? turns == 1 || turns == 2 : (turns & 2) != 0;
  if (changesSides && !isCentered) layout.align ^= SPtnObjText::kRight;
  if (changesSides && !isMiddle) layout.align ^= SPtnObjText::kUpper;
  if ((turns & 1) != 0) layout.horizontal = !layout.horizontal;
  if ((orientation & PtnPlacement::kMirrored) != 0) {
    if (layout.horizontal && !isCentered) layout.align ^= SPtnObjText::kRight;
    if (!layout.horizontal && !isMiddle) layout.align ^= SPtnObjText::kUpper;
  }
  return layout;
}

Font OwnFont(const SPtnObjText& text, bool vertical, const PtnPlacement& placement) {
  return {text.FontName().substr(0, kMaxFaceName),
          FontPixels(text.FontSize(), placement.numerator, placement.denominator),
          text.IsBold() ? kBoldWeight : kNormalWeight, text.IsItalic(), vertical};
}

}  // namespace

void DrawPtnText(DrawingSurface& surface, SPtnObjText& text, Color color,
                 const PtnPlacement& placement, const SCommonFont& commonFont) {
  const TextLayout layout = Oriented(text, placement.orientation);
  const bool vertical = !layout.horizontal;
  const bool hasOwnFont = !text.FontName().empty();
  const Font font =
      hasOwnFont ? OwnFont(text, vertical, placement)
                 : ScaledFont(commonFont, vertical, placement.numerator, placement.denominator);
  const std::u16string drawn = DrawableText(text.Text());
  const TextExtent extent = surface.MeasureText(drawn, font);
  const AcrossShifts shifts =
      hasOwnFont ? AcrossShifts::OfCell(extent) : AcrossShifts::OfLabel(extent);
  const PixelPoint anchor = placement.Map(text.Position());
  surface.Text(TextStart(anchor, extent, vertical, layout.align, shifts), drawn, font, color);
  text.SetExtent(WrapScale(extent.width, placement.denominator, placement.numerator),
                 WrapScale(extent.cellHeight, placement.denominator, placement.numerator));
}

}  // namespace mivo
