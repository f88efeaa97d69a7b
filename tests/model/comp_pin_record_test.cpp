#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "case_name.h"
#include "comp_pin.h"
#include "record_text.h"

// How the record of a pin is read.

namespace mivo {
namespace {

using testing::ElementsAre;

/// The pin of a record that must be readable, with two blocks.
SCompPin ReadPin(std::u16string_view record) {
  RecordText text(record);
  SCompPin pin;
  EXPECT_TRUE(pin.Read(*text, 2));
  return pin;
}

TEST(PinRead, TakesEveryField) {
  const SCompPin pin =
      ReadPin(u"+PIN,N:\\A%20B,DF:%20%20%20%20%20%201A,L:R3,T:Nm,M:1,M:2%2C3,-PIN\n");
  EXPECT_EQ(pin.Name(), u"\u00C1 B");
  EXPECT_EQ(pin.nameMask, 0x1Au);
  EXPECT_EQ(pin.location, (SPinLocation{PinSide::Right, 3}));
  EXPECT_EQ(pin.type, SCompPin::kNegation | SCompPin::kHideNumber);
  EXPECT_EQ(pin.NumberCount(), 2);
  EXPECT_EQ(pin.GetNumber(0), u"1");
  EXPECT_EQ(pin.GetNumber(1), u"2,3");
}

TEST(PinRead, HasDefaultsForEveryField) {
  EXPECT_EQ(ReadPin(u"+PIN,-PIN\n"), SCompPin(2));
}

TEST(PinRead, ForgetsWhatThePinWas) {
  SCompPin pin = ReadPin(u"+PIN,N:A,DF:0,L:R3,T:Nm,M:1,M:2,-PIN\n");
  RecordText text(u"+PIN,-PIN\n");
  EXPECT_TRUE(pin.Read(*text, 1));
  EXPECT_EQ(pin, SCompPin(1));
}

TEST(PinRead, EndsNameAndNumbersAtANul) {
  const SCompPin pin = ReadPin(u"+PIN,N:A\\%00B,M:1%002,-PIN\n");
  EXPECT_EQ(pin.Name(), u"A");
  EXPECT_EQ(pin.GetNumber(0), u"1");
}

TEST(PinRead, CutsTheNameAtItsLimit) {
  std::u16string record = u"+PIN,N:";
  record.append(300, u'a');
  EXPECT_EQ(ReadPin(record + u",-PIN\n").Name(), std::u16string(SCompPin::kMaxNameLength, u'a'));
}

struct LocationCase {
  const char* name;
  std::u16string_view fields;
  SPinLocation location;
};

void PrintTo(const LocationCase& locationCase, std::ostream* out) {
  *out << locationCase.name;
}

class PinLocation : public testing::TestWithParam<LocationCase> {};

TEST_P(PinLocation, IsRead) {
  EXPECT_EQ(ReadPin(u"+PIN," + std::u16string(GetParam().fields) + u",-PIN\n").location,
            GetParam().location);
}

INSTANTIATE_TEST_SUITE_P(
    , PinLocation,
    testing::Values(LocationCase{"Left", u"L:L3", {PinSide::Left, 3}},
                    LocationCase{"Top", u"L:T0", {PinSide::Top, 0}},
                    LocationCase{"Right", u"L:R12", {PinSide::Right, 12}},
                    LocationCase{"Bottom", u"L:B255", {PinSide::Bottom, 255}},
                    LocationCase{"UnknownSideIsKept", u"L:R1,L:Q7", {PinSide::Right, 7}},
                    LocationCase{"LowerCaseSideIsKept", u"L:R1,L:b7", {PinSide::Right, 7}},
                    LocationCase{"LargeOffsetIsKept", u"L:R5,L:L300", {PinSide::Left, 5}},
                    LocationCase{"OffsetJustTooLarge", u"L:R5,L:L256", {PinSide::Left, 5}},
                    LocationCase{"NegativeOffsetIsKept", u"L:R5,L:L-1", {PinSide::Left, 5}},
                    LocationCase{
                        "OffsetOutOfAllBounds", u"L:R5,L:L99999999999", {PinSide::Left, 5}},
                    LocationCase{"NoDigits", u"L:R5,L:T", {PinSide::Top, 0}},
                    LocationCase{"NumberAfterBlanks", u"L:T%20+9x", {PinSide::Top, 9}},
                    LocationCase{"DigitForASide", u"L:R5,L:77", {PinSide::Right, 7}},
                    LocationCase{"EmptyValue", u"L:R5,L:", {PinSide::Right, 5}}),
    kCaseName);

struct TypeCase {
  const char* name;
  std::u16string_view fields;
  std::int32_t type;
};

void PrintTo(const TypeCase& typeCase, std::ostream* out) {
  *out << typeCase.name;
}

class PinType : public testing::TestWithParam<TypeCase> {};

TEST_P(PinType, IsRead) {
  EXPECT_EQ(ReadPin(u"+PIN," + std::u16string(GetParam().fields) + u",-PIN\n").type,
            GetParam().type);
}

INSTANTIATE_TEST_SUITE_P(
    , PinType,
    testing::Values(TypeCase{"None", u"T:", 0}, TypeCase{"S", u"T:S", 1}, TypeCase{"Z", u"T:Z", 2},
                    TypeCase{"C", u"T:C", 4}, TypeCase{"N", u"T:N", 8},
                    TypeCase{"HideNumber", u"T:m", 16}, TypeCase{"UnknownLetter", u"T:NCx", 12},
                    TypeCase{"AnyOrder", u"T:mSZ", 0x13}, TypeCase{"Repeated", u"T:SS", 1},
                    TypeCase{"OtherCase", u"T:szcnM", 0}, TypeCase{"LastOneCounts", u"T:SZ,T:C", 4},
                    TypeCase{"LastOneCountsWhenEmpty", u"T:SZ,T:", 0}),
    kCaseName);

struct MaskCase {
  const char* name;
  std::u16string_view field;
  std::uint32_t mask;
};

void PrintTo(const MaskCase& maskCase, std::ostream* out) {
  *out << maskCase.name;
}

class PinNameMask : public testing::TestWithParam<MaskCase> {};

TEST_P(PinNameMask, IsRead) {
  EXPECT_EQ(ReadPin(u"+PIN," + std::u16string(GetParam().field) + u",-PIN\n").nameMask,
            GetParam().mask);
}

INSTANTIATE_TEST_SUITE_P(, PinNameMask,
                         testing::Values(MaskCase{"Padded", u"DF:%20%20%20%20%20%20%205", 5},
                                         MaskCase{"Whole", u"DF:FFFFFFFF", 0xFFFFFFFF},
                                         MaskCase{"LowerCase", u"DF:beef", 0xBEEF},
                                         MaskCase{"TooLarge", u"DF:123456789", 0xFFFFFFFF},
                                         MaskCase{"NoNumber", u"DF:xyz", 0},
                                         MaskCase{"Empty", u"DF:", 0}),
                         kCaseName);

TEST(PinNumbersRead, FillTheSlotsInTheirOrder) {
  const SCompPin pin = ReadPin(u"+PIN,M:1,M:2,M:3,-PIN\n");
  EXPECT_EQ(pin.NumberCount(), 2);
  EXPECT_EQ(pin.GetNumber(0), u"1");
  EXPECT_EQ(pin.GetNumber(1), u"2");
}

TEST(PinNumbersRead, AreEmptyForEmptyValuesAndAbsentWithoutAField) {
  const SCompPin pin = ReadPin(u"+PIN,M:,-PIN\n");
  EXPECT_EQ(pin.GetNumber(0), u"");
  EXPECT_EQ(pin.GetNumber(1), std::nullopt);
}

struct EndCase {
  const char* name;
  std::u16string_view record;
  bool read;
  std::u16string_view next;  ///< the field that reading goes on with
  std::vector<FindingKind> findings;
};

void PrintTo(const EndCase& endCase, std::ostream* out) {
  *out << endCase.name;
}

class PinEnd : public testing::TestWithParam<EndCase> {};

TEST_P(PinEnd, DecidesWhetherThePinIsRead) {
  RecordText text(GetParam().record);
  SCompPin pin;
  EXPECT_EQ(pin.Read(*text, 1), GetParam().read);
  EXPECT_EQ(text.Next(), GetParam().next);
  EXPECT_EQ(text.findings.Kinds(), GetParam().findings);
}

INSTANTIATE_TEST_SUITE_P(
    , PinEnd,
    testing::Values(
        EndCase{"Closed", u"+PIN,N:A,-PIN,x\n", true, u"x", {}},
        EndCase{"ClosedByAnotherTag",
                u"+PIN,N:A,-COMP,x\n",
                false,
                u"x",
                {FindingKind::WrongClosingTag}},
        EndCase{"ClosedByATagThatBeginsAlike",
                u"+PIN,-PINS,x\n",
                false,
                u"x",
                {FindingKind::WrongClosingTag}},
        EndCase{"CutOff", u"+PIN,N:A\n", true, u"", {FindingKind::DataCutOff}},
        EndCase{"MalformedEscape",
                u"+PIN,N:%4,T:S,-PIN\n",
                true,
                u"T:S",
                {FindingKind::MalformedEscape, FindingKind::DataCutOff}},
        EndCase{"UnknownRecord",
                u"+PIN,+X,T:S,-PIN,-X,-PIN,x\n",
                true,
                u"x",
                {FindingKind::UnknownRecord}},
        EndCase{"UnknownRecordCutOff",
                u"+PIN,+X,-PIN,x\n",
                false,
                u"",
                {FindingKind::UnknownRecord, FindingKind::UnclosedRecord}},
        EndCase{"UnknownKey", u"+PIN,n:A,-PIN\n", true, u"", {FindingKind::UnknownKey}},
        EndCase{"NoKey", u"+PIN,:A,-PIN\n", true, u"", {FindingKind::FieldWithoutValue}},
        EndCase{"NoColon",
                u"+PIN,NA,,-PIN\n",
                true,
                u"",
                {FindingKind::FieldWithoutValue, FindingKind::FieldWithoutValue}},
        EndCase{"NumberTooMany", u"+PIN,M:1,M:2,-PIN\n", true, u"", {FindingKind::SurplusValue}},
        EndCase{"TypeLetterUnknown", u"+PIN,T:NCx,-PIN\n", true, u"", {FindingKind::ValueIgnored}},
        EndCase{"SideUnknown", u"+PIN,L:Q7,-PIN\n", true, u"", {FindingKind::ValueIgnored}},
        EndCase{"OffsetTooLarge", u"+PIN,L:L256,-PIN\n", true, u"", {FindingKind::ValueIgnored}},
        EndCase{"NameWithANul", u"+PIN,N:A%00B,-PIN\n", true, u"", {FindingKind::TextCutAtNul}},
        EndCase{"NameNotAscii", u"+PIN,N:\u03A9,-PIN\n", true, u"", {FindingKind::NotCanonical}},
        EndCase{
            "NameWithALoneBackslash", u"+PIN,N:A\\,-PIN\n", true, u"", {FindingKind::NotCanonical}},
        EndCase{"NameWithAnOverlinedBackslash", u"+PIN,N:A\\\\,-PIN\n", true, u"", {}}),
    kCaseName);

TEST(PinRead, TellsOfANameThatIsCut) {
  const auto findings = [](int characters) {
    std::u16string record = u"+PIN,N:";
    for (int i = 0; i < characters; ++i) record += u"\\a";
    RecordText text(record + u",-PIN\n");
    SCompPin pin;
    EXPECT_TRUE(pin.Read(*text, 1));
    return text.findings.Kinds();
  };
  EXPECT_THAT(findings(255), ElementsAre());
  EXPECT_THAT(findings(256), ElementsAre(FindingKind::NotCanonical));
}

}  // namespace
}  // namespace mivo
