// The window around the grid.

#include "pin_props.h"

#include <QtTest/qtestspontaneevent.h>
#include <QApplication>
#include <QSignalSpy>
#include <QWheelEvent>

#include "window_rig.h"

namespace mivo {
namespace {

using namespace pin_grid_column;

using PinPropsTest = WindowTest;

TEST_F(PinPropsTest, TellsWhatItIs) {
  Show(ManyPins(3, 1));
  EXPECT_EQ(Props().windowTitle(), "Pin property");
  EXPECT_FALSE(Props().isModal());
  EXPECT_EQ(CloseButton().text(), "Close");
  for (const QWidget* const control :
       std::initializer_list<const QWidget*>{&Grid(), &RowBar(), &BlockBar(), &Chooser()}) {
    EXPECT_FALSE(control->accessibleName().isEmpty()) << control->objectName().toStdString();
  }
}

TEST_F(PinPropsTest, AcceleratorsOfItsFrameWorkInIt) {
  Show(ManyPins(3, 1));
  // The toolkit passes them on from tool windows only.
  EXPECT_EQ(Props().windowType(), Qt::Tool);
}

TEST_F(PinPropsTest, ColumnsAndRowsFitAtFirst) {
  Show(ManyPins(100, 3));
  EXPECT_GE(Grid().width(), Grid().Cells().Left(kFirstBlock + 3));
  EXPECT_FALSE(BlockBar().maximum() > 0);
  EXPECT_GT(RowBar().maximum(), 0);
}

struct BarCase {
  const char* name;
  QAbstractSlider::SliderAction action;
  int row;
  int block;
};

class PinPropsBarTest : public WindowTest, public testing::WithParamInterface<BarCase> {};

INSTANTIATE_TEST_SUITE_P(
    Actions, PinPropsBarTest,
    testing::Values(BarCase{"LineForward", QAbstractSlider::SliderSingleStepAdd, 11, 11},
                    BarCase{"LineBack", QAbstractSlider::SliderSingleStepSub, 9, 9},
                    BarCase{"PageForward", QAbstractSlider::SliderPageStepAdd, 14, 12},
                    BarCase{"PageBack", QAbstractSlider::SliderPageStepSub, 6, 8},
                    BarCase{"StartIsIgnored", QAbstractSlider::SliderToMinimum, 10, 10}),
    [](const auto& tested) { return std::string(tested.param.name); });

TEST_P(PinPropsBarTest, BarsScrollTheGrid) {
  Show(ManyPins(200, 32));
  RowBar().setSliderPosition(10);
  BlockBar().setSliderPosition(10);
  RowBar().triggerAction(QAbstractSlider::SliderMove);
  BlockBar().triggerAction(QAbstractSlider::SliderMove);
  ASSERT_EQ(Grid().Grid().RowScroll().First(), 10);
  ASSERT_EQ(Grid().Grid().BlockScroll().First(), 10);

  RowBar().triggerAction(GetParam().action);
  BlockBar().triggerAction(GetParam().action);
  EXPECT_EQ(Grid().Grid().RowScroll().First(), GetParam().row);
  EXPECT_EQ(Grid().Grid().BlockScroll().First(), GetParam().block);
  EXPECT_EQ(RowBar().value(), GetParam().row);
  EXPECT_EQ(RowBar().sliderPosition(), GetParam().row);
  EXPECT_EQ(BlockBar().value(), GetParam().block);
}

TEST_F(PinPropsTest, EndShowsTheLastRowAndBlock) {
  Show(ManyPins(200, 32));
  RowBar().triggerAction(QAbstractSlider::SliderToMaximum);
  BlockBar().triggerAction(QAbstractSlider::SliderToMaximum);
  const PinGrid& grid = Grid().Grid();
  EXPECT_EQ(grid.RowScroll().First(), 200 - Grid().Cells().WholeRows(Grid().height()));
  EXPECT_EQ(grid.BlockScroll().First(), 32 - Grid().Cells().WholeBlocks(Grid().width()));
  EXPECT_EQ(RowBar().value(), RowBar().maximum());
}

TEST_F(PinPropsTest, ThumbsTellHowMuchIsInSight) {
  Show(ManyPins(200, 32));
  EXPECT_EQ(RowBar().pageStep(), Grid().Cells().WholeRows(Grid().height()));
  EXPECT_EQ(BlockBar().pageStep(), Grid().Cells().WholeBlocks(Grid().width()));
}

TEST_F(PinPropsTest, HeadingsFollowAtOnce) {
  Show(ManyPins(3, 32));
  QCoreApplication::processEvents();
  PaintCounter paints;
  Find<QWidget>("pinGridTitle").installEventFilter(&paints);
  BlockBar().triggerAction(QAbstractSlider::SliderSingleStepAdd);
  EXPECT_TRUE(WaitUntil([&] { return paints.count > 0; }));
}

TEST_F(PinPropsTest, WheelScrolls) {
  Show(ManyPins(200, 32));
  const auto turn = [&](QPoint delta) {
    const QPointF at = Grid().rect().center();
    QWheelEvent event(at, Grid().mapToGlobal(at), {}, delta, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event);  // others do not go on to the parent
    qApp->notify(&Grid(), &event);
  };
  turn({0, -120});
  EXPECT_GT(Grid().Grid().RowScroll().First(), 0);
  EXPECT_EQ(Grid().Grid().BlockScroll().First(), 0);
  turn({-120, 0});
  EXPECT_GT(Grid().Grid().BlockScroll().First(), 0);
}

TEST_F(PinPropsTest, ScrollingKeepsWhatWasTyped) {
  Show(ManyPins(200, 1));
  Click(0, kName);
  QTest::keyClicks(&Edit(), "X");
  RowBar().triggerAction(QAbstractSlider::SliderPageStepAdd);
  EXPECT_FALSE(Edit().isVisible());
  EXPECT_EQ(Pin(0).Name(), u"X");
}

TEST_F(PinPropsTest, ClickMeansTheRowInSight) {
  Show(ManyPins(200, 1));
  RowBar().triggerAction(QAbstractSlider::SliderPageStepAdd);
  Click(1, kLocation);
  EXPECT_EQ(SelectedRow(), 5);
}

TEST_F(PinPropsTest, AnotherSizeKeepsWhatWasTyped) {
  Show(ManyPins(200, 1));
  Click(0, kName);
  QTest::keyClicks(&Edit(), "X");
  const int height = Grid().height();
  Props().resize(Props().width(), Props().height() + 100);
  ASSERT_TRUE(WaitUntil([&] { return Grid().height() > height; }));
  EXPECT_FALSE(Edit().isVisible());
  EXPECT_EQ(Pin(0).Name(), u"X");
}

TEST_F(PinPropsTest, MovingAlongScrolls) {
  Show(ManyPins(200, 1));
  Click(0, kName);
  for (int i = 0; i < 50; ++i) QTest::keyClick(&Edit(), Qt::Key_Down);
  EXPECT_EQ(SelectedRow(), 50);
  EXPECT_TRUE(Grid().rect().contains(Edit().geometry()));
  EXPECT_EQ(RowBar().value(), Grid().Grid().RowScroll().First());
  EXPECT_GT(RowBar().value(), 0);
}

TEST_F(PinPropsTest, StartsInTheTable) {
  Show(ManyPins(3, 1));
  EXPECT_EQ(Props().focusWidget(), &Grid());
}

TEST_F(PinPropsTest, EnterDoesNotClose) {
  Show(ManyPins(3, 1));
  QTest::keyClick(&Grid(), Qt::Key_Return);
  EXPECT_TRUE(Props().isVisible());
}

TEST_F(PinPropsTest, ClosingKeepsWhatWasTypedAndTells) {
  const std::vector<std::function<void()>> ways = {
      [this] { QTest::mouseClick(&CloseButton(), Qt::LeftButton); },
      [this] { Props().close(); },
      [this] { Props().reject(); },
  };
  for (const std::function<void()>& close : ways) {
    Show(ManyPins(3, 1));
    QSignalSpy finished(&Props(), &QDialog::finished);
    Click(0, kName);
    QTest::keyClicks(&Edit(), "X");
    close();
    EXPECT_FALSE(Props().isVisible());
    EXPECT_EQ(Pin(0).Name(), u"X");
    EXPECT_EQ(finished.count(), 1);
  }
}

TEST_F(PinPropsTest, ClosingEndsTheChoiceOfAStyle) {
  Show(ManyPins(3, 1));
  Click(0, kStyle);
  Props().reject();
  EXPECT_EQ(Grid().Grid().Edit(), PinGrid::EditKind::None);
  EXPECT_EQ(Pin(0).type, 0);
}

TEST_F(PinPropsTest, EscapeClosesWhenNoCellIsEdited) {
  Show(ManyPins(3, 1));
  QTest::keyClick(&Grid(), Qt::Key_Escape);
  EXPECT_FALSE(Props().isVisible());
}

TEST_F(PinPropsTest, OtherComponentAndNoneAreShown) {
  Show(ManyPins(200, 32));
  SComponent other = ManyPins(3, 1);
  Editor().SetComponent(&other);
  EXPECT_EQ(Grid().Grid().RowCount(), 3);
  EXPECT_EQ(RowBar().maximum(), 0);
  EXPECT_EQ(BlockBar().maximum(), 0);
  Editor().SetComponent(nullptr);
  EXPECT_EQ(Grid().Grid().RowCount(), 0);
  Click(0, kName);
  EXPECT_FALSE(Edit().isVisible());
}

TEST_F(PinPropsTest, ManyPinsOfManyBlocksAreShownByTheCell) {
  Show(ManyPins(256, 32));
  for (int i = 0; i < 200; ++i) {
    RowBar().triggerAction(QAbstractSlider::SliderSingleStepAdd);
    BlockBar().triggerAction(QAbstractSlider::SliderSingleStepAdd);
    EXPECT_FALSE(Grid().grab().isNull());
  }
  EXPECT_EQ(Grid().Grid().RowScroll().First(), 200);
}

}  // namespace
}  // namespace mivo
