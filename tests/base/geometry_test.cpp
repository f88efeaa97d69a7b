#include "geometry.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "geometry_printing.h"

namespace mivo {
namespace {

constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();

TEST(Point, AddsAndSubtractsByCoordinate) {
  EXPECT_EQ((SPoint{1, 2} + SPoint{10, -20}), (SPoint{11, -18}));
  EXPECT_EQ((SPoint{1, 2} - SPoint{10, -20}), (SPoint{-9, 22}));
  SPoint p{1, 2};
  p += {3, 4};
  EXPECT_EQ(p, (SPoint{4, 6}));
}

TEST(Point, WrapsAtTheEndsOfTheRange) {
  EXPECT_EQ((SPoint{kMax, kMin} + SPoint{1, -1}), (SPoint{kMin, kMax}));
  EXPECT_EQ((SPoint{kMin, kMax} - SPoint{1, -1}), (SPoint{kMax, kMin}));
}

TEST(MirroredAt, KeepsTheAxisAndTheHeight) {
  EXPECT_EQ(MirroredAt({3, 7}, 3), (SPoint{3, 7}));
  EXPECT_EQ(MirroredAt({0, 7}, 5), (SPoint{10, 7}));
  EXPECT_EQ(MirroredAt({kMin, 7}, 0), (SPoint{kMin, 7}));
}

TEST(RotatedAt, TurnsClockwiseOnTheScreen) {
  EXPECT_EQ(RotatedAt({5, 0}, {0, 0}), (SPoint{0, 5}));   // right to bottom
  EXPECT_EQ(RotatedAt({0, 5}, {0, 0}), (SPoint{-5, 0}));  // bottom to left
  EXPECT_EQ(RotatedAt({12, 3}, {10, 3}), (SPoint{10, 5}));
}

RC_GTEST_PROP(MirroredAt, TwiceIsTheIdentity, (std::int32_t x, std::int32_t y, std::int32_t axis)) {
  const SPoint p{x, y};
  RC_ASSERT(MirroredAt(MirroredAt(p, axis), axis) == p);
}

RC_GTEST_PROP(RotatedAt, FourTimesIsTheIdentity,
              (std::int32_t x, std::int32_t y, std::int32_t px, std::int32_t py)) {
  SPoint p{x, y};
  for (int i = 0; i < 4; ++i) p = RotatedAt(p, {px, py});
  RC_ASSERT(p == (SPoint{x, y}));
}

TEST(Rect, IsEmptyUntilSomethingIsIncluded) {
  SRect rect;
  EXPECT_EQ(rect, (SRect{kMax, kMax, kMin, kMin}));
  EXPECT_FALSE(rect.Contains(SPoint{0, 0}));
  rect.Include(SPoint{4, -4});
  EXPECT_EQ(rect, (SRect{4, -4, 4, -4}));
  rect.Include(SRect{-1, 0, 2, 9});
  EXPECT_EQ(rect, (SRect{-1, -4, 4, 9}));
  rect.Include(SRect{});
  EXPECT_EQ(rect, (SRect{-1, -4, 4, 9}));
}

TEST(Rect, SpansCornersInAnyOrder) {
  const SRect expected{-1, 2, 3, 8};
  EXPECT_EQ(SRect::Spanning({-1, 2}, {3, 8}), expected);
  EXPECT_EQ(SRect::Spanning({3, 8}, {-1, 2}), expected);
  EXPECT_EQ(SRect::Spanning({3, 2}, {-1, 8}), expected);
  EXPECT_EQ(expected.TopLeft(), (SPoint{-1, 2}));
  EXPECT_EQ(expected.BottomRight(), (SPoint{3, 8}));
}

TEST(Rect, CentreTruncatesTowardZero) {
  EXPECT_EQ((SRect{0, 0, 3, -3}.Center()), (SPoint{1, -1}));
  EXPECT_EQ((SRect{-4, 2, 1, 4}.Center()), (SPoint{-1, 3}));
  // The sum wraps to -2 before it is halved.
  EXPECT_EQ((SRect{kMax, kMin, kMax, kMin}.Center()), (SPoint{-1, 0}));
}

TEST(Rect, ContainsItsEdges) {
  const SRect rect{0, 0, 10, 20};
  for (const SPoint inside : {SPoint{0, 0}, {10, 20}, {10, 0}, {0, 20}, {5, 5}}) {
    EXPECT_TRUE(rect.Contains(inside)) << testing::PrintToString(inside);
  }
  for (const SPoint outside : {SPoint{-1, 5}, {11, 5}, {5, -1}, {5, 21}}) {
    EXPECT_FALSE(rect.Contains(outside)) << testing::PrintToString(outside);
  }
}

TEST(Rect, ContainsARectangleWithBothCornersInside) {
  const SRect rect{0, 0, 10, 20};
  EXPECT_TRUE(rect.Contains(rect));
  EXPECT_TRUE(rect.Contains(SRect{3, 3, 4, 4}));
  EXPECT_FALSE(rect.Contains(SRect{-1, 3, 4, 4}));
  EXPECT_FALSE(rect.Contains(SRect{3, 3, 4, 21}));
}

TEST(Rect, TouchesWhatSharesAPoint) {
  const SRect rect{0, 0, 10, 20};
  EXPECT_TRUE(rect.Touches(SRect{10, 20, 30, 30}));
  EXPECT_TRUE(rect.Touches(SRect{-5, -5, 0, 0}));
  EXPECT_TRUE(rect.Touches(SRect{-5, 5, 30, 6}));
  EXPECT_FALSE(rect.Touches(SRect{11, 0, 30, 30}));
  EXPECT_FALSE(rect.Touches(SRect{-5, 0, -1, 30}));
  EXPECT_FALSE(rect.Touches(SRect{0, 21, 30, 30}));
  EXPECT_FALSE(rect.Touches(SRect{0, -5, 30, -1}));
}

}  // namespace
}  // namespace mivo
