#include "ptn.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "case_name.h"
#include "geometry_printing.h"
#include "ptn_obj_line.h"
#include "ptn_obj_text.h"
#include "record_text.h"

namespace mivo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct ReadResult {
  bool ok = false;
  SPtn pattern;
  std::vector<FindingKind> findings;
  std::u16string next;  ///< the field that reading goes on with
};

ReadResult Read(std::u16string_view record) {
  RecordText text(record);
  BitPatternBudget budget;
  ReadResult result;
  result.ok = result.pattern.Read(*text, budget);
  result.findings = text.findings.Kinds();
  result.next = text.Next();
  return result;
}

std::vector<PtnObjType> Types(const SPtn& pattern) {
  std::vector<PtnObjType> types;
  for (const auto& object : pattern.objects) types.push_back(object->GetType());
  return types;
}

std::u16string Written(const SPtn& pattern, std::u16string_view name) {
  return WrittenText([&](SRecordWriter& writer) { pattern.Write(writer, name); });
}

TEST(Ptn, IsEmptyByDefault) {
  const SPtn pattern;
  EXPECT_EQ(pattern.name, u"");
  EXPECT_EQ(pattern.size, (SPoint{0, 0}));
  EXPECT_THAT(pattern.objects, IsEmpty());
  EXPECT_FALSE(pattern.bitPattern.has_value());
}

TEST(PtnRead, TakesNameSizeBitsAndObjects) {
  const ReadResult read = Read(
      u"+PTN,N:LED%201,X:11,Y:2\n+BMP\nOON@\n@@@@\n-BMP\n"
      u"+L,W:1,S:0,CV:0,X:0,Y:0,X:9,Y:9,-L\n+C,X:0,Y:0,X:9,Y:9,-C\n"
      u"+PG,N:2,X:0,Y:0,X:9,Y:9,-PG\n+AR,X:1,Y:1,R:5,B:0,E:90,-AR\n+TX,X:1,Y:2,S:a,-TX\n"
      u"-PTN\nx\n");
  ASSERT_TRUE(read.ok);
  EXPECT_EQ(read.next, u"x");
  EXPECT_THAT(read.findings, IsEmpty());
  EXPECT_EQ(read.pattern.name, u"LED 1");
  EXPECT_EQ(read.pattern.size, (SPoint{11, 2}));
  ASSERT_TRUE(read.pattern.bitPattern.has_value());
  EXPECT_EQ(read.pattern.bitPattern->Row(11, 0)[1], 0xE0);
  EXPECT_THAT(Types(read.pattern),
              ElementsAre(PtnObjType::Line, PtnObjType::Circle, PtnObjType::Polygon,
                          PtnObjType::Arc, PtnObjType::Text));
}

TEST(PtnRead, KeepsTheSizeThatThePatternHas) {
  RecordText text(u"+PTN,N:A,Y:7,-PTN\n");
  BitPatternBudget budget;
  SPtn pattern;
  pattern.size = {5, 6};
  pattern.bitPattern = SBitPattern({5, 6});
  pattern.objects.push_back(CreatePtnObj(u"+L"));
  ASSERT_TRUE(pattern.Read(*text, budget));
  EXPECT_EQ(pattern.size, (SPoint{5, 7}));
  EXPECT_FALSE(pattern.bitPattern.has_value());
  EXPECT_THAT(pattern.objects, IsEmpty());
}

TEST(PtnRead, TakesNumbersOfAnySize) {
  EXPECT_EQ(Read(u"+PTN,N:A,X:-5,Y:99999999999,-PTN\n").pattern.size, (SPoint{-5, 2147483647}));
}

TEST(PtnRead, EndsTheNameAtANul) {
  const ReadResult read = Read(u"+PTN,N:A%00B,-PTN\n");
  EXPECT_EQ(read.pattern.name, u"A");
  EXPECT_THAT(read.findings, ElementsAre(FindingKind::TextCutAtNul));
}

TEST(PtnRead, DropsAnObjectThatCannotBeRead) {
  const ReadResult read = Read(u"+PTN,N:A,+PG,N:1,-PG,+L,-L,+TX,X:1,-TX,+C,-C,-PTN\n");
  ASSERT_TRUE(read.ok);
  EXPECT_THAT(Types(read.pattern), ElementsAre(PtnObjType::Line, PtnObjType::Circle));
  EXPECT_THAT(read.findings,
              ElementsAre(FindingKind::ObjectValueInvalid, FindingKind::ObjectDropped,
                          FindingKind::ObjectIncomplete, FindingKind::ObjectDropped));
}

