// What edits of cells do to pins.

#include <gtest/gtest.h>

#include "grid_rig.h"
#include "pin_grid_layout.h"

namespace mivo {
namespace {

using namespace pin_grid_column;
using EditKind = PinGrid::EditKind;

class PinGridEditingTest : public GridTest {
 protected:
  PinGridEditingTest() {
    Open(MakeComponent({{PinSide::Left, 1, u"A", {u"1", u"11"}},
                        {PinSide::Left, 3, u"\\B", {u"2", u"12"}},
                        {PinSide::Right, 2, u"C", {u"3", u"13"}}},
                       2));
    Grid().SetVisible(100, 2);
  }

  void Type(std::u16string_view text) { Grid().SetEditText(text); }
};

// --- Clicks --------------------------------------------------------------------------------------

TEST_F(PinGridEditingTest, ClickSelectsThePinOfTheRow) {
  Grid().Click(2, kLocation);
  EXPECT_EQ(Listed(), "L1 L3 [R2]");
  ASSERT_NE(Editor().Document().SingleSelection(), nullptr);
  EXPECT_EQ(Editor().Document().SingleSelection()->Pin()->Name(), u"C");
}

TEST_F(PinGridEditingTest, LocationIsNotEditable) {
  Grid().Click(0, kLocation);
  EXPECT_EQ(Grid().Edit(), EditKind::None);
}

TEST_F(PinGridEditingTest, ClickBelowTheLastRowOnlyEndsTheEdit) {
  Grid().Click(0, kName);
  Type(u"X");
  Grid().Click(3, kName);
  EXPECT_EQ(Grid().Edit(), EditKind::None);
  EXPECT_EQ(Listed(), "[L1] L3 R2");
  EXPECT_EQ(Pin(0).Name(), u"X");
}

TEST_F(PinGridEditingTest, EditOfACellTakesItsRowIntoSight) {
  Grid().SetVisible(1, 1);
  Grid().Click(0, kLocation);
  Grid().ScrollRows(ScrollRequest::End, 0);
  ASSERT_EQ(Grid().RowScroll().First(), 2);
  Grid().StartEdit(kName);
  EXPECT_EQ(Grid().RowScroll().First(), 0);
}

TEST_F(PinGridEditingTest, EditOfACellNeedsASelectedRow) {
  Grid().StartEdit(kName);
  EXPECT_EQ(Grid().Edit(), EditKind::None);
  Grid().StartEdit(kHide);
  EXPECT_FALSE(Editor().Document().SelectionChanged());
}

// --- Names ---------------------------------------------------------------------------------------

TEST_F(PinGridEditingTest, NameIsEditedAsPeopleTypeIt) {
  Grid().Click(1, kName);
  EXPECT_EQ(Grid().Edit(), EditKind::Name);
  EXPECT_EQ(Grid().EditColumn(), kName);
  EXPECT_EQ(Grid().EditText(), u"\\B");
  EXPECT_EQ(Grid().EditTextLimit(), 250);
  Type(u"C\\D");
  Grid().EndEdit();
  EXPECT_EQ(Pin(1).Name(), std::u16string({u'C', u'D' | SCompPin::kOverline}));
  EXPECT_EQ(Grid().Edit(), EditKind::None);
}

TEST_F(PinGridEditingTest, ChangedNameKeepsItsHiddenParts) {
  SComponent component = MakeComponent({{PinSide::Left, 1, u"A/B"}});
  std::vector<SCompPin> pins = component.Pins();
  pins[0].nameMask = 2;
  component.SetPins(pins);
  Open(std::move(component));
  Grid().Click(0, kName);
  Type(u"X/Y");
  Grid().EndEdit();
  EXPECT_EQ(Pin(0).nameMask, 2U);
}

TEST_F(PinGridEditingTest, CancelRestoresTheName) {
  Grid().Click(1, kName);
  Type(u"other");
  Grid().CancelEdit();
  EXPECT_EQ(Grid().Edit(), EditKind::None);
  EXPECT_EQ(Pin(1).DisplayName(), u"\\B");
  EXPECT_FALSE(Editor().Document().SelectionChanged());
}

TEST_F(PinGridEditingTest, UntouchedNameIsNoChange) {
  const int before = PinChanges();
  Grid().Click(1, kName);
  const int afterClick = PinChanges();
  EXPECT_GT(afterClick, before);
  Type(u"typed");
  Type(u"\\B");
  Grid().EndEdit();
  EXPECT_EQ(PinChanges(), afterClick);
  EXPECT_FALSE(Editor().Document().SelectionChanged());
}

TEST_F(PinGridEditingTest, NameThatCannotBeTypedStaysAsItIsWhenUntouched) {
  // Only seven bits of a character show, and overlined characters show as two.
  std::u16string typed = u"\x3042";
  while (typed.size() < 500) typed += u"\\\x01";
  SComponent component = MakeComponent({{PinSide::Left, 1, typed}});
  const std::u16string name(component.Pins().front().Name());
  ASSERT_EQ(name.front(), u'\x3042');
  Open(std::move(component));
  Grid().Click(0, kName);
  Grid().EndEdit();
  EXPECT_EQ(Pin(0).Name(), name);
  EXPECT_FALSE(Editor().Document().SelectionChanged());
}

// --- Styles --------------------------------------------------------------------------------------

class PinGridStyleEditTest : public GridTest {
 protected:
  void OpenPinOfType(std::int32_t type) {
    Open(MakeComponent({{PinSide::Left, 1, u"A", {u"1"}, type}}));
    Grid().Click(0, kStyle);
  }
};

TEST_F(PinGridStyleEditTest, ChooserOpensOnTheStyleOfThePin) {
  OpenPinOfType(4);
  EXPECT_EQ(Grid().Edit(), EditKind::Style);
  EXPECT_EQ(Grid().EditColumn(), kStyle);
  EXPECT_EQ(Grid().EditStyle(), 2U);
}

TEST_F(PinGridStyleEditTest, ChosenStyleKeepsTheHiddenNumber) {
  OpenPinOfType(16 + 0);
  Grid().ChooseStyle(1);
  EXPECT_EQ(Pin(0).type, 16 + 8);
  EXPECT_TRUE(Editor().Document().SelectionChanged());
  EXPECT_EQ(Grid().Edit(), EditKind::None);
}

TEST_F(PinGridStyleEditTest, UnlistedStyleBecomesTheFirstWhenThatIsChosen) {
  OpenPinOfType(3);
  EXPECT_EQ(Grid().EditStyle(), 0U);
  Grid().ChooseStyle(0);
  EXPECT_EQ(Pin(0).type, 0);
}

TEST_F(PinGridStyleEditTest, UnlistedStyleStaysWhenNothingIsChosen) {
  OpenPinOfType(3);
  Grid().EndEdit();
  EXPECT_EQ(Pin(0).type, 3);
  EXPECT_FALSE(Editor().Document().SelectionChanged());
}

TEST_F(PinGridStyleEditTest, ChoosingTheSameStyleIsNoChange) {
  OpenPinOfType(16 + 12);
  const int before = PinChanges();
  Grid().ChooseStyle(3);
  EXPECT_EQ(PinChanges(), before);
  EXPECT_FALSE(Editor().Document().SelectionChanged());
}

TEST_F(PinGridStyleEditTest, ChoiceWhileATextIsEditedIsIgnored) {
  OpenPinOfType(0);
  Grid().Click(0, kName);
  Grid().ChooseStyle(1);
  EXPECT_EQ(Pin(0).type, 0);
}

TEST_F(PinGridStyleEditTest, ChoiceAfterTheEndOfTheEditIsIgnored) {
  OpenPinOfType(0);
  Grid().CancelEdit();
  Grid().ChooseStyle(1);
  EXPECT_EQ(Pin(0).type, 0);
}

// --- Hidden numbers ------------------------------------------------------------------------------

TEST_F(PinGridEditingTest, HideCellChangesAtOnceAndBackAgain) {
  Grid().Click(0, kHide);
  EXPECT_EQ(Grid().Edit(), EditKind::None);
  EXPECT_EQ(Pin(0).type, 16);
  EXPECT_TRUE(Editor().Document().SelectionChanged());
  Grid().Click(0, kHide);
  EXPECT_EQ(Pin(0).type, 0);
  EXPECT_TRUE(Editor().Document().SelectionChanged());

  Editor().Execute(Command::Undo);
  EXPECT_EQ(Pin(0).type, 16) << "each click is an operation";
  Editor().Execute(Command::Undo);
  EXPECT_EQ(Pin(0).type, 0);
  EXPECT_FALSE(Editor().Document().CanUndo());
}

// --- Numbers -------------------------------------------------------------------------------------

TEST_F(PinGridEditingTest, NumberOfABlockIsEdited) {
  Grid().Click(0, kFirstBlock + 1);
  EXPECT_EQ(Grid().Edit(), EditKind::Number);
  EXPECT_EQ(Grid().EditColumn(), kFirstBlock + 1);
  EXPECT_EQ(Grid().EditText(), u"11");
  EXPECT_EQ(Grid().EditTextLimit(), 64);
  Type(u"99");
  Grid().EndEdit();
  EXPECT_EQ(Pin(0).GetNumber(0), u"1");
  EXPECT_EQ(Pin(0).GetNumber(1), u"99");
}

TEST_F(PinGridEditingTest, ScrolledBlockColumnsMeanLaterBlocks) {
  Grid().SetVisible(100, 1);
  Grid().ScrollBlocks(ScrollRequest::LineForward, 0);
  Grid().Click(0, kFirstBlock);
  EXPECT_EQ(Grid().EditColumn(), kFirstBlock);
  EXPECT_EQ(Grid().EditText(), u"11");
}

TEST_F(PinGridEditingTest, BlockBeyondThoseOfThePinIsNotEditable) {
  Grid().Click(0, kFirstBlock + 2);
  EXPECT_EQ(Grid().Edit(), EditKind::None);
  EXPECT_EQ(Listed(), "[L1] L3 R2");
}

TEST_F(PinGridEditingTest, AbsentNumberStaysAbsentWhenUntouched) {
  SComponent component = MakeComponent({{PinSide::Left, 1}}, 2);
  Open(std::move(component));
  Grid().Click(0, kFirstBlock + 1);
  EXPECT_EQ(Grid().EditText(), u"");
  Grid().EndEdit();
  EXPECT_EQ(Pin(0).GetNumber(1), std::nullopt);
  EXPECT_FALSE(Editor().Document().SelectionChanged());
}

TEST_F(PinGridEditingTest, LongNumberStaysAsItIsWhenUntouched) {
  const std::u16string number = std::u16string(100000, u'9') + u"\x01\r\n\xD800";
  Open(MakeComponent({{PinSide::Left, 1, u"A", {number}}}));
  Grid().Click(0, kFirstBlock);
  EXPECT_EQ(Grid().EditText(), number);
  Grid().EndEdit();
  EXPECT_EQ(Pin(0).GetNumber(0), number);
}

TEST_F(PinGridEditingTest, NumberCanBeEmptied) {
  Grid().Click(0, kFirstBlock);
  Type(u"");
  Grid().EndEdit();
  EXPECT_EQ(Pin(0).GetNumber(0), u"");
}

// --- Up, Down, Enter -----------------------------------------------------------------------------

TEST_F(PinGridEditingTest, DownKeepsTheTextAndEditsTheNextRow) {
  Grid().Click(0, kName);
  Type(u"X");
  Grid().MoveDown();
  EXPECT_EQ(Pin(0).Name(), u"X");
  EXPECT_EQ(Listed(), "L1 [L3] R2");
  EXPECT_EQ(Grid().Edit(), EditKind::Name);
  EXPECT_EQ(Grid().EditText(), u"\\B");
}

TEST_F(PinGridEditingTest, UpEditsTheRowAbove) {
  Grid().Click(2, kFirstBlock + 1);
  Grid().MoveUp();
  EXPECT_EQ(Listed(), "L1 [L3] R2");
  EXPECT_EQ(Grid().Edit(), EditKind::Number);
  EXPECT_EQ(Grid().EditColumn(), kFirstBlock + 1);
  EXPECT_EQ(Grid().EditText(), u"12");
}

TEST_F(PinGridEditingTest, FirstRowIsTheLimitOfUp) {
  Grid().Click(0, kName);
  Type(u"X");
  Grid().MoveUp();
  EXPECT_EQ(Listed(), "[L1] L3 R2");
  EXPECT_EQ(Grid().Edit(), EditKind::Name);
  EXPECT_EQ(Grid().EditText(), u"X");
}

TEST_F(PinGridEditingTest, LastRowIsTheLimitOfDown) {
  Grid().Click(2, kName);
  Type(u"X");
  Grid().MoveDown();
  EXPECT_EQ(Listed(), "L1 L3 [R2]");
  EXPECT_EQ(Grid().Edit(), EditKind::Name);
  EXPECT_EQ(Grid().EditText(), u"X");
}

TEST_F(PinGridEditingTest, KeysMoveOnlyWhileATextIsEdited) {
  Grid().Click(1, kLocation);
  Grid().MoveDown();
  EXPECT_EQ(Listed(), "L1 [L3] R2");
  Grid().Click(1, kStyle);
  Grid().MoveDown();
  EXPECT_EQ(Listed(), "L1 [L3] R2");
  EXPECT_EQ(Grid().Edit(), EditKind::Style);
}

TEST_F(PinGridEditingTest, KeysMovePastPinsAtTheSamePlace) {
  Open(MakeComponent({{PinSide::Left, 1, u"A"},
                      {PinSide::Left, 1, u"B"},
                      {PinSide::Left, 2, u"C"},
                      {PinSide::Left, 2, u"D"}}));
  Grid().Click(0, kName);
  Grid().MoveDown();
  ASSERT_GE(Grid().SelectedRow(), 2);
  Grid().MoveUp();
  EXPECT_LE(Grid().SelectedRow(), 1);
  EXPECT_EQ(Grid().Edit(), EditKind::Name);
}

TEST_F(PinGridEditingTest, MovingAlongTakesTheRowIntoSight) {
  Grid().SetVisible(1, 1);
  Grid().Click(0, kName);
  Grid().MoveDown();
  EXPECT_EQ(Grid().RowScroll().First(), 1);
  Grid().MoveUp();
  EXPECT_EQ(Grid().RowScroll().First(), 0);
}

// --- Scrolling -----------------------------------------------------------------------------------

TEST_F(PinGridEditingTest, ScrollingKeepsWhatWasTyped) {
  Grid().Click(0, kName);
  Type(u"X");
  Grid().ScrollRows(ScrollRequest::LineForward, 0);
  EXPECT_EQ(Grid().Edit(), EditKind::None);
  EXPECT_EQ(Pin(0).Name(), u"X");

  Grid().Click(0, kFirstBlock);
  Type(u"77");
  Grid().ScrollBlocks(ScrollRequest::LineForward, 0);
  EXPECT_EQ(Grid().Edit(), EditKind::None);
  EXPECT_EQ(Pin(0).GetNumber(0), u"77");
}

TEST_F(PinGridEditingTest, RowsAndBlocksScrollByTheirOwnPages) {
  std::vector<PinSpec> pins;
  for (std::int32_t offset = 0; offset < 20; ++offset) pins.push_back({PinSide::Left, offset});
  Open(MakeComponent(pins, 20));
  Grid().SetVisible(5, 3);
  Grid().ScrollRows(ScrollRequest::PageForward, 0);
  EXPECT_EQ(Grid().RowScroll().First(), 4);
  Grid().ScrollRows(ScrollRequest::End, 0);
  EXPECT_EQ(Grid().RowScroll().First(), 15);
  Grid().ScrollBlocks(ScrollRequest::PageForward, 0);
  EXPECT_EQ(Grid().BlockScroll().First(), 2);
  Grid().ScrollBlocks(ScrollRequest::End, 0);
  EXPECT_EQ(Grid().BlockScroll().First(), 17);
}

}  // namespace
}  // namespace mivo
