#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "byte_streams.h"
#include "case_name.h"
#include "library_testing.h"

// Which files are libraries, how they are decoded, and what their body may hold.

namespace mivo {
namespace {

using namespace std::string_view_literals;
using testing::ElementsAre;
using testing::IsEmpty;

struct HeadCase {
  const char* name;
  std::string_view head;  ///< in front of a component called "Ä" in UTF-8
  bool loaded;
  std::int32_t version;
  std::u16string_view componentName;
};

void PrintTo(const HeadCase& headCase, std::ostream* out) {
  *out << headCase.name;
}

class LibraryHead : public testing::TestWithParam<HeadCase> {};

TEST_P(LibraryHead, DecidesHowTheFileIsDecoded) {
  const LoadedLibrary library(std::string(GetParam().head) +
                              "\n+COMP,N:\xC3\x84,X:1,Y:1,B:1,-COMP\n-TARSL_LIB_V.1.0\n");
  ASSERT_EQ(library.loaded, GetParam().loaded);
  if (!library.loaded) {
    EXPECT_THAT(library.Names(), IsEmpty());
    EXPECT_THAT(library.findings.Kinds(), ElementsAre(FindingKind::NotALibrary));
    return;
  }
  EXPECT_EQ(library.library.Version(), GetParam().version);
  EXPECT_THAT(library.Names(), ElementsAre(GetParam().componentName));
}

constexpr std::u16string_view kUtf8 = u"\u00C4";
constexpr std::u16string_view kCodePage = u"\u00C3\u201E";

INSTANTIATE_TEST_SUITE_P(
    , LibraryHead,
    testing::Values(
        HeadCase{"Current", "+TARSL_LIB_V.1.0\nVER:82", true, 82, kUtf8},
        HeadCase{"FirstInUtf8", "+TARSL_LIB_V.1.0\nVER:71", true, 71, kUtf8},
        HeadCase{"LastInTheCodePage", "+TARSL_LIB_V.1.0\nVER:70", true, 70, kCodePage},
        HeadCase{"Later", "+TARSL_LIB_V.1.0\nVER:83", true, 83, kUtf8},
        HeadCase{"NoVersion", "+TARSL_LIB_V.1.0", true, 70, kCodePage},
        HeadCase{"OtherFieldFirst", "+TARSL_LIB_V.1.0\nPROP:a\nVER:82", true, 70, kCodePage},
        HeadCase{"KeyAlone", "+TARSL_LIB_V.1.0\nVER", true, 70, kCodePage},
        HeadCase{"NoNumber", "+TARSL_LIB_V.1.0\nVER:x", true, 0, kCodePage},
        HeadCase{"EmptyVersion", "+TARSL_LIB_V.1.0\nVER:", true, 0, kCodePage},
        HeadCase{"OtherCase", "+TARSL_LIB_V.1.0\nver:82", true, 70, kCodePage},
        HeadCase{"NegativeVersion", "+TARSL_LIB_V.1.0\nVER:-82", true, -82, kCodePage},
        HeadCase{"VersionOutOfBounds", "+TARSL_LIB_V.1.0\nVER:99999999999", true, 2147483647,
                 kUtf8},
        HeadCase{"OnOneLine", " +TARSL_LIB_V.1.0,VER:82,", true, 82, kUtf8},
        HeadCase{"Escaped", "%2BTARSL_LIB_V.1.0\n%56ER:82", true, 82, kUtf8},
        HeadCase{"ByteOrderMark", "\xEF\xBB\xBF+TARSL_LIB_V.1.0\nVER:82", false, 0, u""},
        HeadCase{"ByteFFFirst", "\xFF\n+TARSL_LIB_V.1.0\nVER:82", false, 0, u""},
        HeadCase{"Utf16", "\xFF\xFE+\0T\0"sv, false, 0, u""},
        HeadCase{"OtherFieldBefore", "a,+TARSL_LIB_V.1.0\nVER:82", false, 0, u""},
        HeadCase{"OtherFormatVersion", "+TARSL_LIB_V.1.1\nVER:82", false, 0, u""},
        HeadCase{"BlankAtTheEndOfTheTag", "+TARSL_LIB_V.1.0 \nVER:82", false, 0, u""},
        HeadCase{"NulFirst", "\0+TARSL_LIB_V.1.0\nVER:82"sv, false, 0, u""}),
    kCaseName);

TEST(LibraryDecoding, RepairsMalformedUtf8) {
  const LoadedLibrary library(
      "+TARSL_LIB_V.1.0\nVER:82\nPROP:a\xFF"
      "b\xE6\xBC\n");
  EXPECT_TRUE(library.loaded);
  EXPECT_EQ(library.library.property, u"a\uFFFDb\uFFFD");
}

TEST(LibraryDecoding, TakesEveryByteOfTheCodePage) {
  const LoadedLibrary library("+TARSL_LIB_V.1.0\nPROP:\x80\x81\x8D\x8F\x90\x9D\x9F\xA0\xE4\xFF\n");
  EXPECT_TRUE(library.loaded);
  EXPECT_EQ(library.library.property,
            u"\u20AC\u0081\u008D\u008F\u0090\u009D\u0178\u00A0\u00E4\u00FF");
}

TEST(LibraryDecoding, EndsTheDataAtANul) {
  for (const std::string_view version : {"VER:82"sv, "VER:70"sv}) {
    const LoadedLibrary library("+TARSL_LIB_V.1.0\n" + std::string(version) + "\nPROP:a\n" +
                                std::string("\0PROP:b\n-TARSL_LIB_V.1.0\n"sv));
    EXPECT_TRUE(library.loaded);
    EXPECT_EQ(library.library.property, u"a");
    EXPECT_THAT(library.findings.Kinds(), ElementsAre(FindingKind::DataCutOff));
  }
}

TEST(LibraryFileTest, IsNoneWithoutAnyBytes) {
  const LoadedLibrary library("");
  EXPECT_FALSE(library.loaded);
  EXPECT_THAT(library.findings.all, ElementsAre(Finding{FindingKind::NotALibrary, 1, 1, u"", u""}));
}

TEST(LibraryFileTest, TellsInUtf8WhatIsThereInsteadOfALibrary) {
  const LoadedLibrary library("Stückliste \xFE.\n");
  EXPECT_FALSE(library.loaded);
  EXPECT_THAT(library.findings.all, ElementsAre(Finding{FindingKind::NotALibrary, 1, 1, u"",
                                                        u"St\u00FCckliste \uFFFD."}));
}

TEST(LibraryFileTest, TellsWhereTheEndCutsOffWhatIsThereInsteadOfALibrary) {
  const LoadedLibrary library("Stück");
  ASSERT_EQ(library.findings.all.size(), 1u);
  EXPECT_EQ(library.findings.all[0].text, u"St\u00FCck" + std::u16string(75, u'\xFFFF'));
}

TEST(LibraryFileTest, OfALaterVersionTellsSo) {
  const LoadedLibrary library("+TARSL_LIB_V.1.0\n VER:83\n-TARSL_LIB_V.1.0\n");
  EXPECT_TRUE(library.loaded);
  EXPECT_THAT(library.findings.all,
              ElementsAre(Finding{FindingKind::LaterVersion, 2, 2, u"", u"VER:83"}));
  EXPECT_EQ(SeverityOf(FindingKind::LaterVersion), Severity::Warning);
  EXPECT_THAT(LoadedLibrary(Saved(library.library)).findings.all, IsEmpty());
}

TEST(LibraryFileTest, OfTheCurrentVersionHasNothingToTell) {
  EXPECT_THAT(LoadedLibrary(LibraryFile(u"")).findings.all, IsEmpty());
}

// Names at the limit of a field leave no room for a number.
TEST(LibraryFileTest, LoadsAgainWithLongNamesThatGotNumbers) {
  const std::u16string longest(SRecordReader::kMaxFieldLength - 2, u'n');
  const std::u16string records =
      ComponentRecord(longest) + ComponentRecord(longest) + AliasRecord(longest, longest);
  const LoadedLibrary library(LibraryFile(records));
  ASSERT_TRUE(library.loaded);
  const std::string saved = Saved(library.library);
  const LoadedLibrary again(saved);
  EXPECT_TRUE(again.loaded);
  EXPECT_THAT(again.findings.all, IsEmpty());
  EXPECT_EQ(again.Names(), library.Names());
  EXPECT_EQ(Saved(again.library), saved);
}

TEST(LibraryFileTest, LoadsWhatItHoldsWithoutItsEnd) {
  const LoadedLibrary library("+TARSL_LIB_V.1.0\nVER:82\n" + Utf16ToUtf8(ComponentRecord(u"A")));
  EXPECT_TRUE(library.loaded);
  EXPECT_EQ(library.library.Path(), u"test.ZLB");
  EXPECT_THAT(library.Names(), ElementsAre(u"A"));
  EXPECT_THAT(library.findings.all,
              ElementsAre(Finding{FindingKind::DataCutOff, 3, 23, u"", u"+TARSL_LIB_V.1.0"}));
}

TEST(LibraryFileTest, MayEndBehindItsOpeningTag) {
  EXPECT_TRUE(LoadedLibrary("+TARSL_LIB_V.1.0\n").loaded);
}

TEST(LibraryFileTest, MayHoldAnythingBehindItsEnd) {
  const LoadedLibrary library(LibraryFile(ComponentRecord(u"A")) + "-X,+COMP,\xFF,%\n");
  EXPECT_TRUE(library.loaded);
  EXPECT_THAT(library.Names(), ElementsAre(u"A"));
}

TEST(LibraryBody, TakesThePropertyTextWhereverItStands) {
  const LoadedLibrary library(
      LibraryFile(u"PROP:first\n" + ComponentRecord(u"A") + u"PROP:a%20b\n"));
  EXPECT_TRUE(library.loaded);
  EXPECT_EQ(library.library.property, u"a b");
}

TEST(LibraryBody, EndsThePropertyTextAtANul) {
  const LoadedLibrary library(LibraryFile(u"PROP:a%00b\n"));
  EXPECT_EQ(library.library.property, u"a");
  EXPECT_THAT(library.findings.Kinds(), ElementsAre(FindingKind::TextCutAtNul));
}

TEST(LibraryBody, IgnoresLaterVersions) {
  const LoadedLibrary library(LibraryFile(u"VER:50\nVER:\n"));
  EXPECT_EQ(library.library.Version(), 82);
  EXPECT_THAT(library.findings.all, IsEmpty());
}

struct BodyCase {
  const char* name;
  std::u16string_view records;
  bool loaded;
  std::vector<FindingKind> findings;
};

void PrintTo(const BodyCase& bodyCase, std::ostream* out) {
  *out << bodyCase.name;
}

class LibraryBodyCase : public testing::TestWithParam<BodyCase> {};

TEST_P(LibraryBodyCase, IsReadOrRefused) {
  const LoadedLibrary library(LibraryFile(GetParam().records));
  EXPECT_EQ(library.loaded, GetParam().loaded);
  EXPECT_EQ(library.library.Path().has_value(), GetParam().loaded);
  EXPECT_EQ(library.findings.Kinds(), GetParam().findings);
}

INSTANTIATE_TEST_SUITE_P(
    , LibraryBodyCase,
    testing::Values(
        BodyCase{"UnknownKey", u"A:b\n", true, {FindingKind::UnknownKey}},
        BodyCase{"FieldWithoutAKey",
                 u"a,:b\n",
                 true,
                 {FindingKind::FieldWithoutValue, FindingKind::FieldWithoutValue}},
        BodyCase{"UnknownRecord", u"+X,+COMP,-COMP,-X\n", true, {FindingKind::UnknownRecord}},
        BodyCase{"UnknownRecordCutOff",
                 u"+X,+COMP,-COMP\n",
                 false,
                 {FindingKind::UnknownRecord, FindingKind::UnclosedRecord}},
        BodyCase{"SchematicTagInside",
                 u"+TARSL_DATA_V.1.0,-TARSL_DATA_V.1.0\n",
                 true,
                 {FindingKind::UnknownRecord}},
        BodyCase{"WrongClosingTag", u"-COMP\n", false, {FindingKind::WrongClosingTag}},
        BodyCase{"ClosingTagOfASchematic",
                 u"-TARSL_DATA_V.1.0\n",
                 false,
                 {FindingKind::WrongClosingTag}},
        BodyCase{"PatternFails", u"+PTN,N:A,-COMP\n", false, {FindingKind::WrongClosingTag}},
        BodyCase{"ComponentFails", u"+COMP,X:-1,-COMP\n", false, {FindingKind::InvalidValue}},
        BodyCase{"MalformedEscape",
                 u"PROP:%4\n-X\n",
                 true,
                 {FindingKind::MalformedEscape, FindingKind::DataCutOff}}),
    kCaseName);

TEST(LibraryBody, CanBeReadUpToItsFirstComponent) {
  const std::u16string records = u"+PTN,N:p,X:1,Y:1,-PTN\n" + ComponentRecord(u"A", u"P:p") +
                                 ComponentRecord(u"B") + u"-NONSENSE\n";
  SMivoDoc library;
  SRecordReader reader;
  reader.AttachString(records);
  EXPECT_TRUE(library.ReadBody(reader, SMivoDoc::BodyExtent::FirstComponent));
  ASSERT_EQ(library.Components().size(), 1u);
  EXPECT_NE(library.Components()[0]->Pattern(), nullptr);
  std::u16string_view field;
  ASSERT_EQ(reader.ReadField(field), FieldStatus::Ok);
  EXPECT_EQ(field, u"+COMP") << "the reader stands behind the component";
}

TEST(LibraryBody, WithoutAComponentIsReadToItsEnd) {
  SMivoDoc library;
  SRecordReader reader;
  reader.AttachString(u"PROP:a\n-TARSL_LIB_V.1.0,x\n");
  EXPECT_TRUE(library.ReadBody(reader, SMivoDoc::BodyExtent::FirstComponent));
  EXPECT_EQ(library.property, u"a");
}

TEST(LibraryNames, AreMadeUnique) {
  const LoadedLibrary library(LibraryFile(ComponentRecord(u"R") + ComponentRecord(u"R") +
                                          ComponentRecord(u"R") + ComponentRecord(u"R(1)")));
  EXPECT_TRUE(library.loaded);
  EXPECT_THAT(library.Names(), ElementsAre(u"R", u"R(1)", u"R(2)", u"R(3)"));
}

TEST(LibrarySource, ReadsAlikeInPiecesOfAnySize) {
  const std::string utf8 = LibraryFile(ComponentRecord(u"A", u"NOTE:\x20AC%20\xE9") +
                                       ComponentRecord(u"A", u"P:none") + u"+X,-X\n");
  const std::string old = "+TARSL_LIB_V.1.0\nVER:70\n+COMP,N:\xE9,X:1,Y:1,B:1,-COMP\n";
  const std::string schematic = "+TARSL_DATA_V.1.0\n+WIRE,a\xFF,-WIRE\n" + utf8;
  for (const std::string& bytes : {utf8, old, schematic, schematic + "-TARSL_DATA_V.1.0\n",
                                   std::string("none"), std::string()}) {
    const LoadedLibrary whole(bytes);
    for (const std::size_t pieceBytes : {std::size_t{1}, std::size_t{3}, PieceSource::kWhole}) {
      PieceSource source(bytes, pieceBytes);
      SMivoDoc library;
      CollectedFindings findings;
      EXPECT_EQ(library.Load(source, bytes.size(), u"test.ZLB", &findings), whole.loaded);
      EXPECT_EQ(Saved(library), Saved(whole.library)) << pieceBytes;
      EXPECT_EQ(findings.all, whole.findings.all) << pieceBytes;
    }
  }
}

}  // namespace
}  // namespace mivo
