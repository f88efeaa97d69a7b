#include "pin_drawing.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "case_name.h"
#include "golden.h"
#include "recording_surface.h"

namespace mivo {
namespace {

// Characters are 6 pixels wide and the em is 10 high.
const SCommonFont kFont{u"F", 10, 400, false};
constexpr ViewScale kPlain{1, 1, 1, 1};

PinPicture Pin(PinSide side, std::int32_t type = 0) {
  PinPicture pin;
  pin.point = {100, 200};
  pin.side = side;
  pin.type = type;
  pin.name = u"AB";
  pin.number = u"12";
  return pin;
}

std::string Drawn(const PinPicture& pin, DrawFlags flags, const ViewScale& scale = kPlain,
                  const SRect* clip = nullptr) {
  RecordingSurface surface({1000, 1000});
  DrawPin(surface, pin, flags, scale, kFont, clip);
  return surface.TakeRecord();
}

struct Side {
  const char* name;
  PinSide side;
};
struct Shape {
  const char* name;
  std::int32_t type;
};
constexpr std::array<Side, 4> kSides = {{{"left", PinSide::Left},
                                         {"top", PinSide::Top},
                                         {"right", PinSide::Right},
                                         {"bottom", PinSide::Bottom}}};
constexpr std::array<Shape, 6> kShapes = {
    {{"plain", 0}, {"S", 1}, {"Z", 2}, {"clock", 4}, {"negation", 8}, {"both", 12}}};

TEST(DrawPin, ShapesAndTextsOnAllSides) {
  std::string record;
  for (const std::int32_t zoom : {1, 5}) {
    for (const Side& side : kSides) {
      for (const Shape& shape : kShapes) {
        record += "--- zoom " + std::to_string(zoom) + ", " + side.name + ", " + shape.name + "\n";
        record += Drawn(Pin(side.side, shape.type), kDrawNormal, {zoom, 1, zoom, 1});
      }
    }
  }
  EXPECT_TRUE(MatchesGolden(MIVO_GOLDENS "/pins.txt", record));
}

TEST(DrawPin, SwappedTextsChangePlacesAndKeepTheirPlacesLayout) {
  std::string record;
  for (const Side& side : kSides) {
    record += std::string("--- ") + side.name + "\n";
    record += Drawn(Pin(side.side), kDrawNormal | kDrawSwapped);
  }
  EXPECT_TRUE(MatchesGolden(MIVO_GOLDENS "/pins_swapped.txt", record));
}

TEST(DrawPin, ZTakesPrecedenceOverNegation) {
  EXPECT_EQ(Drawn(Pin(PinSide::Left, 2 | 8), kDrawNormal | kDrawNoTexts),
            "rectangle 98,198 5x5 pen=solid:1#008000 brush=hollow\n");
}

TEST(DrawPin, PointsAreScaledAndTruncatedEach) {
  PinPicture pin = Pin(PinSide::Left);
  pin.point = {-1, 3};
  EXPECT_EQ(Drawn(pin, kDrawNormal | kDrawNoTexts, {3, 2, 1, 1}),
            "line -16,4 -1,4 pen=solid:1#008000\n");
}

// --- Colours
// ---------------------------------------------------------------------------------------

struct ColorCase {
  const char* name;
  DrawFlags flags;
  std::int32_t type;
  std::uint32_t mask;
  const char* line;  // colours; "" for what is not drawn
  const char* nameColor;
  const char* number;
};

class PinColors : public testing::TestWithParam<ColorCase> {};

TEST_P(PinColors, FollowFlagsAndPin) {
  const ColorCase& c = GetParam();
  PinPicture pin = Pin(PinSide::Left, c.type);
  pin.nameMask = c.mask;
  std::string expected;
  const auto add = [&](std::string call, std::string_view color) {
    if (!color.empty()) expected += call.append(color) + "\n";
  };
  add("line 90,200 100,200 pen=solid:1", c.line);
  const bool swapped = (c.flags & kDrawSwapped) != 0;
  add(swapped ? "text 79,188 \"AB\" font=F:10:400 " : "text 105,193 \"AB\" font=F:10:400 ",
      c.nameColor);
  add(swapped ? "text 105,193 \"12\" font=F:10:400 " : "text 79,188 \"12\" font=F:10:400 ",
      c.number);
  EXPECT_EQ(Drawn(pin, c.flags), expected);
}

constexpr std::uint32_t kAll = 0xFFFFFFFF;

INSTANTIATE_TEST_SUITE_P(
    Flags, PinColors,
    testing::Values(
        ColorCase{"Normal", kDrawNormal, 0, kAll, "#008000", "#0000ff", "#800080"},
        ColorCase{"HiddenNumber", kDrawNormal, 16, kAll, "#008000", "#0000ff", "#dcdcdc"},
        ColorCase{"HiddenName", kDrawNormal, 0, 0, "#008000", "#dcdcdc", "#800080"},
        ColorCase{"Swapped", kDrawNormal | kDrawSwapped, 0, kAll, "#008000", "#800080", "#0000ff"},
        ColorCase{"SwappedHiddenNumber", kDrawNormal | kDrawSwapped, 16, kAll, "#008000", "#800080",
                  "#dcdcdc"},
        ColorCase{"Grey", kDrawGrey, 0, 0, "#dcdcdc", "#dcdcdc", "#dcdcdc"},
        ColorCase{"GreyBeforeNormal", kDrawGrey | kDrawNormal, 0, kAll, "#dcdcdc", "#dcdcdc",
                  "#dcdcdc"},
        ColorCase{"Selected", kDrawSelected, 0, kAll, "#ff0000", "#ff0000", "#ff0000"},
        ColorCase{"SelectedHiddenName", kDrawSelected, 0, 0, "#ff0000", "#ff8080", "#ff0000"},
        ColorCase{"SelectedHiddenNumber", kDrawSelected, 16, kAll, "#ff0000", "#ff0000", "#ff0000"},
        ColorCase{"SelectedSwapped", kDrawSelected | kDrawSwapped, 0, kAll, "#ff0000", "#ff0000",
                  "#ff0000"},
        ColorCase{"LineOrderNormalMonochrome", kDrawNormal | kDrawMonochrome, 0, kAll, "#008000",
                  "#000000", "#000000"},
        ColorCase{"LineOrderMonochromeSelected", kDrawMonochrome | kDrawSelected, 0, kAll,
                  "#000000", "#ff0000", "#ff0000"},
        ColorCase{"Monochrome", kDrawMonochrome, 16, 0, "#000000", "#000000", "#000000"},
        ColorCase{"NoTexts", kDrawNormal | kDrawNoTexts, 0, kAll, "#008000", "", ""},
        ColorCase{"NoColor", 0, 0, kAll, "", "#0000ff", "#800080"}),
    kCaseName);

TEST(DrawPin, BelowZoomFactor1ThereAreNoTexts) {
  EXPECT_EQ(Drawn(Pin(PinSide::Left), kDrawNormal, {1, 2, 1, 1}),
            "line 45,100 50,100 pen=solid:0#008000\n");
}

TEST(DrawPin, EmptyTextsAreNotDrawn) {
  PinPicture pin = Pin(PinSide::Left);
  pin.name = u"";
  pin.number = u"";
  EXPECT_EQ(Drawn(pin, kDrawNormal), "line 90,200 100,200 pen=solid:1#008000\n");
}

// --- Clip
// ------------------------------------------------------------------------------------------

// What is drawn of a pin at (100, 200) when only one point can be seen.
std::string Seen(PinSide side, SPoint point) {
  const SRect clip{point.x, point.y, point.x, point.y};
  const std::string record = Drawn(Pin(side), kDrawNormal, kPlain, &clip);
  std::string seen;
  if (record.find("line ") != std::string::npos) seen += 'L';
  if (record.find("\"AB\"") != std::string::npos) seen += 'N';
  if (record.find("\"12\"") != std::string::npos) seen += '#';
  return seen;
}

struct ClipCase {
  const char* name;
  PinSide side;
  SPoint point;  // relative to the pin point
  const char* seen;
};

class PinClip : public testing::TestWithParam<ClipCase> {};

TEST_P(PinClip, LeavesOutWhatCannotBeSeen) {
  const ClipCase& c = GetParam();
  EXPECT_EQ(Seen(c.side, SPoint{100, 200} + c.point), c.seen);
}

constexpr PinSide kL = PinSide::Left;
constexpr PinSide kT = PinSide::Top;
constexpr PinSide kR = PinSide::Right;
constexpr PinSide kB = PinSide::Bottom;

INSTANTIATE_TEST_SUITE_P(
    Points, PinClip,
    testing::Values(
        ClipCase{"LeftFirst", kL, {-10, 4}, "L"}, ClipCase{"LeftBefore", kL, {-11, 4}, ""},
        ClipCase{"LeftAbove", kL, {-10, -5}, "#"}, ClipCase{"LeftLowest", kL, {-10, 4}, "L"},
        ClipCase{"LeftBelow", kL, {-10, 5}, ""}, ClipCase{"LeftLast", kL, {5, 3}, "L"},
        ClipCase{"LeftBehind", kL, {6, 3}, ""}, ClipCase{"LeftName", kL, {5, -7}, "N"},
        ClipCase{"LeftNameEnd", kL, {20, 2}, "N"}, ClipCase{"LeftBehindName", kL, {21, 2}, ""},
        ClipCase{"LeftNumber", kL, {-25, -10}, "#"}, ClipCase{"LeftNumberEnd", kL, {-10, -3}, "L#"},
        ClipCase{"LeftBeforeNumber", kL, {-26, -10}, ""},
        ClipCase{"LeftAboveNumber", kL, {-25, -11}, ""}, ClipCase{"TopFirst", kT, {4, -10}, "L"},
        ClipCase{"TopBefore", kT, {4, -11}, ""}, ClipCase{"TopLast", kT, {3, 5}, "L"},
        ClipCase{"TopName", kT, {-7, 5}, "N"}, ClipCase{"TopNameEnd", kT, {2, 20}, "N"},
        ClipCase{"TopNumber", kT, {-10, -25}, "#"}, ClipCase{"TopNumberEnd", kT, {-5, -10}, "#"},
        ClipCase{"RightFirst", kR, {-6, 3}, "L"}, ClipCase{"RightBefore", kR, {-7, 3}, ""},
        ClipCase{"RightLast", kR, {9, 4}, "L"}, ClipCase{"RightBehind", kR, {10, 4}, ""},
        ClipCase{"RightName", kR, {-21, -7}, "N"}, ClipCase{"RightNameEnd", kR, {-6, 2}, "LN"},
        ClipCase{"RightNumber", kR, {9, -10}, "#"}, ClipCase{"RightNumberEnd", kR, {24, -3}, "#"},
        ClipCase{"BottomFirst", kB, {4, -6}, "L"}, ClipCase{"BottomBefore", kB, {4, -7}, ""},
        ClipCase{"BottomLast", kB, {4, 9}, "L"}, ClipCase{"BottomBehind", kB, {4, 10}, ""},
        ClipCase{"BottomName", kB, {-7, -21}, "N"}, ClipCase{"BottomNumber", kB, {-10, 9}, "#"},
        ClipCase{"BottomNumberEnd", kB, {-3, 24}, "#"}),
    kCaseName);

TEST(DrawPin, SPinsHaveTheirNumberCloser) {
  const SRect clip{97, 190, 97, 190};
  EXPECT_EQ(Drawn(Pin(PinSide::Left, SCompPin::kShapeS), kDrawNormal, kPlain, &clip),
            "text 86,188 \"12\" font=F:10:400 #800080\n");
  EXPECT_EQ(Drawn(Pin(PinSide::Left), kDrawNormal, kPlain, &clip), "");
}

// --- From the model
// --------------------------------------------------------------------------------

TEST(PinPicture, TakesTheNumberOfTheShownBlock) {
  SCompPin pin(2);
  pin.SetNumber(0, u"1");
  pin.SetNameFromDisplayText(u"\\R");
  pin.location = {PinSide::Bottom, 3};
  pin.type = 12;
  pin.nameMask = 5;
  const PinPicture first = PinPicture::Of(pin, {4, 6}, 0);
  EXPECT_EQ(first.point, (SPoint{30, 60}));
  EXPECT_EQ(first.side, PinSide::Bottom);
  EXPECT_EQ(first.type, 12);
  EXPECT_EQ(first.name, pin.Name());
  EXPECT_EQ(first.nameMask, 5u);
  EXPECT_EQ(first.number, u"1");
  EXPECT_EQ(PinPicture::Of(pin, {4, 6}, 1).number, u"");
  EXPECT_EQ(PinPicture::Of(pin, {4, 6}, 7).number, u"");
}

}  // namespace
}  // namespace mivo
