#ifndef MIVO_VIEW_ANCHORED_TEXT_H
#define MIVO_VIEW_ANCHORED_TEXT_H

#include <cstdint>
#include <string>
#include <string_view>

#include "drawing_surface.h"

namespace mivo {

/// Characters of a text that are drawn; the rest is cut off.
inline constexpr std::size_t kMaxDrawnText = 1024;

/// `text` as it is drawn: cut to kMaxDrawnText characters, control characters as blanks.
[[nodiscard]] std::u16string DrawableText(std::u16string_view text);

/// How far the top of a text's cell lies above its anchor, for an anchor at the lower edge, at the
/// upper edge and in the middle. In pixels, like the extent that it is made from.
struct AcrossShifts {
  std::int32_t lower;
  std::int32_t upper;
  std::int32_t middle;

  /// Pin texts: the anchor is the bottom of the em, below which the leading hangs out.
  [[nodiscard]] static AcrossShifts OfEm(const TextExtent& extent) noexcept;
  /// Pattern texts in the label font, where their bounding rectangles expect them: a quarter of the
  /// height hangs below the anchor.
  [[nodiscard]] static AcrossShifts OfLabel(const TextExtent& extent) noexcept;
  /// Pattern texts in a font of their own: the anchor is the bottom of the cell.
  [[nodiscard]] static AcrossShifts OfCell(const TextExtent& extent) noexcept;
};

/// Where to start drawing a text of `extent` whose `anchor` is placed by the alignment bits of
/// SPtnObjText.
[[nodiscard]] PixelPoint TextStart(PixelPoint anchor, const TextExtent& extent, bool vertical,
                                   std::int32_t align, const AcrossShifts& shifts) noexcept;

}  // namespace mivo

#endif
