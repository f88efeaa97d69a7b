// What the cells show.

#include <QImage>

#include "window_rig.h"

namespace mivo {
namespace {

using namespace pin_grid_column;

class PinPropGridPaintingTest : public WindowTest {
 protected:
  /// The inside of a cell as it is on the screen, without its lines.
  QImage Picture(int row, int column) {
    return Grid().grab(Cell(row, column).adjusted(1, 1, -1, 0)).toImage();
  }
  [[nodiscard]] bool IsBlank(const QImage& image) {
    const QColor paper = Grid().palette().color(QPalette::Base);
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        if (image.pixelColor(x, y) != paper) return false;
      }
    }
    return true;
  }
};

TEST_F(PinPropGridPaintingTest, HeadingsHaveTheirColor) {
  Show(ManyPins(3, 2));
  const QImage title = Find<QWidget>("pinGridTitle").grab().toImage();
  EXPECT_EQ(title.pixelColor(3, 3), QColor(240, 240, 255));
  EXPECT_EQ(title.pixelColor(title.width() - 3, 3), QColor(240, 240, 255));
}

TEST_F(PinPropGridPaintingTest, HeadingsFollowTheBlocksInSight) {
  Show(ManyPins(3, 9));
  const QImage before = Find<QWidget>("pinGridTitle").grab().toImage();
  BlockBar().triggerAction(QAbstractSlider::SliderSingleStepAdd);
  EXPECT_NE(Find<QWidget>("pinGridTitle").grab().toImage(), before);
}

TEST_F(PinPropGridPaintingTest, HiddenNumberHasACheckMark) {
  Show(
      MakeComponent({{PinSide::Left, 1, u"A", {u"1"}, SCompPin::kHideNumber}, {PinSide::Left, 2}}));
  EXPECT_FALSE(IsBlank(Picture(0, kHide)));
  EXPECT_TRUE(IsBlank(Picture(1, kHide)));
}

TEST_F(PinPropGridPaintingTest, EveryStyleHasAPictureOfItsOwn) {
  std::vector<PinSpec> pins;
  std::int32_t offset = 0;
  for (const std::int32_t style : {0, 8, 4, 12, 1, 2}) {
    pins.push_back({PinSide::Left, offset++, u"A", {u"1"}, style});
  }
  Show(MakeComponent(pins));
  for (int row = 0; row < 6; ++row) {
    EXPECT_FALSE(IsBlank(Picture(row, kStyle)));
    for (int other = 0; other < row; ++other) {
      EXPECT_NE(Picture(row, kStyle), Picture(other, kStyle)) << row << " and " << other;
    }
  }
}

TEST_F(PinPropGridPaintingTest, SelectedRowIsMarkedAlsoWhenSelectedInTheView) {
  Show(ManyPins(3, 1));
  EXPECT_TRUE(IsBlank(Picture(1, kHide)));
  ASSERT_TRUE(Editor().SelectPin({PinSide::Left, 1}));
  EXPECT_FALSE(IsBlank(Picture(1, kHide)));
  EXPECT_TRUE(IsBlank(Picture(0, kHide)));
}

TEST_F(PinPropGridPaintingTest, FocusShowsOnTheSelectedRow) {
  Show(ManyPins(3, 1));
  ASSERT_TRUE(Editor().SelectPin({PinSide::Left, 1}));
  Grid().setFocus();
  const QImage focused = Picture(1, kLocation);
  CloseButton().setFocus();
  EXPECT_NE(Picture(1, kLocation), focused);
}

TEST_F(PinPropGridPaintingTest, LongTextStaysInItsCell) {
  const std::u16string longText(100000, u'W');
  Show(MakeComponent({{PinSide::Left, 1, longText, {longText}}, {PinSide::Left, 2, u"A", {u"1"}}}));
  EXPECT_NE(Picture(0, kName), Picture(1, kName));
  EXPECT_EQ(Picture(0, kStyle), Picture(1, kStyle));
  EXPECT_EQ(Picture(0, kHide), Picture(1, kHide));
}

TEST_F(PinPropGridPaintingTest, ControlCharactersShowOnOneLine) {
  Show(MakeComponent(
      {{PinSide::Left, 1, u"A\nB\tC\x01", {u"1\r\n2\x2028"}}, {PinSide::Left, 2, u"A", {u"1"}}}));
  EXPECT_FALSE(IsBlank(Picture(0, kName)));
  EXPECT_NE(Picture(0, kName), Picture(1, kName));
  EXPECT_NE(Picture(0, kFirstBlock), Picture(1, kFirstBlock));
}

TEST_F(PinPropGridPaintingTest, BlocksThatAPinDoesNotHaveAreBlank) {
  Show(ManyPins(2, 1));
  Props().resize(900, 500);
  EXPECT_FALSE(IsBlank(Picture(0, kFirstBlock)));
  ASSERT_TRUE(WaitUntil([&] { return Grid().width() > Grid().Cells().Left(kFirstBlock + 2); }));
  EXPECT_TRUE(IsBlank(Picture(0, kFirstBlock + 1)));
}

TEST_F(PinPropGridPaintingTest, ScrolledRowsLookAsTheyDoUnscrolled) {
  Show(ManyPins(200, 32));
  const QImage third = Picture(3, kLocation);
  RowBar().triggerAction(QAbstractSlider::SliderSingleStepAdd);
  EXPECT_EQ(Picture(2, kLocation), third);
  EXPECT_NE(Picture(3, kLocation), third);
}

}  // namespace
}  // namespace mivo
