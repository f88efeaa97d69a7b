#include "pin_geometry.h"

#include <gtest/gtest.h>

#include <limits>
#include <optional>
#include <ostream>

namespace mivo {

static std::ostream& operator<<(std::ostream& out, const SPinLocation& location) {
  return out << "LTRB"[static_cast<int>(location.side)] << location.offset;
}

namespace {

constexpr SPoint kBody{6, 4};  // 60 × 40 units

TEST(PinGeometryTest, PinPointAndRectOfEverySide) {
  EXPECT_EQ(PinPoint({PinSide::Left, 2}, kBody), (SPoint{0, 20}));
  EXPECT_EQ(PinRect({PinSide::Left, 2}, kBody), (SRect{-10, 16, 0, 24}));
  EXPECT_EQ(PinPoint({PinSide::Top, 2}, kBody), (SPoint{20, 0}));
  EXPECT_EQ(PinRect({PinSide::Top, 2}, kBody), (SRect{16, -10, 24, 0}));
  EXPECT_EQ(PinPoint({PinSide::Right, 2}, kBody), (SPoint{60, 20}));
  EXPECT_EQ(PinRect({PinSide::Right, 2}, kBody), (SRect{60, 16, 70, 24}));
  EXPECT_EQ(PinPoint({PinSide::Bottom, 2}, kBody), (SPoint{20, 40}));
  EXPECT_EQ(PinRect({PinSide::Bottom, 2}, kBody), (SRect{16, 40, 24, 50}));
}

struct Case {
  SPoint point;
  SPinLocation location;
};

class PinLocationTest : public testing::TestWithParam<Case> {};

TEST_P(PinLocationTest, IsTheNearestPlaceOnTheOutline) {
  EXPECT_EQ(PinLocationFromPoint(GetParam().point, kBody), GetParam().location);
}

INSTANTIATE_TEST_SUITE_P(
    BesideTheBody, PinLocationTest,
    testing::Values(Case{{-1, 20}, {PinSide::Left, 2}}, Case{{-100, 20}, {PinSide::Left, 2}},
                    Case{{61, 20}, {PinSide::Right, 2}}, Case{{160, 20}, {PinSide::Right, 2}},
                    Case{{30, -1}, {PinSide::Top, 3}}, Case{{30, -100}, {PinSide::Top, 3}},
                    Case{{30, 41}, {PinSide::Bottom, 3}}, Case{{30, 140}, {PinSide::Bottom, 3}},
                    // Above and below the body even the last column belongs to top and bottom.
                    Case{{0, -1}, {PinSide::Top, 0}}, Case{{60, -1}, {PinSide::Top, 6}},
                    Case{{0, 41}, {PinSide::Bottom, 0}}, Case{{60, 41}, {PinSide::Bottom, 6}}));

INSTANTIATE_TEST_SUITE_P(
    RoundsToTheNearestCell, PinLocationTest,
    testing::Values(Case{{-5, 4}, {PinSide::Left, 0}}, Case{{-5, 5}, {PinSide::Left, 1}},
                    Case{{-5, 14}, {PinSide::Left, 1}}, Case{{-5, 15}, {PinSide::Left, 2}},
                    Case{{24, -5}, {PinSide::Top, 2}}, Case{{25, -5}, {PinSide::Top, 3}}));

INSTANTIATE_TEST_SUITE_P(
    BeyondTheCorners, PinLocationTest,
    testing::Values(
        // The diagonals that leave the corners outside divide the sides; they belong to top and
        // bottom.
        Case{{-10, -9}, {PinSide::Left, 0}}, Case{{-10, -10}, {PinSide::Top, 0}},
        Case{{-10, -11}, {PinSide::Top, 0}}, Case{{-10, 49}, {PinSide::Left, 4}},
        Case{{-10, 50}, {PinSide::Bottom, 0}}, Case{{-10, 51}, {PinSide::Bottom, 0}},
        Case{{70, -9}, {PinSide::Right, 0}}, Case{{70, -10}, {PinSide::Top, 6}},
        Case{{70, -11}, {PinSide::Top, 6}}, Case{{70, 49}, {PinSide::Right, 4}},
        Case{{70, 50}, {PinSide::Bottom, 6}}, Case{{70, 51}, {PinSide::Bottom, 6}}));

INSTANTIATE_TEST_SUITE_P(
    InsideTheBody, PinLocationTest,
    testing::Values(Case{{5, 20}, {PinSide::Left, 2}}, Case{{55, 20}, {PinSide::Right, 2}},
                    Case{{30, 5}, {PinSide::Top, 3}}, Case{{30, 35}, {PinSide::Bottom, 3}},
                    // Where two edges are equally near, the top and the bottom edge win ...
                    Case{{5, 5}, {PinSide::Top, 1}}, Case{{5, 35}, {PinSide::Bottom, 1}},
                    Case{{55, 5}, {PinSide::Top, 6}}, Case{{55, 35}, {PinSide::Bottom, 6}},
                    // ... and between these two the bottom edge.
                    Case{{30, 20}, {PinSide::Bottom, 3}}, Case{{29, 20}, {PinSide::Bottom, 3}},
                    Case{{31, 19}, {PinSide::Top, 3}}));

INSTANTIATE_TEST_SUITE_P(
    OnTheOutline, PinLocationTest,
    testing::Values(Case{{0, 0}, {PinSide::Top, 0}}, Case{{60, 0}, {PinSide::Top, 6}},
                    Case{{0, 40}, {PinSide::Bottom, 0}}, Case{{60, 40}, {PinSide::Bottom, 6}},
                    Case{{0, 10}, {PinSide::Left, 1}}, Case{{60, 10}, {PinSide::Right, 1}},
                    Case{{10, 0}, {PinSide::Top, 1}}, Case{{10, 40}, {PinSide::Bottom, 1}}));

// The rule step by step, the way a person would follow it with a ruler: first the areas beside the
// body, then above and below it, then what is left, edge by edge.
SPinLocation StepByStep(std::int32_t x, std::int32_t y, std::int32_t w, std::int32_t h) {
  const auto cell = [](std::int32_t v, std::int32_t end) {
    return ((v < 0 ? 0 : v > end ? end : v) + 5) / 10;
  };
  std::optional<PinSide> side;
  if (x < 0) {
    if (y > x && h - y > x) side = PinSide::Left;
  } else if (x > w) {
    if (y > w - x && h - y > w - x) side = PinSide::Right;
  } else if (y < 0) {
    return {PinSide::Top, (x + 5) / 10};
  } else if (y > h) {
    return {PinSide::Bottom, (x + 5) / 10};
  }
  if (!side) {
    if (x >= w - x) {
      if (y <= w - x || h - y <= w - x) {
        return {y < h - y ? PinSide::Top : PinSide::Bottom, cell(x, w)};
      }
      side = PinSide::Right;
    } else {
      side = PinSide::Left;
      if (y <= x || h - y <= x) side = y >= h - y ? PinSide::Bottom : PinSide::Top;
    }
  }
  if (*side == PinSide::Left || *side == PinSide::Right) return {*side, cell(y, h)};
  return {*side, cell(x, w)};
}

class PinLocationRingTest : public testing::TestWithParam<SPoint> {};

TEST_P(PinLocationRingTest, EveryPointInAndAroundTheBody) {
  const SPoint size = GetParam();
  const SPoint body = BodyUnits(size);
  for (std::int32_t y = -25; y <= body.y + 25; ++y) {
    for (std::int32_t x = -25; x <= body.x + 25; ++x) {
      ASSERT_EQ(PinLocationFromPoint({x, y}, size), StepByStep(x, y, body.x, body.y))
          << "at (" << x << ", " << y << ")";
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Bodies, PinLocationRingTest,
                         testing::Values(SPoint{1, 1}, SPoint{2, 2}, SPoint{6, 4}, SPoint{3, 9},
                                         SPoint{0, 0}, SPoint{0, 3}));

TEST(PinGeometryTest, OffsetStaysWithinWhatAPinRecordHolds) {
  EXPECT_EQ(PinLocationFromPoint({-5, 2544}, {1, 1000}), (SPinLocation{PinSide::Left, 254}));
  EXPECT_EQ(PinLocationFromPoint({-5, 2545}, {1, 1000}), (SPinLocation{PinSide::Left, 255}));
  EXPECT_EQ(PinLocationFromPoint({-5, 9000}, {1, 1000}), (SPinLocation{PinSide::Left, 255}));
}

TEST(PinGeometryTest, TakesTheLargestNumbersThatFilesHold) {
  constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();
  constexpr std::int32_t kSmallest = std::numeric_limits<std::int32_t>::min();
  for (const SPoint size : {SPoint{kLargest, kLargest}, SPoint{kLargest / 10, kLargest / 10},
                            SPoint{1, kLargest}, SPoint{kSmallest, 1}}) {
    for (const std::int32_t x : {kSmallest, -1, 0, 1, kLargest}) {
      for (const std::int32_t y : {kSmallest, -1, 0, 1, kLargest}) {
        const SPinLocation location = PinLocationFromPoint({x, y}, size);
        EXPECT_GE(location.offset, 0);
        EXPECT_LE(location.offset, SPinLocation::kMaxOffset);
        const SRect rect = PinRect(location, size);
        EXPECT_EQ(WrapSub(rect.right, rect.left) + WrapSub(rect.bottom, rect.top), 18);
      }
    }
  }
}

}  // namespace
}  // namespace mivo
