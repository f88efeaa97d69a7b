#include "comp_property_values.h"

#include <gtest/gtest.h>

#include <limits>
#include <optional>
#include <string>

namespace mivo {
namespace {

using Field = CompPropertyRefusal::Field;
using Refusal = std::optional<CompPropertyRefusal>;

constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kSmallest = std::numeric_limits<std::int32_t>::min();

TEST(CompPropertyValues, StartAsANewComponent) {
  const CompPropertyValues values;
  EXPECT_EQ(values.name, u"NAME");
  EXPECT_EQ(values.prefix, u"U");
  EXPECT_EQ(values.width, 2);
  EXPECT_EQ(values.height, 2);
  EXPECT_EQ(values.blocks, 1);
  EXPECT_EQ(values.fixedBlockNumber, 1);
  EXPECT_FALSE(values.usePattern || values.noBitPattern);
  EXPECT_FALSE(values.fixedBlock || values.sharedBlock);
  EXPECT_TRUE(values.note.empty() && values.manufacturer.empty());
  EXPECT_TRUE(values.partNumber.empty() && values.package.empty());
}

TEST(CompPropertyValues, NamesAreVisibleAsciiWithoutBraces) {
  struct Case {
    std::u16string name;
    bool isAccepted;
  };
  const Case cases[] = {
      {u"A", true},       {std::u16string(32, u'A'), true},
      {u"!~", true},      {u"74HC00/A(b)[c]|", true},
      {u"", false},       {std::u16string(33, u'A'), false},
      {u"R ", false},     {u" R", false},
      {u"R{1}", false},   {u"R{", false},
      {u"R}", false},     {u"R\x7F", false},
      {u"R\t", false},    {u"\u00C4", false},
      {u"\u2126", false}, {std::u16string(1, u'\0'), false},
  };
  for (const Case& test : cases) {
    EXPECT_EQ(IsComponentName(test.name), test.isAccepted) << testing::PrintToString(test.name);
    const Refusal refusal = test.isAccepted
                                ? Refusal()
                                : CompPropertyRefusal{StringId::InvalidComponentName, Field::Name};
    CompPropertyValues values;
    values.name = test.name;
    EXPECT_EQ(Check(values), refusal) << testing::PrintToString(test.name);
  }
}

TEST(CompPropertyValues, NumbersAreOneTo255) {
  struct Number {
    std::int32_t CompPropertyValues::*member;
    StringId message;
    Field field;
  };
  const Number numbers[] = {
      {&CompPropertyValues::width, StringId::SizeRange, Field::Width},
      {&CompPropertyValues::height, StringId::SizeRange, Field::Height},
      {&CompPropertyValues::blocks, StringId::BlocksRange, Field::Blocks},
      {&CompPropertyValues::fixedBlockNumber, StringId::FixedBlockRange, Field::FixedBlockNumber},
  };
  for (const Number& number : numbers) {
    for (const std::int32_t refused : {0, -1, 256, kLargest, kSmallest}) {
      CompPropertyValues values;
      values.*number.member = refused;
      EXPECT_EQ(Check(values), Refusal({number.message, number.field})) << refused;
    }
    for (const std::int32_t accepted : {1, 255}) {
      CompPropertyValues values;
      values.*number.member = accepted;
      EXPECT_EQ(Check(values), std::nullopt) << accepted;
    }
  }
}

TEST(CompPropertyValues, TheFirstObjectionCounts) {
  CompPropertyValues values{.name = u"", .width = 0, .height = 0, .blocks = 0};
  values.fixedBlockNumber = 0;
  EXPECT_EQ(Check(values), Refusal({StringId::InvalidComponentName, Field::Name}));
  values.name = u"A";
  EXPECT_EQ(Check(values), Refusal({StringId::SizeRange, Field::Width}));
  values.width = 1;
  EXPECT_EQ(Check(values), Refusal({StringId::SizeRange, Field::Height}));
  values.height = 1;
  EXPECT_EQ(Check(values), Refusal({StringId::BlocksRange, Field::Blocks}));
  values.blocks = 1;
  EXPECT_EQ(Check(values), Refusal({StringId::FixedBlockRange, Field::FixedBlockNumber}));
  values.fixedBlockNumber = 1;
  EXPECT_EQ(Check(values), std::nullopt);
}

TEST(CompPropertyValues, ThePrefixIsNotChecked) {
  for (const std::u16string prefix : {u"", u"{ }", u"\u2126\n"}) {
    EXPECT_EQ(Check({.prefix = prefix}), std::nullopt);
  }
}

TEST(BlockControls, FollowTheBlockMode) {
  struct Case {
    const char* mode;
    bool fixed;
    bool shared;
    BlockControls controls;
  };
  const Case cases[] = {
      {"normal", false, false, {.isBlocksEnabled = true, .blocks = 7, .fixedNumber = 1}},
      {"fixed",
       true,
       false,
       {.isFixedChecked = true,
        .isBlocksEnabled = false,
        .isFixedNumberEnabled = true,
        .blocks = 1,
        .fixedNumber = 4}},
      {"shared",
       false,
       true,
       {.isSharedChecked = true, .isBlocksEnabled = false, .blocks = 1, .fixedNumber = 1}},
      {"both: shared prevails",
       true,
       true,
       {.isSharedChecked = true,
        .isBlocksEnabled = false,
        .isFixedNumberEnabled = true,
        .blocks = 1,
        .fixedNumber = 1}},
  };
  for (const Case& test : cases) {
    EXPECT_EQ(BlockControlsFor({.blocks = 7,
                                .fixedBlock = test.fixed,
                                .fixedBlockNumber = 4,
                                .sharedBlock = test.shared}),
              test.controls)
        << test.mode;
  }
}

TEST(CompPropertyValues, ComeFromAComponent) {
  SComponent component;
  component.SetSize({3, 5}, false, false);
  component.SetBlockCount(4);
  component.prefix = u"IC";
  component.note = u"a\r\nb";
  component.manufacturer = u"maker";
  component.partNumber = u"part";
  component.package = u"SO14";
  const CompPropertyValues values = ValuesOf(u"alias", component);
  EXPECT_EQ(values, (CompPropertyValues{.name = u"alias",
                                        .prefix = u"IC",
                                        .width = 3,
                                        .height = 5,
                                        .blocks = 4,
                                        .note = u"a\r\nb",
                                        .manufacturer = u"maker",
                                        .partNumber = u"part",
                                        .package = u"SO14"}));
}

TEST(CompPropertyValues, ShowTheBlockModeOfAComponent) {
  SComponent component;
  component.SetFixedBlock(3);
  component.SetBlockType(BlockType::Fixed);
  EXPECT_TRUE(ValuesOf(u"A", component).fixedBlock);
  EXPECT_FALSE(ValuesOf(u"A", component).sharedBlock);
  EXPECT_EQ(ValuesOf(u"A", component).fixedBlockNumber, 4);

  component.SetBlockType(BlockType::Shared);
  EXPECT_FALSE(ValuesOf(u"A", component).fixedBlock);
  EXPECT_TRUE(ValuesOf(u"A", component).sharedBlock);
  EXPECT_EQ(ValuesOf(u"A", component).fixedBlockNumber, 1);
}

TEST(CompPropertyValues, TheLastFixedBlockShowsAs256AndIsRefused) {
  SComponent component;
  component.SetSize({2, 2}, false, false);
  component.SetFixedBlock(255);
  component.SetBlockType(BlockType::Fixed);
  const CompPropertyValues values = ValuesOf(u"A", component);
  EXPECT_EQ(values.fixedBlockNumber, 256);
  EXPECT_EQ(Check(values), Refusal({StringId::FixedBlockRange, Field::FixedBlockNumber}));
}

TEST(CompPropertyValues, ShowThePatternOfAComponent) {
  struct Case {
    bool hasPattern;
    bool hasBits;
    bool noBitPattern;
  };
  for (const Case& test :
       {Case{false, false, false}, Case{true, true, false}, Case{true, false, true}}) {
    SComponent component;
    if (test.hasPattern) component.UsePattern(true, !test.hasBits);
    const CompPropertyValues values = ValuesOf(u"A", component);
    EXPECT_EQ(values.usePattern, test.hasPattern);
    EXPECT_EQ(values.noBitPattern, test.noBitPattern);
  }
}

TEST(CompPropertyValues, ApplyToAComponent) {
  SComponent component;
  component.SetPins({SCompPin(1)});
  Apply({.name = u"ignored",
         .prefix = u"Q",
         .width = 4,
         .height = 6,
         .blocks = 3,
         .note = u"n",
         .manufacturer = u"m",
         .partNumber = u"p",
         .package = u"k"},
        component);
  EXPECT_EQ(component.Size(), (SPoint{4, 6}));
  EXPECT_EQ(component.BlockCount(), 3);
  EXPECT_EQ(component.Pins()[0].NumberCount(), 3);
  EXPECT_EQ(component.Type(), BlockType::General);
  EXPECT_EQ(component.FixedBlock(), 0);
  EXPECT_EQ(component.Pattern(), nullptr);
  EXPECT_EQ(component.prefix, u"Q");
  EXPECT_EQ(component.note, u"n");
  EXPECT_EQ(component.manufacturer, u"m");
  EXPECT_EQ(component.partNumber, u"p");
  EXPECT_EQ(component.package, u"k");
}

TEST(CompPropertyValues, ApplyTheBlockMode) {
  SComponent component;
  Apply({.fixedBlock = true, .fixedBlockNumber = 4}, component);
  EXPECT_EQ(component.Type(), BlockType::Fixed);
  EXPECT_EQ(component.FixedBlock(), 3);
  EXPECT_EQ(component.BlockCount(), 1);
  Apply({.sharedBlock = true}, component);
  EXPECT_EQ(component.Type(), BlockType::Shared);
  EXPECT_EQ(component.FixedBlock(), 0);
  Apply({.blocks = 2}, component);
  EXPECT_EQ(component.Type(), BlockType::General);
  EXPECT_EQ(component.BlockCount(), 2);
}

TEST(CompPropertyValues, ApplyThePattern) {
  SComponent component;
  Apply({.width = 2, .height = 3, .usePattern = true, .noBitPattern = true}, component);
  ASSERT_NE(component.Pattern(), nullptr);
  EXPECT_EQ(component.Pattern()->size, (SPoint{21, 31}));
  EXPECT_FALSE(component.Pattern()->bitPattern.has_value());

  Apply({.width = 4, .height = 3, .usePattern = true, .noBitPattern = false}, component);
  EXPECT_EQ(component.Pattern()->size, (SPoint{41, 31}));
  EXPECT_TRUE(component.Pattern()->bitPattern.has_value());

  Apply({.width = 4, .height = 3, .usePattern = false}, component);
  EXPECT_EQ(component.Pattern(), nullptr);
}

TEST(CompPropertyValues, KeepABitPatternThatTheyDoNotChange) {
  SComponent component;
  component.SetSize({2, 2}, true, false);
  component.MutablePattern()->bitPattern->Row(21, 5)[0] = 0x5A;
  const std::optional<SBitPattern> before = component.Pattern()->bitPattern;
  Apply(ValuesOf(u"A", component), component);
  EXPECT_EQ(component.Pattern()->bitPattern, before);
}

}  // namespace
}  // namespace mivo
