#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "bit_pattern_creation.h"
#include "component_renderer.h"
#include "image_golden.h"
#include "pixel_art.h"
#include "ptn_obj_arc.h"
#include "ptn_obj_line.h"
#include "ptn_obj_polygon.h"
#include "ptn_obj_text.h"
#include "qt_surface.h"
#include "view_coordinates.h"

namespace mivo {
namespace {

SCompPin Pin(PinSide side, std::int32_t offset, std::u16string_view name,
             std::u16string_view number, std::int32_t type = 0) {
  SCompPin pin(1);
  pin.location = {side, offset};
  pin.SetNameFromDisplayText(name);
  pin.SetNumber(0, number);
  pin.type = type;
  return pin;
}

// A flip-flop as a plain body.
SComponent FlipFlop() {
  SComponent component;
  component.SetSize({6, 8}, false, false);
  component.SetPins({Pin(PinSide::Left, 2, u"D", u"2"), Pin(PinSide::Left, 4, u"CK", u"3", 4),
                     Pin(PinSide::Right, 2, u"Q", u"5"), Pin(PinSide::Right, 6, u"\\Q", u"6"),
                     Pin(PinSide::Top, 3, u"\\P\\R", u"4", 8),
                     Pin(PinSide::Bottom, 3, u"\\C\\L", u"1", 8)});
  return component;
}

std::unique_ptr<SPtnObjLine> Line(SPoint start, SPoint end) {
  auto line = std::make_unique<SPtnObjLine>();
  line->SetStart(start);
  line->SetEnd(end);
  return line;
}

// An AND gate as a drawn pattern.
SComponent Gate(SurfaceFactory& surfaces) {
  SComponent component;
  component.SetSize({4, 4}, true, false);
  component.SetPins({Pin(PinSide::Left, 1, u"", u"1"), Pin(PinSide::Left, 3, u"", u"2"),
                     Pin(PinSide::Right, 2, u"", u"3", 8)});
  SPtn& pattern = *component.MutablePattern();
  pattern.objects.push_back(Line({20, 2}, {0, 2}));
  pattern.objects.push_back(Line({0, 2}, {0, 38}));
  pattern.objects.push_back(Line({0, 38}, {20, 38}));
  auto arc = std::make_unique<SPtnObjArc>();
  arc->SetCenter({20, 20});
  arc->SetRadius(18);
  arc->SetBeginFromPoint(20, 100);
  arc->SetEndFromPoint(20, -100);
  pattern.objects.push_back(std::move(arc));
  auto text = std::make_unique<SPtnObjText>();
  text->SetText(u"&");
  text->SetPosition({15, 20});
  text->SetAlign(SPtnObjText::kCenter | SPtnObjText::kMiddle);
  text->SetFontName(u"DejaVu Sans");
  text->SetFontSize(16);
  pattern.objects.push_back(std::move(text));
  SCompEditDoc document;
  document.Load(&component);
  CreateBitPattern(&component, document, surfaces, GoldenFont());
  return component;
}

struct ShownCase {
  const char* name;
  std::int32_t zoomIndex;
  double devicePixelRatio;
};

class ComponentImages : public testing::TestWithParam<ShownCase> {
 protected:
  // A window that shows all of the component and nothing else.
  RasterImage Shown(const SComponent& component) {
    ViewCoordinates view;
    view.SetDevicePixelRatio(GetParam().devicePixelRatio);
    view.SetZoom(GetParam().zoomIndex);
    const std::int32_t multiplier = view.Scale().multiplier;
    const PixelSize client{(component.Size().x * 10 + 50) * multiplier,
                           (component.Size().y * 10 + 50) * multiplier};
    view.SetBody(component.Size());
    view.SetClientSize(client);
    view.ScrollTo({25 * multiplier, 25 * multiplier});
    RasterImage image = *RasterImage::Create(client, ImageDepth::Color);
    const auto surface = surfaces_.CreateSurface(image);
    surface->SetOrigin(view.Origin());
    const ComponentPicture picture = ComponentPicture::Of(component);
    ComponentRenderer(*surface, GoldenFont()).Render(&picture, view.Scale());
    return image;
  }

  QtSurfaceFactory surfaces_;
};

TEST_P(ComponentImages, APlainBody) {
  RasterImage image = Shown(FlipFlop());
  EXPECT_TRUE(MatchesImageGolden(std::string("flip_flop_") + GetParam().name, image));
}

TEST_P(ComponentImages, APatternOverItsBitPattern) {
  RasterImage image = Shown(Gate(surfaces_));
  EXPECT_TRUE(MatchesImageGolden(std::string("gate_") + GetParam().name, image));
}

INSTANTIATE_TEST_SUITE_P(Displays, ComponentImages,
                         testing::Values(ShownCase{"zoom1", 0, 1}, ShownCase{"zoom2", 1, 1},
                                         ShownCase{"zoom5", 2, 1}, ShownCase{"zoom10", 3, 1},
                                         ShownCase{"zoom1_ratio1_5", 0, 1.5},
                                         ShownCase{"zoom2_ratio2", 1, 2}),
                         [](const auto& test) { return std::string(test.param.name); });

TEST(SelectionImages, SelectionNodeMarksAndFocus) {
  QtSurfaceFactory surfaces;
  SComponent component = Gate(surfaces);
  SCompEditDoc document;
  document.Load(&component);
  document.RaiseOperation();
  // The pins come first, then three lines and the arc.
  ASSERT_TRUE(document.PickElement(6));
  RasterImage image = *RasterImage::Create({90 * 5, 90 * 5}, ImageDepth::Color);
  const auto surface = surfaces.CreateSurface(image);
  surface->SetOrigin({-25 * 5, -25 * 5});
  const ViewScale scale{5, 1, 5, 1};
  const ComponentPicture picture =
      ComponentPicture::Of(component, document.BodySize(), document.Elements());
  ComponentRenderer renderer(*surface, GoldenFont());
  renderer.Render(&picture, scale);
  renderer.RenderSelection(document.Selection(), document.BodySize(), 0, false, scale);
  renderer.RenderNodeMarks(*document.Selection()[0].Object(), scale);
  renderer.RenderFocus(document.SelectionRect(), scale);
  EXPECT_TRUE(MatchesImageGolden("selection", image));
}

}  // namespace
}  // namespace mivo
