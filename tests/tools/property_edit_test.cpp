#include "property_edit.h"

#include <gtest/gtest.h>

#include <limits>

#include "ptn_obj_arc.h"
#include "ptn_obj_circle.h"

namespace mivo {
namespace {

// What sequences cannot express: values that no dialog of the program gives, and that editing
// without a change is none.

template <typename Object>
void ExpectUnchangedByOwnValues(const Object& object) {
  Object edited = object;
  Apply(ValuesOf(object), edited);
  EXPECT_EQ(ValuesOf(edited), ValuesOf(object));
}

TEST(PropertyEdit, APinSurvivesItsOwnValues) {
  SCompPin pin(3);
  pin.SetNameFromDisplayText(u"A\\B/C");
  pin.SetNumber(0, u"1");
  pin.SetNumber(2, u"");
  pin.type = SCompPin::kHideNumber | SCompPin::kClock;
  pin.nameMask = 5;
  SCompPin edited = pin;
  Apply(ValuesOf(pin), edited);
  EXPECT_EQ(edited, pin);
}

TEST(PropertyEdit, APinLosesTypeBitsThatMeanNothing) {
  SCompPin pin;
  pin.type = 0x7FFFFF00 | SCompPin::kNegation;
  Apply(ValuesOf(pin), pin);
  EXPECT_EQ(pin.type, SCompPin::kNegation);
}

TEST(PropertyEdit, NumbersForMoreBlocksThanThePinHasAreIgnored) {
  SCompPin pin(1);
  PinValues values = ValuesOf(pin);
  values.numbers = {u"1", u"2", u"3"};
  Apply(values, pin);
  EXPECT_EQ(pin.NumberCount(), 1);
  EXPECT_EQ(pin.GetNumber(0), u"1");
}

TEST(PropertyEdit, NumbersForFewerBlocksLeaveTheOthersAlone) {
  SCompPin pin(2);
  pin.SetNumber(1, u"2");
  PinValues values = ValuesOf(pin);
  values.numbers = {u"1"};
  Apply(values, pin);
  EXPECT_EQ(pin.GetNumber(1), u"2");
}

TEST(PropertyEdit, ALineSurvivesItsOwnValues) {
  SPtnObjLine line;
  line.SetStart({1, 2});
  line.SetEnd({30, 40});
  line.width = 9;
  line.style = -3;
  line.SetCurve(true);
  ExpectUnchangedByOwnValues(line);
  Apply(ValuesOf(line), line);
  EXPECT_EQ(line.style, -3);
}

TEST(PropertyEdit, ATextSurvivesItsOwnValues) {
  SPtnObjText text;
  text.SetText(u"words");
  text.SetFontName(u"Face");
  text.SetFontSize(33);
  text.SetBold(true);
  text.SetItalic(true);
  text.SetAlign(SPtnObjText::kCenter | SPtnObjText::kUpper);
  ExpectUnchangedByOwnValues(text);
}

struct HeightCase {
  std::int32_t height;
  std::int32_t size;
};
class TextHeightTest : public testing::TestWithParam<HeightCase> {};

TEST_P(TextHeightTest, BecomesTheFontSizeWithoutItsSign) {
  SPtnObjText text;
  TextValues values = ValuesOf(text);
  values.height = GetParam().height;
  Apply(values, text);
  EXPECT_EQ(text.FontSize(), GetParam().size);
}

INSTANTIATE_TEST_SUITE_P(Heights, TextHeightTest,
                         testing::Values(HeightCase{12, 12}, HeightCase{-12, 12}, HeightCase{0, 4},
                                         HeightCase{-80, 80}, HeightCase{-81, 80},
                                         HeightCase{std::numeric_limits<std::int32_t>::max(), 80},
                                         HeightCase{std::numeric_limits<std::int32_t>::min(), 4}),
                         [](const auto& test) { return "Case" + std::to_string(test.index); });

TEST(PropertyEdit, AShapeSurvivesItsOwnValues) {
  SPtnObjCircle circle({0, 0}, {10, 10});
  circle.width = 4;
  circle.style = 2;
  for (const std::int32_t fill : {SPtnObj::kNotFilled, 0, SPtnObj::kFilled, 7}) {
    circle.fill = fill;
    ApplyShape(ShapeValuesOf(circle), circle);
    EXPECT_EQ(circle.fill, fill);
    EXPECT_EQ(circle.style, 2);
    EXPECT_EQ(circle.width, 4);
  }
}

TEST(PropertyEdit, AnUncheckedFillOfAnyKindIsStoredAsNone) {
  SPtnObjCircle circle({0, 0}, {10, 10});
  circle.fill = -7;
  EXPECT_FALSE(ShapeValuesOf(circle).fill);
  ApplyShape(ShapeValuesOf(circle), circle);
  EXPECT_EQ(circle.fill, SPtnObj::kNotFilled);
}

TEST(PropertyEdit, AnArcKeepsWhateverFillItHas) {
  SPtnObjArc arc;
  ShapeValues values = ShapeValuesOf(arc);
  EXPECT_FALSE(values.fillAllowed);
  values.fill = true;
  ApplyShape(values, arc);
  EXPECT_EQ(arc.fill, SPtnObj::kNotFilled);
}

}  // namespace
}  // namespace mivo
