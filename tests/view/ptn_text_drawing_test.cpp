#include "ptn_text_drawing.h"

#include <gtest/gtest.h>

#include <string>

#include "case_name.h"
#include "recording_surface.h"

namespace mivo {
namespace {

constexpr Color kGreen{0, 128, 0};

SPtnObjText Text(std::u16string_view string, SPoint position = {}) {
  SPtnObjText text;
  text.SetText(string);
  text.SetPosition(position);
  return text;
}

std::string Drawn(SPtnObjText& text, const PtnPlacement& placement = {},
                  const SCommonFont& commonFont = {}) {
  RecordingSurface surface({100, 100});
  DrawPtnText(surface, text, kGreen, placement, commonFont);
  return surface.TakeRecord();
}

TEST(DrawPtnText, InTheCommonFontAQuarterHangsBelowTheAnchor) {
  SPtnObjText text = Text(u"AB", {40, 50});
  // The cell is 10 pixels high for an em of 9.
  EXPECT_EQ(Drawn(text), "text 40,42 \"AB\" font=Tahoma:9:400 #008000\n");
}

TEST(DrawPtnText, TheCommonFontIsTheOneOfTheSettings) {
  SPtnObjText text = Text(u"AB");
  EXPECT_EQ(Drawn(text, {}, {u"Other", -20, 700, true}),
            "text 0,-18 \"AB\" font=Other:20:700:italic #008000\n");
}

TEST(DrawPtnText, InItsOwnFontItStandsOnTheAnchor) {
  SPtnObjText text = Text(u"AB", {40, 50});
  text.SetFontName(u"Own");
  text.SetFontSize(20);
  text.SetBold(true);
  text.SetItalic(true);
  EXPECT_EQ(Drawn(text), "text 40,26 \"AB\" font=Own:20:700:italic #008000\n");
}

TEST(DrawPtnText, AFaceNameHas32Characters) {
  SPtnObjText text = Text(u"A");
  text.SetFontName(std::u16string(40, u'f'));
  EXPECT_NE(Drawn(text).find("font=" + std::string(32, 'f') + ":"), std::string::npos);
}

TEST(DrawPtnText, StyleFlagsReadFromARecordAreDrawnAsFarAsTheyAre) {
  SRecordReader reader;
  reader.AttachString(u"X:0,Y:0,S:a,FN:F,FF:BU,-TX\n");
  SPtnObjText text;
  ASSERT_TRUE(text.Read(reader));
  EXPECT_TRUE(text.IsUnderline());
  EXPECT_EQ(Drawn(text), "text 0,-12 \"a\" font=F:10:700 #008000\n") << "bold only";
}

TEST(DrawPtnText, ScalesPositionAndFont) {
  SPtnObjText text = Text(u"AB", {40, 50});
  PtnPlacement placement;
  placement.offset = {1, 2};
  placement.numerator = 5;
  EXPECT_EQ(Drawn(text, placement), "text 205,219 \"AB\" font=Tahoma:45:400 #008000\n");
}

TEST(DrawPtnText, StoresTheExtentInComponentUnits) {
  SPtnObjText text = Text(u"ABC", {0, 0});
  EXPECT_EQ(text.GetBoundingRect(), (SRect{0, -6, 24, 2})) << "estimated before";
  PtnPlacement placement;
  placement.numerator = 5;
  // Drawn in 81 by 54 pixels: 16 by 10 units, of which 2 hang below.
  EXPECT_FALSE(Drawn(text, placement).empty());
  EXPECT_EQ(text.GetBoundingRect(), (SRect{0, -8, 16, 2}));
}

TEST(DrawPtnText, ATextOfTwoCharactersIsEstimatedUntilItIsDrawn) {
  SPtnObjText text = Text(u"AB");
  EXPECT_EQ(text.GetBoundingRect(), (SRect{0, -6, 16, 2}));
}

TEST(DrawPtnText, ControlCharactersAreBlanksAndLongTextsAreCut) {
  SPtnObjText text = Text(u"a\nb" + std::u16string(3000, u'c'));
  const std::string drawn = Drawn(text);
  EXPECT_NE(drawn.find("\"a b" + std::string(1021, 'c') + "\""), std::string::npos);
}

struct LayoutCase {
  const char* name;
  std::int32_t orientation;
  bool horizontal;
  std::int32_t align;
  const char* drawn;  // of an em of 10 and a cell of 12 by 12, anchored at (0, 0)
};

class TextOrientation : public testing::TestWithParam<LayoutCase> {};

TEST_P(TextOrientation, ChangesDirectionAndAlignment) {
  const LayoutCase& c = GetParam();
  SPtnObjText text = Text(u"AB");
  text.SetFontName(u"F");
  text.SetHorizontal(c.horizontal);
  text.SetAlign(c.align);
  PtnPlacement placement;
  placement.orientation = c.orientation;
  EXPECT_EQ(Drawn(text, placement), "text " + std::string(c.drawn) + " #008000\n");
}

// With every extent 12, a left-lower horizontal text starts at (0, -12), a right one at (-12, ...),
// an upper one at (..., 0); a vertical one starts at (-12, 0), a right one at (..., 12), an upper
// one at (0, ...). Centred: 6 of 12.
INSTANTIATE_TEST_SUITE_P(
    Layouts, TextOrientation,
    testing::Values(
        LayoutCase{"PlainLying", 0, true, 0, "0,-12 \"AB\" font=F:10:400"},
        LayoutCase{"PlainUpright", 0, false, 0, "-12,0 \"AB\" font=F:10:400:vertical"},
        LayoutCase{"PlainKeepsTheOddValue", 0, true, 3, "0,-12 \"AB\" font=F:10:400"},
        LayoutCase{"LyingQuarterTurn", 1, true, 0, "0,12 \"AB\" font=F:10:400:vertical"},
        LayoutCase{"LyingHalfTurn", 2, true, 0, "-12,0 \"AB\" font=F:10:400"},
        LayoutCase{"LyingThreeQuarterTurns", 3, true, 0, "-12,0 \"AB\" font=F:10:400:vertical"},
        LayoutCase{"LyingMirrored", 4, true, 0, "-12,-12 \"AB\" font=F:10:400"},
        LayoutCase{"LyingMirroredQuarter", 5, true, 0, "-12,12 \"AB\" font=F:10:400:vertical"},
        LayoutCase{"LyingMirroredHalf", 6, true, 0, "0,0 \"AB\" font=F:10:400"},
        LayoutCase{"LyingMirroredThreeQuarters", 7, true, 0, "0,0 \"AB\" font=F:10:400:vertical"},
        LayoutCase{"UprightQuarterTurn", 1, false, 0, "0,-12 \"AB\" font=F:10:400"},
        LayoutCase{"UprightHalfTurn", 2, false, 0, "0,12 \"AB\" font=F:10:400:vertical"},
        LayoutCase{"UprightThreeQuarterTurns", 3, false, 0, "-12,0 \"AB\" font=F:10:400"},
        LayoutCase{"UprightMirrored", 4, false, 0, "0,0 \"AB\" font=F:10:400:vertical"},
        LayoutCase{"UprightMirroredQuarter", 5, false, 0, "-12,-12 \"AB\" font=F:10:400"},
        LayoutCase{"UprightMirroredHalf", 6, false, 0, "-12,12 \"AB\" font=F:10:400:vertical"},
        LayoutCase{"UprightMirroredThreeQuarters", 7, false, 0, "0,0 \"AB\" font=F:10:400"},
        LayoutCase{"CentredStaysCentred", 2, true, 2, "-6,0 \"AB\" font=F:10:400"},
        LayoutCase{"MiddleStaysInTheMiddle", 2, true, 8, "-12,-6 \"AB\" font=F:10:400"},
        LayoutCase{"CentreOfBothStays", 6, true, 10, "-6,-6 \"AB\" font=F:10:400"},
        LayoutCase{"CentreOfBothTurned", 5, true, 10, "-6,6 \"AB\" font=F:10:400:vertical"},
        LayoutCase{"RightUpperHalfTurn", 2, true, 5, "0,-12 \"AB\" font=F:10:400"}),
    kCaseName);

}  // namespace
}  // namespace mivo
