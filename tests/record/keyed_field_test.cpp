#include "keyed_field.h"

#include <gtest/gtest.h>

#include "case_name.h"

namespace mivo {
namespace {

using namespace std::string_view_literals;

struct KeyedCase {
  const char* name;
  std::u16string_view field;
  EmptyValue emptyValue;
  std::optional<std::pair<std::u16string_view, std::u16string_view>> keyAndValue;
};

void PrintTo(const KeyedCase& keyedCase, std::ostream* out) {
  *out << keyedCase.name;
}

class SplitKeyedFieldTest : public testing::TestWithParam<KeyedCase> {};

TEST_P(SplitKeyedFieldTest, SplitsAtTheFirstColon) {
  const auto keyed = SplitKeyedField(GetParam().field, GetParam().emptyValue);
  ASSERT_EQ(keyed.has_value(), GetParam().keyAndValue.has_value());
  if (keyed) {
    EXPECT_EQ(std::pair(keyed->key.Text(), keyed->value), *GetParam().keyAndValue);
  }
}

INSTANTIATE_TEST_SUITE_P(
    , SplitKeyedFieldTest,
    testing::Values(KeyedCase{"KeyAndValue", u"X:12", EmptyValue::Refused, {{u"X", u"12"}}},
                    KeyedCase{"OneCharacterEach", u"X:1", EmptyValue::Refused, {{u"X", u"1"}}},
                    KeyedCase{
                        "ColonsInTheValue", u"N:a:b:", EmptyValue::Refused, {{u"N", u"a:b:"}}},
                    KeyedCase{"EmptyValueAllowed", u"NOTE:", EmptyValue::Allowed, {{u"NOTE", u""}}},
                    KeyedCase{"EmptyValueRefused", u"NOTE:", EmptyValue::Refused, {}},
                    KeyedCase{"ColonAlone", u":", EmptyValue::Allowed, {}},
                    KeyedCase{"NoKey", u":a", EmptyValue::Allowed, {}},
                    KeyedCase{"NoKeyButALaterColon", u":a:b", EmptyValue::Allowed, {}},
                    KeyedCase{"NoColon", u"X12", EmptyValue::Allowed, {}},
                    KeyedCase{"Empty", u"", EmptyValue::Allowed, {}}),
    kCaseName);

TEST(FieldKeyTest, EqualsItselfOnly) {
  EXPECT_TRUE(FieldKey(u"X") == u"X");
  EXPECT_TRUE(FieldKey(u"EIGHTCHR") == u"EIGHTCHR");
  for (const auto text : {u""sv, u"x"sv, u"Y"sv, u"XX"sv, u"X\0"sv, u"\0X"sv, u"\x0158"sv,
                          u"\x5800"sv, u"NINECHARX"sv}) {
    EXPECT_FALSE(FieldKey(text) == u"X");
  }
  EXPECT_FALSE(FieldKey(u"9EIGHTCHR") == u"EIGHTCHR");
}

TEST(IsTextTest, IsTrueForTheSameCharactersOnly) {
  EXPECT_TRUE(IsText(u"-PIN", u"-PIN"));
  EXPECT_TRUE(IsText(u"", u""));
  for (const auto text : {u""sv, u"-PI"sv, u"-PINS"sv, u"-pIN"sv, u"-PI\0"sv, u"-PIN\0"sv,
                          u"-PI\x014E"sv, u"NIP-"sv}) {
    EXPECT_FALSE(IsText(text, u"-PIN"));
  }
}

TEST(UpToNulTest, EndsAtTheFirstNul) {
  EXPECT_EQ(UpToNul(u"a\0b\0"sv), u"a");
  EXPECT_EQ(UpToNul(u"\0"sv), u"");
  EXPECT_EQ(UpToNul(u"ab"), u"ab");
  EXPECT_EQ(UpToNul(u""), u"");
}

}  // namespace
}  // namespace mivo
