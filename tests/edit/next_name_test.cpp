#include "next_name.h"

#include <gtest/gtest.h>

namespace mivo {
namespace {

struct Case {
  std::u16string_view text;
  std::u16string_view next;
};

class NextNameTest : public testing::TestWithParam<Case> {};

TEST_P(NextNameTest, CountsTheNumberAtTheEndUp) {
  EXPECT_EQ(NextName(GetParam().text), GetParam().next);
}

INSTANTIATE_TEST_SUITE_P(Texts, NextNameTest,
                         testing::Values(Case{u"A9", u"A10"}, Case{u"VCC", u"VCC1"},
                                         Case{u"", u"1"}, Case{u"12", u"13"}, Case{u"A0", u"A1"},
                                         Case{u"D7", u"D8"}, Case{u"A1B", u"A1B1"},
                                         Case{u"A1B2", u"A1B3"}, Case{u"99", u"100"},
                                         Case{u"199", u"200"}, Case{u"1099", u"1100"},
                                         Case{u"A-1", u"A-2"}, Case{u"A ", u"A 1"}));

INSTANTIATE_TEST_SUITE_P(LeadingZerosGo, NextNameTest,
                         testing::Values(Case{u"P007", u"P8"}, Case{u"P009", u"P10"},
                                         Case{u"P00", u"P1"}, Case{u"0", u"1"}));

INSTANTIATE_TEST_SUITE_P(NumbersOfAnyLength, NextNameTest,
                         testing::Values(Case{u"A2147483647", u"A2147483648"},
                                         Case{u"A99999999999999999999",
                                              u"A100000000000000000000"}));

// Digits of other scripts are letters here, and an overlined 9 is not a 9.
INSTANTIATE_TEST_SUITE_P(OnlyPlainDigitsCount, NextNameTest,
                         testing::Values(Case{u"A\u0663", u"A\u06631"},
                                         Case{u"A\u00B9", u"A\u00B91"},
                                         Case{u"A\u00B9"
                                              u"4",
                                              u"A\u00B9"
                                              u"5"}));

}  // namespace
}  // namespace mivo
