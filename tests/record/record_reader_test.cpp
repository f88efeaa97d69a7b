#include "record_reader.h"

#include <gtest/gtest.h>

#include "attached_reader.h"
#include "case_name.h"

namespace mivo {
namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;

constexpr std::size_t kLimit = SRecordReader::kMaxFieldLength;
constexpr std::nullopt_t kEnd = std::nullopt;

std::u16string Letters(std::size_t count) {
  return std::u16string(count, u'a');
}

/// A field whose end the data do not hold.
std::u16string Padded(std::u16string_view start) {
  std::u16string field(start);
  field.resize(kLimit, u'\xFFFF');
  return field;
}

struct FieldCase {
  const char* name;
  std::u16string text;
  std::vector<std::optional<std::u16string>> fields;  ///< what as many reads give
};

void PrintTo(const FieldCase& fieldCase, std::ostream* out) {
  *out << fieldCase.name;
}

class RecordReader : public testing::TestWithParam<std::tuple<FieldCase, Delivery>> {};

TEST_P(RecordReader, ReadsFields) {
  const auto& [fieldCase, delivery] = GetParam();
  AttachedReader reader(fieldCase.text, delivery);
  EXPECT_EQ(reader.Next(fieldCase.fields.size()), fieldCase.fields);
}

/// The cases of a table, each in every way of delivery.
template <std::size_t kCount>
auto InEveryDelivery(const FieldCase (&cases)[kCount]) {
  return testing::Combine(testing::ValuesIn(cases), testing::ValuesIn(kDeliveries));
}

const FieldCase kFields[] = {
    {"EmptyBetweenCommas", u"a,,b\n", {u"a", u"", u"b", kEnd, kEnd}},
    {"OnlyLeadingBlanksAreDropped", u"  x y ,z\n", {u"x y ", u"z", kEnd}},
    {"LeadingTabsAreDropped", u"\t \ta\t\n", {u"a\t", kEnd}},
    {"EmptyAtLineStart", u",a\n", {u"", u"a", kEnd}},
    {"CommaAtLineEnd", u"a,\nb\n", {u"a", u"b", kEnd}},
    {"CommaBeforeCarriageReturnLineFeed", u"a,\r\nb\r\n", {u"a", u"b", kEnd}},
    {"CarriageReturnEndsAField", u"a\rb\n", {u"a", u"b", kEnd}},
    {"EmptyLines", u"\n\n a\n\n\nb\n", {u"a", u"b", kEnd}},
    {"NoText", u"", {kEnd, kEnd}},
    {"WhiteSpaceAlone", u" \t\r\n ", {kEnd, kEnd}},
    {"OtherControlsBelongToAField", u"\v\f\x01\n", {u"\v\f\x01", kEnd}},
    {"CharactersOfAllLengths",
     u"\u00FC,\u6F22\u5B57,\U0001F600\n",
     {u"\u00FC", u"\u6F22\u5B57", u"\U0001F600", kEnd}},
    {"NoBreakSpaceIsNoWhiteSpace", u"\u00A0a\n", {u"\u00A0a", kEnd}}};

INSTANTIATE_TEST_SUITE_P(Fields, RecordReader, InEveryDelivery(kFields), kCasePairName);

const FieldCase kEscapes[] = {{"BothLetterCases", u"%41%2c%2C\n", {u"A,,", kEnd}},
                              {"InTheMiddle", u"a%20b%25,c\n", {u"a b%", u"c", kEnd}},
                              {"NotHexadecimal", u"%zz\n", {std::u16string(1, u'\0'), kEnd}},
                              {"SecondDigitNotHexadecimal", u"%1g\n", {u"\x1", kEnd}},
                              {"BlankAndDigit", u"% 1\n", {u"\x1", kEnd}},
                              {"PlusAndDigit", u"%+7\n", {u"\x7", kEnd}},
                              {"MinusAndDigit", u"%-1\n", {u"\xFFFF", kEnd}},
                              {"PrefixWithoutDigits", u"%0x\n", {std::u16string(1, u'\0'), kEnd}},
                              {"PercentSigns", u"%%%ab\n", {u"\0ab"s, kEnd}},
                              {"NonAsciiDigits", u"%\u00E9\u00E9b\n", {u"\0b"s, kEnd}},
                              {"LeadingEscapedBlankStays", u"%20a\n", {u" a", kEnd}},
                              {"EscapedLineEndsStay", u"%0Aa%0D\n", {u"\na\r", kEnd}}};

INSTANTIATE_TEST_SUITE_P(Escapes, RecordReader, InEveryDelivery(kEscapes), kCasePairName);

// The two characters behind the sign are consumed whatever they are; reading goes on behind them.
const FieldCase kEscapesCutOff[] = {
    {"AfterOneDigitByLineFeed", u"%4\nb\n", {kEnd, u"b", kEnd}},
    {"AfterOneDigitByComma", u"%4,b\n", {kEnd, u"b", kEnd}},
    {"AfterOneDigitByCarriageReturn", u"%4\rb\n", {kEnd, u"b", kEnd}},
    {"AtOnceByLineFeed", u"%\nbc\n", {kEnd, u"c", kEnd}},
    {"AtOnceByComma", u"%,b,c\n", {kEnd, u"", u"c", kEnd}},
    {"AtOnceByCarriageReturn", u"%\r\nb\n", {kEnd, u"b", kEnd}},
    {"WithinAField", u"ab%2,c\n", {kEnd, u"c", kEnd}},
    {"ByTheEndOfTheData", u"a%4", {Padded(u"a\x4"), kEnd, kEnd}},
    {"AtOnceByTheEndOfTheData", u"a%", {Padded(u"a\0"sv), kEnd, kEnd}}};

INSTANTIATE_TEST_SUITE_P(EscapesCutOff, RecordReader, InEveryDelivery(kEscapesCutOff),
                         kCasePairName);

const FieldCase kLongFields[] = {
    {"FarBeyondTheLimit", Letters(40000) + u"\n", {Letters(kLimit), Letters(7231), kEnd}},
    {"OneBelowTheLimit", Letters(kLimit - 1) + u",b\n", {Letters(kLimit - 1), u"b", kEnd}},
    {"AtTheLimit", Letters(kLimit) + u",b\n", {Letters(kLimit), u"b", kEnd}},
    {"OneBeyondTheLimit", Letters(kLimit + 1) + u",b\n", {Letters(kLimit), u"", u"b", kEnd}},
    {"TwoBeyondTheLimit", Letters(kLimit + 2) + u"\n", {Letters(kLimit), u"a", kEnd}},
    {"EscapeCountsAsOneCharacter", Letters(kLimit - 1) + u"%61,b\n", {Letters(kLimit), u"b", kEnd}},
    {"EscapeBehindTheLimitLosesItsSign",
     Letters(kLimit) + u"%41,b\n",
     {Letters(kLimit), u"41", u"b", kEnd}},
    {"LineFeedAtTheLimit", Letters(kLimit) + u"\nb\n", {Letters(kLimit), u"b", kEnd}}};

INSTANTIATE_TEST_SUITE_P(LongFields, RecordReader, InEveryDelivery(kLongFields), kCasePairName);

const FieldCase kEndOfData[] = {
    {"FillsTheLastField", u"a,bc", {u"a", Padded(u"bc"), kEnd, kEnd}},
    {"BehindAComma", u"a,", {u"a", kEnd}},
    {"AtTheLimit", Letters(kLimit), {Letters(kLimit), kEnd}},
    {"OneBelowTheLimit", Letters(kLimit - 1), {Padded(Letters(kLimit - 1)), kEnd}},
    {"NulWithinAField", u"ab\0cd\n"s, {Padded(u"ab"), kEnd, kEnd}},
    {"NulBeforeAField", u"a,\0b\n"s, {u"a", kEnd, kEnd}},
    {"NulFirst", u"\0a\n"s, {kEnd, kEnd}},
    {"NulBehindBlanks", u"  \0a\n"s, {kEnd, kEnd}},
    {"NulBehindALongField", Letters(kLimit) + u"\0b\n"s, {Letters(kLimit), kEnd}},
    {"NulWithinAnEscape", u"a%\0b\n"s, {Padded(u"a\0"sv), kEnd}}};

INSTANTIATE_TEST_SUITE_P(EndOfData, RecordReader, InEveryDelivery(kEndOfData), kCasePairName);

// The end code as a character of the data is an end only where a field would start, and only once.
const FieldCase kEndCode[] = {{"WithinAField", u"a\uFFFFb,c\n", {u"a\uFFFFb", u"c", kEnd}},
                              {"BeforeAField", u"\uFFFFab,c\n", {kEnd, u"ab", u"c", kEnd}},
                              {"BehindBlanks", u"a, \uFFFFb\n", {u"a", kEnd, u"b", kEnd}},
                              {"WithinAnEscape", u"%\uFFFF1b\n", {u"\0b"s, kEnd}}};

INSTANTIATE_TEST_SUITE_P(EndCode, RecordReader, InEveryDelivery(kEndCode), kCasePairName);

}  // namespace
}  // namespace mivo
