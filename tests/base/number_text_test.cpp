#include "number_text.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <limits>

#include "case_name.h"

namespace mivo {
namespace {

constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();

struct IntCase {
  const char* name;
  std::u16string_view text;
  std::int32_t value;
};

class ParseIntOf : public testing::TestWithParam<IntCase> {};

TEST_P(ParseIntOf, Gives) {
  EXPECT_EQ(ParseInt(GetParam().text), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(
    , ParseIntOf,
    testing::Values(
        IntCase{"Empty", u"", 0}, IntCase{"Zero", u"0", 0},
        IntCase{"Digits", u"1234567890", 1234567890}, IntCase{"Negative", u"-17", -17},
        IntCase{"PlusSign", u"+17", 17}, IntCase{"LeadingZeros", u"00000000000000000012", 12},
        IntCase{"LeadingWhiteSpace", u" \t\n\v\f\r42", 42},
        IntCase{"BlanksThenSign", u"  -42", -42}, IntCase{"SignThenBlank", u"- 42", 0},
        IntCase{"TwoSigns", u"+-42", 0}, IntCase{"SignOnly", u"-", 0}, IntCase{"Word", u"abc", 0},
        IntCase{"TrailingWord", u"12ab3", 12}, IntCase{"Fraction", u"-3.9", -3},
        IntCase{"HexadecimalPrefix", u"0x10", 0}, IntCase{"NoBreakSpaceIsNoBlank", u"\u00A05", 0},
        IntCase{"FullWidthDigitsAreNoDigits", u"\uFF11", 0},
        IntCase{"EndsAtNul", std::u16string_view(u"1\0002", 3), 1},
        IntCase{"Largest", u"2147483647", kMax}, IntCase{"OneMoreThanLargest", u"2147483648", kMax},
        IntCase{"Smallest", u"-2147483648", kMin},
        IntCase{"OneLessThanSmallest", u"-2147483649", kMin},
        IntCase{"FarAboveTheRange", u"99999999999999999999999999999999999999999", kMax},
        IntCase{"FarBelowTheRange", u"-99999999999999999999999999999999999999999", kMin}),
    kCaseName);

struct HexCase {
  const char* name;
  std::u16string_view text;
  std::uint32_t value;
};

class ParseHexOf : public testing::TestWithParam<HexCase> {};

TEST_P(ParseHexOf, Gives) {
  EXPECT_EQ(ParseHex(GetParam().text), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(
    , ParseHexOf,
    testing::Values(HexCase{"Empty", u"", 0}, HexCase{"UpperCase", u"DEADBEEF", 0xDEADBEEF},
                    HexCase{"LowerCase", u"deadbeef", 0xDEADBEEF},
                    HexCase{"LeadingBlanks", u"       5", 5}, HexCase{"Prefix", u"0x1F", 0x1F},
                    HexCase{"UpperCasePrefix", u"0X1F", 0x1F}, HexCase{"PrefixOnly", u"0x", 0},
                    HexCase{"PrefixThenNoDigit", u"0xg", 0}, HexCase{"NoDigits", u"zz", 0},
                    HexCase{"StopsAtTheFirstOther", u"1g2", 1}, HexCase{"PlusSign", u"+A", 10},
                    HexCase{"MinusSignNegates", u"-1", 0xFFFFFFFF},
                    HexCase{"Largest", u"FFFFFFFF", 0xFFFFFFFF},
                    HexCase{"LeadingZeros", u"0000000000000001", 1},
                    HexCase{"AboveTheRange", u"100000000", 0xFFFFFFFF},
                    HexCase{"FarAboveTheRange", u"123456789ABCDEF123456789ABCDEF", 0xFFFFFFFF},
                    HexCase{"NegativeAboveTheRange", u"-100000000", 0xFFFFFFFF}),
    kCaseName);

TEST(IntText, WritesSignedDecimal) {
  EXPECT_EQ(std::u16string_view(IntText(0)), u"0");
  EXPECT_EQ(std::u16string_view(IntText(7)), u"7");
  EXPECT_EQ(std::u16string_view(IntText(-10)), u"-10");
}

TEST(IntText, HoldsTheLimits) {
  EXPECT_EQ(std::u16string_view(IntText(kMax)), u"2147483647");
  EXPECT_EQ(std::u16string_view(IntText(kMin)), u"-2147483648");
}

TEST(HexText, PadsWithBlanksToEight) {
  EXPECT_EQ(std::u16string_view(HexText(0)), u"       0");
  EXPECT_EQ(std::u16string_view(HexText(0x1A)), u"      1A");
  EXPECT_EQ(std::u16string_view(HexText(0xFFFFFFFF)), u"FFFFFFFF");
  EXPECT_EQ(std::u16string_view(HexText(0x80000000)), u"80000000");
}

RC_GTEST_PROP(IntText, ReadsBack, ()) {
  const auto value = *rc::gen::oneOf(rc::gen::arbitrary<std::int32_t>(),
                                     rc::gen::inRange<std::int32_t>(kMin, kMax));
  RC_ASSERT(ParseInt(IntText(value)) == value);
}

RC_GTEST_PROP(HexText, ReadsBack, ()) {
  const auto value = *rc::gen::inRange<std::uint32_t>(0, 0xFFFFFFFF);
  RC_ASSERT(ParseHex(HexText(value)) == value);
}

}  // namespace
}  // namespace mivo