TEST(PtnRead, GoesOnBehindAnObjectClosedByAnotherTag) {
  const ReadResult read = Read(u"+PTN,N:A,+L,-C,+L,-L,-PTN,x\n");
  ASSERT_TRUE(read.ok);
  EXPECT_EQ(read.next, u"x");
  EXPECT_THAT(Types(read.pattern), ElementsAre(PtnObjType::Line));
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

class PtnEnd : public testing::TestWithParam<EndCase> {};

TEST_P(PtnEnd, DecidesWhetherThePatternIsRead) {
  const ReadResult read = Read(GetParam().record);
  EXPECT_EQ(read.ok, GetParam().read);
  EXPECT_EQ(read.findings, GetParam().findings);
}

INSTANTIATE_TEST_SUITE_P(
    , PtnEnd,
    testing::Values(
        EndCase{"Closed", u"+PTN,N:A,X:1,Y:1,-PTN\n", true, {}},
        EndCase{"ClosedWithoutAnything", u"+PTN,-PTN\n", true, {}},
        EndCase{"ClosedByAnotherTag", u"+PTN,N:A,-COMP\n", false, {FindingKind::WrongClosingTag}},
        EndCase{"CutOff", u"+PTN,N:A\n", true, {FindingKind::DataCutOff}},
        EndCase{"CutOffInALine",
                u"+PTN,N:A,+L,X:1\n",
                true,
                {FindingKind::DataCutOff, FindingKind::DataCutOff}},
        EndCase{"CutOffInAText",
                u"+PTN,N:A,+TX,X:1,Y:1,S:a\n",
                true,
                {FindingKind::DataCutOff, FindingKind::ObjectDropped, FindingKind::DataCutOff}},
        EndCase{"CutOffInABitPattern",
                u"+PTN,N:A,X:1,Y:1,+BMP,@@\n",
                false,
                {FindingKind::UnclosedRecord}},
        EndCase{"BitPatternClosedByAnotherTag",
                u"+PTN,N:A,X:1,Y:1,+BMP,-PTN\n",
                false,
                {FindingKind::MalformedBitPattern}},
        EndCase{"UnknownRecord", u"+PTN,+X,-PTN,-X,N:A,-PTN\n", true, {FindingKind::UnknownRecord}},
        EndCase{"UnknownRecordCutOff",
                u"+PTN,+X,-PTN\n",
                false,
                {FindingKind::UnknownRecord, FindingKind::UnclosedRecord}},
        EndCase{
            "ComponentInside", u"+PTN,N:A,+COMP,-COMP,-PTN\n", true, {FindingKind::UnknownRecord}},
        EndCase{"UnknownKey", u"+PTN,n:A,-PTN\n", true, {FindingKind::UnknownKey}},
        EndCase{"EmptyValue", u"+PTN,N:,-PTN\n", true, {FindingKind::FieldWithoutValue}}),
    kCaseName);

struct BitPatternCase {
  const char* name;
  std::u16string_view record;
  bool hasBitPattern;
  std::vector<FindingKind> findings;
};

void PrintTo(const BitPatternCase& bitPatternCase, std::ostream* out) {
  *out << bitPatternCase.name;
}

class PtnBitPattern : public testing::TestWithParam<BitPatternCase> {};

TEST_P(PtnBitPattern, IsReadBehindNameAndSize) {
  const ReadResult read = Read(GetParam().record);
  EXPECT_TRUE(read.ok);
  EXPECT_EQ(read.pattern.bitPattern.has_value(), GetParam().hasBitPattern);
  EXPECT_EQ(read.findings, GetParam().findings);
}

INSTANTIATE_TEST_SUITE_P(
    , PtnBitPattern,
    testing::Values(
        BitPatternCase{"InPlace", u"+PTN,N:A,X:8,Y:1,+BMP,OO,-BMP,-PTN\n", true, {}},
        BitPatternCase{"BehindAnObject", u"+PTN,N:A,X:8,Y:1,+L,-L,+BMP,OO,-BMP,-PTN\n", true, {}},
        BitPatternCase{"BeforeTheName",
                       u"+PTN,X:8,Y:1,+BMP,OO,-BMP,N:A,-PTN\n",
                       false,
                       {FindingKind::BitPatternSkipped}},
        BitPatternCase{"BeforeTheWidth",
                       u"+PTN,N:A,Y:1,+BMP,OO,-BMP,X:8,-PTN\n",
                       false,
                       {FindingKind::BitPatternSkipped}},
        BitPatternCase{"BeforeTheHeight",
                       u"+PTN,N:A,X:8,+BMP,OO,-BMP,Y:1,-PTN\n",
                       false,
                       {FindingKind::BitPatternSkipped}},
        BitPatternCase{"OfWidthZero",
                       u"+PTN,N:A,X:0,Y:1,+BMP,OO,-BMP,-PTN\n",
                       false,
                       {FindingKind::BitPatternSkipped}},
        BitPatternCase{"OfANegativeHeight",
                       u"+PTN,N:A,X:8,Y:-1,+BMP,OO,-BMP,-PTN\n",
                       false,
                       {FindingKind::BitPatternSkipped}},
        BitPatternCase{"Second",
                       u"+PTN,N:A,X:8,Y:1,+BMP,OO,-BMP,+BMP,AA,-BMP,-PTN\n",
                       true,
                       {FindingKind::SurplusValue}},
        BitPatternCase{"SizeChangedBehindIt",
                       u"+PTN,N:A,X:8,Y:1,+BMP,OO,-BMP,X:9,-PTN\n",
                       true,
                       {FindingKind::NotCanonical}},
        BitPatternCase{"SizeChangedBehindItAndCutOff",
                       u"+PTN,N:A,X:8,Y:1,+BMP,OO,-BMP,Y:2\n",
                       true,
                       {FindingKind::DataCutOff, FindingKind::NotCanonical}},
        BitPatternCase{
            "SizeRepeatedBehindIt", u"+PTN,N:A,X:8,Y:1,+BMP,OO,-BMP,X:8,-PTN\n", true, {}}),
    kCaseName);

TEST(PtnRead, FailsWhereASkippedBitPatternIsCutOff) {
  const ReadResult read = Read(u"+PTN,+BMP,OO,-PTN\n");
  EXPECT_FALSE(read.ok);
  EXPECT_THAT(read.findings,
              ElementsAre(FindingKind::BitPatternSkipped, FindingKind::UnclosedRecord));
}

TEST(PtnRead, KeepsADeclaredSizeThatIsTooWideForItsBits) {
  const ReadResult read =
      Read(u"+PTN,N:A,X:600,Y:1,+BMP," + std::u16string(150, u'O') + u",-BMP,-PTN\n");
  ASSERT_TRUE(read.ok);
  EXPECT_EQ(read.pattern.size, (SPoint{600, 1}));
  EXPECT_EQ(read.pattern.bitPattern->Row(600, 0).size(), 63u);
}

TEST(PtnBudget, IsTakenByDeclaredBytes) {
  constexpr std::int64_t kLimit = SBitPattern::kMaxTotalBytes;
  // 2 bytes for each of 2 to the power of 29 rows: all there is.
  RecordText most(u"+PTN,N:A,X:1,Y:536870912,+BMP,-BMP,-PTN\n");
  BitPatternBudget budget;
  SPtn pattern;
  EXPECT_TRUE(pattern.Read(*most, budget));
  EXPECT_FALSE(budget.Take(1));

  RecordText small(u"+PTN,N:A,X:1,Y:1,+BMP,-BMP,-PTN\n");
  EXPECT_FALSE(pattern.Read(*small, budget));
  EXPECT_THAT(small.findings.Kinds(), ElementsAre(FindingKind::BitPatternsTooLarge));

  RecordText skipped(u"+PTN,X:1,Y:1,+BMP,-BMP,-PTN\n");
  EXPECT_TRUE(pattern.Read(*skipped, budget)) << "what is skipped takes nothing";

  RecordText tooLarge(u"+PTN,N:A,X:2147483647,Y:2147483647,+BMP,-BMP,-PTN\n");
  BitPatternBudget another;
  EXPECT_FALSE(pattern.Read(*tooLarge, another));
  EXPECT_TRUE(another.Take(kLimit));
}

TEST(PtnBudget, IsTakenByASizeThatGrowsBehindTheBitPattern) {
  const auto read = [](std::u16string_view size) {
    return Read(u"+PTN,N:A,X:1,Y:1,+BMP,-BMP," + std::u16string(size) + u",-PTN\n");
  };
  EXPECT_TRUE(read(u"Y:536870912").ok);
  const ReadResult grown = read(u"Y:536870913");
  EXPECT_FALSE(grown.ok);
  EXPECT_THAT(grown.findings,
              ElementsAre(FindingKind::NotCanonical, FindingKind::BitPatternsTooLarge));
  EXPECT_TRUE(read(u"X:-1,Y:2147483647").ok) << "no bit pattern is read back from such a size";
}

TEST(PtnWrite, PutsTheBitPatternBeforeTheObjects) {
  SPtn pattern;
  pattern.name = u"own";
  pattern.size = {8, 1};
  pattern.objects.push_back(CreatePtnObj(u"+L"));
  pattern.bitPattern = SBitPattern({8, 1});
  pattern.bitPattern->Row(8, 0)[0] = 0x2A;
  EXPECT_EQ(Written(pattern, u"A B"),
            u"+PTN,N:A%20B,X:8,Y:1\n+BMP\nBJ\n-BMP\n"
            u"+L,W:1,S:0,CV:0,X:-1,Y:-1,X:-1,Y:-1,-L\n-PTN\n");
}

TEST(PtnCopy, ClonesEveryObject) {
  SPtn source = std::move(Read(u"+PTN,N:A,X:8,Y:1,+BMP,OO,-BMP,+L,X:3,Y:4,-L,-PTN\n").pattern);
  const std::u16string before = Written(source, u"n");
  {
    SPtn copy(source);
    EXPECT_EQ(copy.name, u"A");
    EXPECT_EQ(Written(copy, u"n"), before);
    EXPECT_NE(copy.objects[0].get(), source.objects[0].get());
    copy.objects[0]->Move(5, 5);
    copy.bitPattern->Row(8, 0)[0] = 0;
    copy.size = {1, 1};
  }
  EXPECT_EQ(Written(source, u"n"), before);
}

TEST(PtnCopy, ReplacesWhatWasThere) {
  const SPtn source = std::move(Read(u"+PTN,N:A,X:8,Y:1,+C,-C,-PTN\n").pattern);
  SPtn target = std::move(Read(u"+PTN,N:B,X:9,Y:9,+BMP,-BMP,+L,-L,+L,-L,-PTN\n").pattern);
  target = source;
  EXPECT_EQ(target.name, u"A");
  EXPECT_EQ(Written(target, u"n"), Written(source, u"n"));
  EXPECT_FALSE(target.bitPattern.has_value());

  const SPtn& self = target;
  target = self;
  EXPECT_EQ(Written(target, u"n"), Written(source, u"n"));
}

TEST(PtnArea, CreatesABitPatternUnlessBitsAreCleared) {
  SPtn pattern;
  pattern.SetBitPatternArea({11, 21}, true);
  EXPECT_EQ(pattern.size, (SPoint{11, 21}));
  EXPECT_FALSE(pattern.bitPattern.has_value());
  pattern.SetBitPatternArea({21, 11}, false);
  EXPECT_EQ(pattern.size, (SPoint{21, 11}));
  ASSERT_TRUE(pattern.bitPattern.has_value());
  EXPECT_EQ(pattern.bitPattern->Size(), (SPoint{21, 11}));
}

TEST(PtnArea, IsLimitedUnlessBitsAreCleared) {
  SPtn pattern;
  pattern.SetBitPatternArea({2551, 600}, true);
  EXPECT_EQ(pattern.size, (SPoint{2551, 600}));
  pattern.SetBitPatternArea({2551, 600}, false);
  EXPECT_EQ(pattern.size, (SPoint{501, 501}));
  EXPECT_EQ(pattern.bitPattern->Bytes().size(), 32064u);
}

TEST(PtnArea, KeepsTheOverlap) {
  SPtn pattern = std::move(Read(u"+PTN,N:A,X:11,Y:1,+BMP,OON@,-BMP,-PTN\n").pattern);
  pattern.SetBitPatternArea({9, 2}, false);
  EXPECT_EQ(pattern.bitPattern->Bytes(), (std::vector<std::uint8_t>{0xFF, 0x80, 0, 0}));
  pattern.SetBitPatternArea({11, 1}, false);
  EXPECT_EQ(pattern.bitPattern->Bytes(), (std::vector<std::uint8_t>{0xFF, 0x80}));
}

TEST(PtnArea, KeepsTheOverlapOfATooWidePattern) {
  SPtn pattern = std::move(
      Read(u"+PTN,N:A,X:600,Y:1,+BMP," + std::u16string(126, u'O') + u",-BMP,-PTN\n").pattern);
  pattern.SetBitPatternArea({601, 1}, false);
  EXPECT_EQ(pattern.size, (SPoint{501, 1}));
  EXPECT_EQ(pattern.bitPattern->Row(501, 0).back(), 0xF8);
}

}  // namespace
}  // namespace mivo
