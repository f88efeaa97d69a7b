#include "ptn_obj_drawing.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>
#include <string>
#include <vector>

#include "case_name.h"
#include "ptn_obj_arc.h"
#include "ptn_obj_circle.h"
#include "ptn_obj_line.h"
#include "ptn_obj_polygon.h"
#include "recording_surface.h"

namespace mivo {
namespace {

constexpr Color kGreen{0, 128, 0};
constexpr std::int32_t kSmallest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();

PtnPlacement Zoomed(std::int32_t numerator, std::int32_t denominator = 1) {
  PtnPlacement placement;
  placement.numerator = numerator;
  placement.denominator = denominator;
  return placement;
}

std::string Drawn(SPtnObj& object, const PtnPlacement& placement = {}, Color color = kGreen) {
  RecordingSurface surface({100, 100});
  DrawPtnObj(surface, object, color, placement, {});
  return surface.TakeRecord();
}

SPtnObjLine Line(SPoint start, SPoint end) {
  SPtnObjLine line;
  line.SetStart(start);
  line.SetEnd(end);
  return line;
}

SPtnObjArc Arc(SPoint center, std::int32_t radius, std::int32_t begin, std::int32_t end) {
  SPtnObjArc arc;
  arc.SetCenter(center);
  arc.SetRadius(radius);
  const auto point = [&](std::int32_t angle) { return PointAtAngle(center, 1000, angle); };
  arc.SetBeginFromPoint(point(begin).x, point(begin).y);
  arc.SetEndFromPoint(point(end).x, point(end).y);
  return arc;
}

// --- Placement
// -------------------------------------------------------------------------------------

struct OrientationCase {
  std::int32_t code;
  SPoint placed;  // of (1, 2) in a box of 10 by 20
};

class Orientation : public testing::TestWithParam<OrientationCase> {};

TEST_P(Orientation, MapsPoints) {
  PtnPlacement placement;
  placement.orientation = GetParam().code;
  placement.box = {10, 20};
  EXPECT_EQ(placement.Oriented({1, 2}), GetParam().placed);
}

INSTANTIATE_TEST_SUITE_P(Codes, Orientation,
                         testing::Values(OrientationCase{0, {1, 2}}, OrientationCase{1, {18, 1}},
                                         OrientationCase{2, {9, 18}}, OrientationCase{3, {2, 9}},
                                         OrientationCase{4, {9, 2}}, OrientationCase{5, {2, 1}},
                                         OrientationCase{6, {1, 18}}, OrientationCase{7, {18, 9}}));

TEST(PtnPlacement, MovesAfterTurningAndScalesLast) {
  PtnPlacement placement;
  placement.orientation = 1;
  placement.box = {10, 20};
  placement.offset = {100, -50};
  placement.numerator = 3;
  placement.denominator = 2;
  EXPECT_EQ(placement.Placed({1, 2}), (SPoint{118, -49}));
  EXPECT_EQ(placement.Map({1, 2}), (PixelPoint{177, -73})) << "truncated toward zero";
}

TEST(PtnPlacement, WrapsAnyCoordinates) {
  PtnPlacement placement = Zoomed(10);
  placement.offset = {1, 1};
  EXPECT_EQ(placement.Map({kLargest, kSmallest}), (PixelPoint{0, 10}));
}

// --- Pens
// ------------------------------------------------------------------------------------------

struct PenCase {
  const char* name;
  std::int32_t style;
  std::int32_t width;
  std::int32_t numerator;
  std::int32_t denominator;
  const char* pen;
};

class PtnPen : public testing::TestWithParam<PenCase> {};

TEST_P(PtnPen, FollowsStyleAndScaledWidth) {
  const PenCase& c = GetParam();
  SPtnObjLine line = Line({0, 0}, {0, 0});
  line.style = c.style;
  line.width = c.width;
  EXPECT_EQ(Drawn(line, Zoomed(c.numerator, c.denominator)),
            "line 0,0 0,0 pen=" + std::string(c.pen) + "#008000\n");
}

INSTANTIATE_TEST_SUITE_P(Pens, PtnPen,
                         testing::Values(PenCase{"Solid", 0, 1, 1, 1, "solid:1"},
                                         PenCase{"SolidScaled", 0, 3, 5, 1, "solid:15"},
                                         PenCase{"SolidTruncated", 0, 3, 1, 2, "solid:1"},
                                         PenCase{"SolidZero", 0, 0, 10, 1, "solid:0"},
                                         PenCase{"SolidNegative", 0, -2, 5, 1, "solid:-10"},
                                         PenCase{"DottedThin", 1, 1, 1, 1, "dotted:1"},
                                         PenCase{"DottedZero", 1, 0, 10, 1, "dotted:0"},
                                         PenCase{"DottedNegative", 1, -2, 5, 1, "dotted:-10"},
                                         PenCase{"DottedScaledToOne", 1, 2, 1, 2, "dotted:1"},
                                         PenCase{"DashedWide", 1, 2, 1, 1, "dashed:2"},
                                         PenCase{"DashedByTheZoom", 1, 1, 2, 1, "dashed:2"},
                                         PenCase{"AnyOtherStyleIsDotted", -7, 1, 1, 1, "dotted:1"}),
                         kCaseName);

// --- Lines and curves
// ------------------------------------------------------------------------------

TEST(DrawLine, FromStartToEnd) {
  SPtnObjLine line = Line({1, 2}, {30, -4});
  EXPECT_EQ(Drawn(line, Zoomed(2)), "line 2,4 60,-8 pen=solid:2#008000\n");
}

TEST(DrawLine, ACurveThroughItsControlPolygon) {
  SPtnObjLine line = Line({0, 0}, {30, 0});
  line.SetCurve(true);
  EXPECT_EQ(Drawn(line), "bezier 0,0 10,0 20,0 30,0 pen=solid:1#008000\n");
}

TEST(DrawLine, ACurveReadWithTwoPointsDrawsTheInitialControlPoints) {
  SPtnObjLine line = Line({0, 0}, {30, 0});
  line.SetCurve(true);
  line.SetNode(2, -1, -1);
  line.SetNode(3, -1, -1);
  EXPECT_EQ(Drawn(line), "bezier 0,0 -1,-1 -1,-1 30,0 pen=solid:1#008000\n");
}

// --- Ellipses and polygons
// -------------------------------------------------------------------------

TEST(DrawEllipse, TheFarCornerIsIncluded) {
  SPtnObjCircle circle({10, 20}, {2, 4});
  EXPECT_EQ(Drawn(circle), "ellipse 2,4 9x17 pen=solid:1#008000 brush=hollow\n");
  EXPECT_EQ(Drawn(circle, Zoomed(5)), "ellipse 10,20 41x81 pen=solid:5#008000 brush=hollow\n");
}

TEST(DrawEllipse, MirroredCornersAreNormalised) {
  SPtnObjCircle circle({2, 4}, {10, 20});
  PtnPlacement placement;
  placement.orientation = 4;
  placement.box = {100, 50};
  EXPECT_EQ(Drawn(circle, placement), "ellipse 90,4 9x17 pen=solid:1#008000 brush=hollow\n");
}

struct FillCase {
  const char* name;
  std::int32_t fill;
  Color color;
  const char* brush;
};

class PtnFill : public testing::TestWithParam<FillCase> {};

TEST_P(PtnFill, ChoosesTheBrush) {
  const FillCase& c = GetParam();
  SPtnObjCircle circle({0, 0}, {4, 4});
  circle.fill = c.fill;
  SPtnObjPolygon polygon({{0, 0}, {4, 0}});
  polygon.fill = c.fill;
  const std::string brush = std::string(" brush=") + c.brush + "\n";
  EXPECT_TRUE(Drawn(circle, {}, c.color).ends_with(brush)) << Drawn(circle, {}, c.color);
  EXPECT_TRUE(Drawn(polygon, {}, c.color).ends_with(brush)) << Drawn(polygon, {}, c.color);
}

INSTANTIATE_TEST_SUITE_P(Fills, PtnFill,
                         testing::Values(FillCase{"Hollow", -1, kGreen, "hollow"},
                                         FillCase{"OwnColor", 1, kGreen, "#008000"},
                                         FillCase{"OwnBlack", 1, {0, 0, 0}, "#000000"},
                                         FillCase{"ContrastToAColor", 0, kGreen, "#000000"},
                                         FillCase{"ContrastToBlack", 0, {0, 0, 0}, "#ffffff"},
                                         FillCase{
                                             "AnyOtherValueContrasts", 2, {255, 0, 0}, "#000000"},
                                         FillCase{"SoDoesANegativeOne", -2, {0, 0, 0}, "#ffffff"}),
                         kCaseName);

TEST(DrawPolygon, MapsEveryVertex) {
  SPtnObjPolygon polygon({{0, 0}, {10, 0}, {5, 8}});
  polygon.width = 2;
  polygon.style = 1;
  EXPECT_EQ(Drawn(polygon, Zoomed(2)), "polygon 0,0 20,0 10,16 pen=dashed:4#008000 brush=hollow\n");
}

TEST(DrawPolygon, OnlyTwoTo32VerticesAreDrawn) {
  std::vector<SPoint> points;
  for (std::int32_t i = 0; i < 33; ++i) points.push_back({i, i % 2});
  const auto draws = [&](std::size_t count) {
    SPtnObjPolygon polygon({points.begin(), points.begin() + static_cast<std::ptrdiff_t>(count)});
    return !Drawn(polygon).empty();
  };
  EXPECT_FALSE(draws(0));
  EXPECT_FALSE(draws(1));
  EXPECT_TRUE(draws(2));
  EXPECT_TRUE(draws(32));
  EXPECT_FALSE(draws(33));
}

// --- Arcs
// ------------------------------------------------------------------------------------------

TEST(DrawArc, FromBeginToEndByDirectionsFarOut) {
  SPtnObjArc arc = Arc({20, 30}, 7, 0, 1440);
  EXPECT_EQ(Drawn(arc), "arc 13,23 15x15 from=520,30 to=20,-470 pen=solid:1#008000\n");
}

TEST(DrawArc, ANewOneIsAWholeCircle) {
  SPtnObjArc arc;
  EXPECT_EQ(Drawn(arc), "arc 0,0 21x21 from=510,10 to=510,10 pen=solid:1#008000\n");
}

TEST(DrawArc, DirectionsAreScaledLikeEverything) {
  SPtnObjArc arc = Arc({20, 30}, 7, 2880, 4320);
  EXPECT_EQ(Drawn(arc, Zoomed(10)),
            "arc 130,230 141x141 from=-4800,300 to=200,5300 pen=solid:10#008000\n");
}

TEST(DrawArc, AMirrorImageRunsTheOtherWay) {
  SPtnObjArc arc = Arc({20, 30}, 7, 0, 1440);
  PtnPlacement placement;
  placement.orientation = 4;
  placement.box = {100, 100};
  EXPECT_EQ(Drawn(arc, placement), "arc 73,23 15x15 from=80,-470 to=-420,30 pen=solid:1#008000\n");
}

TEST(DrawArc, AQuarterTurnKeepsTheDirection) {
  SPtnObjArc arc = Arc({20, 30}, 7, 0, 1440);
  PtnPlacement placement;
  placement.orientation = 1;
  placement.box = {100, 100};
  EXPECT_EQ(Drawn(arc, placement), "arc 63,13 15x15 from=70,520 to=570,20 pen=solid:1#008000\n");
}

TEST(DrawArc, DashesWhenWideAndDotsWhenThin) {
  SPtnObjArc arc;
  arc.style = 1;
  EXPECT_TRUE(Drawn(arc).ends_with("pen=dotted:1#008000\n"));
  EXPECT_TRUE(Drawn(arc, Zoomed(2)).ends_with("pen=dashed:2#008000\n"));
}

TEST(DrawArc, AnyAngleAndRadiusIsHarmless) {
  SPtnObjArc arc;
  arc.SetRadius(kLargest);
  arc.SetCenter({kSmallest, kLargest});
  EXPECT_TRUE(Drawn(arc, Zoomed(10)).starts_with("arc "));
}

// --- Dispatch
// --------------------------------------------------------------------------------------

class ObjectOfNoType final : public SPtnObj {
 public:
  std::unique_ptr<SPtnObj> Clone() const override { return nullptr; }
  void Move(std::int32_t, std::int32_t) override {}
  std::int32_t GetNodeCount() const override { return 0; }
  SPoint GetNode(std::int32_t) const override { return {}; }
  void SetNode(std::int32_t, std::int32_t, std::int32_t) override {}
  void Mirror() override {}
  void MirrorAt(std::int32_t) override {}
  void Rotate() override {}
  void RotateAt(SPoint) override {}
  SRect GetBoundingRect() override { return {}; }
  bool Read(SRecordReader&) override { return false; }
  bool Write(SRecordWriter&, SPoint) const override { return false; }
};

TEST(DrawPtnObj, AnUnknownTypeDrawsNothing) {
  ObjectOfNoType object;
  EXPECT_EQ(Drawn(object), "");
}

}  // namespace
}  // namespace mivo
