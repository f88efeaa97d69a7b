#include "anchored_text.h"

#include <gtest/gtest.h>

#include "ptn_obj_text.h"

namespace mivo {
namespace {

TEST(DrawableText, CutsAndBlanks) {
  EXPECT_EQ(DrawableText(u"a\tb\n\u007Fc\u00B5"), u"a b  c\u00B5");
  EXPECT_EQ(DrawableText(std::u16string(5000, u'x')), std::u16string(1024, u'x'));
  EXPECT_EQ(DrawableText(u""), u"");
}

constexpr TextExtent kExtent{30, 13, 11};

TEST(AcrossShifts, OfPinTextsFollowTheEm) {
  const AcrossShifts shifts = AcrossShifts::OfEm(kExtent);
  EXPECT_EQ(shifts.lower, 11);
  EXPECT_EQ(shifts.upper, 0);
  EXPECT_EQ(shifts.middle, 5);
}

// The renderer and the bounding rectangle have to agree: the shift is the height less the part of
// the text that hangs below its anchor.
TEST(AcrossShifts, OfPatternTextsFollowTheBoundingRectangle) {
  for (std::int32_t height = 1; height <= 40; ++height) {
    for (const bool ownFont : {false, true}) {
      SPtnObjText text;
      text.SetText(u"x");
      if (ownFont) text.SetFontName(u"Face");
      const AcrossShifts shifts =
          ownFont ? AcrossShifts::OfCell({30, height, 9}) : AcrossShifts::OfLabel({30, height, 9});
      const auto top = [&](std::int32_t align) {
        text.SetAlign(align);
        text.SetExtent(30, height);
        return text.GetBoundingRect().top;
      };
      EXPECT_EQ(-shifts.lower, top(SPtnObjText::kLower));
      EXPECT_EQ(-shifts.upper, top(SPtnObjText::kUpper));
      EXPECT_EQ(-shifts.middle, top(SPtnObjText::kMiddle));
    }
  }
}

struct StartCase {
  std::int32_t align;
  PixelPoint horizontal;
  PixelPoint vertical;
};

class TextStarts : public testing::TestWithParam<StartCase> {};

TEST_P(TextStarts, WhereTheAlignmentSays) {
  const AcrossShifts shifts{11, 0, 5};
  EXPECT_EQ(TextStart({100, 200}, kExtent, false, GetParam().align, shifts), GetParam().horizontal);
  EXPECT_EQ(TextStart({100, 200}, kExtent, true, GetParam().align, shifts), GetParam().vertical);
}

INSTANTIATE_TEST_SUITE_P(
    Alignments, TextStarts,
    testing::Values(StartCase{0, {100, 189}, {89, 200}}, StartCase{1, {70, 189}, {89, 230}},
                    StartCase{2, {85, 189}, {89, 215}}, StartCase{3, {100, 189}, {89, 200}},
                    StartCase{4, {100, 200}, {100, 200}}, StartCase{5, {70, 200}, {100, 230}},
                    StartCase{6, {85, 200}, {100, 215}}, StartCase{8, {100, 195}, {95, 200}},
                    StartCase{9, {70, 195}, {95, 230}}, StartCase{10, {85, 195}, {95, 215}}));

}  // namespace
}  // namespace mivo
