#include "pin_form.h"

#include <gtest/gtest.h>

namespace mivo {
namespace {

PinForm ThreeBlocks() {
  return PinForm({.name = u"A/B", .nameMask = 2, .numbers = {u"1", u"4", u"9"}});
}

TEST(PinForm, StylesHaveTheOrderOfThePictures) {
  EXPECT_EQ(PinForm::kStyles, (std::array<std::int32_t, 6>{0, 4, 8, 12, 1, 2}));
  for (std::size_t i = 0; i < PinForm::kStyles.size(); ++i) {
    EXPECT_EQ(PinForm::StyleIndex(PinForm::kStyles[i]), i);
    EXPECT_EQ(PinForm::StyleAt(i), PinForm::kStyles[i]);
  }
}

TEST(PinForm, AStyleWithoutPictureBecomesTheLast) {
  for (const std::int32_t style : {3, 5, 15, -1, 16}) {
    EXPECT_EQ(PinForm::StyleIndex(style), std::nullopt) << style;
  }
  EXPECT_EQ(PinForm::StyleAt(std::nullopt), 2);
}

TEST(PinForm, TheBlockTextMeansTheNearestBlock) {
  struct Case {
    std::u16string_view text;
    std::int32_t block;
  };
  const Case cases[] = {
      {u"1", 0},           {u"2", 1},
      {u"3", 2},           {u"7", 2},
      {u"0", 0},           {u"", 0},
      {u"x", 0},           {u"-5", 0},
      {u" 2", 1},          {u"2x", 1},
      {u"4", 2},           {u"+3", 2},
      {u"99999999999", 2}, {u"-99999999999", 0},
  };
  const PinForm form = ThreeBlocks();
  for (const Case& test : cases) {
    EXPECT_EQ(form.BlockFromText(test.text), test.block) << testing::PrintToString(test.text);
  }
}

TEST(PinForm, EachBlockKeepsItsNumber) {
  PinForm form = ThreeBlocks();
  EXPECT_EQ(form.CurrentBlock(), 0);
  EXPECT_EQ(form.Number(), u"1");
  form.SetCurrentBlock(1);
  EXPECT_EQ(form.Number(), u"4");
  form.SetNumber(u"B4");
  form.SetCurrentBlock(0);
  EXPECT_EQ(form.Number(), u"1");
  EXPECT_EQ(form.Values().numbers, (std::vector<std::u16string>{u"1", u"B4", u"9"}));
}

TEST(PinForm, WithoutBlocksThereIsNoNumber) {
  PinForm form({});
  EXPECT_EQ(form.BlockCount(), 0);
  EXPECT_EQ(form.BlockFromText(u"5"), 0);
  form.SetNumber(u"1");
  EXPECT_EQ(form.Number(), u"");
  EXPECT_TRUE(form.Values().numbers.empty());
}

TEST(PinForm, AnotherNameIsShownWhole) {
  PinForm form = ThreeBlocks();
  form.SetName(u"A/B");
  EXPECT_EQ(form.Values().nameMask, 2u);
  form.SetName(u"A/C");
  EXPECT_EQ(form.Values().name, u"A/C");
  EXPECT_EQ(form.Values().nameMask, 0xFFFFFFFF);
}

TEST(PinForm, PartsAreHiddenForTheNameThatWasAskedAbout) {
  PinForm form = ThreeBlocks();
  form.SetName(u"A/C");
  form.SetNameMask(1);
  form.SetName(u"A/C");
  EXPECT_EQ(form.Values().nameMask, 1u);
  form.SetName(u"A/B");
  EXPECT_EQ(form.Values().nameMask, 0xFFFFFFFF);
}

}  // namespace
}  // namespace mivo
