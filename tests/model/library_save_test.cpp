#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "byte_streams.h"
#include "library_testing.h"

// What a library writes.

namespace mivo {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

std::unique_ptr<SComponent> NewComponent(std::u16string_view prefix) {
  auto component = std::make_unique<SComponent>();
  component->SetBodySize({1, 1});
  component->prefix = prefix;
  return component;
}

std::string ComponentBytes(const std::string& name, const std::string& prefix) {
  return "+COMP,N:" + name + "\nX:1,Y:1,B:1\nTYPE:GEN,FB:0\nR:" + prefix +
         "\nNOTE:,MFR:,MFRPN:,PKG:,-COMP\n";
}

const std::string kHead = "+TARSL_LIB_V.1.0\nVER:82\nPROP:\n";
const std::string kTail = "-TARSL_LIB_V.1.0\n";

TEST(LibrarySave, WritesAnEmptyLibrary) {
  SMivoDoc library;
  EXPECT_EQ(Saved(library), kHead + kTail);
  library.property = u"a, b";
  EXPECT_EQ(Saved(library), "+TARSL_LIB_V.1.0\nVER:82\nPROP:a%2C%20b\n-TARSL_LIB_V.1.0\n");
}

TEST(LibrarySave, WritesItsOwnVersionWhateverWasRead) {
  const LoadedLibrary library("+TARSL_LIB_V.1.0\nVER:83\nPROP:\n-TARSL_LIB_V.1.0\n");
  EXPECT_EQ(Saved(library.library), kHead + kTail);
}

TEST(LibrarySave, WritesAComponentOnceAndAliasesOfItsFirstName) {
  SMivoDoc library;
  NameEntry* const a = library.AddComponent(NewComponent(u"A"), u"A");
  library.AddComponent(NewComponent(u"B"), u"B");
  library.AddAlias(a->Component(), u"A2");
  EXPECT_EQ(Saved(library), kHead + ComponentBytes("A", "A") + ComponentBytes("B", "B") +
                                "+ALIAS,A:A2,N:A,-ALIAS\n" + kTail);
}

TEST(LibrarySave, WritesTheNamesInTheOrderOfTheList) {
  SMivoDoc library;
  NameEntry* const a = library.AddComponent(NewComponent(u"A"), u"A");
  NameEntry* const b = library.AddComponent(NewComponent(u"B"), u"B");
  NameEntry* const a2 = library.AddAlias(a->Component(), u"A 2");
  std::string bytes;
  StringByteSink sink(bytes);
  const std::vector<const NameEntry*> entries = {a2, b, a};
  EXPECT_TRUE(library.Write(sink, entries));
  EXPECT_EQ(bytes, kHead + ComponentBytes("A%202", "A") + ComponentBytes("B", "B") +
                       "+ALIAS,A:A,N:A%202,-ALIAS\n" + kTail);
}

TEST(LibrarySave, LeavesOutEntriesWithoutAName) {
  // Only a component that the end of the file cuts off has no name.
  const LoadedLibrary library("+TARSL_LIB_V.1.0\nVER:82\nPROP:\n" +
                              Utf16ToUtf8(ComponentRecord(u"A")) + "+COMP\n");
  ASSERT_TRUE(library.loaded);
  EXPECT_THAT(library.Names(), ElementsAre(u"A", u""));
  EXPECT_EQ(Saved(library.library), kHead + ComponentBytes("A", "U") + kTail);
}

TEST(LibrarySave, WritesAComponentUnderItsFirstNameThatIsNotEmpty) {
  LoadedLibrary library("+TARSL_LIB_V.1.0\nVER:82\nPROP:\n+COMP\n");
  ASSERT_TRUE(library.loaded);
  library.library.AddAlias(library.library.Components()[0].get(), u"A");
  EXPECT_EQ(Saved(library.library), kHead + ComponentBytes("A", "U") + kTail);
}

TEST(LibrarySave, WritesACutOffComponentSoThatItLoads) {
  const LoadedLibrary library("+TARSL_LIB_V.1.0\nVER:82\n+COMP,N:A,R:U\n");
  ASSERT_TRUE(library.loaded);
  const LoadedLibrary again(Saved(library.library));
  EXPECT_TRUE(again.loaded);
  EXPECT_THAT(again.findings.all, testing::IsEmpty());
  EXPECT_THAT(again.Names(), ElementsAre(u"A"));
}

TEST(LibrarySave, WritesUtf8WithoutAByteOrderMark) {
  SMivoDoc library;
  library.AddComponent(NewComponent(u"\u03A9"), u"\u00C4 \U0001F600");
  library.property = u"lone \xD800";
  const std::string bytes = Saved(library);
  EXPECT_TRUE(bytes.starts_with("+TARSL_LIB_V.1.0\n"));
  EXPECT_THAT(bytes, HasSubstr("PROP:lone%20\xEF\xBF\xBD\n"));
  EXPECT_THAT(bytes, HasSubstr(ComponentBytes("\xC3\x84%20\xF0\x9F\x98\x80", "\xCE\xA9")));
}

TEST(LibrarySave, TellsOfASinkThatFailsAtAnyPiece) {
  SMivoDoc library;
  library.property = std::u16string(300000, u'a');
  for (int pieces = 0; pieces < 4; ++pieces) {
    FailingSink sink(pieces);
    EXPECT_FALSE(library.Write(sink)) << pieces;
    EXPECT_EQ(sink.Calls(), pieces + 1);
  }
  FailingSink patient(1000);
  EXPECT_TRUE(library.Write(patient));
}

TEST(LibrarySave, TellsOfASinkThatFailsAtTheLastPiece) {
  FailingSink sink(0);
  EXPECT_FALSE(SMivoDoc().Write(sink));
}

}  // namespace
}  // namespace mivo
