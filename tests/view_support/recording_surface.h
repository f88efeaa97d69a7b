#ifndef MIVO_TESTS_VIEW_SUPPORT_RECORDING_SURFACE_H
#define MIVO_TESTS_VIEW_SUPPORT_RECORDING_SURFACE_H

#include <sstream>
#include <string>

#include "drawing_surface.h"

namespace mivo {

/// How wide and high texts are on the surfaces of tests: every character three fifths of the em,
/// the cell a fifth higher than the em.
[[nodiscard]] TextExtent BlockTextExtent(std::u16string_view text, const Font& font);

/// Writes down each call as one line that a person can read, for comparison with a kept record.
/// Boxes are written as their top left pixel and their size, colours as #rrggbb.
class RecordingSurface final : public DrawingSurface {
 public:
  /// As large as a window of `size` pixels.
  explicit RecordingSurface(PixelSize size) : size_(size) {}

  /// Everything so far, which is then forgotten.
  [[nodiscard]] std::string TakeRecord();

  void SetOrigin(PixelPoint origin) override;
  [[nodiscard]] PixelRect Bounds() const override;
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
  [[nodiscard]] TextExtent MeasureText(std::u16string_view text, const Font& font) override;
  void Text(PixelPoint at, std::u16string_view text, const Font& font, Color color) override;

 private:
  PixelSize size_;
  PixelPoint origin_;
  std::ostringstream record_;
};

}  // namespace mivo

#endif
