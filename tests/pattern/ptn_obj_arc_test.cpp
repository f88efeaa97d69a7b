#include "ptn_obj_arc.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "case_name.h"
#include "geometry_printing.h"
#include "ptn_obj_reading.h"

namespace mivo {
namespace {

using testing::ElementsAre;

constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();

SPtnObjArc Arc(SPoint center, std::int32_t radius, std::int32_t begin, std::int32_t end) {
  const auto field = [](const char16_t* key, std::int32_t value) {
    std::u16string text = key;
    for (const char c : std::to_string(value)) text += static_cast<char16_t>(c);
    return text;
  };
  SPtnObjArc arc;
  const ReadRecord read = ReadInto(arc, u"+AR" + field(u",X:", center.x) + field(u",Y:", center.y) +
                                            field(u",R:", radius) + field(u",B:", begin) +
                                            field(u",E:", end) + u",-AR\n");
  EXPECT_TRUE(read.ok);
  return arc;
}

std::pair<std::int32_t, std::int32_t> Angles(const SPtnObjArc& arc) {
  return {arc.Begin(), arc.End()};
}

using Pair = std::pair<std::int32_t, std::int32_t>;

// Record

TEST(ArcRecord, HoldsTheAnglesAsStored) {
  SPtnObjArc arc = Arc({1, -2}, 30, -7, 5760);
  arc.width = 2;
  arc.style = 1;
  arc.fill = 1;
  EXPECT_EQ(Written(arc), u"+AR,W:2,S:1,X:1,Y:-2,R:30,B:-7,E:5760,-AR\n");
  EXPECT_EQ(Written(arc, {1, 1}), u"+AR,W:2,S:1,X:0,Y:-3,R:30,B:-7,E:5760,-AR\n");
}

TEST(ArcRecord, ReadsBack) {
  SPtnObjArc arc;
  const ReadRecord read = ReadInto(arc, u"+AR,W:2,S:1,X:1,Y:-2,R:30,B:-7,E:5760,-AR\n+L\n");
  EXPECT_TRUE(read.ok);
  EXPECT_TRUE(read.findings.empty());
  EXPECT_EQ(read.next, u"+L");
  EXPECT_EQ(arc.width, 2);
  EXPECT_EQ(arc.style, 1);
  EXPECT_EQ(arc.Center(), (SPoint{1, -2}));
  EXPECT_EQ(arc.Radius(), 30);
  EXPECT_EQ(Angles(arc), Pair(-7, 5760));
}

TEST(ArcRecord, WithoutAnEndIsAWholeCircle) {
  SPtnObjArc arc;
  EXPECT_TRUE(ReadInto(arc, u"+AR,W:1,S:0,X:0,Y:0,R:5,B:0,-AR\n").ok);
  EXPECT_EQ(Angles(arc), Pair(0, 0));
  EXPECT_EQ(arc.GetBoundingRect(), (SRect{-5, -5, 5, 5}));
}

TEST(ArcRecord, WithoutFieldsHasItsOwnDefaults) {
  SPtnObjArc arc = Arc({1, 2}, 3, 4, 5);
  arc.width = 9;
  EXPECT_TRUE(ReadInto(arc, u"+AR,-AR\n").ok);
  EXPECT_EQ(Written(arc), u"+AR,W:1,S:0,X:10,Y:10,R:10,B:0,E:0,-AR\n");
}

TEST(ArcRecord, LaterFieldsReplaceEarlierOnes) {
  SPtnObjArc arc;
  EXPECT_TRUE(ReadInto(arc, u"+AR,X:1,X:2,Y:1,Y:3,R:1,R:4,B:1,B:5,E:1,E:6,-AR\n").ok);
  EXPECT_EQ(Written(arc), u"+AR,W:1,S:0,X:2,Y:3,R:4,B:5,E:6,-AR\n");
}

TEST(ArcRecord, ClosedByAnotherTagStoresNothing) {
  SPtnObjArc arc = Arc({1, 2}, 3, 4, 5);
  EXPECT_FALSE(ReadInto(arc, u"+AR,W:7,X:0,Y:0,R:9,-A\n").ok);
  EXPECT_EQ(Written(arc), u"+AR,W:1,S:0,X:1,Y:2,R:3,B:4,E:5,-AR\n");
}

TEST(ArcRecord, CutOffByTheEndOfTheDataIsAccepted) {
  SPtnObjArc arc;
  const ReadRecord read = ReadInto(arc, u"+AR,W:3,X:1,Y:2,R:7\n");
  EXPECT_TRUE(read.ok);
  EXPECT_EQ(Written(arc), u"+AR,W:3,S:0,X:1,Y:2,R:7,B:0,E:0,-AR\n");
  EXPECT_THAT(read.Kinds(), ElementsAre(FindingKind::DataCutOff));
}

TEST(ArcRecord, DoesNotFill) {
  SPtnObjArc arc;
  const ReadRecord read = ReadInto(arc, u"+AR,F:1,-AR\n");
  EXPECT_TRUE(read.ok);
  EXPECT_EQ(arc.fill, SPtnObj::kNotFilled);
  EXPECT_THAT(read.Kinds(), ElementsAre(FindingKind::UnknownKey));
}

// Angles and nodes

struct AngleCase {
  SPoint point;
  std::int32_t angle;
};

class ArcAngleOf : public testing::TestWithParam<AngleCase> {};

TEST_P(ArcAngleOf, RunsCounterClockwiseFromTheRight) {
  SPtnObjArc arc;
  arc.SetCenter({100, 200});
  const SPoint p = SPoint{100, 200} + GetParam().point;
  arc.SetBeginFromPoint(p.x, p.y);
  arc.SetEndFromPoint(p.x, p.y);
  EXPECT_EQ(Angles(arc), Pair(GetParam().angle, GetParam().angle));
  EXPECT_EQ(arc.Radius(), 10);
}

INSTANTIATE_TEST_SUITE_P(, ArcAngleOf,
                         testing::Values(AngleCase{{7, 0}, 0}, AngleCase{{7, -7}, 720},
                                         AngleCase{{0, -1}, 1440}, AngleCase{{-3, -3}, 2160},
                                         AngleCase{{-50, 0}, 2880}, AngleCase{{-9, 9}, 3600},
                                         AngleCase{{0, 5}, 4320}, AngleCase{{2, 2}, 5040},
                                         AngleCase{{100, -1}, 9}, AngleCase{{100, 1}, 5751},
                                         AngleCase{{3, -4}, 850}, AngleCase{{4, -1}, 225},
                                         // Rounds up to a full turn, which is not reduced.
                                         AngleCase{{100000, 1}, 5760}));

TEST(ArcAngle, OfTheCentreIsTheSmallestInteger) {
  SPtnObjArc arc;
  arc.SetBeginFromPoint(10, 10);
  EXPECT_EQ(arc.Begin(), kMin);
}

TEST(ArcAngle, TakesTheWholeRangeOfCoordinates) {
  SPtnObjArc arc;
  arc.SetCenter({kMin, kMin});
  arc.SetBeginFromPoint(kMax, kMax);
  arc.SetEndFromPoint(kMax, kMin);
  EXPECT_EQ(Angles(arc), Pair(5040, 0));
}

struct PointCase {
  std::int32_t distance, angle;
  SPoint point;
};

class ArcPointAt : public testing::TestWithParam<PointCase> {};

TEST_P(ArcPointAt, TruncatesEachDisplacement) {
  const PointCase& c = GetParam();
  EXPECT_EQ(PointAtAngle({100, 200}, c.distance, c.angle), (SPoint{100, 200} + c.point));
}

INSTANTIATE_TEST_SUITE_P(, ArcPointAt,
                         testing::Values(PointCase{10, 0, {10, 0}}, PointCase{10, 720, {7, -7}},
                                         PointCase{10, 1440, {0, -10}},
                                         PointCase{10, 2160, {-7, -7}},
                                         PointCase{10, 2880, {-10, 0}},
                                         PointCase{10, 3600, {-7, 7}}, PointCase{10, 4320, {0, 10}},
                                         PointCase{10, 5040, {7, 7}}, PointCase{-10, 0, {-10, 0}},
                                         PointCase{500, 480, {433, -249}},
                                         PointCase{0, 1234, {0, 0}}));

TEST(ArcPoint, HasTheSmallestIntegerForADisplacementThatDoesNotFit) {
  EXPECT_EQ(PointAtAngle({0, 0}, kMin, 2880).x, kMin);
  EXPECT_EQ(PointAtAngle({-1, 0}, kMin, 0).x, kMax);
}

TEST(ArcNodes, AreTheEndsTheCentreAndFourHandles) {
  const SPtnObjArc arc = Arc({100, 200}, 10, 720, 2880);
  EXPECT_EQ(arc.GetNodeCount(), 7);
  EXPECT_THAT(Nodes(arc),
              ElementsAre(SPoint{107, 193}, SPoint{90, 200}, SPoint{100, 200}, SPoint{110, 200},
                          SPoint{100, 190}, SPoint{90, 200}, SPoint{100, 210}));
  for (const std::int32_t index : {7, -1, kMin, kMax}) {
    EXPECT_EQ(arc.GetNode(index), (SPoint{100, 210})) << index;
  }
}

TEST(ArcNodes, DraggedEndsTurnTheirAngle) {
  SPtnObjArc arc = Arc({0, 0}, 10, 0, 100);
  arc.SetNode(0, 0, -99);
  arc.SetNode(1, -99, 0);
  EXPECT_EQ(Written(arc), u"+AR,W:1,S:0,X:0,Y:0,R:10,B:1440,E:2880,-AR\n");
}

TEST(ArcNodes, DraggedCentreMovesTheArc) {
  SPtnObjArc arc = Arc({0, 0}, 10, 0, 100);
  arc.SetNode(2, 7, 8);
  EXPECT_EQ(Written(arc), u"+AR,W:1,S:0,X:7,Y:8,R:10,B:0,E:100,-AR\n");
}

TEST(ArcNodes, DraggedHandlesSetTheRadius) {
  SPtnObjArc arc = Arc({100, 200}, 10, 0, 100);
  arc.SetNode(3, 93, 999);
  EXPECT_EQ(arc.Radius(), 7);
  arc.SetNode(5, 112, 999);
  EXPECT_EQ(arc.Radius(), 12);
  for (const std::int32_t index : {4, 6, 7, -1, kMin}) {
    arc.SetNode(index, 999, 185);
    EXPECT_EQ(arc.Radius(), 15) << index;
    arc.SetNode(index, 999, 220);
    EXPECT_EQ(arc.Radius(), 20) << index;
  }
  EXPECT_EQ(arc.Center(), (SPoint{100, 200}));
}

TEST(Arc, IsValidWithAPositiveRadius) {
  EXPECT_TRUE(Arc({0, 0}, 1, 0, 0).IsValid());
  EXPECT_FALSE(Arc({0, 0}, 0, 0, 0).IsValid());
  EXPECT_FALSE(Arc({0, 0}, -5, 0, 0).IsValid());
}

TEST(Arc, ClonesEverything) {
  SPtnObjArc arc = Arc({1, 2}, 3, 4, 5);
  arc.width = 6;
  arc.style = 7;
  const auto clone = arc.Clone();
  arc.Move(100, 100);
  ASSERT_EQ(clone->GetType(), PtnObjType::Arc);
  EXPECT_EQ(Written(*clone), u"+AR,W:6,S:7,X:1,Y:2,R:3,B:4,E:5,-AR\n");
}

// Moving, mirroring, turning

TEST(ArcMove, MovesTheCentre) {
  SPtnObjArc arc = Arc({1, 2}, 3, 4, 5);
  arc.Move(10, -20);
  EXPECT_EQ(Written(arc), u"+AR,W:1,S:0,X:11,Y:-18,R:3,B:4,E:5,-AR\n");
}

TEST(ArcMirror, TurnsAQuadrantIntoItsNeighbour) {
  SPtnObjArc arc = Arc({20, 7}, 10, 0, 1440);
  arc.MirrorAt(0);
  EXPECT_EQ(arc.Center(), (SPoint{-20, 7}));
  EXPECT_EQ(Angles(arc), Pair(1440, 2880));
}

TEST(ArcMirror, ReducesTheAngles) {
  SPtnObjArc arc = Arc({0, 0}, 10, 5760 + 100, 2 * 5760 + 200);
  arc.MirrorAt(0);
  EXPECT_EQ(Angles(arc), Pair(2680, 2780));
}

TEST(ArcMirror, ChangesItsFormulaAfterAHalfTurn) {
  const auto mirrored = [](std::int32_t begin, std::int32_t end) {
    SPtnObjArc arc = Arc({0, 0}, 10, begin, end);
    arc.MirrorAt(0);
    return Angles(arc);
  };
  EXPECT_EQ(mirrored(0, 2880), Pair(0, 2880));
  EXPECT_EQ(mirrored(2880, 2881), Pair(5759, 0));
  EXPECT_EQ(mirrored(4320, 5759), Pair(2881, 4320));
  EXPECT_EQ(mirrored(-100, 0), Pair(2880, 2980));
}

TEST(ArcMirror, GoesAboutTheMiddleOfWhatIsDrawn) {
  // The quadrant spans x from 20 to 30: the middle is 25.
  SPtnObjArc arc = Arc({20, 7}, 10, 0, 1440);
  arc.Mirror();
  EXPECT_EQ(arc.Center(), (SPoint{30, 7}));
  EXPECT_EQ(arc.GetBoundingRect(), (SRect{20, -3, 30, 7}));
}

TEST(ArcRotate, TurnsTheAnglesClockwise) {
  SPtnObjArc arc = Arc({20, 7}, 10, 0, 1440);
  arc.RotateAt({0, 0});
  EXPECT_EQ(arc.Center(), (SPoint{-7, 20}));
  EXPECT_EQ(Angles(arc), Pair(4320, 0));
}

TEST(ArcRotate, GoesAboutTheMiddleOfWhatIsDrawn) {
  // The quadrant spans (20, -3) to (30, 7): the middle is (25, 2).
  SPtnObjArc arc = Arc({20, 7}, 10, 0, 1440);
  arc.Rotate();
  EXPECT_EQ(arc.Center(), (SPoint{20, -3}));
  EXPECT_EQ(arc.GetBoundingRect(), (SRect{20, -3, 30, 7}));
}

TEST(ArcRotate, WrapsAngles) {
  SPtnObjArc arc = Arc({0, 0}, 10, kMax, kMin);
  arc.RotateAt({0, 0});
  EXPECT_EQ(Angles(arc), Pair((kMin + 4319) % 5760, (kMin + 4320) % 5760));
}

// Selecting

struct BoundsCase {
  const char* name;
  std::int32_t begin, end;
  SRect bounds;  // around a centre of (0, 0) with a radius of 10
};

class ArcBoundsOf : public testing::TestWithParam<BoundsCase> {};

TEST_P(ArcBoundsOf, FollowTheDrawnPart) {
  const BoundsCase& c = GetParam();
  SPtnObjArc arc = Arc({100, 200}, 10, c.begin, c.end);
  EXPECT_EQ(arc.GetBoundingRect(), (SRect{100 + c.bounds.left, 200 + c.bounds.top,
                                          100 + c.bounds.right, 200 + c.bounds.bottom}));
  EXPECT_EQ(Angles(arc), Pair(c.begin % 5760, c.end % 5760));
}

INSTANTIATE_TEST_SUITE_P(
    , ArcBoundsOf,
    testing::Values(BoundsCase{"WholeCircle", 0, 5760, {-10, -10, 10, 10}},
                    BoundsCase{"WholeCircleFromAnywhere", 777, 777 + 5760, {-10, -10, 10, 10}},
                    BoundsCase{"FirstQuadrant", 0, 1440, {0, -10, 10, 0}},
                    BoundsCase{"SecondQuadrant", 1440, 2880, {-10, -10, 0, 0}},
                    BoundsCase{"ThirdQuadrant", 2880, 4320, {-10, 0, 0, 10}},
                    BoundsCase{"FourthQuadrant", 4320, 5760, {0, 0, 10, 10}},
                    BoundsCase{"PastAngleZero", 4320, 1440, {0, -10, 10, 10}},
                    BoundsCase{"WithinAQuadrant", 240, 1200, {2, -9, 9, -2}},
                    BoundsCase{"UpperHalf", 0, 2880, {-10, -10, 10, 0}},
                    BoundsCase{"AllButAQuadrant", 1440, 5760, {-10, -10, 10, 10}},
                    BoundsCase{"NearlyAll", 100, 99, {-10, -10, 10, 10}},
                    BoundsCase{"PastTheTopInTheSecondTurn", 5040, 1500, {0, -10, 10, 7}},
                    BoundsCase{"PastTheLeftInTheSecondTurn", 5040, 3000, {-10, -10, 10, 7}},
                    BoundsCase{"PastTheBottomInTheSecondTurn", 5040, 4400, {-10, -10, 10, 10}}),
    kCaseName);

TEST(ArcBounds, ReduceTheEndOfANewArc) {
  SPtnObjArc arc;
  EXPECT_EQ(Angles(arc), Pair(0, 5760));
  EXPECT_EQ(arc.GetBoundingRect(), (SRect{0, 0, 20, 20}));
  EXPECT_EQ(Angles(arc), Pair(0, 0));
}

TEST(ArcBounds, OfANegativeRadiusAreNormalised) {
  EXPECT_EQ(Arc({0, 0}, -10, 0, 0).GetBoundingRect(), (SRect{-10, -10, 10, 10}));
}

TEST(ArcIsInRect, NeedsTheBoundsInside) {
  SPtnObjArc arc = Arc({0, 0}, 10, 0, 1440);
  EXPECT_TRUE(arc.IsInRect({0, -10, 10, 0}));
  EXPECT_FALSE(arc.IsInRect({1, -10, 10, 0}));
  EXPECT_FALSE(arc.IsInRect({0, -9, 10, 0}));
  EXPECT_FALSE(arc.IsInRect({0, -10, 9, 0}));
  EXPECT_FALSE(arc.IsInRect({0, -10, 10, -1}));
}

TEST(ArcHitTest, AllowsOneUnitFromTheCircle) {
  SPtnObjArc arc = Arc({100, 200}, 10, 0, 1440);
  EXPECT_TRUE(arc.HitTest({110, 200}));
  EXPECT_TRUE(arc.HitTest({111, 200}));
  EXPECT_TRUE(arc.HitTest({109, 200}));
  EXPECT_FALSE(arc.HitTest({112, 200}));
  EXPECT_FALSE(arc.HitTest({108, 200}));
  EXPECT_TRUE(arc.HitTest({107, 193}));
  EXPECT_FALSE(arc.HitTest({106, 194}));
  EXPECT_FALSE(arc.HitTest({108, 192}));
}

TEST(ArcHitTest, KeepsToTheAngles) {
  SPtnObjArc arc = Arc({0, 0}, 10, 0, 1440);
  EXPECT_TRUE(arc.HitTest({0, -10}));
  EXPECT_FALSE(arc.HitTest({-1, -10}));
  EXPECT_FALSE(arc.HitTest({10, 1}));
  EXPECT_FALSE(arc.HitTest({-10, 0}));
  EXPECT_FALSE(arc.HitTest({0, 10}));
}

TEST(ArcHitTest, NeverHitsAnArcThatPassesAngleZero) {
  SPtnObjArc arc = Arc({0, 0}, 10, 4320, 1440);
  EXPECT_EQ(arc.GetBoundingRect().right, 10);
  for (const SPoint p : {SPoint{10, 0}, {7, -7}, {7, 7}, {0, 10}, {0, -10}, {-10, 0}}) {
    EXPECT_FALSE(arc.HitTest(p)) << testing::PrintToString(p);
  }
  EXPECT_TRUE(arc.IsInRect({-10, -10, 10, 10}));
}

TEST(ArcHitTest, HitsAWholeCircleOnlyWhereItBegins) {
  SPtnObjArc arc = Arc({0, 0}, 10, 1440, 1440 + 5760);
  EXPECT_TRUE(arc.HitTest({0, -10}));
  EXPECT_FALSE(arc.HitTest({10, 0}));
  EXPECT_FALSE(arc.HitTest({0, 10}));
}

TEST(ArcHitTest, ReducesTheAnglesOnlyNearTheCircle) {
  SPtnObjArc arc = Arc({0, 0}, 10, 5760, 5760 + 1440);
  EXPECT_FALSE(arc.HitTest({100, 100}));
  EXPECT_EQ(Angles(arc), Pair(5760, 7200));
  EXPECT_TRUE(arc.HitTest({7, -7}));
  EXPECT_EQ(Angles(arc), Pair(0, 1440));
}

TEST(ArcHitTest, OfTheCentreOfATinyArcMisses) {
  EXPECT_FALSE(Arc({5, 5}, 1, 0, 5759).HitTest({5, 5}));
}

}  // namespace
}  // namespace mivo
