#include <gtest/gtest.h>

#include <array>
#include <string>

#include "colors.h"
#include "image_golden.h"
#include "pin_drawing.h"
#include "pin_text.h"
#include "qt_surface.h"
#include "sheet.h"

namespace mivo {
namespace {

constexpr std::array<PinSide, 4> kSides = {PinSide::Left, PinSide::Top, PinSide::Right,
                                           PinSide::Bottom};
constexpr std::array<std::int32_t, 6> kShapes = {0, 1, 2, 4, 8, 12};
constexpr SPoint kTile{60, 60};
constexpr SPoint kMiddle{30, 30};

// The body's edge on both sides of a pin point.
void DrawEdge(DrawingSurface& surface, PinSide side, const ViewScale& scale) {
  const bool isUpright = side == PinSide::Left || side == PinSide::Right;
  const SPoint along = isUpright ? SPoint{0, 8} : SPoint{8, 0};
  surface.Line(scale.Map(SPoint{} - along), scale.Map(along), {colors::kBody, scale.UnitWidth()});
}

class PinImages : public testing::TestWithParam<int> {};

TEST_P(PinImages, SixShapesOnFourSides) {
  const int zoom = GetParam();
  Sheet sheet(6, 4, kTile, zoom);
  for (std::size_t row = 0; row < kSides.size(); ++row) {
    for (std::size_t column = 0; column < kShapes.size(); ++column) {
      sheet.Draw(static_cast<int>(column), static_cast<int>(row), kMiddle,
                 [&](DrawingSurface& surface, const ViewScale& scale) {
                   SCompPin pin(1);
                   pin.location.side = kSides[row];
                   pin.type = kShapes[column];
                   pin.SetNameFromDisplayText(u"Q\\R");
                   pin.SetNumber(0, u"1");
                   PinPicture picture = PinPicture::Of(pin, {0, 0}, 0);
                   DrawEdge(surface, kSides[row], scale);
                   DrawPin(surface, picture, kDrawNormal, scale, GoldenFont(), nullptr);
                 });
    }
  }
  EXPECT_TRUE(MatchesImageGolden("pins_zoom" + std::to_string(zoom), sheet.Image()));
}

INSTANTIATE_TEST_SUITE_P(Zooms, PinImages, testing::Values(1, 2, 5, 10),
                         testing::PrintToStringParamName());

TEST(PinImages, NamePartsShownAndHiddenOverlinedSwappedAndSelected) {
  struct Look {
    std::uint32_t mask;
    std::int32_t type;
    DrawFlags flags;
  };
  constexpr std::array<Look, 6> kLooks = {{{0xFFFFFFFF, 0, kDrawNormal},
                                           {0b101, 0, kDrawNormal},
                                           {0b010, 16, kDrawNormal},
                                           {0xFFFFFFFF, 0, kDrawNormal | kDrawSwapped},
                                           {0b011, 0, kDrawSelected},
                                           {0b011, 0, kDrawGrey}}};
  for (const int zoom : {1, 3}) {
    Sheet sheet(6, 4, {110, 110}, zoom);
    for (std::size_t row = 0; row < kSides.size(); ++row) {
      for (std::size_t column = 0; column < kLooks.size(); ++column) {
        sheet.Draw(static_cast<int>(column), static_cast<int>(row), {55, 55},
                   [&](DrawingSurface& surface, const ViewScale& scale) {
                     SCompPin pin(1);
                     pin.location.side = kSides[row];
                     pin.type = kLooks[column].type;
                     pin.nameMask = kLooks[column].mask;
                     pin.SetNameFromDisplayText(u"A\\B\\C/\\W\\R/g");
                     pin.SetNumber(0, u"127");
                     DrawEdge(surface, kSides[row], scale);
                     DrawPin(surface, PinPicture::Of(pin, {0, 0}, 0), kLooks[column].flags, scale,
                             GoldenFont(), nullptr);
                   });
      }
    }
    EXPECT_TRUE(MatchesImageGolden("pin_names_zoom" + std::to_string(zoom), sheet.Image()));
  }
}

// --- Bars
// ------------------------------------------------------------------------------------------

struct BarCase {
  int zoom;
  bool vertical;
};

class PinBars : public testing::TestWithParam<BarCase> {};

// The bar is the only thing of the name's colour in its rows or columns: those of the leading above
// the letters.
TEST_P(PinBars, LieExactlyOverTheirCharacters) {
  const int zoom = GetParam().zoom;
  const bool vertical = GetParam().vertical;
  QtFonts fonts;
  RasterImage image = WhiteImage({60 * zoom, 60 * zoom});
  QtSurface surface(image, fonts);
  const ViewScale scale{zoom, 1, zoom, 1};
  const PinTextPlace place{vertical ? SPoint{30, 50} : SPoint{10, 30}, vertical, 0};
  const Color blue{0, 0, 255};
  DrawPinName(surface, place, PinNameFromDisplayText(u"acW\\x\\o\\mn"), -1, {blue, blue},
              SCompPin::kWholeNameShown, scale, GoldenFont());

  const Font font = ScaledFont(GoldenFont(), vertical, zoom, 1);
  const std::int32_t from = surface.MeasureText(u"acW", font).width;
  const std::int32_t to = surface.MeasureText(u"acWxom", font).width;
  const PixelPoint anchor = scale.Map(place.anchor);
  // The line along which the middle of the bar runs.
  const auto at = [&](std::int32_t along) {
    return vertical ? image.PixelAt(anchor.x - 9 * zoom, anchor.y - 1 - along)
                    : image.PixelAt(anchor.x + along, anchor.y - 9 * zoom);
  };
  for (std::int32_t along = -5; along < to + 5 * zoom; ++along) {
    EXPECT_EQ(at(along) == blue, from <= along && along < to) << along;
  }
}

INSTANTIATE_TEST_SUITE_P(Zooms, PinBars,
                         testing::Values(BarCase{1, false}, BarCase{2, false}, BarCase{5, false},
                                         BarCase{10, false}, BarCase{1, true}, BarCase{2, true},
                                         BarCase{5, true}, BarCase{10, true}));

TEST(PinNames, PartsStandWhereTheyStandInTheWholeName) {
  for (const bool vertical : {false, true}) {
    for (const int zoom : {1, 2, 3, 5, 10}) {
      const auto drawn = [&, isVertical = vertical](std::uint32_t mask) {
        QtFonts fonts;
        RasterImage image = WhiteImage({80 * zoom, 80 * zoom});
        QtSurface surface(image, fonts);
        DrawPinName(surface, {{20, 70}, isVertical, 0}, u"AV/fi/To/WA", -1,
                    {{0, 0, 255}, {0, 0, 255}}, mask, {zoom, 1, zoom, 1}, GoldenFont());
        return PixelArt(image);
      };
      EXPECT_EQ(drawn(0), drawn(SCompPin::kWholeNameShown)) << zoom << (vertical ? " upright" : "");
    }
  }
}

}  // namespace
}  // namespace mivo
