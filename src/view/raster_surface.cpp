#include "raster_surface.h"

#include <algorithm>
#include <vector>

#include "area_fill.h"
#include "curve_path.h"
#include "ellipse_ring.h"
#include "hairline.h"
#include "wide_stroke.h"

namespace mivo {
namespace {

bool IsThin(const Pen& pen) noexcept {
  return pen.width < 2 || pen.style == PenStyle::Dotted;
}

// How far outside its path a pen covers pixels.
double Reach(const Pen& pen) noexcept {
  return IsThin(pen) ? 1.0 : pen.width / 2.0 + 1;
}

void StrokeThin(RasterCanvas& canvas, std::span<const PixelPoint> points, bool closed,
                const Pen& pen) {
  Hairline(canvas, pen.color, pen.style == PenStyle::Dotted).Polyline(points, closed);
}

void StrokePath(RasterCanvas& canvas, const std::vector<PathPoint>& path, const Pen& pen) {
  if (IsThin(pen)) {
    StrokeThin(canvas, NearestPixels(path), false, pen);
  } else if (pen.style == PenStyle::Dashed) {
    StrokeWideDashed(canvas, path, pen.width, pen.color);
  } else {
    StrokeWide(canvas, path, pen.width, pen.color);
  }
}

void StrokePoints(RasterCanvas& canvas, std::span<const PixelPoint> points, bool closed,
                  const Pen& pen) {
  if (points.empty()) return;
  if (IsThin(pen)) {
    StrokeThin(canvas, points, closed, pen);
    return;
  }
  std::vector<PathPoint> path;
  path.reserve(points.size() + 1);
  for (const PixelPoint p : points) {
    path.push_back({static_cast<double>(p.x), static_cast<double>(p.y)});
  }
  if (closed) path.push_back(path.front());
  StrokePath(canvas, path, pen);
}

bool HasRing(const PixelRect& box) noexcept {
  return box.Width() <= kMaxRingSide && box.Height() <= kMaxRingSide;
}

bool IsNear(const RasterCanvas& canvas, const PixelRect& box, const Pen& pen) noexcept {
  const PathRegion region = PathRegion::Around(canvas.Clip(), Reach(pen));
  return !box.IsEmpty() && box.left <= region.right && box.right >= region.left &&
         box.top <= region.bottom && box.bottom >= region.top;
}

}  // namespace

void RasterSurface::SetOrigin(PixelPoint origin) {
  canvas_ = RasterCanvas(image_, origin);
}

void RasterSurface::FillRect(const PixelRect& box, Color color) {
  FillBox(canvas_, box, color);
}

void RasterSurface::Polyline(std::span<const PixelPoint> points, const Pen& pen) {
  StrokePoints(canvas_, points, false, pen);
}

void RasterSurface::Bezier(const std::array<PixelPoint, 4>& control, const Pen& pen) {
  const PathRegion region = PathRegion::Around(canvas_.Clip(), Reach(pen));
  StrokePath(canvas_, BezierPath(control, region), pen);
}

void RasterSurface::Rectangle(const PixelRect& box, const Pen& pen, const Brush& brush) {
  if (box.IsEmpty()) return;
  if (brush.color) FillBox(canvas_, box, *brush.color);
  const std::int32_t right = box.right - 1;
  const std::int32_t bottom = box.bottom - 1;
  const std::array<PixelPoint, 4> corners = {
      {{box.left, box.top}, {right, box.top}, {right, bottom}, {box.left, bottom}}};
  StrokePoints(canvas_, corners, true, pen);
}

void RasterSurface::Ellipse(const PixelRect& box, const Pen& pen, const Brush& brush) {
  if (!IsNear(canvas_, box, pen)) return;
  if (brush.color) FillEllipse(canvas_, box, *brush.color);
  if (IsThin(pen) && HasRing(box)) {
    const std::vector<PixelPoint> ring = EllipseRing(box);
    if (brush.color) Hairline(canvas_, *brush.color, false).Pixels(ring);
    Hairline(canvas_, pen.color, pen.style == PenStyle::Dotted).Pixels(ring);
    return;
  }
  const PixelPoint right{box.right,
                         static_cast<std::int32_t>((std::int64_t{box.top} + box.bottom) / 2)};
  const PathRegion region = PathRegion::Around(canvas_.Clip(), Reach(pen));
  StrokePath(canvas_, ArcPath(EllipseShape::Inside(box), right, right, region), pen);
}

void RasterSurface::Arc(const PixelRect& box, PixelPoint from, PixelPoint to, const Pen& pen) {
  if (!IsNear(canvas_, box, pen)) return;
  if (IsThin(pen) && HasRing(box)) {
    Hairline(canvas_, pen.color, pen.style == PenStyle::Dotted)
        .Pixels(EllipseRingPart(box, from, to));
    return;
  }
  const PathRegion region = PathRegion::Around(canvas_.Clip(), Reach(pen));
  StrokePath(canvas_, ArcPath(EllipseShape::Inside(box), from, to, region), pen);
}

void RasterSurface::Polygon(std::span<const PixelPoint> points, const Pen& pen,
                            const Brush& brush) {
  if (brush.color) {
    FillPolygon(canvas_, points, *brush.color);
    if (IsThin(pen)) StrokePoints(canvas_, points, true, {*brush.color});
  }
  // The way back over a single edge would fill the gaps between its dots.
  StrokePoints(canvas_, points, points.size() > 2, pen);
}

void RasterSurface::Pixels(std::int32_t y, std::span<const std::int32_t> columns, Color color) {
  for (const std::int32_t x : columns) canvas_.Pixel(x, y, color);
}

void RasterSurface::FocusRect(const PixelRect& box) {
  InvertDottedFrame(canvas_, box);
}

void RasterSurface::Bits(const PixelRect& box, const BitImageView& bits, Color color) {
  FillBits(canvas_, box, bits, color);
}

void RasterSurface::Image(const RasterImage& image, PixelPoint at) {
  const PixelRect& clip = canvas_.Clip();
  const std::int64_t left = std::max(at.x, clip.left);
  const std::int64_t top = std::max(at.y, clip.top);
  const std::int64_t right =
      std::min<std::int64_t>(std::int64_t{at.x} + image.Size().width, clip.right);
  const std::int64_t bottom =
      std::min<std::int64_t>(std::int64_t{at.y} + image.Size().height, clip.bottom);
  if (left >= right || top >= bottom) return;
  const PixelRect area{
      static_cast<std::int32_t>(left - at.x), static_cast<std::int32_t>(top - at.y),
      static_cast<std::int32_t>(right - at.x), static_cast<std::int32_t>(bottom - at.y)};
  image_.CopyFrom(image, area, {canvas_.Column(left), canvas_.Row(top)});
}

}  // namespace mivo
