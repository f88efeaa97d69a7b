// The pin grid beside the frame.

#include <QLineEdit>
#include <QTest>

#include "dialog_driver.h"
#include "frame_rig.h"
#include "pin_grid_layout.h"
#include "pin_prop_grid.h"
#include "pin_property.h"
#include "pin_props.h"
#include "wait_until.h"

namespace mivo {
namespace {

using namespace pin_grid_column;

class MainFramePinGridTest : public FrameTest {
 protected:
  MainFramePinGridTest() {
    Put("p.ZLB", LibraryFile(ComponentRecord("one") + ComponentRecord("two")));
    Frame().Open(PathOf("p.ZLB"));
    Frame().show();
  }

  [[nodiscard]] CPinProps* Props() {
    return Frame().findChild<CPinProps*>(QStringLiteral("pinProps"));
  }
  [[nodiscard]] bool IsShown() { return Props() != nullptr && Props()->isVisible(); }
  [[nodiscard]] bool IsChecked() { return Frame().Action(Command::PinProperty)->isChecked(); }
  [[nodiscard]] CPinPropGrid& Grid() {
    return *Props()->findChild<CPinPropGrid*>(QStringLiteral("pinGrid"));
  }
  [[nodiscard]] std::u16string NameOf(int row) {
    return std::u16string(Grid().Grid().Rows()[static_cast<std::size_t>(row)].pin->Name());
  }
  /// The locations of all rows, the selected one in brackets.
  [[nodiscard]] std::string Rows() {
    std::string text;
    for (int row = 0; row < Grid().Grid().RowCount(); ++row) {
      const std::u16string place =
          LocationText(Grid().Grid().Rows()[static_cast<std::size_t>(row)].pin->location);
      const std::string narrow(place.begin(), place.end());
      if (row > 0) text += ' ';
      text += row == Grid().Grid().SelectedRow() ? "[" + narrow + "]" : narrow;
    }
    return text;
  }
  /// A place of the component in the view.
  [[nodiscard]] QPoint At(SPoint point) {
    CCompEditView& view = Frame().View();
    const PixelPoint pixel = view.Editor().Coordinates().ToDevice(point);
    return (QPointF(pixel.x, pixel.y) / view.viewport()->devicePixelRatioF()).toPoint();
  }
  void ClickView(SPoint point) {
    QTest::mouseClick(Frame().View().viewport(), Qt::LeftButton, {}, At(point));
  }
  /// Types into the name cell of the first row and leaves it open.
  void TypeName(const char* name) {
    const PinGridLayout& cells = Grid().Cells();
    QTest::mouseClick(&Grid(), Qt::LeftButton, {}, {cells.Left(kName) + 5, 5});
    auto* const edit = Grid().findChild<QLineEdit*>(QStringLiteral("cellEdit"));
    ASSERT_TRUE(edit->isVisible());
    QTest::keyClicks(edit, name);
  }
};

TEST_F(MainFramePinGridTest, CommandShowsAndHidesTheGrid) {
  EXPECT_FALSE(IsChecked());
  Trigger(Command::PinProperty);
  EXPECT_TRUE(IsShown());
  EXPECT_TRUE(IsChecked());
  EXPECT_EQ(Grid().Grid().RowCount(), 2);
  Trigger(Command::PinProperty);
  EXPECT_FALSE(IsShown());
  EXPECT_FALSE(IsChecked());
}

TEST_F(MainFramePinGridTest, ClosingTheGridUnchecksTheCommand) {
  Trigger(Command::PinProperty);
  Props()->close();
  EXPECT_FALSE(IsChecked());
  Trigger(Command::PinProperty);
  EXPECT_TRUE(IsShown());
  EXPECT_TRUE(IsChecked());
}

TEST_F(MainFramePinGridTest, HiddenGridCatchesUpWhenItIsShownAgain) {
  Trigger(Command::PinProperty);
  Trigger(Command::PinProperty);
  EditSelectedComponent();
  Trigger(Command::PinProperty);
  EXPECT_EQ(Grid().Grid().RowCount(), 1);
}

TEST_F(MainFramePinGridTest, SelectionGoesBothWays) {
  Trigger(Command::PinProperty);
  ASSERT_TRUE(Frame().View().Editor().SelectPin({PinSide::Right, 1}));
  EXPECT_EQ(Grid().Grid().SelectedRow(), 1);
  QTest::mouseClick(&Grid(), Qt::LeftButton, {}, {5, 5});
  EXPECT_EQ(Grid().Grid().SelectedRow(), 0);
  EXPECT_TRUE(IsEnabled(Command::Property));
}

TEST_F(MainFramePinGridTest, KeyboardIsInTheGridOnceItIsShown) {
  Trigger(Command::PinProperty);
  EXPECT_TRUE(WaitUntil([this] { return Grid().hasFocus(); }));
}

TEST_F(MainFramePinGridTest, F6GoesFromTheGridToTheWindowAndBack) {
  Trigger(Command::PinProperty);
  ASSERT_TRUE(WaitUntil([this] { return Grid().hasFocus(); }));
  QTest::keyClick(&Grid(), Qt::Key_F6);
  EXPECT_TRUE(WaitUntil([this] { return Frame().View().hasFocus(); }));
  QTest::keyClick(&Frame(), Qt::Key_F6, Qt::ShiftModifier);
  EXPECT_TRUE(WaitUntil([this] { return Grid().hasFocus(); }));
}

TEST_F(MainFramePinGridTest, EditIsUndone) {
  Trigger(Command::PinProperty);
  TypeName("X");
  Props()->EndEdit();
  EXPECT_EQ(NameOf(0), u"X");
  Trigger(Command::Undo);
  EXPECT_EQ(NameOf(0), u"A");
}

TEST_F(MainFramePinGridTest, AnyCommandKeepsWhatWasTyped) {
  Trigger(Command::PinProperty);
  TypeName("X");
  Trigger(Command::ZoomIn);
  EXPECT_EQ(NameOf(0), u"X");
}

TEST_F(MainFramePinGridTest, SaveWritesWhatWasTyped) {
  Trigger(Command::PinProperty);
  TypeName("TYPED");
  Trigger(Command::Save);
  EXPECT_NE(Content("p.ZLB").find("N:TYPED,"), std::string::npos);
}

TEST_F(MainFramePinGridTest, ChoosingAnotherComponentKeepsWhatWasTyped) {
  Trigger(Command::PinProperty);
  TypeName("X");
  Frame().Names().SelectRow(1);
  EXPECT_EQ(NameOf(0), u"A");
  Frame().Names().SelectRow(0);
  EXPECT_EQ(NameOf(0), u"X");
}

TEST_F(MainFramePinGridTest, ClosingTheFrameAsksAboutWhatWasTyped) {
  Trigger(Command::PinProperty);
  TypeName("X");
  Prompts().saveAnswers = {SaveAnswer::Cancel};
  EXPECT_FALSE(Frame().close());
  EXPECT_TRUE(Prompts().saveAnswers.empty());
}

TEST_F(MainFramePinGridTest, FrameEndsWithTheGridOpenAndACellEdited) {
  Trigger(Command::PinProperty);
  TypeName("X");
  Restart();
  EXPECT_EQ(Props(), nullptr);
}

TEST_F(MainFramePinGridTest, PinPropertyShowsInTheGrid) {
  Trigger(Command::PinProperty);
  ASSERT_TRUE(Frame().View().Editor().SelectPin({PinSide::Left, 1}));
  EXPECT_TRUE(Answer<CPinProperty>([&] { Trigger(Command::Property); },
                                   [&](CPinProperty& dialog) {
                                     EXPECT_FALSE(Grid().grab().isNull()) << "while it is open";
                                     Type(dialog, "nameEdit", "X");
                                     Click(dialog, "okButton");
                                   }));
  EXPECT_EQ(NameOf(0), u"X");
}

TEST_F(MainFramePinGridTest, PastedPinGetsARow) {
  Trigger(Command::PinProperty);
  ClickView({-5, 10});
  Trigger(Command::Copy);
  Trigger(Command::Paste);
  EXPECT_EQ(Grid().Grid().RowCount(), 2) << "it is not placed yet";
  ClickView({-5, 20});
  EXPECT_EQ(Rows(), "L1 [L2] R1");
  EXPECT_EQ(NameOf(1), u"A");
  Trigger(Command::Undo);
  EXPECT_EQ(Rows(), "L1 R1");
}

TEST_F(MainFramePinGridTest, PinDraggedWithTheMouseChangesItsRow) {
  Trigger(Command::PinProperty);
  ClickView({-5, 10});
  QWidget* const view = Frame().View().viewport();
  QTest::mousePress(view, Qt::LeftButton, {}, At({-5, 10}));
  QTest::mouseMove(view, At({45, 20}));
  EXPECT_FALSE(Grid().grab().isNull());
  QTest::mouseRelease(view, Qt::LeftButton, {}, At({45, 20}));
  EXPECT_EQ(Rows(), "[R2] R1");
}

TEST_F(MainFramePinGridTest, DeletedPinLosesItsRowAndUndoGivesItBack) {
  Trigger(Command::PinProperty);
  ClickView({-5, 10});
  Trigger(Command::Delete);
  EXPECT_EQ(Rows(), "R1");
  Trigger(Command::Undo);
  EXPECT_EQ(Rows(), "L1 R1");
}

TEST_F(MainFramePinGridTest, ClickInTheViewKeepsWhatWasTyped) {
  Trigger(Command::PinProperty);
  TypeName("X");
  Frame().activateWindow();
  ASSERT_TRUE(WaitUntil([&] { return Frame().isActiveWindow(); }));
  ClickView({45, 10});
  EXPECT_EQ(Rows(), "L1 [R1]");
  EXPECT_EQ(NameOf(0), u"X");
}

TEST_F(MainFramePinGridTest, OpeningAnotherLibraryShowsItsPins) {
  Put("q.ZLB", LibraryFile("+COMP,N:q\nX:4,Y:3,B:2\nTYPE:GEN,FB:0\nR:U\n"
                           "+PIN,N:Q,DF:FFFFFFFF,L:T2,T:,M:7,M:8,-PIN\n"
                           "NOTE:,MFR:,MFRPN:,PKG:,-COMP\n"));
  Trigger(Command::PinProperty);
  TypeName("X");
  Prompts().saveAnswers = {SaveAnswer::Discard};
  Prompts().openPaths = {PathOf("q.ZLB")};
  Trigger(Command::Open);
  EXPECT_TRUE(Prompts().saveAnswers.empty()) << "what was typed is a change";
  EXPECT_EQ(Rows(), "T2");
  EXPECT_EQ(Grid().Grid().Blocks(), 2);
  EXPECT_FALSE(Grid().findChild<QLineEdit*>(QStringLiteral("cellEdit"))->isVisible());
  EXPECT_FALSE(Grid().grab().isNull());
}

TEST_F(MainFramePinGridTest, NewWithAnEditInProgressAsksAndEmptiesTheGrid) {
  Trigger(Command::PinProperty);
  TypeName("X");
  Prompts().saveAnswers = {SaveAnswer::Save};
  Trigger(Command::New);
  EXPECT_EQ(Rows(), "");
  EXPECT_NE(Content("p.ZLB").find("N:X,"), std::string::npos);
}

TEST_F(MainFramePinGridTest, SavingLeavesTheRowsAlive) {
  Trigger(Command::PinProperty);
  TypeName("X");
  Trigger(Command::Save);
  EXPECT_FALSE(Grid().grab().isNull());
  TypeName("Y");
  Props()->EndEdit();
  EXPECT_EQ(NameOf(0), u"Y");
  EXPECT_EQ(Rows(), "[L1] R1");
}

TEST_F(MainFramePinGridTest, OtherBlocksOfTheComponentShowInTheGrid) {
  Trigger(Command::PinProperty);
  Prompts().components = {CompPropertyValues{.name = u"one", .width = 4, .height = 3, .blocks = 3}};
  Trigger(Command::ComponentProperty);
  EXPECT_EQ(Grid().Grid().Blocks(), 3);
  EXPECT_EQ(Rows(), "L1 R1");
}

TEST_F(MainFramePinGridTest, ComponentsThatGoTakeTheirRowsAlong) {
  Trigger(Command::PinProperty);
  TypeName("X");
  Trigger(Command::CutComponent);
  EXPECT_EQ(NameOf(0), u"A");
  Trigger(Command::CutComponent);
  EXPECT_EQ(Rows(), "");
  Trigger(Command::PasteComponent);
  EXPECT_EQ(Rows(), "L1 R1");
}

TEST_F(MainFramePinGridTest, AcceleratorsOfTheFrameWorkWhileNoCellIsEdited) {
  Trigger(Command::PinProperty);
  Props()->activateWindow();
  ASSERT_TRUE(WaitUntil([&] { return Props()->isActiveWindow(); }));
  ASSERT_TRUE(Frame().View().Editor().SelectPin({PinSide::Left, 1}));
  Grid().setFocus();
  QTest::keyClick(&Grid(), Qt::Key_F11);
  EXPECT_EQ(NameOf(0), u"1");
  QTest::keyClick(&Grid(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(NameOf(0), u"A");

  TypeName("X");
  auto* const edit = Grid().findChild<QLineEdit*>(QStringLiteral("cellEdit"));
  QTest::keyClick(edit, Qt::Key_F11);
  EXPECT_TRUE(edit->isVisible());
  QTest::keyClick(edit, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(edit->text(), QStringLiteral("A")) << "undone in the text";
  EXPECT_EQ(NameOf(0), u"A");
}

TEST_F(MainFramePinGridTest, EmptyLibraryHasAnEmptyGrid) {
  Trigger(Command::PinProperty);
  Trigger(Command::New);
  EXPECT_EQ(Grid().Grid().RowCount(), 0);
  EXPECT_FALSE(Grid().grab().isNull());
}

}  // namespace
}  // namespace mivo
