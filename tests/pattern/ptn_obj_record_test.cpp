#include "ptn_obj_record.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "case_name.h"
#include "ptn_obj_reading.h"

// What all drawing objects have in common when they read: which fields they pass over, how their
// record may end, and what they tell about it.

namespace mivo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct ObjectCase {
  const char* name;
  std::u16string_view open;  ///< opening tag
  std::u16string_view body;  ///< fields of a whole object, without the tags
  bool needsClosing;
};

constexpr ObjectCase kObjects[] = {
    {"Line", u"+L", u"W:2,S:1,CV:1,X:0,Y:1,X:2,Y:3,X:4,Y:5,X:6,Y:7", false},
    {"Circle", u"+C", u"W:2,S:1,F:1,X:0,Y:1,X:20,Y:30", false},
    {"Polygon", u"+PG", u"W:2,S:1,F:0,N:3,X:0,Y:1,X:20,Y:3,X:4,Y:50", false},
    {"Arc", u"+AR", u"W:2,S:1,X:0,Y:1,R:20,B:300,E:1440", false},
    {"Text", u"+TX", u"X:0,Y:1,A:5,D:0,S:a%20b%2Cc,FN:Sans,FS:12,FF:BU", true},
};

class DrawingObjectRecord : public testing::TestWithParam<ObjectCase> {
 protected:
  [[nodiscard]] std::u16string Open() const { return std::u16string(GetParam().open); }
  [[nodiscard]] std::u16string Body() const { return std::u16string(GetParam().body); }
  [[nodiscard]] std::u16string Close() const { return u'-' + Open().substr(1); }
  [[nodiscard]] std::u16string Whole() const {
    return Open() + u"," + Body() + u"," + Close() + u"\n";
  }

  /// Reads fields inserted before the closing tag of a whole record.
  ReadRecord ReadWith(std::u16string_view inserted) {
    object_ = CreatePtnObj(GetParam().open);
    return ReadInto(*object_, Open() + u"," + Body() + u"," + std::u16string(inserted) + u"," +
                                  Close() + u",next\n");
  }

  std::unique_ptr<SPtnObj> object_;
};

TEST_P(DrawingObjectRecord, WritesWhatItReads) {
  const auto object = CreatePtnObj(GetParam().open);
  const ReadRecord read = ReadInto(*object, Whole());
  EXPECT_TRUE(read.ok);
  EXPECT_THAT(read.findings, IsEmpty());
  EXPECT_EQ(Written(*object), Whole());
}

TEST_P(DrawingObjectRecord, IgnoresUnknownKeys) {
  const ReadRecord read = ReadWith(u"Q:5,x:7,XX:8");
  EXPECT_TRUE(read.ok);
  EXPECT_EQ(read.next, u"next");
  EXPECT_EQ(Written(*object_), Whole());
  EXPECT_THAT(read.Kinds(), ElementsAre(FindingKind::UnknownKey, FindingKind::UnknownKey,
                                        FindingKind::UnknownKey));
  EXPECT_EQ(read.findings[0].text, u"Q:5");
}

TEST_P(DrawingObjectRecord, IgnoresFieldsWithoutKeyOrValue) {
  const ReadRecord read = ReadWith(u"word,:5,X:,");
  EXPECT_TRUE(read.ok);
  EXPECT_EQ(Written(*object_), Whole());
  ASSERT_THAT(read.Kinds(),
              ElementsAre(FindingKind::FieldWithoutValue, FindingKind::FieldWithoutValue,
                          FindingKind::FieldWithoutValue, FindingKind::FieldWithoutValue));
  EXPECT_EQ(read.findings[2].text, u"X:");
  EXPECT_EQ(read.findings[3].text, u"");  // two commas in a row
}

TEST_P(DrawingObjectRecord, SkipsNestedRecords) {
  // The first closing tag ends the skip; an object's own tag is a nested record like any other.
  const ReadRecord read = ReadWith(u"+NEW,X:99,+L,-L,-PTN,-NEW,+,X:98,-");
  EXPECT_TRUE(read.ok);
  EXPECT_EQ(read.next, u"next");
  EXPECT_EQ(Written(*object_), Whole());
  ASSERT_THAT(read.Kinds(), ElementsAre(FindingKind::UnknownRecord, FindingKind::UnknownRecord));
  EXPECT_EQ(read.findings[0].text, u"+NEW");
}

TEST_P(DrawingObjectRecord, FailsInsideANestedRecordThatTheDataCutOff) {
  const ReadRecord read = ReadWith(u"+NEW,X:99");
  EXPECT_FALSE(read.ok);
  EXPECT_THAT(read.Kinds(), ElementsAre(FindingKind::UnknownRecord, FindingKind::DataCutOff));
}

TEST_P(DrawingObjectRecord, FailsAtAnotherClosingTag) {
  for (const std::u16string tag : {u"-X", u"-", u"-PTN"}) {
    const ReadRecord read = ReadWith(tag);
    EXPECT_FALSE(read.ok);
    EXPECT_EQ(read.next, Close());
    ASSERT_THAT(read.Kinds(), ElementsAre(FindingKind::ObjectClosedWrongly));
    EXPECT_EQ(read.findings[0].text, tag);
  }
}

TEST_P(DrawingObjectRecord, ComparesItsClosingTagExactly) {
  EXPECT_FALSE(ReadWith(Close() + u" ").ok);
  EXPECT_FALSE(ReadWith(Close() + u":1").ok);
  std::u16string lowerCase = Close();
  for (char16_t& c : lowerCase) c = c == u'-' ? c : static_cast<char16_t>(c | 0x20);
  EXPECT_FALSE(ReadWith(lowerCase).ok);
}

