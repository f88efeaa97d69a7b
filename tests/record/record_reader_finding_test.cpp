#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "attached_reader.h"
#include "case_name.h"
#include "collected_findings.h"
#include "record_reader.h"

// Where the reader says that its findings are.

namespace mivo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class RecordReaderFinding : public testing::TestWithParam<Delivery> {
 protected:
  /// Reads the whole text and reports every field of it.
  std::vector<Finding> Fields(std::u16string_view text) {
    AttachedReader reader(text, GetParam());
    CollectedFindings findings;
    reader->SetSink(&findings);
    std::u16string_view field;
    while (reader->ReadField(field) == FieldStatus::Ok) {
      reader->Report(FindingKind::UnknownKey, field);
    }
    return findings.all;
  }

  static Finding Field(std::int32_t line, std::int32_t column, std::u16string_view text) {
    return {FindingKind::UnknownKey, line, column, u"", std::u16string(text)};
  }
};

TEST_P(RecordReaderFinding, CountsLinesAndColumnsFromOne) {
  EXPECT_THAT(Fields(u"a,bc,d\ne\n"), ElementsAre(Field(1, 1, u"a"), Field(1, 3, u"bc"),
                                                  Field(1, 6, u"d"), Field(2, 1, u"e")));
}

TEST_P(RecordReaderFinding, PointsBehindWhiteSpaceBeforeTheField) {
  EXPECT_THAT(Fields(u"\n  a, \tb,\r\n\r\n c\n"),
              ElementsAre(Field(2, 3, u"a"), Field(2, 7, u"b"), Field(4, 2, u"c")));
}

TEST_P(RecordReaderFinding, CountsEscapesAsTheyStand) {
  EXPECT_THAT(Fields(u"%41%0Ab,c\n"), ElementsAre(Field(1, 1, u"A\nb"), Field(1, 9, u"c")));
}

TEST_P(RecordReaderFinding, CountsCodeUnits) {
  EXPECT_THAT(Fields(u"\u00E9,\U0001F600,c\n"),
              ElementsAre(Field(1, 1, u"\u00E9"), Field(1, 3, u"\U0001F600"), Field(1, 6, u"c")));
}

TEST_P(RecordReaderFinding, CountsOnBehindTheEdgesOfWindows) {
  std::u16string text(100000, u'\t');
  text += u"a\n";
  text.append(100000, u' ');
  text += u"b,c\n";
  EXPECT_THAT(Fields(text),
              ElementsAre(Field(1, 100001, u"a"), Field(2, 100001, u"b"), Field(2, 100003, u"c")));
}

TEST_P(RecordReaderFinding, CutsLongTexts) {
  EXPECT_THAT(Fields(std::u16string(81, u'a') + u'\n'),
              ElementsAre(Field(1, 1, std::u16string(80, u'a'))));
}

TEST_P(RecordReaderFinding, TellsOfAnEscapeCutOff) {
  AttachedReader reader(u"a\nb,c%4,d\n", GetParam());
  CollectedFindings findings;
  reader->SetSink(&findings);
  reader.Next(3);
  EXPECT_THAT(findings.all, ElementsAre(Finding{FindingKind::MalformedEscape, 2, 3, u"", u"c"}));
}

TEST_P(RecordReaderFinding, TellsOfAFieldThatIsSplit) {
  constexpr std::size_t kLimit = SRecordReader::kMaxFieldLength;
  std::u16string text = u"a," + std::u16string(kLimit + 1, u'b') + u'\n';
  text += std::u16string(kLimit, u'c') + u"\n";  // just fits
  text += std::u16string(kLimit, u'd');          // just fits, but for its end
  AttachedReader reader(text, GetParam());
  CollectedFindings findings;
  reader->SetSink(&findings);
  while (reader.Next()) {
  }
  EXPECT_THAT(findings.all,
              ElementsAre(Finding{FindingKind::FieldSplit, 1, 3, u"", std::u16string(80, u'b')}));
}

