#include "wide_stroke.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace mivo {
namespace {

// The pixels of one row strictly between `low` and `high`; empty at first.
struct OpenInterval {
  double low = std::numeric_limits<double>::infinity();
  double high = -std::numeric_limits<double>::infinity();

  void Include(double x) noexcept {
    low = std::min(low, x);
    high = std::max(high, x);
  }
};

class RoundPen {
 public:
  RoundPen(RasterCanvas& canvas, std::int32_t width, Color color) noexcept
      : canvas_(canvas), color_(color), radius_(width / 2.0), shift_(width % 2 == 0 ? -0.5 : 0.0) {}

  [[nodiscard]] double Radius() const noexcept { return radius_; }

  // All pixels nearer than the radius to the segment: two discs and the slab between them. Whether
  // these are all pixels of the canvas: a pen as wide as that has nothing left to do.
  bool Segment(PathPoint from, PathPoint to) noexcept {
    const PathPoint a{from.x + shift_, from.y + shift_};
    const PathPoint b{to.x + shift_, to.y + shift_};
    const PixelRect& clip = canvas_.Clip();
    const double top = std::max(std::min(a.y, b.y) - radius_, static_cast<double>(clip.top));
    const double bottom =
        std::min(std::max(a.y, b.y) + radius_, static_cast<double>(clip.bottom) - 1);
    if (!(top <= bottom)) return false;
    const std::array<PathPoint, 4> slab = Slab(a, b);
    const auto first = static_cast<std::int32_t>(std::ceil(top));
    const auto last = static_cast<std::int32_t>(std::floor(bottom));
    bool coversAll = first == clip.top && last == clip.bottom - 1;
    for (std::int32_t y = first; y <= last; ++y) {
      OpenInterval covered;
      IncludeDisc(covered, a, y);
      IncludeDisc(covered, b, y);
      IncludeSlab(covered, slab, y);
      if (covered.low < covered.high) FillBetween(covered, y);
      coversAll = coversAll && covered.low < clip.left && covered.high > clip.right - 1;
    }
    return coversAll;
  }

 private:
  [[nodiscard]] std::array<PathPoint, 4> Slab(PathPoint a, PathPoint b) const noexcept {
    const double length = std::hypot(b.x - a.x, b.y - a.y);
    if (length == 0) return {a, a, a, a};
    const double nx = (a.y - b.y) / length * radius_;
    const double ny = (b.x - a.x) / length * radius_;
    return {
        {{a.x + nx, a.y + ny}, {b.x + nx, b.y + ny}, {b.x - nx, b.y - ny}, {a.x - nx, a.y - ny}}};
  }

  void IncludeDisc(OpenInterval& covered, PathPoint center, std::int32_t y) const noexcept {
    const double dy = y - center.y;
    const double square = radius_ * radius_ - dy * dy;
    if (square <= 0) return;
    const double dx = std::sqrt(square);
    covered.Include(center.x - dx);
    covered.Include(center.x + dx);
  }

  static void IncludeSlab(OpenInterval& covered, const std::array<PathPoint, 4>& slab,
                          std::int32_t y) noexcept {
    for (std::size_t i = 0; i < slab.size(); ++i) {
      const PathPoint p = slab[i];
      const PathPoint q = slab[(i + 1) % slab.size()];
      if ((p.y < y) == (q.y < y)) continue;
      covered.Include(p.x + (y - p.y) * (q.x - p.x) / (q.y - p.y));
    }
  }

  void FillBetween(const OpenInterval& covered, std::int32_t y) noexcept {
    // Limits keep the conversion defined; what they cut off is never visible.
    constexpr double kLimit = 1e12;
    const double first = std::floor(std::max(covered.low, -kLimit)) + 1;
    const double last = std::ceil(std::min(covered.high, kLimit)) - 1;
    canvas_.Span(y, static_cast<std::int64_t>(first), static_cast<std::int64_t>(last), color_);
  }

  RasterCanvas& canvas_;
  Color color_;
  double radius_;
  double shift_;
};

// The part of a segment, as distances from its start, that can matter inside a region.
struct VisiblePart {
  double from;
  double to;
};

VisiblePart Clipped(PathPoint a, PathPoint b, double length, const PathRegion& region) noexcept {
  VisiblePart part{0, length};
  const auto limit = [&](double start, double change, double low, double high) {
    if (change == 0) {
      if (start < low || start > high) part.to = -1;
      return;
    }
    const double atLow = (low - start) / change * length;
    const double atHigh = (high - start) / change * length;
    part.from = std::max(part.from, std::min(atLow, atHigh));
    part.to = std::min(part.to, std::max(atLow, atHigh));
  };
  limit(a.x, b.x - a.x, region.left, region.right);
  limit(a.y, b.y - a.y, region.top, region.bottom);
  return part;
}

}  // namespace

void StrokeWide(RasterCanvas& canvas, std::span<const PathPoint> path, std::int32_t width,
                Color color) {
  RoundPen pen(canvas, width, color);
  if (path.size() == 1) pen.Segment(path[0], path[0]);
  for (std::size_t i = 1; i < path.size(); ++i) {
    if (pen.Segment(path[i - 1], path[i])) return;
  }
}

void StrokeWideDashed(RasterCanvas& canvas, std::span<const PathPoint> path, std::int32_t width,
                      Color color) {
  RoundPen pen(canvas, width, color);
  const double dash = 2.0 * width;
  const double period = 2 * dash;
  const PathRegion region = PathRegion::Around(canvas.Clip(), pen.Radius() + 1);
  if (path.size() == 1) pen.Segment(path[0], path[0]);
  double passed = 0;  // length of the path in front of the segment
  for (std::size_t i = 1; i < path.size(); ++i) {
    const PathPoint a = path[i - 1];
    const PathPoint b = path[i];
    const double length = std::hypot(b.x - a.x, b.y - a.y);
    if (length == 0) continue;
    const auto at = [&](double distance) {
      const double t = distance / length;
      return PathPoint{a.x + (b.x - a.x) * t, a.y + (b.y - a.y) * t};
    };
    const VisiblePart part = Clipped(a, b, length, region);
    double begin = std::floor((passed + part.from) / period) * period - passed;
    for (; begin < part.to; begin += period) {
      const double from = std::max(begin, part.from);
      const double to = std::min(begin + dash, part.to);
      if (from < to && pen.Segment(at(from), at(to))) return;
    }
    passed += length;
  }
}

}  // namespace mivo