TEST_P(DrawingObjectRecord, EndsWithTheDataWhereItMay) {
  const auto object = CreatePtnObj(GetParam().open);
  const ReadRecord read = ReadInto(*object, Open() + u"," + Body() + u"\n");
  EXPECT_EQ(read.ok, !GetParam().needsClosing);
  EXPECT_EQ(Written(*object), Whole());
  EXPECT_THAT(read.Kinds(), ElementsAre(FindingKind::DataCutOff));
}

TEST_P(DrawingObjectRecord, EndsWithAMalformedEscapeAsWithTheData) {
  const auto object = CreatePtnObj(GetParam().open);
  const ReadRecord read =
      ReadInto(*object, Open() + u"," + Body() + u",%4\nX:9," + Close() + u"\n");
  EXPECT_EQ(read.ok, !GetParam().needsClosing);
  EXPECT_EQ(read.next, u"X:9");
}

TEST_P(DrawingObjectRecord, SaysWhereItFoundSomething) {
  const auto object = CreatePtnObj(GetParam().open);
  const ReadRecord read = ReadInto(*object, u"\n" + Open() + u",\n  Q:5," + Close() + u"\n");
  ASSERT_FALSE(read.findings.empty());
  const Finding expected{FindingKind::UnknownKey, 3, 3, Open(), u"Q:5"};
  EXPECT_EQ(read.findings[0], expected);
}

TEST_P(DrawingObjectRecord, TakesNumbersByTheirLeadingDigits) {
  std::u16string body = Body();
  for (std::size_t i = body.find(u','); i != std::u16string::npos; i = body.find(u',', i + 1)) {
    if (body[i - 1] >= u'0' && body[i - 1] <= u'9') body.insert(i++, u"x");
  }
  const auto object = CreatePtnObj(GetParam().open);
  EXPECT_TRUE(ReadInto(*object, Open() + u"," + body + u"," + Close() + u"\n").ok);
  EXPECT_EQ(Written(*object), Whole());
}

TEST_P(DrawingObjectRecord, GivesAResultOrARefusalWhereverItIsCut) {
  const std::u16string whole = Whole();
  for (std::size_t length = 0; length < whole.size(); ++length) {
    SCOPED_TRACE(length);
    const auto object = CreatePtnObj(GetParam().open);
    const std::u16string cut = whole.substr(0, length);
    const ReadRecord read = ReadInto(*object, cut);
    if (length < GetParam().open.size() + 1) continue;  // not even the tag
    EXPECT_THAT(read.findings, testing::Not(IsEmpty()));
    if (GetParam().needsClosing) {
      EXPECT_FALSE(read.ok);
    }
    // Whatever came of it can be used.
    static_cast<void>(object->GetBoundingRect());
    static_cast<void>(object->HitTest({0, 0}));
    static_cast<void>(Written(*object));
  }
}

TEST_P(DrawingObjectRecord, CutBetweenFieldsIsAResultWhereItMayBe) {
  std::u16string cut = Whole();
  while (cut.rfind(u',') != std::u16string::npos) {
    cut.resize(cut.rfind(u','));
    const auto object = CreatePtnObj(GetParam().open);
    const ReadRecord read = ReadInto(*object, cut + u",");
    // A polygon needs two vertices.
    const bool enough = object->GetType() != PtnObjType::Polygon || object->GetNodeCount() >= 2;
    EXPECT_EQ(read.ok, enough && !GetParam().needsClosing);
  }
}

INSTANTIATE_TEST_SUITE_P(, DrawingObjectRecord, testing::ValuesIn(kObjects), kCaseName);

/// Fields that records are made of, and some that they are not.
rc::Gen<std::u16string> AnyFields() {
  static const std::vector<std::u16string> kFields = {
      u"X:0",          u"X:7",   u"Y:0",   u"Y:7",  u"Y:-2147483648", u"N:2",   u"N:5",
      u"N:32",         u"N:33",  u"W:3",   u"S:2",  u"S:text%00cut",  u"F:0",   u"CV:1",
      u"R:9",          u"B:100", u"E:900", u"A:15", u"D:0",           u"FS:99", u"FN:Sans",
      u"FF:B",         u"X:",    u"word",  u"+NEW", u"-NEW",          u"+L",    u"-L",
      u"-C",           u"-PG",   u"",      u"%zz",  u"-AR",           u"-TX",   u"X:%4\n",
      u"Y:99999999999"};
  return rc::gen::map(rc::gen::container<std::vector<std::u16string>>(rc::gen::elementOf(kFields)),
                      [](const std::vector<std::u16string>& fields) {
                        std::u16string text;
                        for (const std::u16string& field : fields) text += field + u",";
                        return text;
                      });
}

RC_GTEST_PROP(DrawingObjectRecords, OfAnyFieldsNeverReportAnError, ()) {
  const ObjectCase object =
      *rc::gen::elementOf(std::vector<ObjectCase>(std::begin(kObjects), std::end(kObjects)));
  const std::u16string fields = *AnyFields();
  const auto made = CreatePtnObj(object.open);
  const ReadRecord read = ReadInto(*made, std::u16string(object.open) + u"," + fields);
  for (const Finding& finding : read.findings) {
    RC_ASSERT(SeverityOf(finding.kind) == Severity::Warning);
  }
  // What was read as an object is written as one that reads back the same.
  if (!read.ok) return;
  const std::u16string written = Written(*made);
  const auto again = CreatePtnObj(object.open);
  RC_ASSERT(ReadInto(*again, written).ok);
  const bool canonical =
      std::none_of(read.findings.begin(), read.findings.end(),
                   [](const auto& f) { return f.kind == FindingKind::NotCanonical; });
  RC_ASSERT((Written(*again) == written) == canonical);
}

}  // namespace
}  // namespace mivo