INSTANTIATE_TEST_SUITE_P(, RecordReaderFinding, testing::ValuesIn(kDeliveries), kCaseName);

TEST(RecordReaderSink, HasAPlaceBeforeTheFirstField) {
  AttachedReader reader(u"", kDeliveries[0]);
  CollectedFindings findings;
  reader->SetSink(&findings);
  EXPECT_EQ(reader.Next(), std::nullopt);
  reader->Report(FindingKind::NotALibrary, u"");
  EXPECT_THAT(findings.all, ElementsAre(Finding{FindingKind::NotALibrary, 1, 1, u"", u""}));
}

TEST(RecordReaderSink, MayBeAbsent) {
  AttachedReader reader(u"a\n", kDeliveries[0]);
  CollectedFindings findings;
  reader->SetSink(&findings);
  reader->SetSink(nullptr);
  reader->Report(FindingKind::UnknownKey, u"");
  EXPECT_THAT(findings.all, IsEmpty());
}

TEST(RecordReaderSink, HearsTheInnermostOpenRecord) {
  AttachedReader reader(u"a\n", kDeliveries[0]);
  CollectedFindings findings;
  reader->SetSink(&findings);
  const auto report = [&] { reader->Report(FindingKind::UnknownKey, u""); };
  report();
  {
    const SRecordReader::RecordScope outer(*reader, u"+COMP");
    report();
    {
      const SRecordReader::RecordScope inner(*reader, u"+PIN");
      report();
    }
    report();
  }
  report();
  std::vector<std::u16string> records;
  for (const Finding& finding : findings.all) records.push_back(finding.record);
  EXPECT_THAT(records, ElementsAre(u"", u"+COMP", u"+PIN", u"+COMP", u""));
}

TEST(SkipUnknownRecord, TellsWhatItSkips) {
  AttachedReader reader(u"+A,x,-A,y\n", kDeliveries[0]);
  CollectedFindings findings;
  reader->SetSink(&findings);
  reader.Next();
  EXPECT_TRUE(reader->SkipUnknownRecord(u"+A"));
  EXPECT_THAT(findings.all, ElementsAre(Finding{FindingKind::UnknownRecord, 1, 1, u"", u"+A"}));
  EXPECT_EQ(reader.Next(), u"y");
}

TEST(SkipUnknownRecord, TellsThatTheDataEndInside) {
  AttachedReader reader(u"+A,x\n", kDeliveries[0]);
  CollectedFindings findings;
  reader->SetSink(&findings);
  const SRecordReader::RecordScope scope(*reader, u"+L");
  reader.Next();
  EXPECT_FALSE(reader->SkipUnknownRecord(u"+A", FindingKind::DataCutOff));
  EXPECT_THAT(findings.all, ElementsAre(Finding{FindingKind::UnknownRecord, 1, 1, u"+L", u"+A"},
                                        Finding{FindingKind::DataCutOff, 1, 4, u"+L", u"+L"}));
}

TEST(TextValue, EndsAtTheFirstNul) {
  using namespace std::string_view_literals;
  AttachedReader reader(u"N:a%00b\n", kDeliveries[0]);
  CollectedFindings findings;
  reader->SetSink(&findings);
  reader.Next();
  EXPECT_EQ(reader->TextValue(u"a\0b\0c"sv), u"a");
  EXPECT_THAT(findings.all, ElementsAre(Finding{FindingKind::TextCutAtNul, 1, 1, u"", u"a"}));
}

TEST(TextValue, IsSilentWithoutANul) {
  AttachedReader reader(u"N:a\n", kDeliveries[0]);
  CollectedFindings findings;
  reader->SetSink(&findings);
  reader.Next();
  EXPECT_EQ(reader->TextValue(u"a"), u"a");
  EXPECT_EQ(reader->TextValue(u""), u"");
  EXPECT_THAT(findings.all, IsEmpty());
}

}  // namespace
}  // namespace mivo
