#ifndef MIVO_VIEW_DRAWING_SURFACE_H
#define MIVO_VIEW_DRAWING_SURFACE_H

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "bit_image.h"
#include "color.h"
#include "pixel_geometry.h"
#include "raster_image.h"

namespace mivo {

enum class PenStyle {
  Solid,
  Dotted,  ///< one pixel thick whatever the width: 3 pixels on, 3 off
  Dashed,  ///< dashes and gaps of twice the width each; solid when not wider than one pixel
};

/// A width below 2 means one pixel. Wider pens are round: ends, corners and dashes.
struct Pen {
  Color color;
  std::int32_t width = 1;
  PenStyle style = PenStyle::Solid;
  bool operator==(const Pen&) const = default;
};

/// What closed shapes are filled with; hollow without a colour.
struct Brush {
  std::optional<Color> color;
  bool operator==(const Brush&) const = default;
};

/// `height` is the size of the em in pixels, at least 1. A vertical font reads upward: horizontal
/// text turned a quarter counter-clockwise.
struct Font {
  std::u16string face;
  std::int32_t height = 1;
  std::int32_t weight = 400;  ///< 400 normal, 700 bold
  bool italic = false;
  bool vertical = false;
  bool operator==(const Font&) const = default;
};

/// Of horizontal text, or of vertical text before it is turned; pixels.
struct TextExtent {
  std::int32_t width = 0;
  std::int32_t cellHeight = 0;  ///< from the top of the highest to the bottom of the lowest letter
  std::int32_t emHeight = 0;    ///< the cell less its internal leading
  bool operator==(const TextExtent&) const = default;
};

/// What everything is drawn on: the screen's images, the one-bit image that becomes a bit pattern,
/// the small image that tells what was clicked, and the record that tests read.
///
/// Points name pixels and may be anything; what lies outside the surface costs nothing. Nothing is
/// blended: a pixel that a call covers gets the colour, all others stay as they are. Only text is
/// smooth, and hard-edged in one-bit images.
///
/// How pens cover pixels. One pixel thick: the pixels nearest to the path, the last one included,
/// and the same ones in either direction. Wider: the pixels whose centres are nearer to the path
/// than half the width, the path running through pixel centres, shifted up and left by half a pixel
/// for even widths. Dots and dashes are counted from the start of the path, which does not depend
/// on what the surface shows of it.
class DrawingSurface {
 public:
  virtual ~DrawingSurface() = default;

  /// Point `origin` falls on the top left pixel from now on; (0, 0) at first.
  virtual void SetOrigin(PixelPoint origin) = 0;
  /// The points that can be seen, counted from the origin.
  [[nodiscard]] virtual PixelRect Bounds() const = 0;

  /// Covers every pixel of `box`.
  virtual void FillRect(const PixelRect& box, Color color) = 0;

  /// Joins the points in order. A single point is a dot as large as the pen.
  virtual void Polyline(std::span<const PixelPoint> points, const Pen& pen) = 0;

  /// The cubic curve with this control polygon.
  virtual void Bezier(const std::array<PixelPoint, 4>& control, const Pen& pen) = 0;

  // The three shapes in a box follow its edge pixels: the first column and row, and the last ones
  // inside. A thin pen stays within the box, a wide one is centred on those pixels. The brush fills
  // what is inside, those pixels included: it shows in the gaps of the pen. An empty box draws
  // nothing.

  virtual void Rectangle(const PixelRect& box, const Pen& pen, const Brush& brush) = 0;
  virtual void Ellipse(const PixelRect& box, const Pen& pen, const Brush& brush) = 0;
  /// Part of the ellipse: counter-clockwise from where the ray from the centre to `from` meets it
  /// to where that to `to` does; all of it when the rays are the same.
  virtual void Arc(const PixelRect& box, PixelPoint from, PixelPoint to, const Pen& pen) = 0;

  /// Joins the points and the last one with the first. The brush fills what a line from outside
  /// crosses an odd number of edges to reach, and the edges.
  virtual void Polygon(std::span<const PixelPoint> points, const Pen& pen, const Brush& brush) = 0;

  /// Single pixels of row `y` at `columns`.
  virtual void Pixels(std::int32_t y, std::span<const std::int32_t> columns, Color color) = 0;

  /// Inverts every other pixel of the frame one pixel thick along the inner edges of `box`.
  virtual void FocusRect(const PixelRect& box) = 0;

  /// Stretches a one-bit image over `box`: set bits get the colour, clear ones leave what is there.
  /// When the image shrinks, set bits prevail.
  virtual void Bits(const PixelRect& box, const BitImageView& bits, Color color) = 0;

  /// Puts the top left pixel of a colour image on `at`.
  virtual void Image(const RasterImage& image, PixelPoint at) = 0;

  [[nodiscard]] virtual TextExtent MeasureText(std::u16string_view text, const Font& font) = 0;

  /// Draws one line of text on what is there. Horizontal text has its cell's top left corner at the
  /// corner of pixel `at`: columns at.x to at.x + width - 1, rows at.y to at.y + cellHeight - 1,
  /// apart from letters that lean out. Vertical text starts there: columns at.x to at.x +
  /// cellHeight - 1, rows at.y - 1 up to at.y - width.
  virtual void Text(PixelPoint at, std::u16string_view text, const Font& font, Color color) = 0;

  void Line(PixelPoint from, PixelPoint to, const Pen& pen) {
    const std::array<PixelPoint, 2> ends = {from, to};
    Polyline(ends, pen);
  }
};

/// Makes surfaces that draw into images in memory.
class SurfaceFactory {
 public:
  virtual ~SurfaceFactory() = default;
  /// A surface over `image`, which must outlive it.
  [[nodiscard]] virtual std::unique_ptr<DrawingSurface> CreateSurface(RasterImage& image) = 0;
};

}  // namespace mivo

#endif
