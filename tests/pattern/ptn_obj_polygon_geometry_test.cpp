#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "geometry_printing.h"
#include "ptn_obj_polygon.h"
#include "ptn_obj_reading.h"

namespace mivo {
namespace {

using testing::ElementsAre;

constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();

SPtnObjPolygon Triangle() {
  return SPtnObjPolygon({{0, 0}, {11, 0}, {4, 8}});
}

TEST(Polygon, Moves) {
  SPtnObjPolygon polygon = Triangle();
  polygon.Move(10, -20);
  EXPECT_THAT(Nodes(polygon), ElementsAre(SPoint{10, -20}, SPoint{21, -20}, SPoint{14, -12}));
}

TEST(Polygon, MirrorsAboutTheMiddleOfItsBounds) {
  SPtnObjPolygon polygon = Triangle();
  polygon.Mirror();  // the middle of 0 and 11 is 5
  EXPECT_THAT(Nodes(polygon), ElementsAre(SPoint{10, 0}, SPoint{-1, 0}, SPoint{6, 8}));
}

TEST(Polygon, MirrorsAboutAnyAxis) {
  SPtnObjPolygon polygon = Triangle();
  polygon.MirrorAt(0);
  EXPECT_THAT(Nodes(polygon), ElementsAre(SPoint{0, 0}, SPoint{-11, 0}, SPoint{-4, 8}));
}

TEST(Polygon, TurnsAboutTheMiddleOfItsBounds) {
  SPtnObjPolygon polygon = Triangle();
  polygon.Rotate();  // about (5, 4)
  EXPECT_THAT(Nodes(polygon), ElementsAre(SPoint{9, -1}, SPoint{9, 10}, SPoint{1, 3}));
}

TEST(Polygon, TurnsAboutAnyPivot) {
  SPtnObjPolygon polygon = Triangle();
  polygon.RotateAt({0, 0});
  EXPECT_THAT(Nodes(polygon), ElementsAre(SPoint{0, 0}, SPoint{0, 11}, SPoint{-8, 4}));
}

TEST(Polygon, IsBoundedByItsVertices) {
  EXPECT_EQ(SPtnObjPolygon({{3, 9}, {-4, 2}, {8, -1}}).GetBoundingRect(), (SRect{-4, -1, 8, 9}));
  EXPECT_EQ(SPtnObjPolygon({{3, 9}}).GetBoundingRect(), (SRect{3, 9, 3, 9}));
}

TEST(Polygon, WithoutVerticesIsBoundedFarOut) {
  EXPECT_EQ(SPtnObjPolygon().GetBoundingRect(), (SRect{kMax, kMax, kMax, kMax}));
}

TEST(Polygon, WithoutVerticesCanBeTurnedAndMirrored) {
  SPtnObjPolygon polygon;
  polygon.Mirror();
  polygon.Rotate();
  polygon.Move(1, 1);
  EXPECT_EQ(polygon.GetNodeCount(), 0);
  EXPECT_FALSE(polygon.HitTest({0, 0}));
  EXPECT_FALSE(polygon.IsInRect({-100, -100, 100, 100}));
}

TEST(Polygon, LiesInARectangleThatHoldsItsBounds) {
  SPtnObjPolygon polygon = Triangle();
  EXPECT_TRUE(polygon.IsInRect({0, 0, 11, 8}));
  EXPECT_FALSE(polygon.IsInRect({1, 0, 11, 8}));
  EXPECT_FALSE(polygon.IsInRect({0, 1, 11, 8}));
  EXPECT_FALSE(polygon.IsInRect({0, 0, 10, 8}));
  EXPECT_FALSE(polygon.IsInRect({0, 0, 11, 7}));
}

TEST(Polygon, ClonesEverything) {
  SPtnObjPolygon polygon = Triangle();
  polygon.width = 5;
  polygon.style = 6;
  polygon.fill = 7;
  const auto clone = polygon.Clone();
  polygon.Move(100, 100);
  ASSERT_EQ(clone->GetType(), PtnObjType::Polygon);
  EXPECT_EQ(Written(*clone), u"+PG,W:5,S:6,F:7,N:3,X:0,Y:0,X:11,Y:0,X:4,Y:8,-PG\n");
}

// Hit tests

struct HitCase {
  SPoint point;
  bool filled;
  bool hollow;
};

/// Expects the hits of a polygon, filled in either way and hollow, beginning with any vertex.
void ExpectHits(std::vector<SPoint> points, const std::vector<HitCase>& cases) {
  for (std::size_t first = 0; first < points.size(); ++first) {
    std::rotate(points.begin(), points.begin() + 1, points.end());
    for (const HitCase& c : cases) {
      SCOPED_TRACE(testing::PrintToString(c.point));
      SPtnObjPolygon polygon(points);
      for (const std::int32_t fill : {0, 1, 5}) {
        polygon.fill = fill;
        EXPECT_EQ(polygon.HitTest(c.point), c.filled) << fill;
      }
      for (const std::int32_t fill : {-1, -2}) {
        polygon.fill = fill;
        EXPECT_EQ(polygon.HitTest(c.point), c.hollow) << fill;
      }
    }
  }
}

TEST(PolygonHitTest, HitsTheInsideOfAFilledSquareAndTheEdgesOfAnyOther) {
  ExpectHits({{0, 0}, {10, 0}, {10, 10}, {0, 10}},
             {
                 {{5, 5}, true, false},
                 {{5, 0}, true, true},
                 {{5, 1}, true, true},
                 {{5, 2}, true, false},
                 {{0, 5}, true, true},
                 {{10, 10}, true, true},
                 {{5, 8}, true, false},
                 {{5, 9}, true, true},
                 // The edges reach no further than the bounds.
                 {{5, -1}, false, false},
                 {{11, 5}, false, false},
             });
}

TEST(PolygonHitTest, OfTwoDistinctVerticesIsThatOfALine) {
  const std::vector<HitCase> cases = {
      {{5, 5}, true, true},   {{5, 7}, true, true},     {{5, 8}, false, false},
      {{-1, -1}, true, true}, {{-2, -2}, false, false},
  };
  ExpectHits({{0, 0}, {10, 10}}, cases);
  ExpectHits({{0, 0}, {10, 10}, {10, 10}}, cases);
}

TEST(PolygonHitTest, OfOneDistinctVertexHitsNothing) {
  ExpectHits({{5, 5}}, {{{5, 5}, false, false}});
  ExpectHits({{5, 5}, {5, 5}, {5, 5}}, {{{5, 5}, false, false}});
}

TEST(PolygonHitTest, Normalizes) {
  SPtnObjPolygon polygon({{0, 0}, {10, 0}, {10, 0}, {5, 9}, {0, 0}});
  EXPECT_FALSE(polygon.HitTest({100, 100}));
  EXPECT_EQ(polygon.GetNodeCount(), 3);
}

TEST(PolygonHitTest, LeavesOutTheNotchOfAFilledPolygon) {
  ExpectHits({{0, 0}, {30, 0}, {30, 30}, {15, 10}, {0, 30}}, {
                                                                 {{15, 5}, true, false},
                                                                 {{15, 10}, true, true},
                                                                 {{15, 20}, false, false},
                                                                 {{15, 29}, false, false},
                                                                 {{3, 20}, true, false},
                                                                 {{27, 20}, true, false},
                                                             });
}

TEST(PolygonHitTest, CountsAnEdgeThatEndsOnTheRayOnItsSide) {
  // The ray from (20, 20) ends in the top corner, whose two edges lie on either side of it and do
  // not lie above the point altogether.
  ExpectHits({{20, 0}, {40, 20}, {20, 40}, {0, 20}}, {
                                                         {{20, 20}, true, false},
                                                         {{20, 10}, true, false},
                                                         {{5, 5}, false, false},
                                                         {{35, 35}, false, false},
                                                     });
}

TEST(PolygonHitTest, CountsAnEdgeAboveInFullEvenWhereItEndsOnTheRay) {
  // Two such edges cancel out: the point below the corner is inside, yet missed.
  ExpectHits({{20, 0}, {40, 20}, {20, 40}, {0, 20}}, {
                                                         {{20, 30}, false, false},
                                                         {{19, 30}, true, false},
                                                         {{21, 30}, true, false},
                                                     });
  ExpectHits({{0, 60}, {0, 10}, {20, 30}, {40, 10}, {40, 60}}, {
                                                                   {{20, 50}, false, false},
                                                                   {{20, 20}, false, false},
                                                                   {{10, 50}, true, false},
                                                                   {{10, 12}, false, false},
                                                               });
}

TEST(PolygonHitTest, PassesOverVerticalEdges) {
  ExpectHits({{0, 0}, {20, 0}, {20, 20}, {40, 20}, {40, 60}, {0, 60}}, {
                                                                           {{30, 40}, true, false},
                                                                           {{10, 40}, true, false},
                                                                           {{20, 40}, false, false},
                                                                           {{30, 10}, false, false},
                                                                       });
}

TEST(PolygonHitTest, LeavesOutWhatIsCoveredTwice) {
  // A bow tie has its crossing at (20, 20); a square inside a square is a hole.
  ExpectHits({{0, 0}, {40, 40}, {40, 0}, {0, 40}}, {
                                                       {{5, 20}, true, false},
                                                       {{35, 20}, true, false},
                                                       {{20, 5}, false, false},
                                                       {{20, 35}, false, false},
                                                   });
  ExpectHits({{0, 0},
              {60, 0},
              {60, 60},
              {0, 60},
              {0, 0},
              {20, 20},
              {20, 40},
              {40, 40},
              {40, 20},
              {20, 20}},
             {
                 {{50, 30}, true, false},
                 {{30, 30}, false, false},
                 {{30, 50}, true, false},
             });
}

}  // namespace
}  // namespace mivo
