#include "comp_pin.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "case_name.h"
#include "record_text.h"
#include "text_gen.h"

// Names, numbers and what a pin writes; its record is read in comp_pin_record_test.cpp.

namespace mivo {
namespace {

std::u16string Written(const SCompPin& pin) {
  return WrittenText([&](SRecordWriter& writer) { EXPECT_TRUE(pin.Write(writer)); });
}

struct NameCase {
  const char* name;
  std::u16string typed;   ///< display text that the name is set from
  std::u16string stored;  ///< overlined characters carry bit 7
  std::u16string shown;   ///< display text of the stored name
};

void PrintTo(const NameCase& nameCase, std::ostream* out) {
  *out << nameCase.name;
}

class PinName : public testing::TestWithParam<NameCase> {};

TEST_P(PinName, IsStoredAndShown) {
  SCompPin pin;
  pin.SetNameFromDisplayText(GetParam().typed);
  EXPECT_EQ(pin.Name(), GetParam().stored);
  EXPECT_EQ(pin.DisplayName(), GetParam().shown);
}

std::u16string Repeated(std::u16string_view text, int count) {
  std::u16string repeated;
  for (int i = 0; i < count; ++i) repeated += text;
  return repeated;
}

INSTANTIATE_TEST_SUITE_P(
    , PinName,
    testing::Values(
        NameCase{"Plain", u"D0", u"D0", u"D0"}, NameCase{"Empty", u"", u"", u""},
        NameCase{"FirstLetterOverlined", u"\\RESET", u"\u00D2ESET", u"\\RESET"},
        NameCase{"AllOverlined", u"\\O\\E", u"\u00CF\u00C5", u"\\O\\E"},
        NameCase{"OverlinedBackslash", u"\\\\A", u"\u00DCA", u"\\\\A"},
        NameCase{"LoneBackslashAtTheEndIsDropped", u"A\\", u"A", u"A"},
        NameCase{"BackslashAlone", u"\\", u"", u""},
        NameCase{"OverlineOfNothingAtTheLimit", Repeated(u"a", 255) + u"\\", Repeated(u"a", 255),
                 Repeated(u"a", 255)},
        NameCase{"NonAsciiLosesItsUpperBits", u"\u0141\u6F22", u"\u0141\u6F22", u"A\""},
        NameCase{"NonAsciiWithBitSevenIsOverlined", u"\u03A9", u"\u03A9", u"\\)"},
        NameCase{"OverlinedNonAscii", u"\\\u0141", u"\u01C1", u"\\A"},
        NameCase{"CharacterOfNoBitsEndsTheText", u"A\u0100B", u"A\u0100B", u"A"},
        NameCase{"OverlinedCharacterOfNoBitsEndsTheText", u"A\u0180B", u"A\u0180B", u"A"},
        NameCase{"AtTheLimit", Repeated(u"a", 255), Repeated(u"a", 255), Repeated(u"a", 255)},
        NameCase{"BeyondTheLimit", Repeated(u"a", 300), Repeated(u"a", 255), Repeated(u"a", 255)},
        NameCase{"OverlinedAtTheLimit", Repeated(u"\\A", 255), Repeated(u"\u00C1", 255),
                 Repeated(u"\\A", 255)},
        NameCase{"OverlinedBeyondTheLimit", Repeated(u"\\A", 256), Repeated(u"\u00C1", 255),
                 Repeated(u"\\A", 255)}),
    kCaseName);

TEST(PinNumbers, AreOnePerBlock) {
  SCompPin pin(2);
  EXPECT_EQ(pin.NumberCount(), 2);
  pin.SetNumber(0, u"1");
  EXPECT_EQ(pin.GetNumber(0), u"1");
  EXPECT_EQ(pin.GetNumber(1), std::nullopt);
  pin.SetNumber(0, std::nullopt);
  EXPECT_EQ(pin.GetNumber(0), std::nullopt);
}

TEST(PinNumbers, HaveNoOtherSlots) {
  SCompPin pin(2);
  pin.SetNumber(-1, u"x");
  pin.SetNumber(2, u"x");
  EXPECT_EQ(pin.GetNumber(-1), std::nullopt);
  EXPECT_EQ(pin.GetNumber(2), std::nullopt);
  EXPECT_EQ(pin, SCompPin(2));
}

TEST(PinNumbers, SurviveInBlocksThatSurvive) {
  SCompPin pin(2);
  pin.SetNumber(0, u"1");
  pin.SetNumber(1, u"4");
  pin.ResizeNumbers(3);
  EXPECT_EQ(pin.GetNumber(1), u"4");
  EXPECT_EQ(pin.GetNumber(2), std::nullopt);
  pin.ResizeNumbers(1);
  pin.ResizeNumbers(2);
  EXPECT_EQ(pin.GetNumber(0), u"1");
  EXPECT_EQ(pin.GetNumber(1), std::nullopt);
}

TEST(PinWrite, PutsAllFieldsOnOneLine) {
  SCompPin pin(2);
  pin.SetNameFromDisplayText(u"A B");
  pin.location = {PinSide::Left, 3};
  pin.SetNumber(0, u"1");
  pin.SetNumber(1, u"2,3");
  EXPECT_EQ(Written(pin), u"+PIN,N:A%20B,DF:FFFFFFFF,L:L3,T:,M:1,M:2%2C3,-PIN");
}

TEST(PinWrite, PadsTheNameMask) {
  SCompPin pin(1);
  pin.nameMask = 0x1A;
  EXPECT_EQ(Written(pin), u"+PIN,N:,DF:%20%20%20%20%20%201A,L:L0,T:,M:,-PIN");
}

TEST(PinWrite, WritesAbsentNumbersEmpty) {
  SCompPin pin(2);
  pin.SetNumber(0, u"1");
  EXPECT_EQ(Written(pin), u"+PIN,N:,DF:FFFFFFFF,L:L0,T:,M:1,M:,-PIN");
}

TEST(PinWrite, WritesTheSideLetterAndTheOffset) {
  const auto place = [](PinSide side, std::int32_t offset) {
    SCompPin pin(0);
    pin.location = {side, offset};
    return Written(pin);
  };
  EXPECT_EQ(place(PinSide::Left, 0), u"+PIN,N:,DF:FFFFFFFF,L:L0,T:,-PIN");
  EXPECT_EQ(place(PinSide::Top, 7), u"+PIN,N:,DF:FFFFFFFF,L:T7,T:,-PIN");
  EXPECT_EQ(place(PinSide::Right, 42), u"+PIN,N:,DF:FFFFFFFF,L:R42,T:,-PIN");
  EXPECT_EQ(place(PinSide::Bottom, 255), u"+PIN,N:,DF:FFFFFFFF,L:B255,T:,-PIN");
}

TEST(PinWrite, WritesTheTypeLettersInTheirOrder) {
  const auto letters = [](std::int32_t type) {
    SCompPin pin(0);
    pin.type = type;
    const std::u16string text = Written(pin);
    const std::size_t start = text.find(u"T:") + 2;
    return text.substr(start, text.find(u',', start) - start);
  };
  EXPECT_EQ(letters(0), u"");
  EXPECT_EQ(letters(SCompPin::kShapeS), u"S");
  EXPECT_EQ(letters(SCompPin::kShapeZ), u"Z");
  EXPECT_EQ(letters(SCompPin::kClock), u"C");
  EXPECT_EQ(letters(SCompPin::kNegation), u"N");
  EXPECT_EQ(letters(SCompPin::kHideNumber), u"m");
  EXPECT_EQ(letters(0x13), u"ZSm");
  EXPECT_EQ(letters(0x1F), u"ZSNCm");
  EXPECT_EQ(letters(~0x1F), u"") << "bits without a letter";
}

TEST(PinWrite, FailsWithoutATarget) {
  SRecordWriter writer;
  EXPECT_FALSE(SCompPin(1).Write(writer));
}

RC_GTEST_PROP(PinNameProperty, IsShownAsItWasTyped, ()) {
  const auto units = *rc::gen::container<TextUnits>(rc::gen::oneOf(
      rc::gen::inRange<std::uint16_t>(1, 0x80), rc::gen::just<std::uint16_t>(u'\\')));
  const std::u16string typed = ToText(units);
  const std::u16string name = PinNameFromDisplayText(typed);
  const std::u16string shown = PinNameToDisplayText(name);
  RC_ASSERT(typed.starts_with(shown));
  RC_ASSERT(PinNameFromDisplayText(shown) == name);
  // Only what one character cannot be made of may be missing.
  RC_ASSERT(name.size() == SCompPin::kMaxNameLength || typed == shown || typed == shown + u'\\');
}

}  // namespace
}  // namespace mivo
