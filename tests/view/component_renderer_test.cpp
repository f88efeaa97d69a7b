#include "component_renderer.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "comp_edit_doc.h"
#include "golden.h"
#include "ptn_obj_circle.h"
#include "ptn_obj_line.h"
#include "ptn_obj_polygon.h"
#include "recording_surface.h"

namespace mivo {
namespace {

constexpr ViewScale kPlain{1, 1, 1, 1};
const SCommonFont kFont{u"F", 10, 400, false};

SCompPin Pin(PinSide side, std::int32_t offset, std::u16string_view name,
             std::u16string_view number) {
  SCompPin pin(2);
  pin.location = {side, offset};
  pin.SetNameFromDisplayText(name);
  pin.SetNumber(0, number);
  pin.SetNumber(1, std::u16string(number) + u"b");
  return pin;
}

class Renderer : public testing::Test {
 protected:
  Renderer() {
    component_.SetBlockCount(2);
    component_.SetSize({3, 2}, false, false);
    component_.SetPins({Pin(PinSide::Left, 1, u"A", u"1"), Pin(PinSide::Right, 1, u"B", u"2")});
  }

  void AddPattern() {
    component_.UsePattern(true, false);
    SPtn& pattern = *component_.MutablePattern();
    auto line = std::make_unique<SPtnObjLine>();
    line->SetStart({0, 0});
    line->SetEnd({30, 20});
    pattern.objects.push_back(std::move(line));
    pattern.objects.push_back(std::make_unique<SPtnObjCircle>(SPoint{5, 5}, SPoint{15, 15}));
    pattern.SetBitPatternArea({3, 2}, false);
    pattern.bitPattern->Row(3, 1)[0] = 0xA0;
  }

  std::string Rendered(const ComponentPicture* picture, const ViewScale& scale) {
    RecordingSurface surface({60, 40});
    surface.SetOrigin({-15, -10});
    ComponentRenderer(surface, kFont).Render(picture, scale);
    return surface.TakeRecord();
  }

