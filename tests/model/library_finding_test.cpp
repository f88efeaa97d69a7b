#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "case_name.h"
#include "library_testing.h"

// What a load tells about every kind of fault, and where it says that the fault is.

namespace mivo {
namespace {

using namespace std::string_literals;
using testing::Contains;
using testing::IsEmpty;

struct FindingCase {
  const char* name;
  std::u16string records;  ///< from line 4 on
  FindingKind kind;
  std::int32_t line;
  std::int32_t column;
  std::u16string record;
  std::u16string text;
};

void PrintTo(const FindingCase& findingCase, std::ostream* out) {
  *out << findingCase.name;
}

const std::u16string kPattern = u"+PTN,N:p,X:8,Y:1\n";
const std::u16string kUse = u"+COMP,N:A,X:1,Y:1,B:1,P:p,-COMP\n";

const FindingCase kCases[] = {
    {"FieldWithoutValue", u"\n a,:b\n", FindingKind::FieldWithoutValue, 5, 2, u"", u"a"},
    {"UnknownKey", u"+COMP,N:A\nX:1, Q:1\nY:1,B:1,-COMP\n", FindingKind::UnknownKey, 5, 6, u"+COMP",
     u"Q:1"},
    {"MalformedEscape", u"PROP:a%2\n", FindingKind::MalformedEscape, 4, 1, u"", u"PROP:a"},
    {"FieldSplit", u"PROP:" + std::u16string(40000, u'a') + u"\n", FindingKind::FieldSplit, 4, 1,
     u"", u"PROP:" + std::u16string(75, u'a')},
    {"ValueIgnored", u"+COMP,N:A,X:1,Y:1,B:1\n+PIN,L:L256,-PIN,-COMP\n", FindingKind::ValueIgnored,
     5, 6, u"+PIN", u"L256"},
    {"SurplusValue", u"+COMP,N:A,X:1,Y:1,B:1\n+PIN,M:1,M:2,-PIN,-COMP\n", FindingKind::SurplusValue,
     5, 10, u"+PIN", u"M:2"},
    {"UnknownRecord", kPattern + u"+X,-X,-PTN\n" + kUse, FindingKind::UnknownRecord, 5, 1, u"+PTN",
     u"+X"},
    {"VertexDropped", kPattern + u"+PG,N:3,X:1,Y:1,X:1,Y:1,X:2,Y:2,-PG,-PTN\n" + kUse,
     FindingKind::VertexDropped, 5, 21, u"+PG", u"Y:1"},
    {"ObjectDropped", kPattern + u"+TX,-TX,-PTN\n" + kUse, FindingKind::ObjectDropped, 5, 5,
     u"+PTN", u"+TX"},
    {"ObjectClosedWrongly", kPattern + u"+L,-C,-PTN\n" + kUse, FindingKind::ObjectClosedWrongly, 5,
     4, u"+L", u"-C"},
    {"ObjectIncomplete", kPattern + u"+TX,-TX,-PTN\n" + kUse, FindingKind::ObjectIncomplete, 5, 5,
     u"+TX", u"+TX"},
    {"ObjectValueInvalid", kPattern + u"+PG,N:33,-PG,-PTN\n" + kUse,
     FindingKind::ObjectValueInvalid, 5, 5, u"+PG", u"N:33"},
    {"BitPatternSkipped", u"+PTN,N:p\n+BMP,-BMP,-PTN\n" + kUse, FindingKind::BitPatternSkipped, 5,
     1, u"+PTN", u"+BMP"},
    {"PatternMissing", kUse, FindingKind::PatternMissing, 4, 27, u"", u"p"},
    {"PatternUnused", kPattern + u"-PTN\n", FindingKind::PatternUnused, 6, 1, u"", u"p"},
    {"AliasTargetMissing", u"+ALIAS,A:B,N:A,-ALIAS\n", FindingKind::AliasTargetMissing, 4, 16,
     u"+ALIAS", u"A"},
    {"DataCutOff", u"+COMP,N:A,X:1,Y:1,B:1\n+PIN,T:S\n\0"s, FindingKind::DataCutOff, 5, 6, u"+PIN",
     u"+PIN"},
    {"NameChanged", kUse + kUse, FindingKind::NameChanged, 5, 27, u"", u"A(1)"},
    {"BlocksReduced", u"+COMP,N:A,X:1,Y:1,B:2\nTYPE:SHB,-COMP\n", FindingKind::BlocksReduced, 5, 10,
     u"+COMP", u"A"},
    {"TextCutAtNul", u"+COMP,N:A%00B,X:1,Y:1,B:1,-COMP\n", FindingKind::TextCutAtNul, 4, 7,
     u"+COMP", u"A"},
    {"BitsBeyondWidth", u"+PTN,N:p,X:4,Y:1\n+BMP\nOO\n-BMP,-PTN\n" + kUse,
     FindingKind::BitsBeyondWidth, 6, 1, u"+BMP", u"OO"},
    {"NotCanonical", u"+COMP,N:A,X:1,Y:1,B:1\n+PIN,N:\u03A9,-PIN,-COMP\n",
     FindingKind::NotCanonical, 5, 6, u"+PIN", u"N:\u03A9"},
    {"UnclosedRecord", u"+COMP,N:A\n+X\n-COMP\n", FindingKind::UnclosedRecord, 7, 1, u"+COMP",
     u"+COMP"},
    {"WrongClosingTag", u"+PTN,N:p\n-COMP\n", FindingKind::WrongClosingTag, 5, 1, u"+PTN",
     u"-COMP"},
    {"IncompleteRecord", u"+COMP,N:A\n-COMP\n", FindingKind::IncompleteRecord, 5, 1, u"+COMP",
     u"-COMP"},
    {"InvalidValue", u"+COMP,N:A,\nX:1,Y:-1\n", FindingKind::InvalidValue, 5, 5, u"+COMP", u"Y:-1"},
    {"PinBeforeSize", u"+COMP,N:A\n+PIN,-PIN,-COMP\n", FindingKind::PinBeforeSize, 5, 1, u"+COMP",
     u"+PIN"},
    {"MalformedBitPattern", kPattern + u"+BMP\nOO\n-PTN\n", FindingKind::MalformedBitPattern, 7, 1,
     u"+BMP", u"-PTN"},
    {"BitPatternsTooLarge", u"+PTN,N:p,X:501,Y:99999999\n+BMP,-BMP,-PTN\n",
     FindingKind::BitPatternsTooLarge, 5, 1, u"+PTN", u"+BMP"}};

class LibraryFinding : public testing::TestWithParam<FindingCase> {};

TEST_P(LibraryFinding, SaysWhatIsWrongAndWhere) {
  const FindingCase& expected = GetParam();
  const LoadedLibrary library(LibraryFile(expected.records));
  EXPECT_THAT(library.findings.all, Contains(Finding{expected.kind, expected.line, expected.column,
                                                     expected.record, expected.text}));
}

TEST_P(LibraryFinding, IsAnErrorWhenTheLoadFails) {
  const LoadedLibrary library(LibraryFile(GetParam().records));
  const auto isError = [](const Finding& finding) {
    return SeverityOf(finding.kind) == Severity::Error;
  };
  EXPECT_EQ(std::ranges::none_of(library.findings.all, isError), library.loaded);
  EXPECT_EQ(SeverityOf(GetParam().kind) == Severity::Warning, library.loaded);
}

TEST_P(LibraryFinding, IsGoneAfterASave) {
  const LoadedLibrary library(LibraryFile(GetParam().records));
  const LoadedLibrary again(Saved(library.library));
  EXPECT_TRUE(again.loaded);
  EXPECT_THAT(again.findings.all, IsEmpty());
}

TEST_P(LibraryFinding, ChangesNothing) {
  const std::string bytes = LibraryFile(GetParam().records);
  const LoadedLibrary heard(bytes);
  SMivoDoc unheard;
  EXPECT_EQ(unheard.Load(bytes, u"test.ZLB"), heard.loaded);
  EXPECT_EQ(Saved(unheard), Saved(heard.library));
}

INSTANTIATE_TEST_SUITE_P(, LibraryFinding, testing::ValuesIn(kCases), kCaseName);

TEST(LibraryFindings, AreOfAllKinds) {
  // All but those that come before any record, which library_load_test.cpp has.
  for (int i = 0; i <= static_cast<int>(FindingKind::BitPatternsTooLarge); ++i) {
    const auto kind = static_cast<FindingKind>(i);
    if (kind == FindingKind::NotALibrary || kind == FindingKind::LaterVersion) continue;
    EXPECT_TRUE(std::ranges::any_of(kCases, [=](const auto& row) { return row.kind == kind; }))
        << Utf16ToUtf8(MessageOf(kind));
  }
}

TEST(LibraryFindings, TellOfMoreThan4096ComponentsOfOneName) {
  std::u16string records;
  for (int i = 0; i < 4098; ++i) records += ComponentRecord(u"R");
  const LoadedLibrary library(LibraryFile(records));
  EXPECT_TRUE(library.loaded);
  ASSERT_EQ(library.findings.all.size(), 4097u);
  EXPECT_EQ(library.findings.all[4095],
            (Finding{FindingKind::NameChanged, 4100, 23, u"", u"R(4096)"}));
  EXPECT_EQ(library.findings.all[4096],
            (Finding{FindingKind::NotCanonical, 4101, 23, u"", u"R(4096)"}));
}

}  // namespace
}  // namespace mivo
