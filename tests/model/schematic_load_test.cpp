#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "library_testing.h"

// Schematic files, of which only the library blocks count.

namespace mivo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A library block of version `version` around `records`.
std::string Block(std::string_view version, std::u16string_view records) {
  return "+TARSL_LIB_V.1.0\nVER:" + std::string(version) + "\n" + Utf16ToUtf8(records) +
         "-TARSL_LIB_V.1.0\n";
}

/// A placed component with its library block.
std::string Placed(const std::string& block) {
  return "+COMPONENT\n" + block + "X:40,Y:30,LIB:A,N:A,R:U\n-COMPONENT\n";
}

std::string Schematic(const std::string& records) {
  return "+TARSL_DATA_V.1.0\nVER:90,SHEET:1\n+WIRE,X:1,%zz,a\xFF,-WIRE\n" + records +
         "+LABEL,+X,-LABEL\n-TARSL_DATA_V.1.0\n";
}

TEST(SchematicLoad, TakesTheComponentsOfEveryBlock) {
  const LoadedLibrary library(
      Schematic(Placed(Block("82", ComponentRecord(u"A") + ComponentRecord(u"B"))) +
                Placed(Block("82", ComponentRecord(u"C")))));
  EXPECT_TRUE(library.loaded);
  EXPECT_EQ(library.library.Path(), u"test.ZLB");
  EXPECT_THAT(library.Names(), ElementsAre(u"A", u"B", u"C"));
  EXPECT_EQ(library.library.Version(), 82);
  EXPECT_THAT(library.findings.all, IsEmpty());
}

TEST(SchematicLoad, NumbersComponentsThatOccurAgain) {
  const std::string placed = Placed(Block("82", ComponentRecord(u"7400")));
  const LoadedLibrary library(Schematic(placed + placed + placed));
  EXPECT_TRUE(library.loaded);
  EXPECT_THAT(library.Names(), ElementsAre(u"7400", u"7400(1)", u"7400(2)"));
  EXPECT_EQ(library.library.Components().size(), 3u) << "nothing is merged";
}

TEST(SchematicLoad, LooksForPatternsInTheBlockOnly) {
  const std::u16string pattern = u"+PTN,N:p,X:1,Y:1,-PTN\n";
  const LoadedLibrary library(
      Schematic(Placed(Block("82", pattern + ComponentRecord(u"A", u"P:p"))) +
                Placed(Block("82", ComponentRecord(u"B", u"P:p")))));
  EXPECT_TRUE(library.loaded);
  EXPECT_NE(library.library.Components()[0]->Pattern(), nullptr);
  EXPECT_EQ(library.library.Components()[1]->Pattern(), nullptr);
}

TEST(SchematicLoad, DecodesTheWholeFileAsTheFirstBlockSays) {
  const auto names = [](std::string_view first, std::string_view second) {
    return LoadedLibrary(Schematic(Placed(Block(first, ComponentRecord(u"\u00C4"))) +
                                   Placed(Block(second, ComponentRecord(u"\u00D6")))))
        .Names();
  };
  EXPECT_THAT(names("71", "70"), ElementsAre(u"\u00C4", u"\u00D6"));
  EXPECT_THAT(names("70", "71"), ElementsAre(u"\u00C3\u201E", u"\u00C3\u2013"));
}

TEST(SchematicLoad, TakesABlockWithoutAVersionForAnOldOne) {
  const LoadedLibrary library(Schematic("+TARSL_LIB_V.1.0\n-TARSL_LIB_V.1.0\n"));
  EXPECT_TRUE(library.loaded);
  EXPECT_EQ(library.library.Version(), 70);
}

TEST(SchematicLoad, TakesAliasesWithinAndAcrossBlocks) {
  const LoadedLibrary library(
      Schematic(Placed(Block("82", ComponentRecord(u"A") + AliasRecord(u"A2", u"A"))) +
                Placed(Block("82", AliasRecord(u"A3", u"A2")))));
  EXPECT_TRUE(library.loaded);
  EXPECT_THAT(library.Names(), ElementsAre(u"A", u"A2", u"A3"));
  EXPECT_EQ(library.library.Components().size(), 1u);
}

