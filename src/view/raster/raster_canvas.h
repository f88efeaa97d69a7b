#ifndef MIVO_VIEW_RASTER_RASTER_CANVAS_H
#define MIVO_VIEW_RASTER_RASTER_CANVAS_H

#include <algorithm>
#include <cstdint>
#include <limits>

#include "color.h"
#include "pixel_geometry.h"
#include "raster_image.h"

namespace mivo {

/// An image seen from an origin: point `origin` falls on the image's top left pixel. What lies
/// outside the image is dropped here, for any coordinates whatever.
class RasterCanvas {
 public:
  /// `image` must outlive the canvas.
  RasterCanvas(RasterImage& image, PixelPoint origin) noexcept
      : image_(&image),
        origin_(origin),
        clip_{origin.x, origin.y, Advanced(origin.x, image.Size().width),
              Advanced(origin.y, image.Size().height)} {}

  /// The points that fall on the image.
  [[nodiscard]] const PixelRect& Clip() const noexcept { return clip_; }

  void Pixel(std::int32_t x, std::int32_t y, Color color) noexcept {
    if (IsVisible(x, y)) image_->SetPixel(Column(x), Row(y), color);
  }

  /// Pixels `first` to `last` of row `y`, both included; nothing when `last` is the smaller one.
  void Span(std::int32_t y, std::int64_t first, std::int64_t last, Color color) noexcept {
    if (y < clip_.top || y >= clip_.bottom) return;
    const auto from = std::max<std::int64_t>(first, clip_.left);
    const auto to = std::min<std::int64_t>(last, std::int64_t{clip_.right} - 1);
    if (from > to) return;
    image_->FillSpan(Row(y), Column(from), Column(to) + 1, color);
  }

  void Invert(std::int32_t x, std::int32_t y) noexcept {
    if (IsVisible(x, y)) image_->InvertPixel(Column(x), Row(y));
  }

  // From points counted from the origin to columns and rows of the image.
  [[nodiscard]] std::int32_t Column(std::int64_t x) const noexcept {
    return static_cast<std::int32_t>(x - origin_.x);
  }
  [[nodiscard]] std::int32_t Row(std::int64_t y) const noexcept {
    return static_cast<std::int32_t>(y - origin_.y);
  }

 private:
  [[nodiscard]] static std::int32_t Advanced(std::int32_t from, std::int32_t by) noexcept {
    return static_cast<std::int32_t>(
        std::min<std::int64_t>(std::int64_t{from} + by, std::numeric_limits<std::int32_t>::max()));
  }
  [[nodiscard]] bool IsVisible(std::int32_t x, std::int32_t y) const noexcept {
    return clip_.left <= x && x < clip_.right && clip_.top <= y && y < clip_.bottom;
  }

  RasterImage* image_;
  PixelPoint origin_;
  PixelRect clip_;
};

}  // namespace mivo

#endif
