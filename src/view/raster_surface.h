#ifndef MIVO_VIEW_RASTER_SURFACE_H
#define MIVO_VIEW_RASTER_SURFACE_H

#include "drawing_surface.h"
#include "raster_canvas.h"

namespace mivo {

/// Draws into an image in memory, all but the text, for which a platform's fonts are needed.
///
/// The shapes are worked out here and not by a toolkit's painter, so that every pixel is the same
/// on every platform, an arc lies on its ellipse, dots follow the pixels, and coordinates at the
/// ends of the 32-bit range are clipped before they can cost anything.
class RasterSurface : public DrawingSurface {
 public:
  /// `image` must outlive the surface.
  explicit RasterSurface(RasterImage& image) : image_(image), canvas_(image, {}) {}

  void SetOrigin(PixelPoint origin) override;
  [[nodiscard]] PixelRect Bounds() const override { return canvas_.Clip(); }
  void FillRect(const PixelRect& box, Color color) override;
  void Polyline(std::span<const PixelPoint> points, const Pen& pen) override;
  void Bezier(const std::array<PixelPoint, 4>& control, const Pen& pen) override;
  void Rectangle(const PixelRect& box, const Pen& pen, const Brush& brush) override;
  void Ellipse(const PixelRect& box, const Pen& pen, const Brush& brush) override;
  void Arc(const PixelRect& box, PixelPoint from, PixelPoint to, const Pen& pen) override;
  void Polygon(std::span<const PixelPoint> points, const Pen& pen, const Brush& brush) override;
  void Pixels(std::int32_t y, std::span<const std::int32_t> columns, Color color) override;
  void FocusRect(const PixelRect& box) override;
  void Bits(const PixelRect& box, const BitImageView& bits, Color color) override;
  void Image(const RasterImage& image, PixelPoint at) override;

 protected:
  [[nodiscard]] RasterImage& Target() noexcept { return image_; }
  [[nodiscard]] const RasterCanvas& Canvas() const noexcept { return canvas_; }

 private:
  RasterImage& image_;
  RasterCanvas canvas_;
};

}  // namespace mivo

#endif
