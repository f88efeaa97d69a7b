#ifndef MIVO_TESTS_VIEW_SUPPORT_BLOCK_TEXT_SURFACE_H
#define MIVO_TESTS_VIEW_SUPPORT_BLOCK_TEXT_SURFACE_H

#include <memory>

#include "raster_surface.h"

namespace mivo {

/// Draws real pixels without a platform: every text is a block that fills its cell, of the size
/// that BlockTextExtent says.
class BlockTextSurface final : public RasterSurface {
 public:
  using RasterSurface::RasterSurface;

  [[nodiscard]] TextExtent MeasureText(std::u16string_view text, const Font& font) override;
  void Text(PixelPoint at, std::u16string_view text, const Font& font, Color color) override;
};

class BlockTextSurfaceFactory final : public SurfaceFactory {
 public:
  [[nodiscard]] std::unique_ptr<DrawingSurface> CreateSurface(RasterImage& image) override {
    return std::make_unique<BlockTextSurface>(image);
  }
};

}  // namespace mivo

#endif
