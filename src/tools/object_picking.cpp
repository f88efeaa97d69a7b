#include "object_picking.h"

#include <memory>
#include <span>

#include "colors.h"
#include "integer.h"
#include "ptn_obj_drawing.h"
#include "raster_image.h"

namespace mivo {
namespace {

constexpr std::int32_t kProbeSide = 32;
constexpr std::int32_t kProbeCenter = kProbeSide / 2;

/// Whether one of the 3 × 3 pixels in the middle is lit.
[[nodiscard]] bool IsCenterLit(const RasterImage& probe) noexcept {
  for (std::int32_t y = kProbeCenter - 1; y <= kProbeCenter + 1; ++y) {
    for (std::int32_t x = kProbeCenter - 1; x <= kProbeCenter + 1; ++x) {
      if (probe.PixelAt(x, y) != colors::kBlack) return true;
    }
  }
  return false;
}

}  // namespace

std::optional<std::size_t> ObjectAt(PixelPoint pixel, const EditSession& session) {
  std::optional<RasterImage> probe =
      RasterImage::Create({kProbeSide, kProbeSide}, ImageDepth::Color);
  if (!probe) return {};
  const std::unique_ptr<DrawingSurface> surface = session.ports.surfaces.CreateSurface(*probe);
  surface->FillRect(surface->Bounds(), colors::kBlack);
  const PixelPoint origin = session.coordinates.Origin();
  surface->SetOrigin({WrapSub(WrapAdd(pixel.x, origin.x), kProbeCenter),
                      WrapSub(WrapAdd(pixel.y, origin.y), kProbeCenter)});
  PtnPlacement placement;
  placement.numerator = session.coordinates.Scale().multiplier;
  placement.denominator = session.coordinates.Scale().divisor;

  const std::span<const SCompEditElm> elements = session.document.Elements();
  for (std::size_t i = 0; i < elements.size(); ++i) {
    if (!elements[i].IsAlive() || elements[i].Object() == nullptr) continue;
    DrawPtnObj(*surface, *elements[i].Object(), colors::kPickProbe, placement,
               session.ports.commonFont);
    // What earlier objects left around the middle does no harm: it was not lit until now.
    if (IsCenterLit(*probe)) return i;
  }
  return {};
}

}  // namespace mivo
