#include "ellipse_ring.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <set>
#include <utility>

#include "case_name.h"
#include "hairline.h"
#include "pixel_art.h"

namespace mivo {
namespace {

using PixelSet = std::set<std::pair<std::int32_t, std::int32_t>>;

PixelSet SetOf(const std::vector<PixelPoint>& pixels) {
  PixelSet set;
  for (const PixelPoint p : pixels) set.insert({p.x, p.y});
  return set;
}

bool AreNeighbours(PixelPoint p, PixelPoint q) {
  return std::max(std::abs(p.x - q.x), std::abs(p.y - q.y)) <= 1;
}

std::string Drawn(PixelSize size, const std::vector<PixelPoint>& pixels) {
  RasterImage image = WhiteImage(size);
  RasterCanvas canvas(image, {});
  Hairline(canvas, {0, 0, 0}, false).Pixels(pixels);
  return PixelArt(image);
}

TEST(EllipseRing, OfACircle) {
  EXPECT_EQ(Drawn({7, 7}, EllipseRing({0, 0, 7, 7})), Picture(R"(
      ..###..
      .#...#.
      #.....#
      #.....#
      #.....#
      .#...#.
      ..###..)"));
}

TEST(EllipseRing, OfAFlatEllipseWithEvenSides) {
  EXPECT_EQ(Drawn({12, 4}, EllipseRing({0, 0, 12, 4})), Picture(R"(
      ..########..
      ##........##
      ##........##
      ..########..)"));
}

class RingOfBox : public testing::TestWithParam<int> {};

TEST_P(RingOfBox, TouchesTheEdgesAndIsSymmetricalAndThin) {
  const std::int32_t width = GetParam();
  for (std::int32_t height = 1; height <= 40; ++height) {
    const PixelRect box{3, -2, 3 + width, -2 + height};
    const std::vector<PixelPoint> ring = EllipseRing(box);
    const PixelSet pixels = SetOf(ring);
    SCOPED_TRACE(testing::Message() << width << " x " << height);

    EXPECT_EQ(pixels.size(), ring.size()) << "a pixel comes twice";
    const auto [left, right] = std::minmax_element(
        ring.begin(), ring.end(), [](PixelPoint a, PixelPoint b) { return a.x < b.x; });
    const auto [top, bottom] = std::minmax_element(
        ring.begin(), ring.end(), [](PixelPoint a, PixelPoint b) { return a.y < b.y; });
    EXPECT_EQ(left->x, box.left);
    EXPECT_EQ(right->x, box.right - 1);
    EXPECT_EQ(top->y, box.top);
    EXPECT_EQ(bottom->y, box.bottom - 1);
    for (const PixelPoint p : ring) {
      EXPECT_TRUE(pixels.contains({box.left + box.right - 1 - p.x, p.y}));
      EXPECT_TRUE(pixels.contains({p.x, box.top + box.bottom - 1 - p.y}));
    }
    for (std::size_t i = 1; i < ring.size(); ++i) {
      EXPECT_TRUE(std::any_of(ring.begin(), ring.begin() + static_cast<std::ptrdiff_t>(i),
                              [&](PixelPoint p) { return AreNeighbours(p, ring[i]); }))
          << "a gap";
    }
    if (std::min(width, height) > 1 && std::min(width, height) * 4 > std::max(width, height)) {
      for (std::size_t i = 0; i < ring.size(); ++i) {
        EXPECT_TRUE(AreNeighbours(ring[i], ring[(i + 1) % ring.size()])) << "out of order";
      }
    }
    PixelSet transposed;
    for (const PixelPoint p : EllipseRing({box.top, box.left, box.bottom, box.right})) {
      transposed.insert({p.y, p.x});
    }
    EXPECT_EQ(transposed, pixels);
  }
}

INSTANTIATE_TEST_SUITE_P(Widths, RingOfBox, testing::Range(1, 41));

TEST(EllipseRing, LiesOnTheEllipse) {
  for (const PixelSize size : {PixelSize{101, 101}, PixelSize{200, 31}, PixelSize{17, 90}}) {
    const double a = (size.width - 1) / 2.0;
    const double b = (size.height - 1) / 2.0;
    for (const PixelPoint p : EllipseRing({0, 0, size.width, size.height})) {
      const double x = std::abs(p.x - a);
      const double y = std::abs(p.y - b);
      const double trueX = a * std::sqrt(std::max(0.0, 1 - y * y / (b * b)));
      const double trueY = b * std::sqrt(std::max(0.0, 1 - x * x / (a * a)));
      EXPECT_LE(std::min(std::abs(x - trueX), std::abs(y - trueY)), 0.5) << p.x << ", " << p.y;
    }
  }
}

TEST(EllipseRing, RunsCounterClockwiseFromTheRight) {
  const std::vector<PixelPoint> ring = EllipseRing({0, 0, 7, 7});
  EXPECT_EQ(ring.front(), (PixelPoint{6, 3}));
  EXPECT_EQ(ring[1], (PixelPoint{6, 2}));
  EXPECT_EQ(ring[ring.size() / 4], (PixelPoint{3, 0}));
  EXPECT_EQ(ring[ring.size() / 2], (PixelPoint{0, 3}));
  EXPECT_EQ(ring.back(), (PixelPoint{6, 4}));
}

TEST(EllipseRing, ReachesTheLargestSide) {
  const auto side = static_cast<std::int32_t>(kMaxRingSide);
  const std::vector<PixelPoint> ring = EllipseRing({0, 0, side, side});
  EXPECT_GT(ring.size(), 2u * static_cast<std::size_t>(side));
  EXPECT_TRUE(SetOf(ring).contains({side / 2, 0}));
}

struct PartCase {
  const char* name;
  PixelPoint from;  // direction as seen from the centre
  PixelPoint to;
  const char* picture;
};

class RingPart : public testing::TestWithParam<PartCase> {};

TEST_P(RingPart, RunsCounterClockwise) {
  const auto [name, from, to, picture] = GetParam();
  const PixelPoint center{3, 3};
  EXPECT_EQ(Drawn({7, 7}, EllipseRingPart({0, 0, 7, 7}, {center.x + from.x, center.y + from.y},
                                          {center.x + to.x, center.y + to.y})),
            Picture(picture));
}

INSTANTIATE_TEST_SUITE_P(Parts, RingPart,
                         testing::Values(PartCase{"RightToTop", {500, 0}, {0, -500}, R"(
                        ...##..
                        .....#.
                        ......#
                        ......#
                        .......
                        .......
                        .......)"},
                                         PartCase{"TopToRight", {0, -500}, {500, 0}, R"(
                        ..##...
                        .#.....
                        #......
                        #.....#
                        #.....#
                        .#...#.
                        ..###..)"},
                                         PartCase{"LeftToBottom", {-500, 0}, {0, 500}, R"(
                        .......
                        .......
                        .......
                        #......
                        #......
                        .#.....
                        ..##...)"},
                                         PartCase{"ThroughTheRight", {0, 500}, {0, -500}, R"(
                        ...##..
                        .....#.
                        ......#
                        ......#
                        ......#
                        .....#.
                        ...##..)"},
                                         PartCase{"SameDirectionGivesAll", {300, 0}, {500, 0}, R"(
                        ..###..
                        .#...#.
                        #.....#
                        #.....#
                        #.....#
                        .#...#.
                        ..###..)"},
                                         PartCase{"ATinyPieceIsOnePixel", {500, 0}, {500, -1}, R"(
                        .......
                        .......
                        .......
                        ......#
                        .......
                        .......
                        .......)"},
                                         PartCase{"AllButATinyPiece", {500, -1}, {500, 0}, R"(
                        ..###..
                        .#...#.
                        #.....#
                        #.....#
                        #.....#
                        .#...#.
                        ..###..)"}),
                         kCaseName);

TEST(RingPart, QuartersMakeTheRing) {
  for (std::int32_t side = 3; side <= 60; ++side) {
    const PixelRect box{0, 0, side, side};
    const std::int32_t last = side - 1;  // twice the centre: directions are exact for all sides
    const PixelPoint center{last / 2, last / 2};
    if (last % 2 != 0) continue;
    const auto at = [&](std::int32_t dx, std::int32_t dy) {
      return PixelPoint{center.x + 500 * dx, center.y + 500 * dy};
    };
    PixelSet quarters;
    quarters.merge(SetOf(EllipseRingPart(box, at(1, 0), at(0, -1))));
    quarters.merge(SetOf(EllipseRingPart(box, at(0, -1), at(-1, 0))));
    quarters.merge(SetOf(EllipseRingPart(box, at(-1, 0), at(0, 1))));
    quarters.merge(SetOf(EllipseRingPart(box, at(0, 1), at(1, 0))));
    EXPECT_EQ(quarters, SetOf(EllipseRing(box))) << side;
  }
}

}  // namespace
}  // namespace mivo
