#include "ellipse_ring.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <numbers>

namespace mivo {
namespace {

// Displacement from the centre of the box in half pixels, v upward. The centre of a box with an
// even side lies between two pixels, so that on each axis all pixels have the parity of the side
// less 1.
struct HalfPixels {
  std::int64_t u;
  std::int64_t v;
};

// The upper right quadrant from the right end to the top end.
std::vector<HalfPixels> Quadrant(std::int64_t a, std::int64_t b) {
  const std::int64_t aa = a * a;
  const std::int64_t bb = b * b;
  const auto isInside = [=](std::int64_t u, std::int64_t v) {
    return u * u * bb + v * v * aa < aa * bb;
  };
  std::vector<HalfPixels> path;
  path.reserve(static_cast<std::size_t>((a + b) / 2 + 2));
  HalfPixels at{a, b % 2};
  path.push_back(at);
  while (at.u > a % 2 || at.v < b) {
    if (at.u == a % 2) {
      at.v += 2;
    } else if (at.v == b) {
      at.u -= 2;
    } else if (bb * at.u > aa * at.v) {  // steep: one row up, and the column that is nearer
      if (!isInside(at.u - 1, at.v + 2)) at.u -= 2;
      at.v += 2;
    } else {  // flat: one column on, and the row that is nearer
      if (isInside(at.u - 2, at.v + 1)) at.v += 2;
      at.u -= 2;
    }
    path.push_back(at);
  }
  return path;
}

struct Direction {
  double x;
  double y;  // upward
};

// Angle from the right, 0 up to but without a full turn, counter-clockwise.
double AngleOf(Direction d) noexcept {
  const double angle = std::atan2(d.y, d.x);
  return angle < 0 ? angle + 2 * std::numbers::pi : angle;
}

// Grows as the directions come closer: the square of the angle's cosine with the cosine's sign,
// times a factor that depends on `b` only.
double Closeness(Direction a, Direction b) noexcept {
  const double dot = a.x * b.x + a.y * b.y;
  return dot * std::abs(dot) / (a.x * a.x + a.y * a.y);
}

}  // namespace

std::vector<PixelPoint> EllipseRing(const PixelRect& box) {
  const std::int64_t a = box.Width() - 1;
  const std::int64_t b = box.Height() - 1;
  std::vector<PixelPoint> ring;
  if (a == 0 || b == 0) {  // a line, of which the way back would cover every pixel again
    for (std::int32_t y = box.top; y < box.bottom; ++y) {
      for (std::int32_t x = box.right; x-- > box.left;) ring.push_back({x, y});
    }
    return ring;
  }
  const std::vector<HalfPixels> quadrant = Quadrant(a, b);
  ring.reserve(4 * quadrant.size());
  const auto add = [&](HalfPixels p, int signU, int signV) {
    const PixelPoint pixel{static_cast<std::int32_t>(box.left + (a + signU * p.u) / 2),
                           static_cast<std::int32_t>(box.top + (b - signV * p.v) / 2)};
    if (ring.empty() || pixel != ring.back()) ring.push_back(pixel);
  };
  for (auto p = quadrant.begin(); p != quadrant.end(); ++p) add(*p, 1, 1);
  for (auto p = quadrant.rbegin(); p != quadrant.rend(); ++p) add(*p, -1, 1);
  for (auto p = quadrant.begin(); p != quadrant.end(); ++p) add(*p, -1, -1);
  for (auto p = quadrant.rbegin(); p != quadrant.rend(); ++p) add(*p, 1, -1);
  if (ring.size() > 1 && ring.back() == ring.front()) ring.pop_back();
  return ring;
}

std::vector<PixelPoint> EllipseRingPart(const PixelRect& box, PixelPoint from, PixelPoint to) {
  std::vector<PixelPoint> ring = EllipseRing(box);
  const double centerX = (static_cast<double>(box.left) + box.right - 1) / 2;
  const double centerY = (static_cast<double>(box.top) + box.bottom - 1) / 2;
  const auto direction = [&](PixelPoint p) { return Direction{p.x - centerX, centerY - p.y}; };
  const Direction begin = direction(from);
  const Direction end = direction(to);
  const double sweep = AngleOf(end) - AngleOf(begin);
  if (sweep == 0) return ring;

  const auto nearest = [&](Direction wanted) {
    std::size_t best = 0;
    double most = -std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i < ring.size(); ++i) {
      const double closeness = Closeness(direction(ring[i]), wanted);
      if (closeness > most) {
        most = closeness;
        best = i;
      }
    }
    return best;
  };
  const std::size_t first = nearest(begin);
  const std::size_t last = nearest(end);
  std::rotate(ring.begin(), ring.begin() + static_cast<std::ptrdiff_t>(first), ring.end());
  const std::size_t count = (last + ring.size() - first) % ring.size() + 1;
  // Two directions so close that one pixel is nearest to both: that pixel, or all around to it.
  const bool isShort = (sweep > 0 ? sweep : sweep + 2 * std::numbers::pi) < std::numbers::pi;
  if (count > 1 || isShort) ring.resize(count);
  return ring;
}

}  // namespace mivo
