#include "ellipse_ring.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <numbers>
#include <optional>

namespace mivo {
namespace {

// Displacement from the centre of the box in half pixels, v upward. The centre of a box with an
// even side lies between two pixels, so that on each axis all pixels have the parity of the side
// less 1.
struct HalfPixels {
  std::int64_t u;
  std::int64_t v;
  bool operator==(const HalfPixels&) const = default;
};

// Where the ellipse with half axis `a` along and `b` across meets the row at `v`, as the nearest
// pixel; nothing where it runs flatter than along a diagonal.
std::optional<std::int64_t> NearestWhereSteep(double a, double b, std::int64_t v,
                                              std::int64_t parity) noexcept {
  const double height = static_cast<double>(v) / b;
  const double u = a * std::sqrt(1 - height * height);
  if (b * b * u < a * a * static_cast<double>(v)) return std::nullopt;
  return 2 * std::llround((u - static_cast<double>(parity)) / 2) + parity;
}

// The upper right quadrant from the right end to the top end: where the ellipse is steep, the pixel
// nearest to it in each row, where it is flat, that in each column. The result does not depend on
// which axis is which.
std::vector<HalfPixels> Quadrant(std::int64_t a, std::int64_t b) {
  const HalfPixels least{a % 2, b % 2};
  const auto axisU = static_cast<double>(a);
  const auto axisV = static_cast<double>(b);
  std::vector<HalfPixels> curve;
  for (std::int64_t v = least.v; v <= b; v += 2) {
    const auto u = NearestWhereSteep(axisU, axisV, v, least.u);
    if (!u) break;
    curve.push_back({*u, v});
  }
  std::vector<HalfPixels> flat;
  for (std::int64_t u = least.u; u <= a; u += 2) {
    const auto v = NearestWhereSteep(axisV, axisU, u, least.v);
    if (!v) break;
    flat.push_back({u, *v});
  }
  if (!curve.empty() && !flat.empty()) {
    const HalfPixels last = curve.back();
    const HalfPixels next = flat.back();
    // Row and column may both just miss the diagonal point; the pixel there belongs to neither.
    if (last.u - next.u > 2 || next.v - last.v > 2) curve.push_back({next.u + 2, last.v + 2});
    if (last == next) curve.pop_back();
  }
  curve.insert(curve.end(), flat.rbegin(), flat.rend());
  if (curve.empty()) curve.push_back(least);

  // The ends of a very flat ellipse are thinner than a pixel.
  std::vector<HalfPixels> path;
  for (std::int64_t u = a; u > curve.front().u; u -= 2) path.push_back({u, least.v});
  path.insert(path.end(), curve.begin(), curve.end());
  for (std::int64_t v = curve.back().v + 2; v <= b; v += 2) path.push_back({least.u, v});
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
    ring.push_back({static_cast<std::int32_t>(box.left + (a + signU * p.u) / 2),
                    static_cast<std::int32_t>(box.top + (b - signV * p.v) / 2)});
  };
  // Pixels on an axis are their own mirror images.
  for (auto p = quadrant.begin(); p != quadrant.end(); ++p) add(*p, 1, 1);
  for (auto p = quadrant.rbegin(); p != quadrant.rend(); ++p) {
    if (p->u != 0) add(*p, -1, 1);
  }
  for (auto p = quadrant.begin(); p != quadrant.end(); ++p) {
    if (p->v != 0) add(*p, -1, -1);
  }
  for (auto p = quadrant.rbegin(); p != quadrant.rend(); ++p) {
    if (p->u != 0 && p->v != 0) add(*p, 1, -1);
  }
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
