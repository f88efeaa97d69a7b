#include "ptn_obj_circle.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "geometry_printing.h"
#include "ptn_obj_reading.h"

namespace mivo {
namespace {

using testing::ElementsAre;

// Record

TEST(CircleRecord, HoldsTheCornersAsTheyWereSet) {
  SPtnObjCircle circle({10, 20}, {-5, 3});
  circle.width = 2;
  circle.style = 1;
  circle.fill = 0;
  EXPECT_EQ(Written(circle), u"+C,W:2,S:1,F:0,X:10,Y:20,X:-5,Y:3,-C\n");
  EXPECT_EQ(Written(circle, {1, 2}), u"+C,W:2,S:1,F:0,X:9,Y:18,X:-6,Y:1,-C\n");
}

TEST(CircleRecord, ReadsBack) {
  SPtnObjCircle circle;
  const ReadRecord read = ReadInto(circle, u"+C,W:2,S:1,F:1,X:10,Y:20,X:-5,Y:3,-C\n-PTN\n");
  EXPECT_TRUE(read.ok);
  EXPECT_TRUE(read.findings.empty());
  EXPECT_EQ(read.next, u"-PTN");
  EXPECT_EQ(circle.width, 2);
  EXPECT_EQ(circle.style, 1);
  EXPECT_EQ(circle.fill, 1);
  EXPECT_THAT(Nodes(circle), ElementsAre(SPoint{10, 20}, SPoint{-5, 3}));
}

TEST(CircleRecord, WithoutPointsIsReadButNotValid) {
  SPtnObjCircle circle({1, 1}, {2, 2});
  circle.width = 9;
  circle.fill = 1;
  EXPECT_TRUE(ReadInto(circle, u"+C,-C\n").ok);
  EXPECT_THAT(Nodes(circle), ElementsAre(SPoint{0, 0}, SPoint{0, 0}));
  EXPECT_FALSE(circle.IsValid());
  EXPECT_EQ(circle.width, 1);
  EXPECT_EQ(circle.fill, SPtnObj::kNotFilled);
}

TEST(CircleRecord, LaterPairsReplaceTheSecondCorner) {
  SPtnObjCircle circle;
  const ReadRecord read = ReadInto(circle, u"+C,X:1,Y:2,X:3,Y:4,X:5,Y:6,-C\n");
  EXPECT_TRUE(read.ok);
  EXPECT_THAT(Nodes(circle), ElementsAre(SPoint{1, 2}, SPoint{5, 6}));
  EXPECT_THAT(read.Kinds(), ElementsAre(FindingKind::SurplusValue, FindingKind::SurplusValue));
}

TEST(CircleRecord, TakesYAsTheEndOfACorner) {
  SPtnObjCircle circle;
  EXPECT_TRUE(ReadInto(circle, u"+C,X:1,X:2,Y:3,Y:4,-C\n").ok);
  EXPECT_THAT(Nodes(circle), ElementsAre(SPoint{2, 3}, SPoint{0, 4}));
}

TEST(CircleRecord, CutOffByTheEndOfTheDataIsAccepted) {
  SPtnObjCircle circle;
  const ReadRecord read = ReadInto(circle, u"+C,W:3,X:1,Y:2,X:7\n");
  EXPECT_TRUE(read.ok);
  EXPECT_EQ(circle.width, 3);
  EXPECT_THAT(Nodes(circle), ElementsAre(SPoint{1, 2}, SPoint{7, 0}));
  EXPECT_THAT(read.Kinds(), ElementsAre(FindingKind::DataCutOff));
}

TEST(CircleRecord, ClosedByAnotherTagStoresNothing) {
  SPtnObjCircle circle({1, 2}, {3, 4});
  EXPECT_FALSE(ReadInto(circle, u"+C,W:3,F:1,X:10,Y:20,-L\n").ok);
  EXPECT_EQ(Written(circle), u"+C,W:1,S:0,F:-1,X:1,Y:2,X:3,Y:4,-C\n");
}

// Geometry

TEST(Circle, HasItsCornersForNodes) {
  SPtnObjCircle circle({1, 2}, {3, 4});
  EXPECT_EQ(circle.GetNodeCount(), 2);
  EXPECT_EQ(circle.GetNode(0), (SPoint{1, 2}));
  for (const std::int32_t index : {1, 2, -1, 1000}) {
    EXPECT_EQ(circle.GetNode(index), (SPoint{3, 4})) << index;
  }
  circle.SetNode(0, 5, 6);
  circle.SetNode(-7, 7, 8);
  EXPECT_THAT(Nodes(circle), ElementsAre(SPoint{5, 6}, SPoint{7, 8}));
}

TEST(Circle, IsValidWhenItsCornersDiffer) {
  EXPECT_FALSE(SPtnObjCircle().IsValid());
  EXPECT_FALSE(SPtnObjCircle({4, 5}, {4, 5}).IsValid());
  EXPECT_TRUE(SPtnObjCircle({4, 5}, {4, 6}).IsValid());
  EXPECT_TRUE(SPtnObjCircle({4, 5}, {3, 5}).IsValid());
}

TEST(Circle, Moves) {
  SPtnObjCircle circle({1, 2}, {3, 4});
  circle.Move(10, -20);
  EXPECT_THAT(Nodes(circle), ElementsAre(SPoint{11, -18}, SPoint{13, -16}));
}

TEST(Circle, IsItsOwnMirrorImage) {
  SPtnObjCircle circle({1, 2}, {4, 4});
  circle.Mirror();
  EXPECT_THAT(Nodes(circle), ElementsAre(SPoint{1, 2}, SPoint{4, 4}));
}

TEST(Circle, MirrorsAboutAnyAxis) {
  SPtnObjCircle circle({1, 2}, {4, 4});
  circle.MirrorAt(10);
  EXPECT_THAT(Nodes(circle), ElementsAre(SPoint{19, 2}, SPoint{16, 4}));
}

TEST(Circle, TurnsItsBoxAboutItsCentre) {
  SPtnObjCircle circle({0, 0}, {10, 4});
  circle.Rotate();
  EXPECT_THAT(Nodes(circle), ElementsAre(SPoint{7, -3}, SPoint{3, 7}));
}

TEST(Circle, TurnsAboutAnyPivot) {
  SPtnObjCircle circle({1, 0}, {4, 2});
  circle.RotateAt({0, 0});
  EXPECT_THAT(Nodes(circle), ElementsAre(SPoint{0, 1}, SPoint{-2, 4}));
}

TEST(Circle, BoundsAreNormalised) {
  EXPECT_EQ(SPtnObjCircle({10, -4}, {0, 6}).GetBoundingRect(), (SRect{0, -4, 10, 6}));
}

TEST(Circle, LiesInARectangleThatHoldsBothCorners) {
  SPtnObjCircle circle({10, 0}, {0, 6});
  EXPECT_TRUE(circle.IsInRect({0, 0, 10, 6}));
  EXPECT_TRUE(circle.IsInRect({-1, -1, 11, 7}));
  EXPECT_FALSE(circle.IsInRect({1, 0, 10, 6}));
  EXPECT_FALSE(circle.IsInRect({0, 0, 9, 6}));
  EXPECT_FALSE(circle.IsInRect({0, 1, 10, 6}));
  EXPECT_FALSE(circle.IsInRect({0, 0, 10, 5}));
}

TEST(Circle, ClonesEverything) {
  SPtnObjCircle circle({1, 2}, {3, 4});
  circle.width = 5;
  circle.style = 6;
  circle.fill = 7;
  const auto clone = circle.Clone();
  circle.Move(100, 100);
  ASSERT_EQ(clone->GetType(), PtnObjType::Circle);
  EXPECT_EQ(Written(*clone), u"+C,W:5,S:6,F:7,X:1,Y:2,X:3,Y:4,-C\n");
}

// Hit tests

struct HitCase {
  SPoint point;
  bool filled;
  bool hollow;
};

/// Expects the hits of an ellipse, filled in either way and hollow, whichever corners it has.
void ExpectHits(SRect box, const std::vector<HitCase>& cases) {
  const std::pair<SPoint, SPoint> diagonals[] = {
      {box.TopLeft(), box.BottomRight()},
      {box.BottomRight(), box.TopLeft()},
      {{box.right, box.top}, {box.left, box.bottom}},
      {{box.left, box.bottom}, {box.right, box.top}},
  };
  for (const auto& [a, b] : diagonals) {
    SPtnObjCircle circle(a, b);
    for (const HitCase& c : cases) {
      SCOPED_TRACE(testing::PrintToString(c.point));
      for (const std::int32_t fill : {0, 1, 5}) {
        circle.fill = fill;
        EXPECT_EQ(circle.HitTest(c.point), c.filled) << fill;
      }
      for (const std::int32_t fill : {-1, -2}) {
        circle.fill = fill;
        EXPECT_EQ(circle.HitTest(c.point), c.hollow) << fill;
      }
    }
  }
}

TEST(CircleHitTest, AtTheCentreNeedsAFill) {
  ExpectHits({0, 0, 20, 20}, {{{10, 10}, true, false}});
}

TEST(CircleHitTest, AllowsLessThanTwoUnitsFromTheOutlineAlongTheAxes) {
  ExpectHits({0, 0, 20, 20}, {
                                 {{10, 0}, true, true},
                                 {{10, 1}, true, true},
                                 {{10, 2}, true, false},
                                 {{10, -1}, false, true},
                                 {{10, -2}, false, false},
                                 {{20, 10}, true, true},
                                 {{21, 10}, false, true},
                                 {{22, 10}, false, false},
                                 {{18, 10}, true, false},
                                 {{0, 10}, true, true},
                                 {{10, 20}, true, true},
                             });
}

TEST(CircleHitTest, HitsTheOutlineBetweenTheAxes) {
  ExpectHits({0, 0, 20, 20}, {
                                 {{17, 3}, true, true},
                                 {{18, 4}, true, true},
                                 {{18, 3}, false, true},
                                 {{18, 2}, false, false},
                                 {{19, 1}, false, false},
                                 {{15, 5}, true, false},
                                 {{20, 0}, false, false},
                             });
}

TEST(CircleHitTest, FollowsAFlatEllipse) {
  ExpectHits({0, 0, 40, 10}, {
                                 {{20, 5}, true, false},
                                 {{20, 0}, true, true},
                                 {{20, -1}, false, true},
                                 {{0, 5}, true, true},
                                 {{-1, 5}, false, true},
                                 {{-2, 5}, false, false},
                                 {{2, 2}, false, true},
                                 {{0, 0}, false, false},
                                 {{40, 10}, false, false},
                                 {{10, 5}, true, false},
                             });
}

TEST(CircleHitTest, FollowsAnEllipseWithACentreBetweenTheUnits) {
  ExpectHits({0, 0, 9, 5}, {
                               {{4, 2}, true, true},
                               {{5, 3}, true, true},
                               {{0, 2}, false, true},
                               {{0, 0}, false, false},
                               {{9, 3}, false, true},
                           });
}

TEST(CircleHitTest, OfABoxWithoutWidthHitsNothing) {
  ExpectHits({5, 0, 5, 20}, {{{5, 10}, false, false}, {{5, 0}, false, false}});
}

TEST(CircleHitTest, OfABoxWithoutHeightHitsItsLineWhenFilled) {
  ExpectHits({0, 5, 20, 5}, {{{10, 5}, true, false}, {{10, 6}, false, false}});
}

TEST(CircleHitTest, OfAPointHitsNothing) {
  ExpectHits({5, 5, 5, 5}, {{{5, 5}, false, false}});
}

TEST(CircleHitTest, TakesTheWholeRangeOfCoordinates) {
  constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();
  constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();
  ExpectHits({kMin, kMin, kMax, kMax}, {
                                           {{0, 0}, true, false},
                                           {{kMin, kMin}, false, false},
                                           {{kMax, 0}, true, true},
                                       });
}

}  // namespace
}  // namespace mivo
