#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "geometry_printing.h"
#include "library_testing.h"

// How the components of a library come to their patterns.

namespace mivo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A pattern of `width` by 1 pixels.
std::u16string PatternRecord(std::u16string_view name, int width) {
  std::u16string record = u"+PTN,N:";
  record.append(name).append(u",X:");
  for (const char c : std::to_string(width)) record += static_cast<char16_t>(c);
  return record + u",Y:1,-PTN\n";
}

/// The widths of the components' patterns, 0 for those without one.
std::vector<std::int32_t> PatternWidths(const SMivoDoc& library) {
  std::vector<std::int32_t> widths;
  for (const auto& component : library.Components()) widths.push_back(component->PatternSize().x);
  return widths;
}

TEST(LibraryPattern, IsFoundByItsName) {
  const LoadedLibrary library(LibraryFile(PatternRecord(u"a", 1) + PatternRecord(u"b", 2) +
                                          ComponentRecord(u"A", u"P:b") +
                                          ComponentRecord(u"B", u"P:a")));
  EXPECT_TRUE(library.loaded);
  EXPECT_THAT(PatternWidths(library.library), ElementsAre(2, 1));
  EXPECT_THAT(library.findings.all, IsEmpty());
}

TEST(LibraryPattern, IsMissedWhereItFollowsItsComponent) {
  const LoadedLibrary library(LibraryFile(ComponentRecord(u"A", u"P:a") + PatternRecord(u"a", 1)));
  EXPECT_TRUE(library.loaded);
  EXPECT_THAT(PatternWidths(library.library), ElementsAre(0));
  EXPECT_THAT(library.findings.Kinds(),
              ElementsAre(FindingKind::PatternMissing, FindingKind::PatternUnused));
}

TEST(LibraryPattern, IsMissedWhereNoneHasExactlyTheName) {
  const LoadedLibrary library(LibraryFile(PatternRecord(u"a", 1) + ComponentRecord(u"A", u"P:A") +
                                          ComponentRecord(u"B", u"P:a")));
  EXPECT_TRUE(library.loaded);
  EXPECT_THAT(PatternWidths(library.library), ElementsAre(0, 1));
  EXPECT_THAT(library.findings.Kinds(), ElementsAre(FindingKind::PatternMissing));
}

TEST(LibraryPattern, IsNotLookedForWithoutAName) {
  const LoadedLibrary library(LibraryFile(u"+PTN,X:7,Y:1,-PTN\n" + ComponentRecord(u"A", u"P:")));
  EXPECT_TRUE(library.loaded);
  EXPECT_THAT(PatternWidths(library.library), ElementsAre(0));
  EXPECT_THAT(library.findings.Kinds(), ElementsAre(FindingKind::PatternUnused));
}

TEST(LibraryPattern, IsTheFirstOfItsName) {
  const LoadedLibrary library(
      LibraryFile(PatternRecord(u"a", 1) + PatternRecord(u"a", 2) + ComponentRecord(u"A", u"P:a")));
  EXPECT_THAT(PatternWidths(library.library), ElementsAre(1));
  EXPECT_THAT(library.findings.Kinds(), ElementsAre(FindingKind::PatternUnused));
}

TEST(LibraryPattern, IsReportedInTheOrderOfNamesWhereNoneUsesIt) {
  const LoadedLibrary library(LibraryFile(PatternRecord(u"b", 1) + PatternRecord(u"c", 1) +
                                          PatternRecord(u"a", 1) + ComponentRecord(u"A", u"P:c")));
  std::vector<std::u16string> unused;
  for (const Finding& finding : library.findings.all) unused.push_back(finding.text);
  EXPECT_THAT(unused, ElementsAre(u"a", u"b"));
}

TEST(LibraryPattern, BelongsToItsBlock) {
  const LoadedLibrary library(LibraryFile(PatternRecord(u"a", 1) + ComponentRecord(u"A", u"P:a")) +
                              LibraryFile(ComponentRecord(u"B", u"P:a")) +
                              LibraryFile(PatternRecord(u"a", 2) + ComponentRecord(u"C", u"P:a")));
  EXPECT_TRUE(library.loaded);
  EXPECT_THAT(library.Names(), ElementsAre(u"A", u"B", u"C"));
  EXPECT_THAT(PatternWidths(library.library), ElementsAre(1, 0, 2));
}