TEST(SchematicLoad, FindsBlocksInsideAnyRecord) {
  const LoadedLibrary library("+TARSL_DATA_V.1.0,+A,+B," + Block("82", ComponentRecord(u"A")) +
                              "-X,-Y," + Block("82", ComponentRecord(u"B")));
  EXPECT_TRUE(library.loaded);
  EXPECT_THAT(library.Names(), ElementsAre(u"A", u"B"));
}

TEST(SchematicLoad, WithoutABlockIsAnEmptyLibrary) {
  const LoadedLibrary library("+TARSL_DATA_V.1.0\n+WIRE,-WIRE\n-TARSL_DATA_V.1.0\n");
  EXPECT_TRUE(library.loaded);
  EXPECT_THAT(library.Names(), IsEmpty());
  EXPECT_EQ(library.library.Version(), 70);
  EXPECT_THAT(library.findings.all, IsEmpty());
}

TEST(SchematicLoad, TellsOfAnEndThatIsMissing) {
  const std::string block = Block("82", ComponentRecord(u"A"));
  const LoadedLibrary behindBlock("+TARSL_DATA_V.1.0\n" + block + "X:40\n");
  EXPECT_TRUE(behindBlock.loaded);
  EXPECT_THAT(behindBlock.findings.all,
              ElementsAre(Finding{FindingKind::DataCutOff, 6, 1, u"", u"+TARSL_DATA_V.1.0"}));

  const LoadedLibrary beforeAnyBlock("+TARSL_DATA_V.1.0\n+WIRE,-WIRE\n");
  EXPECT_TRUE(beforeAnyBlock.loaded);
  EXPECT_THAT(beforeAnyBlock.findings.all,
              ElementsAre(Finding{FindingKind::DataCutOff, 2, 7, u"", u"+TARSL_DATA_V.1.0"}));

  const LoadedLibrary whole("+TARSL_DATA_V.1.0\n" + block + "-TARSL_DATA_V.1.0 \r\n\n");
  EXPECT_THAT(whole.findings.all, IsEmpty());
}

TEST(SchematicLoad, FailsWithABlockThatFails) {
  const LoadedLibrary library(
      Schematic(Placed(Block("82", ComponentRecord(u"A"))) + Placed(Block("82", u"+COMP,-PIN\n"))));
  EXPECT_FALSE(library.loaded);
  EXPECT_THAT(library.Names(), ElementsAre(u"A"));
  EXPECT_EQ(library.library.Path(), std::nullopt);
}

TEST(SchematicLoad, FindsTheBlockThatTheFirstLookMissed) {
  // A byte 0xFF where a field starts ends the first look, so the version stays unknown. Bytes of a
  // character count one by one there, so that this field is split in the first look only.
  const LoadedLibrary ended("+TARSL_DATA_V.1.0\na,\xFF," + Block("82", ComponentRecord(u"A")));
  EXPECT_EQ(ended.library.Version(), 70);
  EXPECT_THAT(ended.Names(), ElementsAre(u"A"));

  std::string longField;
  for (int i = 0; i < 20000; ++i) longField += "\xC3\xA4";
  const LoadedLibrary split("+TARSL_DATA_V.1.0\n" + longField + "," +
                            Block("82", ComponentRecord(u"A")));
  EXPECT_EQ(split.library.Version(), 82);
  EXPECT_THAT(split.Names(), ElementsAre(u"A"));
}

TEST(SchematicLoad, IsSavedAsALibrary) {
  const LoadedLibrary library(Schematic(Placed(Block("82", ComponentRecord(u"A"))) +
                                        Placed(Block("82", ComponentRecord(u"A")))));
  const std::string saved = Saved(library.library);
  EXPECT_TRUE(saved.starts_with("+TARSL_LIB_V.1.0\nVER:82\n"));
  const LoadedLibrary again(saved);
  EXPECT_THAT(again.findings.all, IsEmpty());
  EXPECT_EQ(Saved(again.library), saved);
}

}  // namespace
}  // namespace mivo
