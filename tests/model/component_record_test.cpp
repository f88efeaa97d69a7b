#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "case_name.h"
#include "component.h"
#include "geometry_printing.h"
#include "record_text.h"

// How the record of a component is read.

namespace mivo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct ReadResult {
  bool ok = false;
  SComponent component;
  SComponent::ReadContext names;
  std::vector<FindingKind> findings;
  std::u16string next;  ///< the field that reading goes on with
};

ReadResult Read(std::u16string_view record) {
  RecordText text(record);
  ReadResult result;
  result.ok = result.component.Read(*text, result.names);
  result.findings = text.findings.Kinds();
  result.next = text.Next();
  return result;
}

TEST(ComponentRead, TakesEveryField) {
  const ReadResult read = Read(
      u"+COMP,N:74%2C00\nX:4,Y:3,B:2\nTYPE:GEN,FB:0\nR:IC\nP:shape\n"
      u"+PIN,N:A,M:1,M:4,-PIN\n+PIN,N:B,M:2,-PIN\n"
      u"NOTE:a%20b,MFR:c,MFRPN:d,PKG:e,-COMP\nx\n");
  ASSERT_TRUE(read.ok);
  EXPECT_THAT(read.findings, IsEmpty());
  EXPECT_EQ(read.next, u"x");
  EXPECT_EQ(read.names.name, u"74,00");
  EXPECT_EQ(read.names.patternName, u"shape");
  EXPECT_EQ(read.component.Size(), (SPoint{4, 3}));
  EXPECT_EQ(read.component.BlockCount(), 2);
  EXPECT_EQ(read.component.Type(), BlockType::General);
  EXPECT_EQ(read.component.prefix, u"IC");
  EXPECT_EQ(read.component.note, u"a b");
  EXPECT_EQ(read.component.manufacturer, u"c");
  EXPECT_EQ(read.component.partNumber, u"d");
  EXPECT_EQ(read.component.package, u"e");
  EXPECT_EQ(read.component.Pattern(), nullptr) << "the library finds it by its name";
  ASSERT_EQ(read.component.Pins().size(), 2u);
  EXPECT_EQ(read.component.Pins()[0].Name(), u"A");
  EXPECT_EQ(read.component.Pins()[1].Name(), u"B");
  EXPECT_EQ(read.component.Pins()[1].NumberCount(), 2);
}

TEST(ComponentRead, HasDefaults) {
  const ReadResult read = Read(u"+COMP,N:A,X:1,Y:1,B:1,-COMP\n");
  ASSERT_TRUE(read.ok);
  EXPECT_EQ(read.component.prefix, u"U");
  EXPECT_EQ(read.component.Type(), BlockType::General);
  EXPECT_EQ(read.component.FixedBlock(), 0);
  EXPECT_EQ(read.names.patternName, u"");
}

TEST(ComponentRead, TakesEmptyTexts) {
  const ReadResult read = Read(u"+COMP,N:A,R:,P:,NOTE:,X:1,Y:1,B:1,-COMP\n");
  ASSERT_TRUE(read.ok);
  EXPECT_EQ(read.component.prefix, u"");
  EXPECT_THAT(read.findings, IsEmpty());
}

TEST(ComponentRead, ForgetsWhatTheComponentWas) {
  RecordText first(u"+COMP,N:A,X:9,Y:9,B:2,R:Q,NOTE:n,TYPE:FXB,FB:3,P:p,+PIN,-PIN,-COMP\n");
  SComponent component;
  SComponent::ReadContext names;
  ASSERT_TRUE(component.Read(*first, names));
  component.UsePattern(true, true);
  RecordText second(u"+COMP\n");
  ASSERT_TRUE(component.Read(*second, names));
  EXPECT_EQ(component.Size(), (SPoint{0, 0}));
  EXPECT_EQ(component.BlockCount(), 0);
  EXPECT_EQ(component.FixedBlock(), 0);
  EXPECT_EQ(component.Type(), BlockType::General);
  EXPECT_EQ(component.prefix, u"U");
  EXPECT_EQ(component.note, u"");
  EXPECT_EQ(component.Pattern(), nullptr);
  EXPECT_THAT(component.Pins(), IsEmpty());
  EXPECT_EQ(names.name + names.patternName, u"");
}