TEST(LibraryPattern, IsSharedUntilAComponentChangesIt) {
  const LoadedLibrary library(LibraryFile(PatternRecord(u"a", 1) + ComponentRecord(u"A", u"P:a") +
                                          ComponentRecord(u"B", u"P:a")));
  SComponent& first = *library.library.Components()[0];
  const SComponent& second = *library.library.Components()[1];
  EXPECT_EQ(first.Pattern(), second.Pattern());
  first.MutablePattern()->size.x = 5;
  EXPECT_THAT(PatternWidths(library.library), ElementsAre(5, 1));
}

TEST(LibraryPattern, IsOneForThousandsOfComponents) {
  std::u16string records = PatternRecord(u"a", 1);
  for (int i = 0; i < 5000; ++i) records += ComponentRecord(u"A", u"P:a");
  const LoadedLibrary library(LibraryFile(records));
  ASSERT_EQ(library.library.Components().size(), 5000u);
  const SPtn* const pattern = library.library.Components()[0]->Pattern();
  ASSERT_NE(pattern, nullptr);
  for (const auto& component : library.library.Components()) {
    ASSERT_EQ(component->Pattern(), pattern);
  }
}

TEST(LibraryPattern, IsWrittenUnderTheNameOfEachComponent) {
  const LoadedLibrary library(LibraryFile(PatternRecord(u"a", 1) + ComponentRecord(u"A", u"P:a") +
                                          ComponentRecord(u"B", u"P:a")));
  const LoadedLibrary again(Saved(library.library));
  EXPECT_TRUE(again.loaded);
  EXPECT_THAT(again.findings.all, IsEmpty());
  ASSERT_EQ(again.library.Components().size(), 2u);
  EXPECT_EQ(again.library.Components()[0]->Pattern()->name, u"A");
  EXPECT_EQ(again.library.Components()[1]->Pattern()->name, u"B");
}

/// A pattern with a bit pattern of half the limit of a load; no row of it is stored in the file.
constexpr std::u16string_view kHalf = u"+PTN,N:half,X:1,Y:268435456,+BMP,-BMP,-PTN\n";

TEST(LibraryBitPatterns, AreRefusedBeyondOneGibibyteTogether) {
  const std::u16string half(kHalf);
  EXPECT_TRUE(LoadedLibrary(LibraryFile(half + half)).loaded);
  const LoadedLibrary library(
      LibraryFile(half + half + u"+PTN,N:A,X:1,Y:1,+BMP,-BMP,-PTN\n" + ComponentRecord(u"A")));
  EXPECT_FALSE(library.loaded);
  EXPECT_THAT(library.Names(), IsEmpty());
  EXPECT_EQ(library.findings.Kinds().back(), FindingKind::BitPatternsTooLarge);
}

TEST(LibraryBitPatterns, CountInAllBlocks) {
  const std::u16string half(kHalf);
  EXPECT_TRUE(LoadedLibrary(LibraryFile(half) + LibraryFile(half)).loaded);
  EXPECT_FALSE(LoadedLibrary(LibraryFile(half) + LibraryFile(half) + LibraryFile(half)).loaded);
}

TEST(LibraryBitPatterns, CountForEveryComponentThatSharesOne) {
  // Each would be written with a pattern of its own, and what is written must be loadable.
  const std::u16string shared =
      std::u16string(kHalf) + ComponentRecord(u"A", u"P:half") + ComponentRecord(u"B", u"P:half");
  EXPECT_TRUE(LoadedLibrary(LibraryFile(shared)).loaded);
  const LoadedLibrary library(LibraryFile(shared + ComponentRecord(u"C", u"P:half")));
  EXPECT_FALSE(library.loaded);
  EXPECT_THAT(library.Names(), ElementsAre(u"A", u"B"));
  EXPECT_THAT(library.findings.Kinds(), ElementsAre(FindingKind::BitPatternsTooLarge));
}

TEST(LibraryBitPatterns, AreCountedAnewForTheNextLoad) {
  const std::string bytes = LibraryFile(std::u16string(kHalf) + std::u16string(kHalf));
  SMivoDoc library;
  EXPECT_TRUE(library.Load(bytes, u"a"));
  library.Clear();
  EXPECT_TRUE(library.Load(bytes, u"b"));
}

}  // namespace
}  // namespace mivo
