#ifndef MIVO_VIEW_QT_SURFACE_H
#define MIVO_VIEW_QT_SURFACE_H

#include <QImage>
#include <memory>

#include "qt_fonts.h"
#include "raster_surface.h"

namespace mivo {

/// `image` as the toolkit's image over the same memory, which must stay.
[[nodiscard]] QImage WrapImage(RasterImage& image);

/// A surface whose text is written by the toolkit's painter: smooth in colour images, hard-edged in
/// one-bit images.
class QtSurface final : public RasterSurface {
 public:
  /// Both must outlive the surface.
  QtSurface(RasterImage& image, QtFonts& fonts) : RasterSurface(image), fonts_(fonts) {}

  [[nodiscard]] TextExtent MeasureText(std::u16string_view text, const Font& font) override;
  void Text(PixelPoint at, std::u16string_view text, const Font& font, Color color) override;

 private:
  QtFonts& fonts_;
};

/// Makes QtSurfaces that share their fonts.
class QtSurfaceFactory final : public SurfaceFactory {
 public:
  [[nodiscard]] std::unique_ptr<DrawingSurface> CreateSurface(RasterImage& image) override {
    return std::make_unique<QtSurface>(image, fonts_);
  }

 private:
  QtFonts fonts_;
};

}  // namespace mivo

#endif
