#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "image_golden.h"
#include "ptn_obj_arc.h"
#include "ptn_obj_circle.h"
#include "ptn_obj_drawing.h"
#include "ptn_obj_line.h"
#include "ptn_obj_polygon.h"
#include "ptn_obj_text.h"
#include "sheet.h"

namespace mivo {
namespace {

using Objects = std::vector<std::unique_ptr<SPtnObj>>;

std::unique_ptr<SPtnObjLine> Line(SPoint start, SPoint end) {
  auto line = std::make_unique<SPtnObjLine>();
  line->SetStart(start);
  line->SetEnd(end);
  return line;
}

std::unique_ptr<SPtnObjLine> Curve() {
  auto curve = Line({2, 18}, {28, 12});
  curve->SetCurve(true);
  curve->SetNode(2, 10, -8);
  curve->SetNode(3, 20, 38);
  return curve;
}

std::unique_ptr<SPtnObjPolygon> Star() {
  return std::make_unique<SPtnObjPolygon>(
      std::vector<SPoint>{{15, 2}, {23, 27}, {2, 11}, {28, 11}, {7, 27}});
}

// `begin` and `end` in quarter turns.
std::unique_ptr<SPtnObjArc> Arc(std::int32_t begin, std::int32_t end) {
  auto arc = std::make_unique<SPtnObjArc>();
  arc->SetCenter({15, 15});
  arc->SetRadius(12);
  const auto point = [](std::int32_t quarters) {
    return PointAtAngle({15, 15}, 100, quarters * SPtnObjArc::kFullTurn / 4);
  };
  arc->SetBeginFromPoint(point(begin).x, point(begin).y);
  arc->SetEndFromPoint(point(end).x, point(end).y);
  return arc;
}

// One of each class.
Objects OneOfEach() {
  Objects objects;
  objects.push_back(Line({2, 3}, {28, 14}));
  objects.push_back(Curve());
  objects.push_back(std::make_unique<SPtnObjCircle>(SPoint{2, 5}, SPoint{28, 25}));
  objects.push_back(Star());
  objects.push_back(Arc(3, 2));
  return objects;
}

constexpr SPoint kTile{31, 31};

void Draw(Sheet& sheet, std::size_t column, std::size_t row, SPtnObj& object,
          const PtnPlacement& placed = {}) {
  sheet.Draw(static_cast<int>(column), static_cast<int>(row), {},
             [&](DrawingSurface& surface, const ViewScale& scale) {
               PtnPlacement placement = placed;
               placement.numerator = scale.multiplier;
               placement.denominator = scale.divisor;
               DrawPtnObj(surface, object, {0, 128, 0}, placement, GoldenFont());
             });
}

class ShapeImages : public testing::TestWithParam<int> {};

TEST_P(ShapeImages, PensOfAllClasses) {
  struct Look {
    std::int32_t style;
    std::int32_t width;
  };
  constexpr std::array<Look, 5> kLooks = {{{0, 1}, {0, 3}, {1, 0}, {1, 1}, {1, 3}}};
  Sheet sheet(5, 5, kTile, GetParam());
  for (std::size_t row = 0; row < kLooks.size(); ++row) {
    const Objects objects = OneOfEach();
    for (std::size_t column = 0; column < objects.size(); ++column) {
      objects[column]->style = kLooks[row].style;
      objects[column]->width = kLooks[row].width;
      Draw(sheet, column, row, *objects[column]);
    }
  }
  EXPECT_TRUE(MatchesImageGolden("pens_zoom" + std::to_string(GetParam()), sheet.Image()));
}

TEST_P(ShapeImages, FillModes) {
  constexpr std::array<std::int32_t, 3> kFills = {-1, 1, 0};
  Sheet sheet(3, 4, kTile, GetParam());
  for (std::size_t column = 0; column < kFills.size(); ++column) {
    for (std::size_t row = 0; row < 4; ++row) {
      std::unique_ptr<SPtnObj> shape = Star();
      if (row < 2) shape = std::make_unique<SPtnObjCircle>(SPoint{2, 5}, SPoint{28, 25});
      shape->fill = kFills[column];
      shape->width = row % 2 == 0 ? 1 : 4;
      Draw(sheet, column, row, *shape);
    }
  }
  EXPECT_TRUE(MatchesImageGolden("fills_zoom" + std::to_string(GetParam()), sheet.Image()));
}

TEST_P(ShapeImages, ArcsRunCounterClockwise) {
  Sheet sheet(4, 4, kTile, GetParam());
  for (std::int32_t begin = 0; begin < 4; ++begin) {
    for (std::int32_t end = 0; end < 4; ++end) {
      Draw(sheet, static_cast<std::size_t>(begin), static_cast<std::size_t>(end), *Arc(begin, end));
    }
  }
  EXPECT_TRUE(MatchesImageGolden("arcs_zoom" + std::to_string(GetParam()), sheet.Image()));
}

INSTANTIATE_TEST_SUITE_P(Zooms, ShapeImages, testing::Values(1, 2, 5),
                         testing::PrintToStringParamName());

TEST(ShapeImages, AllOrientations) {
  Sheet sheet(8, 6, kTile, 2);
  Objects objects = OneOfEach();
  auto text = std::make_unique<SPtnObjText>();
  text->SetText(u"Rg");
  text->SetPosition({12, 12});
  objects.push_back(std::move(text));
  for (std::int32_t code = 0; code < 8; ++code) {
    for (std::size_t row = 0; row < objects.size(); ++row) {
      PtnPlacement placement;
      placement.orientation = code;
      placement.box = {30, 30};
      Draw(sheet, static_cast<std::size_t>(code), row, *objects[row], placement);
    }
  }
  EXPECT_TRUE(MatchesImageGolden("orientations", sheet.Image()));
}

// The anchor of each text is the crossing of two grey lines.
TEST(ShapeImages, TextsStandWhereTheirAlignmentSays) {
  constexpr std::array<std::int32_t, 9> kAligns = {0, 2, 1, 8, 10, 9, 4, 6, 5};
  Sheet sheet(9, 4, {60, 60}, 2);
  for (std::size_t row = 0; row < 4; ++row) {
    for (std::size_t column = 0; column < kAligns.size(); ++column) {
      SPtnObjText text;
      text.SetText(u"Agp");
      text.SetAlign(kAligns[column]);
      text.SetHorizontal(row % 2 == 0);
      if (row >= 2) {
        text.SetFontName(u"DejaVu Serif");
        text.SetFontSize(12);
        text.SetBold(true);
      }
      sheet.Draw(static_cast<int>(column), static_cast<int>(row), {30, 30},
                 [&](DrawingSurface& surface, const ViewScale& scale) {
                   const Pen grey{{192, 192, 192}, 1};
                   surface.Line(scale.Map({-20, 0}), scale.Map({20, 0}), grey);
                   surface.Line(scale.Map({0, -20}), scale.Map({0, 20}), grey);
                   PtnPlacement placement;
                   placement.numerator = scale.multiplier;
                   DrawPtnObj(surface, text, {0, 128, 0}, placement, GoldenFont());
                   // The bounding rectangle that the text has from now on.
                   const SRect bounds = text.GetBoundingRect();
                   surface.FocusRect(PixelRect::Around(scale.Map(bounds.TopLeft()),
                                                       scale.Map(bounds.BottomRight())));
                 });
    }
  }
  EXPECT_TRUE(MatchesImageGolden("texts", sheet.Image()));
}

}  // namespace
}  // namespace mivo
