#include <gtest/gtest.h>

#include "attached_reader.h"
#include "case_name.h"
#include "record_reader.h"

// Attaching, the line counter, and jumping over records.

namespace mivo {
namespace {

TEST(RecordReaderAttach, ReadsNulsFromNothing) {
  SRecordReader reader;
  for (int i = 0; i < 2; ++i) {
    std::u16string_view field;
    ASSERT_EQ(reader.ReadField(field), FieldStatus::Ok);
    EXPECT_EQ(field, std::u16string(SRecordReader::kMaxFieldLength, u'\0'));
  }
  EXPECT_EQ(reader.Line(), 0);
}

TEST(RecordReaderAttach, ReadsAnEmptyViewWithoutAnArray) {
  SRecordReader reader;
  reader.AttachString({});
  std::u16string_view field;
  EXPECT_EQ(reader.ReadField(field), FieldStatus::End);
  EXPECT_EQ(reader.Line(), 1);
}

/// Megabytes that records may take once these are read.
std::size_t AffordedMegabytes(AttachedReader reader) {
  while (reader.Next()) {
  }
  std::size_t count = 0;
  while (reader->Afford(std::size_t{1} << 20)) ++count;
  return count;
}

TEST(RecordReaderAfford, AllowsInProportionToWhatWasRead) {
  const std::u16string megabyte(std::size_t{1} << 20, u'\n');
  for (const Delivery& delivery : {kDeliveries[0], kDeliveries[3]}) {
    const std::size_t anyway = AffordedMegabytes({u"", delivery});
    const std::size_t withOne = AffordedMegabytes({megabyte, delivery});
    EXPECT_GT(anyway, 0u);
    EXPECT_LE(anyway, 64u);
    EXPECT_GT(withOne, anyway);
    EXPECT_EQ(AffordedMegabytes({megabyte + megabyte, delivery}) - withOne, withOne - anyway);
  }
}

TEST(RecordReaderAfford, ATextInMemoryCounts) {
  const std::u16string megabyte(std::size_t{1} << 20, u'\n');
  EXPECT_EQ(AffordedMegabytes({megabyte, kDeliveries[0]}) + sizeof(char16_t),
            AffordedMegabytes({megabyte, kDeliveries[3]}));
}

TEST(RecordReaderAttach, StartsAnewWithEachSource) {
  PieceSource first("a\nb\xC3", PieceSource::kWhole);  // the end cuts off a character
  PieceSource second("\xA9,d\n", PieceSource::kWhole);
  SRecordReader reader;
  std::u16string_view field;
  reader.AttachFile(first, ByteDecoding::Utf8);
  while (reader.ReadField(field) == FieldStatus::Ok) {
  }
  EXPECT_EQ(reader.Line(), 2);

  reader.AttachString(u"c\n");
  EXPECT_EQ(reader.Line(), 1);
  ASSERT_EQ(reader.ReadField(field), FieldStatus::Ok);
  EXPECT_EQ(field, u"c");
  EXPECT_EQ(reader.ReadField(field), FieldStatus::End);

  reader.AttachFile(second, ByteDecoding::Utf8);
  EXPECT_EQ(reader.Line(), 1);
  ASSERT_EQ(reader.ReadField(field), FieldStatus::Ok);
  EXPECT_EQ(field, u"\uFFFD");
}

TEST(RecordReaderAttach, LeavesAFileInTheMiddleForAnother) {
  PieceSource first("a,\xC3\xA9", 3);  // the reader keeps the front half of the last character
  PieceSource second("b,c\n", PieceSource::kWhole);
  SRecordReader reader;
  std::u16string_view field;
  reader.AttachFile(first, ByteDecoding::Utf8);
  ASSERT_EQ(reader.ReadField(field), FieldStatus::Ok);
  reader.AttachFile(second, ByteDecoding::Utf8);
  ASSERT_EQ(reader.ReadField(field), FieldStatus::Ok);
  EXPECT_EQ(field, u"b");
}

TEST(RecordReaderAttach, LeavesAFileInTheMiddleForAString) {
  PieceSource file("a,b\n", 2);
  SRecordReader reader;
  std::u16string_view field;
  reader.AttachFile(file, ByteDecoding::Utf8);
  ASSERT_EQ(reader.ReadField(field), FieldStatus::Ok);
  reader.AttachString(u"c\n");
  ASSERT_EQ(reader.ReadField(field), FieldStatus::Ok);
  EXPECT_EQ(field, u"c");
  EXPECT_EQ(reader.ReadField(field), FieldStatus::End);
}

class RecordReaderLine : public testing::TestWithParam<Delivery> {};

TEST_P(RecordReaderLine, IsThreeBehindTwoLines) {
  AttachedReader reader(u"a\nb\n", GetParam());
  EXPECT_EQ(reader->Line(), 1);
  while (reader.Next()) {
  }
  EXPECT_EQ(reader->Line(), 3);
}

TEST_P(RecordReaderLine, CountsTheLineFeedThatEndsAField) {
  AttachedReader reader(u"a,b\nc", GetParam());
  reader.Next();
  EXPECT_EQ(reader->Line(), 1);
  reader.Next();
  EXPECT_EQ(reader->Line(), 2);
}

TEST_P(RecordReaderLine, CountsEmptyLinesAndLineFeedsBehindCarriageReturns) {
  AttachedReader reader(u"\n\r\n\na\r\nb", GetParam());
  reader.Next();
  EXPECT_EQ(reader->Line(), 4);  // the carriage return has ended the field
  reader.Next();
  EXPECT_EQ(reader->Line(), 5);
}

TEST_P(RecordReaderLine, CountsLineFeedsThatCutOffAnEscape) {
  AttachedReader reader(u"%4\n%\n\na\n", GetParam());
  EXPECT_EQ(reader.Next(3), (std::vector<std::optional<std::u16string>>{{}, {}, u"a"}));
  EXPECT_EQ(reader->Line(), 5);
}

TEST_P(RecordReaderLine, CountsTheLineFeedThatIsLostBehindALongField) {
  AttachedReader reader(std::u16string(SRecordReader::kMaxFieldLength, u'a') + u"\nb\n",
                        GetParam());
  reader.Next();
  EXPECT_EQ(reader->Line(), 2);
}

TEST_P(RecordReaderLine, DoesNotCountEscapedLineFeeds) {
  AttachedReader reader(u"a%0Ab,c\n", GetParam());
  reader.Next(2);
  EXPECT_EQ(reader->Line(), 2);
}

INSTANTIATE_TEST_SUITE_P(, RecordReaderLine, testing::ValuesIn(kDeliveries), kCaseName);

struct SkipCase {
  const char* name;
  std::u16string_view text;
  std::u16string_view wanted;
  FieldStatus status;
  std::optional<std::u16string> next;
};

void PrintTo(const SkipCase& skip, std::ostream* out) {
  *out << skip.name;
}

class SkipToField : public testing::TestWithParam<std::tuple<SkipCase, Delivery>> {};

TEST_P(SkipToField, ConsumesTheFirstEqualField) {
  const auto& [skip, delivery] = GetParam();
  AttachedReader reader(skip.text, delivery);
  EXPECT_EQ(reader->SkipToField(skip.wanted), skip.status);
  EXPECT_EQ(reader.Next(), skip.next);
}

INSTANTIATE_TEST_SUITE_P(
    , SkipToField,
    testing::Combine(
        testing::Values(SkipCase{"FirstField", u"-A,b\n", u"-A", FieldStatus::Ok, u"b"},
                        SkipCase{"LaterField", u"x,+A\n-A,b\n", u"-A", FieldStatus::Ok, u"b"},
                        SkipCase{"EscapedField", u"x,%2DA,b\n", u"-A", FieldStatus::Ok, u"b"},
                        SkipCase{"WholeTextOnly", u"-AB,--A,-A,b\n", u"-A", FieldStatus::Ok, u"b"},
                        SkipCase{"CaseSensitive", u"-a,-A,b\n", u"-A", FieldStatus::Ok, u"b"},
                        SkipCase{"FirstOfSeveral", u"-A,-A,b\n", u"-A", FieldStatus::Ok, u"-A"},
                        SkipCase{"BlankAtItsEnd", u"-A ,-A,b\n", u"-A", FieldStatus::Ok, u"b"},
                        SkipCase{"Missing", u"x,y\n", u"-A", FieldStatus::End, std::nullopt},
                        SkipCase{"CutOff", u"x,-A", u"-A", FieldStatus::End, std::nullopt},
                        SkipCase{"BehindAMalformedEscape", u"x,%4\n-A,b\n", u"-A", FieldStatus::End,
                                 u"-A"}),
        testing::ValuesIn(kDeliveries)),
    kCasePairName);

TEST(SkipRecord, TakesTheFieldReadLast) {
  AttachedReader reader(u"+A%2CB,+A%2CB,x,-A%2CB,-A%2CB,y\n", kDeliveries[0]);
  std::u16string_view tag;
  ASSERT_EQ(reader->ReadField(tag), FieldStatus::Ok);
  EXPECT_EQ(reader->SkipRecord(tag), FieldStatus::Ok);
  EXPECT_EQ(reader.Next(2), (std::vector<std::optional<std::u16string>>{u"-A,B", u"y"}))
      << "the first closing tag ends the skip";
}

TEST(SkipRecord, SkipsARecordWithoutAName) {
  AttachedReader reader(u"+,x,-,y\n", kDeliveries[0]);
  std::u16string_view tag;
  ASSERT_EQ(reader->ReadField(tag), FieldStatus::Ok);
  EXPECT_EQ(reader->SkipRecord(tag), FieldStatus::Ok);
  EXPECT_EQ(reader.Next(), u"y");
}

TEST(SkipRecord, ReportsTheEnd) {
  AttachedReader reader(u"+A,x,-B\n", kDeliveries[0]);
  EXPECT_EQ(reader->SkipRecord(u"+A"), FieldStatus::End);
}

}  // namespace
}  // namespace mivo
