// How the grid stays in step with the editor.

#include <gtest/gtest.h>

#include "grid_rig.h"
#include "pin_grid_layout.h"

namespace mivo {
namespace {

using namespace pin_grid_column;
using EditKind = PinGrid::EditKind;

class PinGridSyncTest : public GridTest {
 protected:
  PinGridSyncTest() {
    Open(MakeComponent({{PinSide::Left, 1, u"A"}, {PinSide::Left, 3, u"B"}, {PinSide::Top, 2}}));
  }

  /// A click into the view.
  void ClickView(SPoint point) {
    const PixelPoint at = Editor().Coordinates().ToDevice(point);
    Editor().PressLeft(at);
    Editor().ReleaseLeft(at);
  }
};

TEST_F(PinGridSyncTest, PinClickedInTheViewIsTheSelectedRow) {
  ClickView({-5, 30});
  EXPECT_EQ(Listed(), "L1 [L3] T2");
}

TEST_F(PinGridSyncTest, ReleasedSelectionSelectsNoRow) {
  Grid().Click(1, kLocation);
  Editor().Key(ViewKey::Escape, false);
  EXPECT_EQ(Listed(), "L1 L3 T2");
  EXPECT_EQ(Grid().SelectedRow(), -1);
}

TEST_F(PinGridSyncTest, PinDraggedInTheViewChangesItsRow) {
  ClickView({-5, 10});
  const PixelPoint from = Editor().Coordinates().ToDevice({-5, 10});
  const PixelPoint to = Editor().Coordinates().ToDevice({-5, 50});
  Editor().PressLeft(from);
  Editor().MoveMouse(to);
  Editor().ReleaseLeft(to);
  EXPECT_EQ(Listed(), "L3 [L5] T2");
}

TEST_F(PinGridSyncTest, UndoTakesAnEditBack) {
  Grid().Click(0, kName);
  Grid().SetEditText(u"X");
  Grid().EndEdit();
  EXPECT_TRUE(Editor().IsEnabled(Command::Undo));
  Editor().Execute(Command::Undo);
  EXPECT_EQ(Listed(), "L1 L3 T2");
  EXPECT_EQ(Pin(0).Name(), u"A");
}

TEST_F(PinGridSyncTest, EditReachesTheComponent) {
  Grid().Click(0, kName);
  Grid().SetEditText(u"X");
  Grid().EndEdit();
  EXPECT_TRUE(Editor().Commit(SCompEditDoc::FarObjects::Keep));
  EXPECT_EQ(Editor().Component()->Pins().size(), 3U);
  bool isFound = false;
  for (const SCompPin& pin : Editor().Component()->Pins()) isFound |= pin.Name() == u"X";
  EXPECT_TRUE(isFound);
}

TEST_F(PinGridSyncTest, LookingAtCellsIsNoChange) {
  for (int row = 0; row < 3; ++row) {
    for (const int column : {kLocation, kName, kStyle, kFirstBlock}) Grid().Click(row, column);
  }
  Grid().EndEdit();
  EXPECT_FALSE(Editor().Commit(SCompEditDoc::FarObjects::Keep));
}

TEST_F(PinGridSyncTest, PastedPinGetsARow) {
  ClickView({-5, 10});
  Editor().Execute(Command::Copy);
  Editor().Execute(Command::Paste);
  EXPECT_EQ(Listed(), "L1 L3 T2") << "not placed yet";
  ClickView({-5, 70});
  EXPECT_EQ(Listed(), "L1 L3 [L7] T2");
  EXPECT_EQ(Pin(2).Name(), u"A");
}

TEST_F(PinGridSyncTest, NextPinNameShowsInTheGrid) {
  Grid().Click(0, kLocation);
  Editor().Execute(Command::NextPinName);
  EXPECT_EQ(Pin(0).Name(), u"1");
  EXPECT_EQ(Listed(), "[L1] L3 T2");
}

TEST_F(PinGridSyncTest, ChangesFromElsewhereGiveAnEditUp) {
  Grid().Click(0, kName);
  Grid().SetEditText(u"X");
  Editor().Execute(Command::Delete);
  EXPECT_EQ(Grid().Edit(), EditKind::None);
  Grid().EndEdit();
  EXPECT_EQ(Listed(), "L3 T2");
  EXPECT_EQ(Pin(0).Name(), u"B");
}

TEST_F(PinGridSyncTest, AnotherComponentIsShownFromItsStart) {
  std::vector<PinSpec> pins;
  for (std::int32_t offset = 0; offset < 20; ++offset) pins.push_back({PinSide::Left, offset});
  SComponent first = MakeComponent(pins, 4);
  SComponent second = first;
  Grid().SetVisible(5, 1);
  Editor().SetComponent(&first);
  Grid().Click(10, kName);
  Grid().ScrollRows(ScrollRequest::End, 0);
  Grid().ScrollBlocks(ScrollRequest::End, 0);
  Editor().SetComponent(&second);
  EXPECT_EQ(Grid().RowScroll().First(), 0);
  EXPECT_EQ(Grid().BlockScroll().First(), 0);
  EXPECT_EQ(Grid().SelectedRow(), -1);
  EXPECT_EQ(Grid().Edit(), EditKind::None);
  Editor().SetComponent(nullptr);
  EXPECT_EQ(Grid().RowCount(), 0);
}

TEST_F(PinGridSyncTest, RowSelectedElsewhereComesIntoSight) {
  std::vector<PinSpec> pins;
  for (std::int32_t offset = 0; offset < 20; ++offset) pins.push_back({PinSide::Left, offset});
  Open(MakeComponent(pins));
  Grid().SetVisible(5, 1);
  ASSERT_TRUE(Editor().SelectPin({PinSide::Left, 12}));
  EXPECT_EQ(Grid().RowScroll().First(), 8);
}

TEST_F(PinGridSyncTest, EditsDoNotScrollAwayFromWhatTheUserLooksAt) {
  std::vector<PinSpec> pins;
  for (std::int32_t offset = 0; offset < 20; ++offset) pins.push_back({PinSide::Left, offset});
  Open(MakeComponent(pins));
  Grid().SetVisible(5, 1);
  Grid().Click(2, kName);
  Grid().SetEditText(u"X");
  Grid().ScrollRows(ScrollRequest::Thumb, 10);
  EXPECT_EQ(Grid().RowScroll().First(), 10);
  Editor().Execute(Command::NextPinName);
  EXPECT_EQ(Grid().RowScroll().First(), 10);
}

TEST_F(PinGridSyncTest, ThousandPinsOfManyBlocksAreListed) {
  std::vector<PinSpec> pins;
  const std::vector<std::u16string> numbers(32, u"17");
  for (int i = 0; i < 1000; ++i) {
    pins.push_back({static_cast<PinSide>(i % 4), i / 4, u"N", numbers});
  }
  Open(MakeComponent(pins, 32));
  EXPECT_EQ(Grid().RowCount(), 1000);
  Grid().Click(999, kFirstBlock);
  for (int i = 0; i < 998; ++i) Grid().MoveUp();
  EXPECT_EQ(Grid().SelectedRow(), 1);
  EXPECT_EQ(Grid().EditText(), u"17");
}

}  // namespace
}  // namespace mivo
