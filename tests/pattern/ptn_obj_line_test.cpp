#include "ptn_obj_line.h"

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

SPtnObjLine Line(SPoint start, SPoint end) {
  SPtnObjLine line;
  line.SetStart(start);
  line.SetEnd(end);
  return line;
}

SPtnObjLine Curve(SPoint start, SPoint end, SPoint control1, SPoint control2) {
  SPtnObjLine line = Line(start, end);
  line.SetCurve(true);
  line.SetNode(2, control1.x, control1.y);
  line.SetNode(3, control2.x, control2.y);
  return line;
}

// Record

TEST(LineRecord, HoldsTheEndsOfAStraightLine) {
  SPtnObjLine line = Line({1, -2}, {30, 4});
  line.width = 3;
  line.style = 2;
  EXPECT_EQ(Written(line), u"+L,W:3,S:2,CV:0,X:1,Y:-2,X:30,Y:4,-L\n");
}

TEST(LineRecord, HoldsTheControlPointsOfACurve) {
  EXPECT_EQ(Written(Curve({0, 1}, {2, 3}, {4, 5}, {6, 7})),
            u"+L,W:1,S:0,CV:1,X:0,Y:1,X:2,Y:3,X:4,Y:5,X:6,Y:7,-L\n");
}

TEST(LineRecord, IsRelativeToTheOrigin) {
  const SPtnObjLine curve = Curve({0, 1}, {2, 3}, {4, 5}, {6, 7});
  EXPECT_EQ(Written(curve, {10, -10}),
            u"+L,W:1,S:0,CV:1,X:-10,Y:11,X:-8,Y:13,X:-6,Y:15,X:-4,Y:17,-L\n");
  EXPECT_EQ(curve.GetNode(0), (SPoint{0, 1}));
}

TEST(LineRecord, ReadsBack) {
  SPtnObjLine line;
  const ReadRecord read =
      ReadInto(line, u"+L,W:3,S:2,CV:7,X:0,Y:1,X:2,Y:3,X:4,Y:5,X:6,Y:7,-L\n+C\n");
  EXPECT_TRUE(read.ok);
  EXPECT_TRUE(read.findings.empty());
  EXPECT_EQ(read.next, u"+C");
  EXPECT_EQ(line.width, 3);
  EXPECT_EQ(line.style, 2);
  EXPECT_TRUE(line.IsCurve());
  EXPECT_THAT(Nodes(line), ElementsAre(SPoint{0, 1}, SPoint{2, 3}, SPoint{4, 5}, SPoint{6, 7}));
}

TEST(LineRecord, WithoutPointsLeavesBothEndsWhereTheyStart) {
  SPtnObjLine line;
  EXPECT_TRUE(ReadInto(line, u"+L,-L\n").ok);
  EXPECT_EQ(line.GetNode(0), (SPoint{-1, -1}));
  EXPECT_EQ(line.GetNode(1), (SPoint{-1, -1}));
}

TEST(LineRecord, OfACurveWithTwoPointsKeepsItsControlPoints) {
  SPtnObjLine line;
  EXPECT_TRUE(ReadInto(line, u"+L,CV:1,X:0,Y:0,X:9,Y:9,-L\n").ok);
  EXPECT_EQ(Written(line), u"+L,W:1,S:0,CV:1,X:0,Y:0,X:9,Y:9,X:-1,Y:-1,X:-1,Y:-1,-L\n");
}

TEST(LineRecord, CutOffByTheEndOfTheDataIsAccepted) {
  SPtnObjLine line;
  const ReadRecord read = ReadInto(line, u"+L,W:4,S:1,CV:1,X:5,Y:6,X:7\n");
  EXPECT_TRUE(read.ok);
  EXPECT_EQ(line.width, 4);
  EXPECT_EQ(line.style, 1);
  EXPECT_TRUE(line.IsCurve());
  EXPECT_EQ(line.GetNode(0), (SPoint{5, 6}));
  EXPECT_EQ(line.GetNode(1), (SPoint{7, -1}));
  EXPECT_THAT(read.Kinds(), ElementsAre(FindingKind::DataCutOff));
}

TEST(LineRecord, ClosedByTheTagOfAnEllipseFails) {
  SPtnObjLine line;
  const ReadRecord read = ReadInto(line, u"+L,W:4,S:1,CV:1,X:5,Y:6,-C,-L\n");
  EXPECT_FALSE(read.ok);
  EXPECT_EQ(read.next, u"-L");
  // Points are stored as they come, the rest only at the end.
  EXPECT_EQ(line.GetNode(0), (SPoint{5, 6}));
  EXPECT_EQ(line.width, 1);
  EXPECT_EQ(line.style, 0);
  EXPECT_FALSE(line.IsCurve());
}

