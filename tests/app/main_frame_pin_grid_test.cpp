// The pin grid beside the frame.

#include <QLineEdit>
#include <QTest>

#include "frame_rig.h"
#include "pin_grid_layout.h"
#include "pin_prop_grid.h"
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
    return Grid().Grid().Rows()[static_cast<std::size_t>(row)].pin->Name();
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

TEST_F(MainFramePinGridTest, EmptyLibraryHasAnEmptyGrid) {
  Trigger(Command::PinProperty);
  Trigger(Command::New);
  EXPECT_EQ(Grid().Grid().RowCount(), 0);
  EXPECT_FALSE(Grid().grab().isNull());
}

}  // namespace
}  // namespace mivo
