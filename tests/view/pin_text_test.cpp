#include "pin_text.h"

#include <gtest/gtest.h>

#include <string>

#include "case_name.h"
#include "comp_pin.h"
#include "ptn_obj_text.h"
#include "recording_surface.h"

namespace mivo {
namespace {

constexpr Color kShown{0, 0, 255};
constexpr Color kHidden{220, 220, 220};
// Characters are 6 pixels wide, so that positions can be read off; the cell is 12 high.
const SCommonFont kFont{u"F", 10, 400, false};

std::string Drawn(std::u16string_view displayName, std::uint32_t mask,
                  const PinTextPlace& place = {}, const ViewScale& scale = {},
                  std::int32_t maxLength = -1) {
  RecordingSurface surface({100, 100});
  DrawPinName(surface, place, PinNameFromDisplayText(displayName), maxLength, {kShown, kHidden},
              mask, scale, kFont);
  return surface.TakeRecord();
}

TEST(DrawPinName, WholeWhenAllPartsAreShown) {
  EXPECT_EQ(Drawn(u"A/B", 0xFFFFFFFF), "text 0,-10 \"A/B\" font=F:10:400 #0000ff\n");
}

TEST(DrawPinName, PartByPartWhenSomeAreHidden) {
  EXPECT_EQ(Drawn(u"AB/C/D", 0b101),
            "text 0,-10 \"AB\" font=F:10:400 #0000ff\n"
            "text 12,-10 \"/C\" font=F:10:400 #dcdcdc\n"
            "text 24,-10 \"/D\" font=F:10:400 #0000ff\n");
}

TEST(DrawPinName, PartsOfVerticalNamesGoUpward) {
  EXPECT_EQ(Drawn(u"AB/C", 0b01, {{0, 0}, true, 0}),
            "text -10,0 \"AB\" font=F:10:400:vertical #0000ff\n"
            "text -10,-12 \"/C\" font=F:10:400:vertical #dcdcdc\n");
}

TEST(DrawPinName, AllPartsHidden) {
  EXPECT_EQ(Drawn(u"AB", 0), "text 0,-10 \"AB\" font=F:10:400 #dcdcdc\n");
}

TEST(DrawPinName, ALeadingSlashBeginsTheSecondPart) {
  EXPECT_EQ(Drawn(u"/A", 0b01), "text 0,-10 \"/A\" font=F:10:400 #dcdcdc\n");
  EXPECT_EQ(Drawn(u"/A", 0b10), "text 0,-10 \"/A\" font=F:10:400 #0000ff\n");
}

TEST(DrawPinName, EverySlashBeginsAPart) {
  EXPECT_EQ(Drawn(u"A//", 0b011),
            "text 0,-10 \"A\" font=F:10:400 #0000ff\n"
            "text 6,-10 \"/\" font=F:10:400 #0000ff\n"
            "text 12,-10 \"/\" font=F:10:400 #dcdcdc\n");
}

TEST(DrawPinName, AnOverlinedSlashSeparatesNothing) {
  EXPECT_EQ(Drawn(u"A\\/B", 0b01),
            "text 0,-10 \"A/B\" font=F:10:400 #0000ff\n"
            "line 6,-10 11,-10 pen=solid:1#0000ff\n");
}

TEST(DrawPinName, WhatFollowsThe32ndPartIsShownInOnePiece) {
  std::u16string name = u"a";
  for (int part = 1; part < 34; ++part) name += u"/b";
  const std::string drawn = Drawn(name, 0);
  EXPECT_EQ(std::count(drawn.begin(), drawn.end(), '\n'), 33);
  EXPECT_TRUE(
      drawn.ends_with("\"/b\" font=F:10:400 #dcdcdc\n"
                      "text 378,-10 \"/b/b\" font=F:10:400 #0000ff\n"))
      << drawn;
}

TEST(DrawPinName, AnEmptyNameDrawsNothing) {
  EXPECT_EQ(Drawn(u"", 0), "");
}

// --- Bars
// ------------------------------------------------------------------------------------------

TEST(DrawPinName, ABarOverEachRunOfOverlinedCharacters) {
  EXPECT_EQ(Drawn(u"\\A\\BC\\D", 0xFFFFFFFF),
            "text 0,-10 \"ABCD\" font=F:10:400 #0000ff\n"
            "line 0,-10 11,-10 pen=solid:1#0000ff\n"
            "line 18,-10 23,-10 pen=solid:1#0000ff\n");
}

TEST(DrawPinName, BarsTakeTheColorOfTheirPart) {
  EXPECT_EQ(Drawn(u"\\A/\\B/\\C", 0b101),
            "text 0,-10 \"A\" font=F:10:400 #0000ff\n"
            "text 6,-10 \"/B\" font=F:10:400 #dcdcdc\n"
            "text 18,-10 \"/C\" font=F:10:400 #0000ff\n"
            "line 0,-10 5,-10 pen=solid:1#0000ff\n"
            "line 12,-10 17,-10 pen=solid:1#dcdcdc\n"
            "line 24,-10 29,-10 pen=solid:1#0000ff\n");
}

TEST(DrawPinName, BarsOfVerticalNamesRunAlongTheirLeftEdge) {
  EXPECT_EQ(Drawn(u"A\\B", 0xFFFFFFFF, {{50, 80}, true, 0}),
            "text 40,80 \"AB\" font=F:10:400:vertical #0000ff\n"
            "line 40,73 40,68 pen=solid:1#0000ff\n");
}

struct BarCase {
  const char* name;
  std::int32_t multiplier;
  bool vertical;
  const char* bar;
};

class BarWidth : public testing::TestWithParam<BarCase> {};

// The pen is as wide as the zoom is large; its round ends stay over the characters.
TEST_P(BarWidth, FollowsTheZoom) {
  const BarCase& c = GetParam();
  const std::string drawn =
      Drawn(u"A\\B\\C", 0xFFFFFFFF, {{0, 0}, c.vertical, 0}, {c.multiplier, 1, c.multiplier, 1});
  EXPECT_EQ(drawn.substr(drawn.find('\n') + 1), c.bar);
}

INSTANTIATE_TEST_SUITE_P(
    Zooms, BarWidth,
    testing::Values(BarCase{"Lying2", 2, false, "line 13,-20 35,-20 pen=solid:2#0000ff\n"},
                    BarCase{"Lying5", 5, false, "line 32,-50 87,-50 pen=solid:5#0000ff\n"},
                    BarCase{"Lying10", 10, false, "line 65,-100 175,-100 pen=solid:10#0000ff\n"},
                    BarCase{"Upright1", 1, true, "line -10,-7 -10,-18 pen=solid:1#0000ff\n"},
                    BarCase{"Upright5", 5, true, "line -50,-33 -50,-88 pen=solid:5#0000ff\n"},
                    BarCase{"Upright10", 10, true,
                            "line -100,-65 -100,-175 pen=solid:10#0000ff\n"}),
    kCaseName);

TEST(DrawPinName, ABarOverLessThanThePenIsADot) {
  RecordingSurface surface({100, 100});
  DrawPinName(surface, {}, PinNameFromDisplayText(u"\\A"), -1, {kShown, kHidden}, 0xFFFFFFFF,
              {10, 1, 10, 1}, {u"F", 1, 400, false});
  EXPECT_EQ(surface.TakeRecord(),
            "text 0,-10 \"A\" font=F:10:400 #0000ff\n"
            "line 3,-10 3,-10 pen=solid:10#0000ff\n");
}

// --- Characters, length, place
// ---------------------------------------------------------------------

TEST(DrawPinName, WhatIsNotPrintableAsciiIsABlank) {
  const std::u16string name = u"a\u001F\u0020~\u007F\u0100\u3042b";
  RecordingSurface surface({100, 100});
  DrawPinName(surface, {}, name, -1, {kShown, kHidden}, 0xFFFFFFFF, {}, kFont);
  EXPECT_EQ(surface.TakeRecord(), "text 0,-10 \"a  ~   b\" font=F:10:400 #0000ff\n");
}

TEST(DrawPinName, AnOverlinedCharacterKeepsItsLowSevenBits) {
  const std::u16string name = {u'\u01C1', u'\u0080', u'\u00FF'};  // "A", a control code, DEL
  RecordingSurface surface({100, 100});
  DrawPinName(surface, {}, name, -1, {kShown, kHidden}, 0xFFFFFFFF, {}, kFont);
  EXPECT_EQ(surface.TakeRecord(),
            "text 0,-10 \"A  \" font=F:10:400 #0000ff\n"
            "line 0,-10 17,-10 pen=solid:1#0000ff\n");
}

TEST(DrawPinName, TheLengthIsLimited) {
  const auto drawnLength = [](std::size_t length, std::int32_t maximum) {
    RecordingSurface surface({100, 100});
    DrawPinName(surface, {}, std::u16string(length, u'w'), maximum, {kShown, kHidden}, 0xFFFFFFFF,
                {}, kFont);
    const std::string record = surface.TakeRecord();
    return std::count(record.begin(), record.end(), 'w');
  };
  EXPECT_EQ(drawnLength(10, 4), 4);
  EXPECT_EQ(drawnLength(10, 0), 0);
  EXPECT_EQ(drawnLength(2000, -1), 1024);
  EXPECT_EQ(drawnLength(2000, 1024), 1024);
  EXPECT_EQ(drawnLength(2000, 1025), 1024);
}

TEST(DrawPinName, ReturnsTheExtentOfTheWhole) {
  RecordingSurface surface({100, 100});
  const TextExtent extent =
      DrawPinName(surface, {}, u"A/B", -1, {kShown, kHidden}, 0b01, {5, 1, 5, 1}, kFont);
  EXPECT_EQ(extent, (TextExtent{90, 60, 50}));
}

struct PlaceCase {
  const char* name;
  bool vertical;
  std::int32_t align;
  const char* start;
};

class PinTextStart : public testing::TestWithParam<PlaceCase> {};

TEST_P(PinTextStart, FollowsTheAlignment) {
  const PlaceCase& c = GetParam();
  const std::string drawn = Drawn(u"AB", 0xFFFFFFFF, {{30, 40}, c.vertical, c.align}, {2, 1, 2, 1});
  EXPECT_TRUE(drawn.starts_with("text " + std::string(c.start) + " ")) << drawn;
}

// The text is 24 pixels long, its em 20.
INSTANTIATE_TEST_SUITE_P(Alignments, PinTextStart,
                         testing::Values(PlaceCase{"LyingStarting", false, 0, "60,60"},
                                         PlaceCase{"LyingEnding", false, 1, "36,60"},
                                         PlaceCase{"LyingCentred", false, 2, "48,60"},
                                         PlaceCase{"LyingUpper", false, 4, "60,80"},
                                         PlaceCase{"LyingMiddle", false, 8, "60,70"},
                                         PlaceCase{"UprightStarting", true, 0, "40,80"},
                                         PlaceCase{"UprightEnding", true, 1, "40,104"},
                                         PlaceCase{"UprightCentred", true, 2, "40,92"},
                                         PlaceCase{"UprightUpper", true, 4, "60,80"},
                                         PlaceCase{"UprightMiddle", true, 8, "50,80"}),
                         kCaseName);

// --- Numbers
// ---------------------------------------------------------------------------------------

TEST(DrawPinNumber, InOnePieceWithoutBars) {
  RecordingSurface surface({100, 100});
  DrawPinNumber(surface, {{10, 20}, false, 1}, u"1/\u00B12\t", kHidden, {}, kFont);
  EXPECT_EQ(surface.TakeRecord(), "text -20,10 \"1/ 2 \" font=F:10:400 #dcdcdc\n");
}

TEST(DrawPinNumber, LongNumbersAreCut) {
  RecordingSurface surface({100, 100});
  DrawPinNumber(surface, {}, std::u16string(2000, u'7'), kHidden, {}, kFont);
  const std::string record = surface.TakeRecord();
  EXPECT_NE(record.find('"' + std::string(1024, '7') + '"'), std::string::npos);
}

}  // namespace
}  // namespace mivo
