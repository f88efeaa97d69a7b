#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "case_name.h"
#include "geometry_printing.h"
#include "ptn_obj_line.h"
#include "ptn_obj_reading.h"

namespace mivo {
namespace {

using testing::ElementsAre;

constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();

SPtnObjLine Line(SPoint start, SPoint end) {
  SPtnObjLine line;
  line.SetStart(start);
  line.SetEnd(end);
  return line;
}

SPtnObjLine Curve(SPoint start, SPoint control1, SPoint control2, SPoint end) {
  SPtnObjLine line = Line(start, end);
  line.SetCurve(true);
  line.SetNode(2, control1.x, control1.y);
  line.SetNode(3, control2.x, control2.y);
  return line;
}

// Moving, mirroring, turning

TEST(LineMove, TakesAllPointsAlong) {
  SPtnObjLine line = Curve({0, 1}, {4, 5}, {6, 7}, {2, 3});
  line.Move(10, -10);
  EXPECT_THAT(Nodes(line),
              ElementsAre(SPoint{10, -9}, SPoint{12, -7}, SPoint{14, -5}, SPoint{16, -3}));
}

TEST(LineMove, TakesHiddenControlPointsAlong) {
  SPtnObjLine line = Curve({0, 1}, {4, 5}, {6, 7}, {2, 3});
  line.SetCurve(false);
  line.Move(10, -10);
  EXPECT_EQ(line.GetNode(2), (SPoint{14, -5}));
}

TEST(LineMirror, ExchangesTheEndsWhenTheirSumIsEven) {
  SPtnObjLine line = Line({2, 5}, {10, 9});
  line.Mirror();
  EXPECT_EQ(line.GetNode(0), (SPoint{10, 5}));
  EXPECT_EQ(line.GetNode(1), (SPoint{2, 9}));
}

TEST(LineMirror, ShiftsByOneWhenTheSumIsOdd) {
  SPtnObjLine line = Line({0, 5}, {3, 9});
  line.Mirror();
  EXPECT_EQ(line.GetNode(0), (SPoint{2, 5}));
  EXPECT_EQ(line.GetNode(1), (SPoint{-1, 9}));
}

TEST(LineMirror, TakesTheControlPointsAboutTheSameAxis) {
  SPtnObjLine line = Curve({0, 0}, {1, 50}, {100, 60}, {10, 0});
  line.Mirror();
  EXPECT_THAT(Nodes(line),
              ElementsAre(SPoint{10, 0}, SPoint{0, 0}, SPoint{9, 50}, SPoint{-90, 60}));
}

TEST(LineMirror, GoesAboutAnyAxis) {
  SPtnObjLine line = Line({0, 1}, {3, 2});
  line.MirrorAt(-5);
  EXPECT_EQ(line.GetNode(0), (SPoint{-10, 1}));
  EXPECT_EQ(line.GetNode(1), (SPoint{-13, 2}));
}

TEST(LineRotate, TurnsAboutTheMiddle) {
  SPtnObjLine line = Line({0, 0}, {10, 0});
  line.Rotate();
  EXPECT_EQ(line.GetNode(0), (SPoint{5, -5}));
  EXPECT_EQ(line.GetNode(1), (SPoint{5, 5}));
}

TEST(LineRotate, TakesTheControlPointsAlong) {
  SPtnObjLine line = Curve({0, 0}, {0, -4}, {10, 4}, {10, 0});
  line.Rotate();
  EXPECT_THAT(Nodes(line), ElementsAre(SPoint{5, -5}, SPoint{5, 5}, SPoint{9, -5}, SPoint{1, 5}));
}

TEST(LineRotate, GoesAboutAnyPivot) {
  SPtnObjLine line = Line({3, 0}, {5, 1});
  line.RotateAt({0, 0});
  EXPECT_EQ(line.GetNode(0), (SPoint{0, 3}));
  EXPECT_EQ(line.GetNode(1), (SPoint{-1, 5}));
}

// Bounds

TEST(LineBounds, AreNormalised) {
  EXPECT_EQ(Line({10, 2}, {-3, 7}).GetBoundingRect(), (SRect{-3, 2, 10, 7}));
}

TEST(LineBounds, IgnoreControlPointsOfAStraightLine) {
  SPtnObjLine line = Curve({0, 0}, {0, -40}, {40, -40}, {40, 0});
  line.SetCurve(false);
  EXPECT_EQ(line.GetBoundingRect(), (SRect{0, 0, 40, 0}));
}

struct BoundsCase {
  const char* name;
  SPoint start, control1, control2, end;
  SRect bounds;
};

class CurveBounds : public testing::TestWithParam<BoundsCase> {};

TEST_P(CurveBounds, FollowTheCurve) {
  const BoundsCase& c = GetParam();
  EXPECT_EQ(Curve(c.start, c.control1, c.control2, c.end).GetBoundingRect(), c.bounds);
}

INSTANTIATE_TEST_SUITE_P(
    , CurveBounds,
    testing::Values(
        BoundsCase{"Arch", {0, 0}, {0, -40}, {40, -40}, {40, 0}, {0, -30, 40, 0}},
        BoundsCase{"SharpTurn", {0, 0}, {100, 7}, {-60, -33}, {40, -5}, {0, -15, 40, 0}},
        BoundsCase{"BeyondBothEnds", {10, 10}, {-50, -90}, {95, 3}, {12, -8}, {-5, -36, 38, 10}},
        BoundsCase{"Wave", {-7, 3}, {-7, -50}, {20, 61}, {5, 5}, {-7, -11, 9, 21}},
        BoundsCase{
            "TurnAtTheFirstStep", {0, 0}, {-300, 0}, {4500, 40}, {9000, 40}, {-13, 0, 9000, 40}},
        BoundsCase{
            "TurnAtTheLastStep", {9000, 40}, {4500, 40}, {-300, 0}, {0, 0}, {-13, 0, 9000, 40}},
        // 32 times the coordinate wraps to -32.
        BoundsCase{"WrappedPoint", {kMax, 0}, {kMax, 0}, {kMax, 0}, {kMax, 0}, {-1, 0, kMax, 0}},
        BoundsCase{"WrappedFarPoints",
                   {70000000, 0},
                   {0, 0},
                   {0, 0},
                   {70000000, 0},
                   {-66386080, 0, 70000000, 0}}),
    kCaseName);

TEST(LineBounds, FollowEveryChange) {
  SPtnObjLine line = Line({0, 0}, {10, 0});
  EXPECT_EQ(line.GetBoundingRect(), (SRect{0, 0, 10, 0}));
  line.SetStart({2, 0});
  EXPECT_EQ(line.GetBoundingRect(), (SRect{2, 0, 10, 0}));
  line.SetEnd({12, 0});
  EXPECT_EQ(line.GetBoundingRect(), (SRect{2, 0, 12, 0}));
  line.SetNode(0, 0, 0);
  EXPECT_EQ(line.GetBoundingRect(), (SRect{0, 0, 12, 0}));
  line.Move(1, 1);
  EXPECT_EQ(line.GetBoundingRect(), (SRect{1, 1, 13, 1}));
  line.MirrorAt(0);
  EXPECT_EQ(line.GetBoundingRect(), (SRect{-13, 1, -1, 1}));
  line.RotateAt({0, 0});
  EXPECT_EQ(line.GetBoundingRect(), (SRect{-1, -13, -1, -1}));
  line.SetCurve(true);
  line.SetNode(2, 31, -7);
  EXPECT_EQ(line.GetBoundingRect().right, 13);
  line.SetCurve(false);
  EXPECT_EQ(line.GetBoundingRect(), (SRect{-1, -13, -1, -1}));
}

// Selecting

struct HitCase {
  SPoint start, end, point;
  bool hit;
};

void PrintTo(const HitCase& c, std::ostream* out) {
  *out << testing::PrintToString(c.start) << " to " << testing::PrintToString(c.end) << " at "
       << testing::PrintToString(c.point);
}

class SegmentHit : public testing::TestWithParam<HitCase> {};

TEST_P(SegmentHit, AllowsOneUnit) {
  const HitCase& c = GetParam();
  EXPECT_EQ(SegmentHitTest(c.start, c.end, c.point), c.hit);
  EXPECT_EQ(SegmentHitTest(c.end, c.start, c.point), c.hit);
  EXPECT_EQ(Line(c.start, c.end).HitTest(c.point), c.hit);
}

INSTANTIATE_TEST_SUITE_P(Horizontal, SegmentHit,
                         testing::Values(HitCase{{0, 0}, {10, 0}, {5, 0}, true},
                                         HitCase{{0, 0}, {10, 0}, {5, 1}, true},
                                         HitCase{{0, 0}, {10, 0}, {5, -1}, true},
                                         HitCase{{0, 0}, {10, 0}, {5, 2}, false},
                                         HitCase{{0, 0}, {10, 0}, {5, -2}, false},
                                         HitCase{{0, 0}, {10, 0}, {-1, 1}, true},
                                         HitCase{{0, 0}, {10, 0}, {-2, 0}, false},
                                         HitCase{{0, 0}, {10, 0}, {11, 0}, true},
                                         HitCase{{0, 0}, {10, 0}, {12, 0}, false}));

INSTANTIATE_TEST_SUITE_P(Vertical, SegmentHit,
                         testing::Values(HitCase{{5, 0}, {5, 10}, {5, 5}, true},
                                         HitCase{{5, 0}, {5, 10}, {6, 5}, true},
                                         HitCase{{5, 0}, {5, 10}, {4, 11}, true},
                                         HitCase{{5, 0}, {5, 10}, {7, 5}, false},
                                         HitCase{{5, 0}, {5, 10}, {5, 12}, false},
                                         HitCase{{0, 0}, {0, 10}, {0, 5}, true},
                                         HitCase{{-1, 0}, {-1, 10}, {0, 5}, true}));

INSTANTIATE_TEST_SUITE_P(Point, SegmentHit,
                         testing::Values(HitCase{{5, 5}, {5, 5}, {6, 6}, true},
                                         HitCase{{5, 5}, {5, 5}, {5, 7}, false}));

INSTANTIATE_TEST_SUITE_P(Falling, SegmentHit,
                         testing::Values(HitCase{{0, 0}, {10, 10}, {5, 5}, true},
                                         HitCase{{0, 0}, {10, 10}, {5, 7}, true},
                                         HitCase{{0, 0}, {10, 10}, {5, 8}, false},
                                         HitCase{{0, 0}, {10, 10}, {7, 5}, true},
                                         HitCase{{0, 0}, {10, 10}, {8, 5}, false},
                                         HitCase{{0, 0}, {10, 10}, {-1, -1}, true},
                                         HitCase{{0, 0}, {10, 10}, {-2, -2}, false},
                                         HitCase{{0, 0}, {10, 10}, {11, 11}, true},
                                         HitCase{{0, 0}, {10, 10}, {11, 12}, false}));

INSTANTIATE_TEST_SUITE_P(Rising, SegmentHit,
                         testing::Values(HitCase{{0, 10}, {10, 0}, {5, 5}, true},
                                         HitCase{{0, 10}, {10, 0}, {7, 5}, true},
                                         HitCase{{0, 10}, {10, 0}, {8, 5}, false},
                                         HitCase{{0, 10}, {10, 0}, {3, 5}, true},
                                         HitCase{{0, 10}, {10, 0}, {2, 5}, false}));

INSTANTIATE_TEST_SUITE_P(Flat, SegmentHit,
                         testing::Values(HitCase{{0, 0}, {100, 10}, {50, 6}, true},
                                         HitCase{{0, 0}, {100, 10}, {50, 7}, false},
                                         HitCase{{0, 0}, {100, 10}, {50, 4}, true},
                                         HitCase{{0, 0}, {100, 10}, {50, 3}, false}));

INSTANTIATE_TEST_SUITE_P(Steep, SegmentHit,
                         testing::Values(HitCase{{0, 0}, {2, 100}, {2, 50}, true},
                                         HitCase{{0, 0}, {2, 100}, {3, 50}, false},
                                         HitCase{{0, 0}, {2, 100}, {0, 50}, true},
                                         HitCase{{0, 0}, {2, 100}, {-1, 50}, false}));

TEST(LineHitTest, IgnoresTheBulgeOfACurve) {
  SPtnObjLine curve = Curve({0, 0}, {0, -40}, {40, -40}, {40, 0});
  EXPECT_FALSE(curve.HitTest({20, -30}));
  EXPECT_TRUE(curve.HitTest({20, 0}));
}

TEST(LineIsInRect, IsTrueForARectangleThatTouchesTheBounds) {
  SPtnObjLine line = Line({0, 0}, {10, 10});
  EXPECT_TRUE(line.IsInRect({-5, -5, 20, 20}));
  EXPECT_TRUE(line.IsInRect({10, 10, 20, 20}));
  EXPECT_TRUE(line.IsInRect({-5, -5, 0, 0}));
  EXPECT_TRUE(line.IsInRect({8, 0, 9, 1}));  // on the bounds, though far from the line
  EXPECT_FALSE(line.IsInRect({11, 0, 20, 20}));
  EXPECT_FALSE(line.IsInRect({0, 11, 20, 20}));
  EXPECT_FALSE(line.IsInRect({-5, 0, -1, 20}));
  EXPECT_FALSE(line.IsInRect({0, -5, 20, -1}));
}

TEST(LineIsInRect, CountsTheBulgeOfACurve) {
  const SRect above{15, -35, 25, -25};
  SPtnObjLine curve = Curve({0, 0}, {0, -40}, {40, -40}, {40, 0});
  EXPECT_TRUE(curve.IsInRect(above));
  curve.SetCurve(false);
  EXPECT_FALSE(curve.IsInRect(above));
}

}  // namespace
}  // namespace mivo