TEST(ComponentRead, EndsEveryTextAtANul) {
  const ReadResult read = Read(
      u"+COMP,N:A%00z,R:B%00z,P:C%00z,NOTE:D%00z,MFR:E%00z,MFRPN:F%00z,PKG:G%00z,TYPE:SHB%00z,"
      u"X:1,Y:1,B:1,-COMP\n");
  ASSERT_TRUE(read.ok);
  EXPECT_EQ(read.names.name, u"A");
  EXPECT_EQ(read.component.prefix, u"B");
  EXPECT_EQ(read.names.patternName, u"C");
  EXPECT_EQ(read.component.note, u"D");
  EXPECT_EQ(read.component.manufacturer, u"E");
  EXPECT_EQ(read.component.partNumber, u"F");
  EXPECT_EQ(read.component.package, u"G");
  EXPECT_EQ(read.component.Type(), BlockType::Shared);
  EXPECT_EQ(read.findings, std::vector(8, FindingKind::TextCutAtNul));
}

TEST(ComponentRead, TakesTheSizeWithoutAnUpperLimit) {
  EXPECT_EQ(Read(u"+COMP,N:A,X:256,Y:99999999999,B:1,-COMP\n").component.Size(),
            (SPoint{256, 2147483647}));
}

TEST(ComponentRead, TakesTheLastOfSeveralSizes) {
  EXPECT_EQ(Read(u"+COMP,N:A,X:5,X:6,Y:7,Y:8,B:1,-COMP\n").component.Size(), (SPoint{6, 8}));
}

struct BlockCase {
  const char* name;
  std::u16string_view fields;
  bool read;
  BlockType type;
  std::int32_t blocks;
  std::int32_t fixedBlock;
};

void PrintTo(const BlockCase& blockCase, std::ostream* out) {
  *out << blockCase.name;
}

class ComponentBlocks : public testing::TestWithParam<BlockCase> {};

TEST_P(ComponentBlocks, AreRead) {
  const ReadResult read =
      Read(u"+COMP,N:A,X:1,Y:1," + std::u16string(GetParam().fields) + u",-COMP\n");
  ASSERT_EQ(read.ok, GetParam().read);
  if (!read.ok) {
    EXPECT_THAT(read.findings, ElementsAre(FindingKind::InvalidValue));
    return;
  }
  EXPECT_EQ(read.component.Type(), GetParam().type);
  EXPECT_EQ(read.component.BlockCount(), GetParam().blocks);
  EXPECT_EQ(read.component.FixedBlock(), GetParam().fixedBlock);
}

INSTANTIATE_TEST_SUITE_P(
    , ComponentBlocks,
    testing::Values(
        BlockCase{"OneBlock", u"B:1", true, BlockType::General, 1, 0},
        BlockCase{"MostBlocks", u"B:255", true, BlockType::General, 255, 0},
        BlockCase{"CountAfterZero", u"B:0,B:3", true, BlockType::General, 3, 0},
        BlockCase{"SecondCount", u"B:2,B:3", false, {}, 0, 0},
        BlockCase{"SecondCountZero", u"B:2,B:0", false, {}, 0, 0},
        BlockCase{"CountTooLarge", u"B:256", false, {}, 0, 0},
        BlockCase{"CountNegative", u"B:-1", false, {}, 0, 0},
        BlockCase{"CountFarTooLarge", u"B:4294967297", false, {}, 0, 0},
        BlockCase{"SharedLosesBlocksAndNumber", u"TYPE:SHB,B:4,FB:3", true, BlockType::Shared, 1,
                  0},
        BlockCase{"FixedKeepsItsNumber", u"TYPE:FXB,B:4,FB:3", true, BlockType::Fixed, 1, 3},
        BlockCase{"LargestFixedNumber", u"TYPE:FXB,B:1,FB:255", true, BlockType::Fixed, 1, 255},
        BlockCase{"TypeInLowerCase", u"TYPE:fxb,B:4,FB:3", true, BlockType::General, 4, 0},
        BlockCase{"TypeUnknown", u"TYPE:FXBX,B:4", true, BlockType::General, 4, 0},
        BlockCase{"TypeEmpty", u"TYPE:,B:4", true, BlockType::General, 4, 0},
        BlockCase{"LastTypeCounts", u"TYPE:FXB,TYPE:x,B:4,FB:2", true, BlockType::General, 4, 0},
        BlockCase{"GeneralLosesItsNumber", u"TYPE:GEN,B:4,FB:3", true, BlockType::General, 4, 0},
        BlockCase{"NumberAfterZero", u"TYPE:FXB,B:1,FB:0,FB:3", true, BlockType::Fixed, 1, 3},
        BlockCase{"SecondNumber", u"TYPE:FXB,B:1,FB:2,FB:3", false, {}, 0, 0},
        BlockCase{"NumberTooLarge", u"TYPE:FXB,B:1,FB:256", false, {}, 0, 0},
        BlockCase{"NumberNegative", u"TYPE:FXB,B:1,FB:-1", false, {}, 0, 0}),
    kCaseName);

