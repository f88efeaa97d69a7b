#include "bit_pattern_creation.h"

#include <algorithm>
#include <optional>
#include <span>

#include "colors.h"
#include "pin_geometry.h"
#include "ptn_obj_drawing.h"
#include "raster_image.h"

namespace mivo {
namespace {

void DrawObjects(DrawingSurface& surface, const SCompEditDoc& document,
                 const SCommonFont& commonFont) {
  surface.FillRect(surface.Bounds(), colors::kWhite);
  PtnPlacement placement;
  placement.box = BodyUnits(document.BodySize());
  for (const SCompEditElm& element : document.Elements()) {
    SPtnObj* const object = element.Object();
    if (object != nullptr && element.IsAlive()) {
      DrawPtnObj(surface, *object, colors::kBlack, placement, commonFont);
    }
  }
}

// Black is a clear bit of the image and a set bit of the pattern. The image has no such bits behind
// its last column, so the pattern gets none there either.
void CopyInverted(std::span<const unsigned char> from, std::span<std::uint8_t> to,
                  std::int32_t width) {
  const std::size_t count = std::min(from.size(), to.size());
  for (std::size_t i = 0; i < count; ++i) to[i] = static_cast<std::uint8_t>(~from[i]);
  const auto last = static_cast<std::size_t>(width / 8);
  if (width % 8 != 0 && last < count) {
    to[last] = static_cast<std::uint8_t>(to[last] & (0xFF << (8 - width % 8)));
  }
}

}  // namespace

bool CreateBitPattern(SComponent* component, SCompEditDoc& document, SurfaceFactory& surfaces,
                      const SCommonFont& commonFont) {
  if (component == nullptr || component->Pattern() == nullptr) return false;
  const SPtn& pattern = *component->Pattern();
  if (!pattern.bitPattern || document.Elements().empty()) return false;
  document.ReleaseSelection();
  const SPoint size = pattern.size;
  if (SBitPattern::ByteCountOf(pattern.bitPattern->Size()) != SBitPattern::ByteCountOf(size)) {
    return false;
  }
  // What is not stored need not be drawn.
  const PixelSize stored{std::min(size.x, SBitPattern::kMaxSide),
                         std::min(size.y, SBitPattern::kMaxSide)};
  std::optional<RasterImage> image = RasterImage::Create(stored, ImageDepth::OneBit);
  if (!image) return false;
  DrawObjects(*surfaces.CreateSurface(*image), document, commonFont);

  SBitPattern& target = *component->MutablePattern()->bitPattern;
  for (std::int32_t y = 0; y < stored.height; ++y) {
    CopyInverted(image->Row(y), target.Row(size.x, y), stored.width);
  }
  return true;
}

}  // namespace mivo
