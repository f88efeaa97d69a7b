#include "hairline.h"

#include <algorithm>
#include <utility>

namespace mivo {
namespace {

// A segment seen along its longer axis, from the end with the smaller coordinate on that axis. Step
// j, 0 to `steps`, is the pixel (major + j, minor ± Offset(j)). All products fit into 64 bits,
// since both extents are below 2³².
struct Steps {
  std::int32_t major;
  std::int32_t minor;
  std::uint64_t steps;
  std::uint64_t rise;
  bool falling;  // the minor coordinate decreases

  [[nodiscard]] std::uint64_t Offset(std::uint64_t step) const noexcept {
    return (step * rise + steps / 2) / steps;
  }

  // The first step with an offset of at least `offset`, which is at most `rise`.
  [[nodiscard]] std::uint64_t FirstWithOffset(std::uint64_t offset) const noexcept {
    if (offset == 0) return 0;
    return (offset * steps - steps / 2 - 1) / rise + 1;
  }
};

// Steps `first` up to but without `end`.
struct StepRange {
  std::uint64_t first;
  std::uint64_t end;
};

// The steps whose major coordinate lies in [low, high) and whose minor one in [minorLow,
// minorHigh).
StepRange Visible(const Steps& line, std::int64_t low, std::int64_t high, std::int64_t minorLow,
                  std::int64_t minorHigh) noexcept {
  const auto clamped = [](std::int64_t value, std::uint64_t most) {
    return value <= 0 ? 0 : std::min(static_cast<std::uint64_t>(value), most);
  };
  StepRange range{clamped(low - line.major, line.steps + 1),
                  clamped(high - line.major, line.steps + 1)};
  // Offsets in [nearest, beyond) are visible.
  const std::int64_t nearest = line.falling ? line.minor - (minorHigh - 1) : minorLow - line.minor;
  const std::int64_t beyond = line.falling ? line.minor - minorLow + 1 : minorHigh - line.minor;
  const auto rise = static_cast<std::int64_t>(line.rise);
  if (nearest > rise || beyond <= 0) return {0, 0};
  if (nearest > 0) {
    range.first = std::max(range.first, line.FirstWithOffset(static_cast<std::uint64_t>(nearest)));
  }
  if (beyond <= rise) {
    range.end = std::min(range.end, line.FirstWithOffset(static_cast<std::uint64_t>(beyond)));
  }
  return range;
}

}  // namespace

void Hairline::Polyline(std::span<const PixelPoint> points, bool closed) noexcept {
  if (points.empty()) return;
  Segment(points[0], points[0], Ends::Both);
  for (std::size_t i = 1; i < points.size(); ++i) {
    Segment(points[i - 1], points[i], Ends::NotFirst);
  }
  if (closed) Segment(points.back(), points.front(), Ends::Inner);
}

void Hairline::Pixels(std::span<const PixelPoint> path) noexcept {
  for (std::size_t i = 0; i < path.size(); ++i) {
    if (IsOn(i)) canvas_.Pixel(path[i].x, path[i].y, color_);
  }
  passed_ += path.size();
}

void Hairline::Segment(PixelPoint from, PixelPoint to, Ends ends) noexcept {
  if (from == to) {
    if (ends == Ends::Both) canvas_.Pixel(from.x, from.y, color_);
    return;
  }
  const std::int64_t dx = std::int64_t{to.x} - from.x;
  const std::int64_t dy = std::int64_t{to.y} - from.y;
  const bool steep = std::abs(dy) > std::abs(dx);
  const bool backward = (steep ? dy : dx) < 0;
  const PixelPoint base = backward ? to : from;
  const Steps line{steep ? base.y : base.x, steep ? base.x : base.y,
                   static_cast<std::uint64_t>(std::max(std::abs(dx), std::abs(dy))),
                   static_cast<std::uint64_t>(std::min(std::abs(dx), std::abs(dy))),
                   ((steep ? dx : dy) < 0) != backward};
  const PixelRect& clip = canvas_.Clip();
  StepRange range = steep ? Visible(line, clip.top, clip.bottom, clip.left, clip.right)
                          : Visible(line, clip.left, clip.right, clip.top, clip.bottom);
  // The ends that belong to a neighbour are left to it, so that dots are counted once.
  const bool dropFrom = ends != Ends::Both;
  const bool dropTo = ends == Ends::Inner;
  if (backward ? dropTo : dropFrom) range.first = std::max<std::uint64_t>(range.first, 1);
  if (backward ? dropFrom : dropTo) range.end = std::min(range.end, line.steps);

  if (range.first < range.end) {
    std::uint64_t offset = line.Offset(range.first);
    std::uint64_t remainder = (range.first * line.rise + line.steps / 2) % line.steps;
    for (std::uint64_t step = range.first; step < range.end; ++step) {
      if (IsOn(backward ? line.steps - step : step)) {
        const auto major = static_cast<std::int32_t>(line.major + static_cast<std::int64_t>(step));
        const auto rise = static_cast<std::int64_t>(offset);
        const auto minor = static_cast<std::int32_t>(line.minor + (line.falling ? -rise : rise));
        canvas_.Pixel(steep ? minor : major, steep ? major : minor, color_);
      }
      remainder += line.rise;
      if (remainder >= line.steps) {
        remainder -= line.steps;
        ++offset;
      }
    }
  }
  passed_ += line.steps;
}

}  // namespace mivo
