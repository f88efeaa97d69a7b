// What the cells show.

#include <QImage>
#include <QPainter>

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
  /// Whether a cell shows `text` and nothing else.
  [[nodiscard]] bool Shows(int row, int column, const QString& text) {
    const QImage cell = Picture(row, column);
    QImage expected(cell.size(), cell.format());
    expected.setDevicePixelRatio(cell.devicePixelRatio());
    expected.fill(Grid().palette().color(QPalette::Base));
    QPainter painter(&expected);
    painter.setFont(Grid().font());
    painter.setPen(Grid().palette().color(QPalette::Text));
    // One pixel of the cell is cut off at the left and at the top.
    painter.drawText(
        Cell(row, column).translated(-Cell(row, column).topLeft()).adjusted(3, 0, -5, -1),
        Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text);
    painter.end();
    return cell == expected;
  }
  /// Whether the headings show `text` in the middle of `place`, between lines that are left out.
  [[nodiscard]] bool TitleShows(QRect place, const QString& text) {
    QWidget& title = Find<QWidget>("pinGridTitle");
    QImage expected(title.size(), QImage::Format_RGB32);
    expected.fill(QColor(240, 240, 255));
    QPainter painter(&expected);
    painter.setFont(title.font());
    painter.setPen(Qt::black);
    painter.drawText(place, Qt::AlignCenter | Qt::TextSingleLine, text);
    painter.end();
    const QRect inside = place.adjusted(2, 2, -2, -2);
    return title.grab().toImage().convertToFormat(QImage::Format_RGB32).copy(inside) ==
           expected.copy(inside);
  }
  [[nodiscard]] QRect TitleCell(int column, bool wholeHeight) {
    const PinGridLayout& cells = Grid().Cells();
    const int height = Find<QWidget>("pinGridTitle").height();
    const int top = wholeHeight ? 0 : height / 2;
    return {cells.Left(column), top, cells.Width(column), height - top};
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

TEST_F(PinPropGridPaintingTest, HeadingsSayWhatTheColumnsHold) {
  Show(ManyPins(3, 9));
  EXPECT_TRUE(TitleShows(TitleCell(kLocation, true), "Loc"));
  EXPECT_TRUE(TitleShows(TitleCell(kName, true), "Name"));
  EXPECT_TRUE(TitleShows(TitleCell(kStyle, true), "Type"));
  EXPECT_TRUE(TitleShows(TitleCell(kHide, false), "Hide"));
  EXPECT_TRUE(TitleShows(TitleCell(kFirstBlock, false), "Block 1"));
  EXPECT_TRUE(TitleShows(TitleCell(kFirstBlock + 1, false), "Block 2"));
  BlockBar().triggerAction(QAbstractSlider::SliderToMaximum);
  const int first = Grid().Grid().BlockScroll().First();
  ASSERT_GT(first, 0);
  EXPECT_TRUE(TitleShows(TitleCell(kFirstBlock, false), QString("Block %1").arg(first + 1)));
}

TEST_F(PinPropGridPaintingTest, NumSpansFromTheHideColumnToTheRightEdge) {
  Show(ManyPins(3, 2));
  const QWidget& title = Find<QWidget>("pinGridTitle");
  const int left = Grid().Cells().Left(kHide);
  EXPECT_TRUE(TitleShows({left, 0, title.width() - left, title.height() / 2}, "Num"));
}

TEST_F(PinPropGridPaintingTest, BlocksThatTheComponentDoesNotHaveHaveNoHeading) {
  Show(ManyPins(3, 1));
  Props().resize(900, 500);
  ASSERT_TRUE(WaitUntil([&] { return Grid().width() > Grid().Cells().Left(kFirstBlock + 2); }));
  EXPECT_TRUE(TitleShows(TitleCell(kFirstBlock, false), "Block 1"));
  EXPECT_TRUE(TitleShows(TitleCell(kFirstBlock + 1, false), ""));
}

TEST_F(PinPropGridPaintingTest, CellsShowThePin) {
  Show(MakeComponent({{PinSide::Left, 3, u"A\\B", {u"17", u"", u"x"}},
                      {PinSide::Bottom, 12, u"", {u"18", u"19", u"y"}}},
                     3));
  EXPECT_TRUE(Shows(0, kLocation, "L3"));
  EXPECT_TRUE(Shows(1, kLocation, "B12"));
  EXPECT_TRUE(Shows(0, kName, "A\\B"));
  EXPECT_TRUE(Shows(1, kName, ""));
  EXPECT_TRUE(Shows(0, kFirstBlock, "17"));
  EXPECT_TRUE(Shows(1, kFirstBlock + 1, "19"));
  EXPECT_TRUE(Shows(1, kFirstBlock + 2, "y"));
  Props().resize(Props().minimumSizeHint());
  ASSERT_TRUE(WaitUntil([&] { return BlockBar().maximum() == 2; }));
  BlockBar().triggerAction(QAbstractSlider::SliderSingleStepAdd);
  EXPECT_TRUE(Shows(1, kFirstBlock, "19"));
}

TEST_F(PinPropGridPaintingTest, ControlCharactersHaveASign) {
  Show(MakeComponent({{PinSide::Left, 1, u"A", {u"1\n2\x7F"}}}));
  EXPECT_TRUE(Shows(0, kFirstBlock, "1\uFFFD2\uFFFD"));
}

TEST_F(PinPropGridPaintingTest, PinsAreOnPaperAndTextsLegibleOnADarkDesktop) {
  Show(MakeComponent({{PinSide::Left, 1, u"A", {u"1"}, SCompPin::kHideNumber}}));
  const QImage light = Picture(0, kStyle);
  QPalette dark = Props().palette();
  dark.setColor(QPalette::Base, QColor(30, 30, 30));
  dark.setColor(QPalette::Text, QColor(230, 230, 230));
  Props().setPalette(dark);
  EXPECT_TRUE(Shows(0, kName, "A"));
  EXPECT_EQ(Picture(0, kLocation).pixelColor(0, 0), QColor(30, 30, 30));
  EXPECT_FALSE(IsBlank(Picture(0, kHide)));
  EXPECT_EQ(Picture(0, kStyle), light);
  EXPECT_EQ(light.pixelColor(0, 0), QColor(Qt::white));
  EXPECT_TRUE(TitleShows(TitleCell(kName, true), "Name"));
}

TEST_F(PinPropGridPaintingTest, BitsOfATypeThatMeanNothingChangeNoPicture) {
  Show(MakeComponent({{PinSide::Left, 1, u"A", {u"1"}, SCompPin::kClock | SCompPin::kHideNumber},
                      {PinSide::Left, 2, u"A", {u"1"}, SCompPin::kClock | 0x7FFFFF00}}));
  EXPECT_EQ(Picture(0, kStyle), Picture(1, kStyle));
}

TEST_F(PinPropGridPaintingTest, CheckMarkStaysInItsCell) {
  Show(MakeComponent({{PinSide::Left, 1, u"A", {u"1"}, SCompPin::kHideNumber}}));
  const QImage cell = Picture(0, kHide);
  const QColor paper = Grid().palette().color(QPalette::Base);
  QRect ink;
  for (int y = 0; y < cell.height(); ++y) {
    for (int x = 0; x < cell.width(); ++x) {
      if (cell.pixelColor(x, y) != paper) ink |= QRect(x, y, 1, 1);
    }
  }
  EXPECT_LE(ink.width(), 15);
  EXPECT_LE(ink.height(), 15);
  EXPECT_LE((ink.center() - cell.rect().center()).manhattanLength(), 3);
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

TEST_F(PinPropGridPaintingTest, PicturesStandInTheMiddleOfTheirCells) {
  Show(MakeComponent({{PinSide::Left, 1}}));
  const QImage cell = Picture(0, kStyle);
  const auto isPaper = [&](int x) {
    for (int y = 0; y < cell.height(); ++y) {
      if (cell.pixelColor(x, y) != QColor(Qt::white)) return false;
    }
    return true;
  };
  int left = 0;
  while (left < cell.width() && isPaper(left)) ++left;
  int right = 0;
  while (right < cell.width() && isPaper(cell.width() - 1 - right)) ++right;
  EXPECT_GT(left, cell.width() / 5);
  EXPECT_GT(right, cell.width() / 5);
}

TEST_F(PinPropGridPaintingTest, SelectedRowIsMarkedAlsoWhenSelectedInTheView) {
  Show(ManyPins(3, 1));
  EXPECT_TRUE(IsBlank(Picture(1, kHide)));
  ASSERT_TRUE(Editor().SelectPin({PinSide::Left, 1}));
  EXPECT_FALSE(IsBlank(Picture(1, kHide)));
  EXPECT_TRUE(IsBlank(Picture(0, kHide)));
  CloseButton().setFocus();
  EXPECT_FALSE(IsBlank(Picture(1, kHide))) << "also while the table does not have the focus";
}

TEST_F(PinPropGridPaintingTest, FocusShowsOnTheSelectedRow) {
  Show(ManyPins(3, 1));
  ASSERT_TRUE(Editor().SelectPin({PinSide::Left, 1}));
  Grid().setFocus();
  const QImage focused = Picture(1, kLocation);
  CloseButton().setFocus();
  EXPECT_NE(Picture(1, kLocation), focused);
}

TEST_F(PinPropGridPaintingTest, EveryDigitOfALocationShows) {
  Show(MakeComponent({{PinSide::Bottom, 254}, {PinSide::Bottom, 255}, {PinSide::Bottom, 25}}));
  ASSERT_EQ(Pin(0).location.offset, 25);
  EXPECT_TRUE(Shows(0, kLocation, "B25"));
  EXPECT_NE(Picture(1, kLocation), Picture(2, kLocation));
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

TEST_F(PinPropGridPaintingTest, LinesEndWithTheLastBlock) {
  Show(ManyPins(2, 1));
  Props().resize(900, 500);
  ASSERT_TRUE(WaitUntil([&] { return Grid().width() > Grid().Cells().Left(kFirstBlock + 2); }));
  const QImage image = Grid().grab().toImage();
  const QColor paper = Grid().palette().color(QPalette::Base);
  const int y = Cell(0, kName).center().y();
  EXPECT_NE(image.pixelColor(Grid().Cells().Left(kFirstBlock + 1), y), paper);
  EXPECT_EQ(image.pixelColor(Grid().Cells().Left(kFirstBlock + 2), y), paper);
  const int bottom = Cell(2, kName).top();
  EXPECT_NE(image.pixelColor(Cell(0, kName).center().x(), bottom), paper) << "below the last row";
  EXPECT_EQ(image.pixelColor(Cell(0, kName).center().x(), bottom + 5), paper);
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