TEST(LineRecord, OfAStraightLineGetsFreshControlPointsWhenCurvedLater) {
  SPtnObjLine curve = Curve({0, 0}, {30, 0}, {4, 5}, {6, 7});
  curve.SetCurve(false);
  SPtnObjLine line;
  ASSERT_TRUE(ReadInto(line, Written(curve)).ok);
  line.SetCurve(true);
  EXPECT_EQ(line.GetNode(2), (SPoint{10, 0}));
  EXPECT_EQ(line.GetNode(3), (SPoint{20, 0}));
}

TEST(LineRecord, LaterPairsReplaceTheLastControlPoint) {
  SPtnObjLine line;
  const ReadRecord read =
      ReadInto(line, u"+L,CV:1,X:0,Y:0,X:1,Y:1,X:2,Y:2,X:3,Y:3,X:4,Y:4,X:5,Y:5,-L\n");
  EXPECT_TRUE(read.ok);
  EXPECT_EQ(line.GetNode(2), (SPoint{2, 2}));
  EXPECT_EQ(line.GetNode(3), (SPoint{5, 5}));
  EXPECT_THAT(read.Kinds(), testing::SizeIs(4));
  EXPECT_THAT(read.Kinds(), testing::Each(FindingKind::SurplusValue));
}

TEST(LineRecord, TakesYAsTheEndOfAPoint) {
  SPtnObjLine line;
  EXPECT_TRUE(ReadInto(line, u"+L,X:1,X:2,Y:3,Y:4,-L\n").ok);
  EXPECT_EQ(line.GetNode(0), (SPoint{2, 3}));
  EXPECT_EQ(line.GetNode(1), (SPoint{-1, 4}));
}

TEST(LineRecord, DoesNotFill) {
  SPtnObjLine line;
  const ReadRecord read = ReadInto(line, u"+L,F:1,-L\n");
  EXPECT_TRUE(read.ok);
  EXPECT_EQ(line.fill, SPtnObj::kNotFilled);
  EXPECT_THAT(read.Kinds(), ElementsAre(FindingKind::UnknownKey));
}

TEST(LineRecord, ReadsAgainAfterItsBoundsWereAsked) {
  SPtnObjLine line = Line({0, 0}, {1, 1});
  EXPECT_EQ(line.GetBoundingRect(), (SRect{0, 0, 1, 1}));
  EXPECT_TRUE(ReadInto(line, u"+L,X:5,Y:5,X:9,Y:9,-L\n").ok);
  EXPECT_EQ(line.GetBoundingRect(), (SRect{5, 5, 9, 9}));
}

// Nodes and the curve

TEST(LineNodes, AreTheEndsAndForACurveTheControlPoints) {
  SPtnObjLine line = Line({1, 2}, {3, 4});
  EXPECT_EQ(line.GetNodeCount(), 2);
  line.SetCurve(true);
  EXPECT_EQ(line.GetNodeCount(), 4);
  line.SetNode(2, 5, 6);
  line.SetNode(3, 7, 8);
  EXPECT_EQ(line.GetNode(2), (SPoint{5, 6}));
  for (const std::int32_t index : {3, 4, 99, -1, kMax, kMin}) {
    EXPECT_EQ(line.GetNode(index), (SPoint{7, 8})) << index;
  }
}

TEST(LineNodes, OfAnyOtherIndexAreTheSecondControlPoint) {
  for (const std::int32_t index : {4, -1, kMax, kMin}) {
    SPtnObjLine line = Curve({0, 0}, {1, 1}, {2, 2}, {3, 3});
    line.SetNode(index, 8, 9);
    EXPECT_THAT(Nodes(line), ElementsAre(SPoint{0, 0}, SPoint{1, 1}, SPoint{2, 2}, SPoint{8, 9}));
  }
}

TEST(LineNodes, DraggedEndsTakeTheirControlPointAlong) {
  SPtnObjLine line = Curve({0, 0}, {10, 10}, {3, 4}, {7, 6});
  line.SetNode(0, 5, -5);
  EXPECT_THAT(Nodes(line), ElementsAre(SPoint{5, -5}, SPoint{10, 10}, SPoint{8, -1}, SPoint{7, 6}));
  line.SetNode(1, 20, 11);
  EXPECT_THAT(Nodes(line),
              ElementsAre(SPoint{5, -5}, SPoint{20, 11}, SPoint{8, -1}, SPoint{17, 7}));
}

