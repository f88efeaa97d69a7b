#include "curve_path.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace mivo {
namespace {

constexpr std::int32_t kSmallest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();
constexpr PathRegion kScreen{0, 0, 1000, 1000};

double DistanceToPath(const std::vector<PathPoint>& path, PathPoint p) {
  double least = std::numeric_limits<double>::infinity();
  for (std::size_t i = 1; i < path.size(); ++i) {
    const PathPoint a = path[i - 1];
    const PathPoint b = path[i];
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    const double square = dx * dx + dy * dy;
    const double t =
        square > 0 ? std::clamp(((p.x - a.x) * dx + (p.y - a.y) * dy) / square, 0.0, 1.0) : 0;
    least = std::min(least, std::hypot(p.x - a.x - t * dx, p.y - a.y - t * dy));
  }
  return least;
}

PathPoint BezierPoint(const std::array<PixelPoint, 4>& c, double t) {
  const double s = 1 - t;
  const std::array<double, 4> weights = {s * s * s, 3 * s * s * t, 3 * s * t * t, t * t * t};
  PathPoint p;
  for (std::size_t i = 0; i < c.size(); ++i) {
    p.x += weights[i] * c[i].x;
    p.y += weights[i] * c[i].y;
  }
  return p;
}

TEST(BezierPath, StaysWithinAFractionOfAPixel) {
  const std::array<PixelPoint, 4> control = {{{10, 500}, {400, -300}, {500, 1400}, {990, 400}}};
  const std::vector<PathPoint> path = BezierPath(control, kScreen);
  EXPECT_EQ(path.front().x, 10);
  EXPECT_EQ(path.back().x, 990);
  for (int i = 0; i <= 1000; ++i) {
    const PathPoint p = BezierPoint(control, i / 1000.0);
    if (p.y < 0 || p.y > 1000) continue;
    EXPECT_LT(DistanceToPath(path, p), 0.25) << i;
  }
}

TEST(BezierPath, AStraightCurveIsOnePiece) {
  EXPECT_EQ(BezierPath({{{0, 0}, {300, 300}, {600, 600}, {900, 900}}}, kScreen).size(), 2u);
}

TEST(BezierPath, ALoopBackToItsStartIsNotStraight) {
  EXPECT_GT(BezierPath({{{100, 100}, {400, 100}, {100, 400}, {100, 100}}}, kScreen).size(), 8u);
}

TEST(BezierPath, WhatCannotBeSeenCostsNothing) {
  EXPECT_EQ(BezierPath({{{-900, -10}, {-500, -400}, {300, -800}, {900, -10}}}, kScreen).size(), 2u);
  EXPECT_LT(
      BezierPath({{{kSmallest, kSmallest}, {kLargest, 0}, {0, kLargest}, {kLargest, kLargest}}},
                 kScreen)
          .size(),
      1000u);
}

TEST(EllipseShape, RunsThroughTheEdgePixels) {
  const EllipseShape shape = EllipseShape::Inside({10, 20, 21, 24});
  EXPECT_EQ(shape.center.x, 15);
  EXPECT_EQ(shape.center.y, 21.5);
  EXPECT_EQ(shape.radiusX, 5);
  EXPECT_EQ(shape.radiusY, 1.5);
}

TEST(EllipseShape, ParametersGrowCounterClockwise) {
  const EllipseShape shape = EllipseShape::Inside({0, 0, 21, 11});
  const double quarter = std::numbers::pi / 2;
  EXPECT_NEAR(shape.ParameterToward({500, 5}), 0, 1e-9);
  EXPECT_NEAR(shape.ParameterToward({10, -500}), quarter, 1e-9);
  EXPECT_NEAR(shape.ParameterToward({-500, 5}), 2 * quarter, 1e-9);
  EXPECT_NEAR(shape.ParameterToward({10, 500}), 3 * quarter, 1e-9);
  // Toward a corner of the box, whatever its proportions.
  EXPECT_NEAR(shape.ParameterToward({20, 0}), quarter / 2, 1e-9);
}

TEST(EllipsePath, StaysWithinAFractionOfAPixel) {
  const EllipseShape shape = EllipseShape::Inside({100, 200, 901, 701});
  const std::vector<PathPoint> path = EllipsePath(shape, 0, 2 * std::numbers::pi, kScreen);
  for (int i = 0; i < 1000; ++i) {
    const double t = 2 * std::numbers::pi * i / 1000;
    EXPECT_LT(DistanceToPath(path, {shape.center.x + shape.radiusX * std::cos(t),
                                    shape.center.y - shape.radiusY * std::sin(t)}),
              0.25);
  }
}

TEST(EllipsePath, AHugeCircleCostsWhatCanBeSeenOfIt) {
  const EllipseShape shape = EllipseShape::Inside({500, kSmallest, kLargest, kLargest});
  const std::vector<PathPoint> path = EllipsePath(shape, 0, 2 * std::numbers::pi, kScreen);
  EXPECT_LT(path.size(), 500u);
  EXPECT_LT(DistanceToPath(path, {500, -0.5}), 1.0);
}

TEST(ArcPath, RunsCounterClockwiseBetweenTwoDirections) {
  const EllipseShape shape = EllipseShape::Inside({0, 0, 201, 201});
  const std::vector<PathPoint> path = ArcPath(shape, {600, 100}, {100, -400}, kScreen);
  EXPECT_NEAR(path.front().x, 200, 1e-6);
  EXPECT_NEAR(path.back().y, 0, 1e-6);
  for (const PathPoint& p : path) {
    EXPECT_GE(p.x, 100 - 1e-6);
    EXPECT_LE(p.y, 100 + 1e-6);
  }
}

TEST(ArcPath, EqualDirectionsGiveTheWholeEllipse) {
  const EllipseShape shape = EllipseShape::Inside({0, 0, 201, 201});
  const std::vector<PathPoint> path = ArcPath(shape, {100, 300}, {100, 900}, kScreen);
  EXPECT_NEAR(path.front().x, path.back().x, 1e-6);
  EXPECT_TRUE(std::any_of(path.begin(), path.end(), [](PathPoint p) { return p.y < 1; }));
}

TEST(NearestPixels, RoundsAndDropsRepetitions) {
  const std::vector<PixelPoint> pixels =
      NearestPixels({{0.2, 0.4}, {0.4, -0.4}, {0.6, 0}, {-1.4, 2.5}});
  EXPECT_EQ(pixels, (std::vector<PixelPoint>{{0, 0}, {1, 0}, {-1, 3}}));
}

}  // namespace
}  // namespace mivo
