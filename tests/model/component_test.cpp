#include "component.h"

#include <gtest/gtest.h>

#include "geometry_printing.h"
#include "record_text.h"

// What the editor does to a component, and what a component writes.

namespace mivo {
namespace {

/// A general component with `blocks` blocks and one pin whose numbers are those of the blocks.
SComponent MakeComponent(std::int32_t blocks) {
  SComponent component;
  component.SetBodySize({4, 3});
  component.SetBlockCount(blocks);
  std::vector<SCompPin> pins(1);
  pins[0].ResizeNumbers(blocks);
  for (std::int32_t block = 0; block < blocks; ++block) {
    pins[0].SetNumber(block, std::u16string(1, static_cast<char16_t>(u'a' + block)));
  }
  component.SetPins(std::move(pins));
  return component;
}

std::vector<std::optional<std::u16string_view>> Numbers(const SComponent& component) {
  std::vector<std::optional<std::u16string_view>> numbers;
  const SCompPin& pin = component.Pins().at(0);
  for (std::int32_t k = 0; k < pin.NumberCount(); ++k) numbers.push_back(pin.GetNumber(k));
  return numbers;
}

using Expected = std::vector<std::optional<std::u16string_view>>;

std::u16string Written(const SComponent& component, std::u16string_view name) {
  return WrittenText([&](SRecordWriter& writer) { EXPECT_TRUE(component.Write(writer, name)); });
}

TEST(Component, HasOneGeneralBlockByDefault) {
  const SComponent component;
  EXPECT_EQ(component.prefix, u"U");
  EXPECT_EQ(component.BlockCount(), 1);
  EXPECT_EQ(component.FixedBlock(), 0);
  EXPECT_EQ(component.Type(), BlockType::General);
  EXPECT_EQ(component.Pattern(), nullptr);
  EXPECT_TRUE(component.Pins().empty());
  EXPECT_EQ(component.note + component.manufacturer + component.partNumber + component.package,
            u"");
}

TEST(BlockCount, IsAtLeastOneAndAtMost255) {
  SComponent component = MakeComponent(2);
  component.SetBlockCount(0);
  EXPECT_EQ(component.BlockCount(), 1);
  EXPECT_EQ(Numbers(component), (Expected{u"a"}));
  component.SetBlockCount(300);
  EXPECT_EQ(component.BlockCount(), 255);
  EXPECT_EQ(component.Pins()[0].NumberCount(), 255);
  component.SetBlockCount(-5);
  EXPECT_EQ(component.BlockCount(), 1);
  component.SetBlockCount(255);
  EXPECT_EQ(component.BlockCount(), 255);
}

TEST(BlockCount, KeepsTheNumbersOfBlocksThatSurvive) {
  SComponent component = MakeComponent(3);
  component.SetBlockCount(2);
  EXPECT_EQ(Numbers(component), (Expected{u"a", u"b"}));
  component.SetBlockCount(4);
  EXPECT_EQ(Numbers(component), (Expected{u"a", u"b", std::nullopt, std::nullopt}));
}

TEST(BlockTypeSetting, LeavesAGeneralComponentAlone) {
  SComponent component = MakeComponent(3);
  component.SetFixedBlock(7);
  component.SetBlockType(BlockType::General);
  EXPECT_EQ(component.BlockCount(), 3);
  EXPECT_EQ(component.FixedBlock(), 7);
  EXPECT_EQ(component.Type(), BlockType::General);
}

TEST(BlockTypeSetting, ReducesASharedComponentToOneBlockWithoutANumber) {
  SComponent component = MakeComponent(3);
  component.SetFixedBlock(7);
  component.SetBlockType(BlockType::Shared);
  EXPECT_EQ(component.Type(), BlockType::Shared);
  EXPECT_EQ(component.BlockCount(), 1);
  EXPECT_EQ(component.FixedBlock(), 0);
  EXPECT_EQ(Numbers(component), (Expected{u"a"}));
}

TEST(BlockTypeSetting, ReducesAFixedComponentToOneBlockAndKeepsItsNumber) {
  SComponent component = MakeComponent(3);
  component.SetFixedBlock(7);
  component.SetBlockType(BlockType::Fixed);
  EXPECT_EQ(component.Type(), BlockType::Fixed);
  EXPECT_EQ(component.BlockCount(), 1);
  EXPECT_EQ(component.FixedBlock(), 7);
  EXPECT_EQ(Numbers(component), (Expected{u"a"}));
}

TEST(BlockTypeSetting, HasNamesInFiles) {
  EXPECT_EQ(BlockTypeName(BlockType::General), u"GEN");
  EXPECT_EQ(BlockTypeName(BlockType::Shared), u"SHB");
  EXPECT_EQ(BlockTypeName(BlockType::Fixed), u"FXB");
}

TEST(FixedBlock, IsFrom0To255) {
  SComponent component;
  component.SetFixedBlock(-1);
  EXPECT_EQ(component.FixedBlock(), 0);
  component.SetFixedBlock(256);
  EXPECT_EQ(component.FixedBlock(), 255);
  component.SetFixedBlock(200);
  EXPECT_EQ(component.FixedBlock(), 200);
}

TEST(ComponentPins, GetOneNumberSlotPerBlock) {
  SComponent component;
  component.SetBlockCount(2);
  std::vector<SCompPin> pins;
  pins.emplace_back(1);
  pins.emplace_back(3);
  component.SetPins(std::move(pins));
  EXPECT_EQ(component.Pins()[0].NumberCount(), 2);
  EXPECT_EQ(component.Pins()[1].NumberCount(), 2);
}

TEST(ComponentSize, LeavesAComponentWithoutAPatternWithoutOne) {
  SComponent component;
  component.SetSize({5, 6}, false, false);
  EXPECT_EQ(component.Size(), (SPoint{5, 6}));
  EXPECT_EQ(component.Pattern(), nullptr);
  EXPECT_EQ(component.PatternSize(), (SPoint{0, 0}));
}

TEST(ComponentSize, CreatesAPatternOfTenPixelsPerCellAndOne) {
  SComponent component;
  component.SetSize({5, 6}, true, false);
  ASSERT_NE(component.Pattern(), nullptr);
  EXPECT_EQ(component.PatternSize(), (SPoint{51, 61}));
  EXPECT_TRUE(component.Pattern()->bitPattern.has_value());
}

TEST(ComponentSize, CreatesAPatternWithoutABitPatternWhereBitsAreCleared) {
  SComponent component;
  component.SetSize({60, 6}, true, true);
  EXPECT_EQ(component.PatternSize(), (SPoint{601, 61}));
  EXPECT_FALSE(component.Pattern()->bitPattern.has_value());
}

TEST(ComponentSize, ResizesAPatternWithTheBody) {
  SComponent component;
  component.SetSize({2, 2}, true, false);
  component.MutablePattern()->bitPattern->Row(21, 0)[0] = 0x80;
  component.SetSize({1, 3}, false, false);
  EXPECT_EQ(component.PatternSize(), (SPoint{11, 31}));
  EXPECT_EQ(component.Pattern()->bitPattern->Row(11, 0)[0], 0x80);
  component.SetSize({1, 3}, false, true);
  EXPECT_FALSE(component.Pattern()->bitPattern.has_value());
}

TEST(ComponentSize, CanChangeWithoutThePattern) {
  SComponent component;
  component.SetSize({2, 2}, true, false);
  component.SetBodySize({9, 9});
  EXPECT_EQ(component.Size(), (SPoint{9, 9}));
  EXPECT_EQ(component.PatternSize(), (SPoint{21, 21}));
}

TEST(ComponentSize, MayBeAnything) {
  constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
  SComponent component;
  for (const std::int32_t side : {kMost, -kMost - 1, 0, -1, 429496730}) {
    component.SetSize({side, side}, true, false);
    component.SetSize({side, side}, true, true);
  }
  EXPECT_EQ(component.PatternSize(), (SPoint{5, 5})) << "429496730 cells wrap around";
}

TEST(UsePattern, CreatesAndRemovesThePattern) {
  SComponent component;
  component.SetBodySize({3, 2});
  component.UsePattern(true, false);
  EXPECT_EQ(component.PatternSize(), (SPoint{31, 21}));
  EXPECT_TRUE(component.Pattern()->bitPattern.has_value());
  component.UsePattern(false, false);
  EXPECT_EQ(component.Pattern(), nullptr);
  EXPECT_EQ(component.MutablePattern(), nullptr);
}

TEST(UsePattern, KeepsAPatternThatIsThere) {
  SComponent component;
  component.SetSize({2, 2}, true, false);
  component.MutablePattern()->objects.push_back(CreatePtnObj(u"+L"));
  component.SetBodySize({3, 3});
  component.UsePattern(true, true);
  EXPECT_EQ(component.Pattern()->objects.size(), 1u);
  EXPECT_EQ(component.PatternSize(), (SPoint{31, 31}));
  EXPECT_FALSE(component.Pattern()->bitPattern.has_value());
}

TEST(SharedPattern, IsCopiedByTheComponentThatChangesIt) {
  auto pattern = std::make_shared<SPtn>();
  SComponent first;
  SComponent second;
  first.SharePattern(pattern);
  second.SharePattern(pattern);
  pattern.reset();
  EXPECT_EQ(first.Pattern(), second.Pattern());

  first.MutablePattern()->objects.push_back(CreatePtnObj(u"+L"));
  EXPECT_EQ(first.Pattern()->objects.size(), 1u);
  EXPECT_EQ(second.Pattern()->objects.size(), 0u);

  const SPtn* const own = second.Pattern();
  EXPECT_EQ(second.MutablePattern(), own) << "the last one to share it has it for itself";
}

TEST(SharedPattern, IsCopiedByTheComponentThatResizesIt) {
  auto pattern = std::make_shared<SPtn>();
  pattern->size = {11, 11};
  SComponent first;
  SComponent second;
  first.SharePattern(pattern);
  second.SharePattern(pattern);
  first.SetSize({3, 3}, false, false);
  EXPECT_EQ(first.PatternSize(), (SPoint{31, 31}));
  EXPECT_EQ(second.PatternSize(), (SPoint{11, 11}));
}

TEST(ComponentWrite, PutsThePatternFirst) {
  SComponent component;
  component.SetSize({4, 3}, true, true);
  component.SetBlockCount(2);
  std::vector<SCompPin> pins(1);
  pins[0].SetNameFromDisplayText(u"A");
  pins[0].location.offset = 1;
  pins[0].SetNumber(0, u"1");
  pins[0].ResizeNumbers(2);
  pins[0].SetNumber(1, u"4");
  component.SetPins(std::move(pins));
  component.package = u"DIP14";
  EXPECT_EQ(Written(component, u"7400"),
            u"+PTN,N:7400,X:41,Y:31\n"
            u"-PTN\n"
            u"+COMP,N:7400\n"
            u"X:4,Y:3,B:2\n"
            u"TYPE:GEN,FB:0\n"
            u"R:U\n"
            u"P:7400\n"
            u"+PIN,N:A,DF:FFFFFFFF,L:L1,T:,M:1,M:4,-PIN\n"
            u"NOTE:,MFR:,MFRPN:,PKG:DIP14,-COMP\n");
}

TEST(ComponentWrite, EscapesItsTexts) {
  SComponent component;
  component.SetBodySize({1, 1});
  component.SetBlockType(BlockType::Fixed);
  component.SetFixedBlock(3);
  component.prefix = u"";
  component.note = u"a b";
  component.manufacturer = u"c,d";
  component.partNumber = u"e%f";
  component.package = u"g\nh";
  EXPECT_EQ(Written(component, u"A B"),
            u"+COMP,N:A%20B\n"
            u"X:1,Y:1,B:1\n"
            u"TYPE:FXB,FB:3\n"
            u"R:\n"
            u"NOTE:a%20b,MFR:c%2Cd,MFRPN:e%25f,PKG:g%0Ah,-COMP\n");
}

TEST(ComponentWrite, WritesSizesBelowOneAsOne) {
  SComponent component;
  component.SetBodySize({0, -7});
  EXPECT_EQ(Written(component, u"A"),
            u"+COMP,N:A\n"
            u"X:1,Y:1,B:1\n"
            u"TYPE:GEN,FB:0\n"
            u"R:U\n"
            u"NOTE:,MFR:,MFRPN:,PKG:,-COMP\n");
}

TEST(ComponentWrite, WritesNothingWithoutAName) {
  SComponent component;
  component.SetSize({1, 1}, true, true);
  EXPECT_EQ(WrittenText([&](SRecordWriter& writer) { EXPECT_FALSE(component.Write(writer, u"")); }),
            u"");
}

TEST(ComponentWrite, FailsWithoutATarget) {
  SRecordWriter writer;
  EXPECT_FALSE(SComponent().Write(writer, u"A"));
}

}  // namespace
}  // namespace mivo