TEST(ComponentRead, DropsNumbersOfBlocksThatAreReduced) {
  const ReadResult read = Read(u"+COMP,N:A,X:1,Y:1,B:3,+PIN,M:1,M:2,M:3,-PIN,TYPE:SHB,-COMP\n");
  ASSERT_TRUE(read.ok);
  ASSERT_EQ(read.component.Pins().size(), 1u);
  EXPECT_EQ(read.component.Pins()[0].NumberCount(), 1);
  EXPECT_EQ(read.component.Pins()[0].GetNumber(0), u"1");
  EXPECT_THAT(read.findings, ElementsAre(FindingKind::BlocksReduced));
}

struct EndCase {
  const char* name;
  std::u16string_view record;
  bool read;
  std::vector<FindingKind> findings;
};

void PrintTo(const EndCase& endCase, std::ostream* out) {
  *out << endCase.name;
}

class ComponentEnd : public testing::TestWithParam<EndCase> {};

TEST_P(ComponentEnd, DecidesWhetherTheComponentIsRead) {
  const ReadResult read = Read(GetParam().record);
  EXPECT_EQ(read.ok, GetParam().read);
  EXPECT_EQ(read.findings, GetParam().findings);
}

INSTANTIATE_TEST_SUITE_P(
    , ComponentEnd,
    testing::Values(
        EndCase{"Complete", u"+COMP,N:A,X:1,Y:1,B:1,-COMP\n", true, {}},
        EndCase{"NoName", u"+COMP,X:1,Y:1,B:1,-COMP\n", false, {FindingKind::IncompleteRecord}},
        EndCase{
            "EmptyName", u"+COMP,N:,X:1,Y:1,B:1,-COMP\n", false, {FindingKind::IncompleteRecord}},
        EndCase{"NulForAName",
                u"+COMP,N:%00A,X:1,Y:1,B:1,-COMP\n",
                false,
                {FindingKind::TextCutAtNul, FindingKind::IncompleteRecord}},
        EndCase{"NoWidth", u"+COMP,N:A,Y:1,B:1,-COMP\n", false, {FindingKind::IncompleteRecord}},
        EndCase{
            "WidthZero", u"+COMP,N:A,X:0,Y:1,B:1,-COMP\n", false, {FindingKind::IncompleteRecord}},
        EndCase{
            "HeightZero", u"+COMP,N:A,X:1,Y:0,B:1,-COMP\n", false, {FindingKind::IncompleteRecord}},
        EndCase{"NoBlocks", u"+COMP,N:A,X:1,Y:1,-COMP\n", false, {FindingKind::IncompleteRecord}},
        EndCase{"WidthNegative",
                u"+COMP,N:A,X:-1,X:1,Y:1,B:1,-COMP\n",
                false,
                {FindingKind::InvalidValue}},
        EndCase{"HeightNegative",
                u"+COMP,N:A,X:1,Y:-1,Y:1,B:1,-COMP\n",
                false,
                {FindingKind::InvalidValue}},
        EndCase{"ClosedByAnotherTag",
                u"+COMP,N:A,X:1,Y:1,B:1,-PIN\n",
                false,
                {FindingKind::WrongClosingTag}},
        EndCase{"CutOff", u"+COMP,N:A,X:1\n", true, {FindingKind::DataCutOff}},
        EndCase{"CutOffAtOnce", u"+COMP\n", true, {FindingKind::DataCutOff}},
        EndCase{"CutOffWithoutAName", u"+COMP,X:3,Y:3,B:1\n", true, {FindingKind::DataCutOff}},
        EndCase{"CutOffInAPin",
                u"+COMP,N:A,X:1,Y:1,B:1,+PIN,N:B\n",
                true,
                {FindingKind::DataCutOff, FindingKind::DataCutOff}},
        EndCase{"CutOffButInvalid", u"+COMP,N:A,X:-1\n", false, {FindingKind::InvalidValue}},
        EndCase{"PinFirst",
                u"+COMP,N:A,+PIN,-PIN,X:1,Y:1,B:1,-COMP\n",
                false,
                {FindingKind::PinBeforeSize}},
        EndCase{"PinBeforeTheWidth",
                u"+COMP,N:A,Y:1,B:1,+PIN,-PIN,X:1,-COMP\n",
                false,
                {FindingKind::PinBeforeSize}},
        EndCase{"PinBeforeTheHeight",
                u"+COMP,N:A,X:1,B:1,+PIN,-PIN,Y:1,-COMP\n",
                false,
                {FindingKind::PinBeforeSize}},
        EndCase{"PinBeforeTheBlocks",
                u"+COMP,N:A,X:1,Y:1,+PIN,-PIN,B:1,-COMP\n",
                false,
                {FindingKind::PinBeforeSize}},
        EndCase{"PinBeforeTheName", u"+COMP,X:1,Y:1,B:1,+PIN,-PIN,N:A,-COMP\n", true, {}},
        EndCase{"PinFails",
                u"+COMP,N:A,X:1,Y:1,B:1,+PIN,-COMP\n",
                false,
                {FindingKind::WrongClosingTag}},
        EndCase{"UnknownRecord",
                u"+COMP,N:A,+X,-COMP,-X,X:1,Y:1,B:1,-COMP\n",
                true,
                {FindingKind::UnknownRecord}},
        EndCase{"UnknownRecordCutOff",
                u"+COMP,N:A,X:1,Y:1,B:1,+X,-COMP\n",
                false,
                {FindingKind::UnknownRecord, FindingKind::UnclosedRecord}},
        EndCase{"PinLikeTagIsUnknown",
                u"+COMP,N:A,X:1,Y:1,B:1,+PINS,-PINS,-COMP\n",
                true,
                {FindingKind::UnknownRecord}},
        EndCase{
            "UnknownKey", u"+COMP,N:A,X:1,Y:1,B:1,Z:9,-COMP\n", true, {FindingKind::UnknownKey}},
        EndCase{"FieldWithoutAKey",
                u"+COMP,N:A,X:1,Y:1,B:1,:9,-COMP\n",
                true,
                {FindingKind::FieldWithoutValue}},
        EndCase{"BlocksReduced",
                u"+COMP,N:A,X:1,Y:1,B:2,TYPE:SHB,-COMP\n",
                true,
                {FindingKind::BlocksReduced}},
        EndCase{"TypeUnknown",
                u"+COMP,N:A,X:1,Y:1,B:2,TYPE:gen,-COMP\n",
                true,
                {FindingKind::ValueIgnored}},
        EndCase{"NumberOfAGeneralBlock",
                u"+COMP,N:A,X:1,Y:1,B:1,FB:2,-COMP\n",
                true,
                {FindingKind::ValueIgnored}},
        EndCase{"NumberOfAFixedBlock", u"+COMP,N:A,X:1,Y:1,B:1,FB:2,TYPE:FXB,-COMP\n", true, {}}),
    kCaseName);

TEST(ComponentCutOff, KeepsWhatWasReadAndIsWrittenWithSizesOfOne) {
  const ReadResult read = Read(u"+COMP,N:A,R:Q\n");
  ASSERT_TRUE(read.ok);
  EXPECT_EQ(read.names.name, u"A");
  EXPECT_EQ(read.component.Size(), (SPoint{0, 0}));
  EXPECT_EQ(read.component.BlockCount(), 0);
  EXPECT_EQ(WrittenText([&](SRecordWriter& writer) { read.component.Write(writer, u"A"); }),
            u"+COMP,N:A\nX:1,Y:1,B:1\nTYPE:GEN,FB:0\nR:Q\nNOTE:,MFR:,MFRPN:,PKG:,-COMP\n");
}

TEST(ComponentCutOff, IsReducedToOneBlockWhenItsTypeSaysSo) {
  const ReadResult read = Read(u"+COMP,N:A,X:1,Y:1,B:2,+PIN,M:1,M:2,-PIN,TYPE:SHB\n");
  ASSERT_TRUE(read.ok);
  EXPECT_EQ(read.component.BlockCount(), 1);
  EXPECT_EQ(read.component.Pins()[0].NumberCount(), 1);
}

}  // namespace
}  // namespace mivo
