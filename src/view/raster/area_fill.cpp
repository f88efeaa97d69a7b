#include "area_fill.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "curve_path.h"

namespace mivo {
namespace {

// The rows of `box` that can be seen.
std::pair<std::int32_t, std::int32_t> VisibleRows(const RasterCanvas& canvas,
                                                  const PixelRect& box) noexcept {
  return {std::max(box.top, canvas.Clip().top), std::min(box.bottom, canvas.Clip().bottom)};
}

// Which rows or columns of an image of `source` of them fall into number `index` of `target`.
struct SourceRange {
  std::int32_t first;
  std::int32_t end;  // above first

  SourceRange(std::int64_t index, std::int64_t target, std::int64_t source) noexcept
      : first(static_cast<std::int32_t>(index * source / target)),
        end(std::max(first + 1, static_cast<std::int32_t>((index + 1) * source / target))) {}
  bool operator==(const SourceRange&) const = default;
};

struct Run {
  std::int64_t first;
  std::int64_t last;
};

bool AnySet(const BitImageView& bits, SourceRange columns, SourceRange rows) noexcept {
  for (std::int32_t y = rows.first; y < rows.end; ++y) {
    for (std::int32_t x = columns.first; x < columns.end; ++x) {
      if (bits.At(x, y)) return true;
    }
  }
  return false;
}

}  // namespace

void FillBox(RasterCanvas& canvas, const PixelRect& box, Color color) {
  const auto [top, bottom] = VisibleRows(canvas, box);
  for (std::int32_t y = top; y < bottom; ++y) {
    canvas.Span(y, box.left, std::int64_t{box.right} - 1, color);
  }
}

void FillEllipse(RasterCanvas& canvas, const PixelRect& box, Color color) {
  const EllipseShape shape = EllipseShape::Inside(box);
  const auto [top, bottom] = VisibleRows(canvas, box);
  for (std::int32_t y = top; y < bottom; ++y) {
    const double v = shape.radiusY > 0 ? (y - shape.center.y) / shape.radiusY : 0.0;
    const double half = shape.radiusX * std::sqrt(std::max(0.0, 1 - v * v));
    canvas.Span(y, static_cast<std::int64_t>(std::ceil(shape.center.x - half)),
                static_cast<std::int64_t>(std::floor(shape.center.x + half)), color);
  }
}

void FillPolygon(RasterCanvas& canvas, std::span<const PixelPoint> points, Color color) {
  if (points.empty()) return;
  const auto [lowest, highest] = std::minmax_element(
      points.begin(), points.end(), [](PixelPoint a, PixelPoint b) { return a.y < b.y; });
  const std::int32_t top = std::max(lowest->y, canvas.Clip().top);
  const std::int32_t bottom = std::min(highest->y, canvas.Clip().bottom);
  std::vector<double> crossings;
  for (std::int32_t y = top; y < bottom; ++y) {
    crossings.clear();
    for (std::size_t i = 0; i < points.size(); ++i) {
      const PixelPoint p = points[i];
      const PixelPoint q = points[(i + 1) % points.size()];
      if ((p.y <= y) == (q.y <= y)) continue;
      const double t = (static_cast<double>(y) - p.y) / (static_cast<double>(q.y) - p.y);
      crossings.push_back(p.x + t * (static_cast<double>(q.x) - p.x));
    }
    std::sort(crossings.begin(), crossings.end());
    for (std::size_t i = 0; i + 1 < crossings.size(); i += 2) {
      canvas.Span(y, static_cast<std::int64_t>(std::ceil(crossings[i])),
                  static_cast<std::int64_t>(std::floor(crossings[i + 1])), color);
    }
  }
}

void FillBits(RasterCanvas& canvas, const PixelRect& box, const BitImageView& bits, Color color) {
  if (box.IsEmpty() || bits.width < 1 || bits.height < 1) return;
  const auto [top, bottom] = VisibleRows(canvas, box);
  const std::int32_t left = std::max(box.left, canvas.Clip().left);
  const std::int32_t right = std::min(box.right, canvas.Clip().right);
  std::vector<Run> runs;
  SourceRange runRows(-1, 1, 1);
  for (std::int32_t y = top; y < bottom; ++y) {
    const SourceRange rows(std::int64_t{y} - box.top, box.Height(), bits.height);
    if (rows != runRows) {  // an enlarged row is worked out once
      runRows = rows;
      runs.clear();
      for (std::int32_t x = left; x < right; ++x) {
        const SourceRange columns(std::int64_t{x} - box.left, box.Width(), bits.width);
        if (!AnySet(bits, columns, rows)) continue;
        if (!runs.empty() && runs.back().last + 1 == x) {
          runs.back().last = x;
        } else {
          runs.push_back({x, x});
        }
      }
    }
    for (const Run& run : runs) canvas.Span(y, run.first, run.last, color);
  }
}

void InvertDottedFrame(RasterCanvas& canvas, const PixelRect& box) {
  if (box.IsEmpty()) return;
  const auto invert = [&](std::int32_t x, std::int32_t y) {
    if (((static_cast<std::uint32_t>(x) ^ static_cast<std::uint32_t>(y)) & 1u) == 0) {
      canvas.Invert(x, y);
    }
  };
  const PixelRect& clip = canvas.Clip();
  const std::int32_t lastColumn = box.right - 1;
  const std::int32_t lastRow = box.bottom - 1;
  for (std::int32_t x = std::max(box.left, clip.left); x < std::min(box.right, clip.right); ++x) {
    invert(x, box.top);
    if (lastRow != box.top) invert(x, lastRow);
  }
  for (std::int32_t y = std::max(box.top, clip.top); y < std::min(box.bottom, clip.bottom); ++y) {
    if (y == box.top || y == lastRow) continue;
    invert(box.left, y);
    if (lastColumn != box.left) invert(lastColumn, y);
  }
}

}  // namespace mivo
