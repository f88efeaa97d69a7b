#include "curve_path.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace mivo {
namespace {

// How far, in pixels, a straight piece may stray from its curve.
constexpr double kTolerance = 0.125;
// Halvings that bring any curve in 32-bit coordinates within the tolerance: each quarters its
// deviation.
constexpr int kMaxDepth = 18;
constexpr double kFullTurn = 2 * std::numbers::pi;

PathPoint Middle(PathPoint a, PathPoint b) noexcept {
  return {(a.x + b.x) / 2, (a.y + b.y) / 2};
}

bool Meets(const PathRegion& region, double left, double top, double right,
           double bottom) noexcept {
  return left <= region.right && right >= region.left && top <= region.bottom &&
         bottom >= region.top;
}

using Control = std::array<PathPoint, 4>;

// Whether the control points lie so near to the thirds of the chord that the curve is as good as
// straight.
bool IsStraight(const Control& c) noexcept {
  const auto deviates = [](double a, double b, double p, double q) {
    return std::max(std::abs(3 * p - 2 * a - b), std::abs(3 * q - a - 2 * b)) > 3 * kTolerance;
  };
  return !deviates(c[0].x, c[3].x, c[1].x, c[2].x) && !deviates(c[0].y, c[3].y, c[1].y, c[2].y);
}

void AppendBezier(std::vector<PathPoint>& path, const Control& c, const PathRegion& region,
                  int depth) {
  const auto [left, right] = std::minmax({c[0].x, c[1].x, c[2].x, c[3].x});
  const auto [top, bottom] = std::minmax({c[0].y, c[1].y, c[2].y, c[3].y});
  if (depth == kMaxDepth || IsStraight(c) || !Meets(region, left, top, right, bottom)) {
    path.push_back(c[3]);
    return;
  }
  const PathPoint ab = Middle(c[0], c[1]);
  const PathPoint bc = Middle(c[1], c[2]);
  const PathPoint cd = Middle(c[2], c[3]);
  const PathPoint abc = Middle(ab, bc);
  const PathPoint bcd = Middle(bc, cd);
  const PathPoint middle = Middle(abc, bcd);
  AppendBezier(path, {c[0], ab, abc, middle}, region, depth + 1);
  AppendBezier(path, {middle, bcd, cd, c[3]}, region, depth + 1);
}

PathPoint PointAt(const EllipseShape& shape, double parameter) noexcept {
  return {shape.center.x + shape.radiusX * std::cos(parameter),
          shape.center.y - shape.radiusY * std::sin(parameter)};
}

// `from` to `to` lie in one quadrant, so that the two ends span the piece between them.
void AppendQuadrant(std::vector<PathPoint>& path, const EllipseShape& shape, double from, double to,
                    const PathRegion& region, int depth) {
  const PathPoint a = PointAt(shape, from);
  const PathPoint b = PointAt(shape, to);
  const double half = (to - from) / 2;
  const double sagitta = std::max(shape.radiusX, shape.radiusY) * (1 - std::cos(half));
  if (depth == kMaxDepth || sagitta <= kTolerance ||
      !Meets(region, std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x),
             std::max(a.y, b.y))) {
    path.push_back(b);
    return;
  }
  AppendQuadrant(path, shape, from, from + half, region, depth + 1);
  AppendQuadrant(path, shape, from + half, to, region, depth + 1);
}

}  // namespace

std::vector<PathPoint> BezierPath(const std::array<PixelPoint, 4>& control,
                                  const PathRegion& region) {
  Control points;
  for (std::size_t i = 0; i < points.size(); ++i) {
    points[i] = {static_cast<double>(control[i].x), static_cast<double>(control[i].y)};
  }
  std::vector<PathPoint> path{points[0]};
  AppendBezier(path, points, region, 0);
  return path;
}

EllipseShape EllipseShape::Inside(const PixelRect& box) noexcept {
  return {{(static_cast<double>(box.left) + box.right - 1) / 2,
           (static_cast<double>(box.top) + box.bottom - 1) / 2},
          static_cast<double>(box.Width() - 1) / 2,
          static_cast<double>(box.Height() - 1) / 2};
}

double EllipseShape::ParameterToward(PixelPoint toward) const noexcept {
  // A flat ellipse has no parameter of its own: any positive radius gives the right half or end.
  const double parameter = std::atan2((center.y - toward.y) * std::max(radiusX, 0.5),
                                      (toward.x - center.x) * std::max(radiusY, 0.5));
  return parameter < 0 ? parameter + kFullTurn : parameter;
}

std::vector<PathPoint> EllipsePath(const EllipseShape& shape, double from, double sweep,
                                   const PathRegion& region) {
  const double to = from + sweep;
  std::vector<PathPoint> path{PointAt(shape, from)};
  constexpr double kQuarter = kFullTurn / 4;
  for (double at = from; at < to;) {
    const double next = std::min(to, (std::floor(at / kQuarter + 1e-9) + 1) * kQuarter);
    AppendQuadrant(path, shape, at, next, region, 0);
    at = next;
  }
  return path;
}

std::vector<PathPoint> ArcPath(const EllipseShape& shape, PixelPoint from, PixelPoint to,
                               const PathRegion& region) {
  const double begin = shape.ParameterToward(from);
  const double sweep = shape.ParameterToward(to) - begin;
  return EllipsePath(shape, begin, sweep > 0 ? sweep : sweep + kFullTurn, region);
}

std::vector<PixelPoint> NearestPixels(const std::vector<PathPoint>& path) {
  std::vector<PixelPoint> pixels;
  pixels.reserve(path.size());
  for (const PathPoint& p : path) {
    // Points of a path lie between points with 32-bit coordinates.
    const PixelPoint pixel{static_cast<std::int32_t>(std::lround(p.x)),
                           static_cast<std::int32_t>(std::lround(p.y))};
    if (pixels.empty() || pixel != pixels.back()) pixels.push_back(pixel);
  }
  return pixels;
}

}  // namespace mivo