  SComponent component_;
};

TEST_F(Renderer, APlainBodyWithItsPins) {
  const ComponentPicture picture = ComponentPicture::Of(component_);
  EXPECT_TRUE(MatchesGolden(MIVO_GOLDENS "/component_plain.txt", Rendered(&picture, kPlain)));
}

TEST_F(Renderer, APatternTakesThePlaceOfTheBody) {
  AddPattern();
  const ComponentPicture picture = ComponentPicture::Of(component_);
  EXPECT_TRUE(MatchesGolden(MIVO_GOLDENS "/component_pattern.txt", Rendered(&picture, kPlain)));
}

TEST_F(Renderer, ThePlainFrameGrowsWithTheZoomAndThePatternsDoesNot) {
  const ComponentPicture plain = ComponentPicture::Of(component_);
  EXPECT_NE(Rendered(&plain, {5, 1, 5, 1})
                .find("line 0,0 150,0 150,100 0,100 0,0 "
                      "pen=solid:5#008000\n"),
            std::string::npos);
  AddPattern();
  const ComponentPicture pattern = ComponentPicture::Of(component_);
  EXPECT_NE(Rendered(&pattern, {5, 1, 5, 1})
                .find("line 0,0 150,0 150,100 0,100 0,0 "
                      "pen=solid:0#c0c0c0\n"),
            std::string::npos);
}

TEST_F(Renderer, WithoutAComponentOnlyTheWhiteBackground) {
  EXPECT_EQ(Rendered(nullptr, kPlain), "origin -15,-10\nfill -15,-10 60x40 #ffffff\n");
}

TEST_F(Renderer, AHiddenNumberIsStillShownInLightGrey) {
  SCompPin pin = Pin(PinSide::Left, 1, u"A", u"7");
  pin.type = SCompPin::kHideNumber;
  component_.SetPins({pin});
  const ComponentPicture picture = ComponentPicture::Of(component_);
  EXPECT_NE(Rendered(&picture, kPlain).find("\"7\" font=F:10:400 #dcdcdc\n"), std::string::npos);
}

TEST_F(Renderer, ShowsTheNumbersOfTheCurrentBlock) {
  ComponentPicture picture = ComponentPicture::Of(component_);
  picture.block = 1;
  const std::string record = Rendered(&picture, kPlain);
  EXPECT_NE(record.find("\"1b\""), std::string::npos);
  EXPECT_EQ(record.find("\"1\""), std::string::npos);
}

TEST_F(Renderer, SwapsNamesAndNumbers) {
  ComponentPicture picture = ComponentPicture::Of(component_);
  picture.swapped = true;
  EXPECT_NE(Rendered(&picture, kPlain).find("\"A\" font=F:10:400 #800080"), std::string::npos);
}

TEST_F(Renderer, PinsOutOfSightAreSkipped) {
  const ComponentPicture picture = ComponentPicture::Of(component_);
  RecordingSurface surface({20, 20});
  surface.SetOrigin({500, 500});
  ComponentRenderer(surface, kFont).Render(&picture, kPlain);
  EXPECT_EQ(surface.TakeRecord().find("text"), std::string::npos);
}

TEST_F(Renderer, ADocumentShowsItsAliveElements) {
  AddPattern();
  SCompEditDoc document;
  document.Load(&component_);
  document.RaiseOperation();
  ASSERT_TRUE(document.PickElement(0));
  const ComponentPicture picture =
      ComponentPicture::Of(component_, document.BodySize(), document.Elements());
  EXPECT_EQ(picture.pins.size(), 1u);
  EXPECT_EQ(picture.objects.size(), 2u);
  EXPECT_EQ(picture.objects[0], document.Elements()[2].Object());
  EXPECT_TRUE(picture.hasPattern);
  EXPECT_NE(picture.bitPattern, nullptr);
  EXPECT_EQ(picture.bodySize, (SPoint{3, 2}));
}

TEST_F(Renderer, TheSelectionIsRed) {
  AddPattern();
  SCompEditDoc document;
  document.Load(&component_);
  document.RaiseOperation();
  ASSERT_TRUE(document.PickElement(0));
  RecordingSurface surface({100, 100});
  surface.SetOrigin({-50, -50});
  ComponentRenderer renderer(surface, kFont);
  renderer.RenderSelection(document.Selection(), document.BodySize(), 0, false, kPlain);
  EXPECT_EQ(surface.TakeRecord(),
            "origin -50,-50\n"
            "line -10,10 0,10 pen=solid:1#ff0000\n"
            "text 5,3 \"A\" font=F:10:400 #ff0000\n"
            "text -15,-2 \"1\" font=F:10:400 #ff0000\n");
  ASSERT_TRUE(document.PickElement(3));
  renderer.RenderSelection(document.Selection(), document.BodySize(), 0, false, kPlain);
  EXPECT_EQ(surface.TakeRecord(), "ellipse 5,5 11x11 pen=solid:1#ff0000 brush=hollow\n");
}

TEST_F(Renderer, AHeldPinLooksSelected) {
  RecordingSurface surface({100, 100});
  ComponentRenderer(surface, kFont)
      .RenderHeldPin(Pin(PinSide::Bottom, 2, u"", u""), {3, 2}, false, {2, 1, 2, 1});
  EXPECT_EQ(surface.TakeRecord(), "line 40,60 40,40 pen=solid:2#ff0000\n");
}

TEST_F(Renderer, NodeMarksReachThreePixelsAroundTheirNodes) {
  RecordingSurface surface({100, 100});
  ComponentRenderer renderer(surface, kFont);
  const SPtnObjPolygon polygon({{10, 20}, {30, -4}});
  renderer.RenderNodeMarks(polygon, {5, 1, 5, 1});
  EXPECT_EQ(surface.TakeRecord(),
            "rectangle 47,97 7x7 pen=solid:1#ff0000 brush=hollow\n"
            "rectangle 147,-23 7x7 pen=solid:1#ff0000 brush=hollow\n");
  renderer.RenderNodeMarks(SPtnObjPolygon({{10, 20}}), {10, 1, 5, 2});
  EXPECT_EQ(surface.TakeRecord(), "rectangle 94,194 13x13 pen=solid:1#ff0000 brush=hollow\n");
}

TEST_F(Renderer, TheFocusRectangleRunsThroughTheCornerPoints) {
  RecordingSurface surface({100, 100});
  ComponentRenderer(surface, kFont).RenderFocus({-1, 2, 9, 4}, {5, 1, 5, 1});
  EXPECT_EQ(surface.TakeRecord(), "focus -5,10 51x11\n");
}

}  // namespace
}  // namespace mivo