TEST(LineNodes, DraggedControlPointsMoveAlone) {
  SPtnObjLine line = Curve({0, 0}, {10, 10}, {3, 4}, {7, 6});
  line.SetNode(2, 30, 40);
  EXPECT_THAT(Nodes(line), ElementsAre(SPoint{0, 0}, SPoint{10, 10}, SPoint{30, 40}, SPoint{7, 6}));
  line.SetNode(3, 70, 60);
  EXPECT_THAT(Nodes(line),
              ElementsAre(SPoint{0, 0}, SPoint{10, 10}, SPoint{30, 40}, SPoint{70, 60}));
}

TEST(LineNodes, SetStartAndSetEndLeaveTheControlPoints) {
  SPtnObjLine line = Curve({0, 0}, {10, 10}, {3, 4}, {7, 6});
  line.SetStart({1, 1});
  line.SetEnd({9, 9});
  EXPECT_THAT(Nodes(line), ElementsAre(SPoint{1, 1}, SPoint{9, 9}, SPoint{3, 4}, SPoint{7, 6}));
}

struct CurveCase {
  const char* name;
  SPoint start, end;
  SPoint control1, control2;
};

class DefaultControlPoints : public testing::TestWithParam<CurveCase> {};

TEST_P(DefaultControlPoints, DependOnTheExtent) {
  SPtnObjLine line = Line(GetParam().start, GetParam().end);
  line.SetCurve(true);
  EXPECT_EQ(line.GetNode(2), GetParam().control1);
  EXPECT_EQ(line.GetNode(3), GetParam().control2);
}

INSTANTIATE_TEST_SUITE_P(
    , DefaultControlPoints,
    testing::Values(CurveCase{"NoExtent", {7, 8}, {7, 8}, {17, 8}, {-3, 8}},
                    CurveCase{"Short", {0, 0}, {20, 0}, {30, 0}, {-10, 0}},
                    CurveCase{"Long", {0, 0}, {30, 0}, {10, 0}, {20, 0}},
                    CurveCase{"ShortTruncates", {0, 0}, {5, -5}, {7, -7}, {-2, 2}},
                    CurveCase{"LongTruncates", {0, 0}, {32, -32}, {10, -10}, {22, -22}},
                    CurveCase{"LongestShort", {0, 0}, {-20, 20}, {-30, 30}, {10, -10}},
                    CurveCase{"ShortestLong", {0, 0}, {21, 0}, {7, 0}, {14, 0}},
                    CurveCase{"LongInOneDirection", {0, 0}, {3, -21}, {1, -7}, {2, -14}},
                    CurveCase{"WrappedExtent", {kMin, 0}, {0, 0}, {1431655766, 0}, {715827882, 0}}),
    kCaseName);

TEST(LineCurve, TurnedOffKeepsItsControlPointsUntilTurnedOnAgain) {
  SPtnObjLine line = Curve({0, 0}, {30, 0}, {3, 4}, {7, 6});
  line.SetCurve(false);
  EXPECT_FALSE(line.IsCurve());
  EXPECT_EQ(line.GetNode(2), (SPoint{3, 4}));
  line.SetCurve(true);
  EXPECT_EQ(line.GetNode(2), (SPoint{10, 0}));
}

TEST(LineCurve, TurnedOnTwiceKeepsItsControlPoints) {
  SPtnObjLine line = Curve({0, 0}, {30, 0}, {3, 4}, {7, 6});
  line.SetCurve(true);
  EXPECT_EQ(line.GetNode(2), (SPoint{3, 4}));
  EXPECT_EQ(line.GetNode(3), (SPoint{7, 6}));
}

TEST(Line, IsAlwaysValid) {
  EXPECT_TRUE(SPtnObjLine().IsValid());
}

TEST(Line, ClonesEverything) {
  SPtnObjLine line = Curve({0, 1}, {2, 3}, {4, 5}, {6, 7});
  line.width = 8;
  line.style = 9;
  line.SetCurve(false);
  const auto clone = line.Clone();
  line.Move(100, 100);
  ASSERT_EQ(clone->GetType(), PtnObjType::Line);
  EXPECT_EQ(Written(*clone), u"+L,W:8,S:9,CV:0,X:0,Y:1,X:2,Y:3,-L\n");
  EXPECT_EQ(clone->GetNode(2), (SPoint{4, 5}));
  EXPECT_EQ(clone->GetNode(3), (SPoint{6, 7}));
}

}  // namespace
}  // namespace mivo
