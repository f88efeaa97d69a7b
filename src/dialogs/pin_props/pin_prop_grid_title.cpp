#include "pin_prop_grid_title.h"

#include <QFontMetrics>
#include <QPainter>

#include "dialog_texts.h"
#include "number_text.h"
#include "pin_grid_look.h"
#include "pin_prop_grid.h"
#include "qt_text.h"

namespace mivo {
namespace {

namespace text = dialog_text::pin_props;
using namespace pin_grid_column;

// The same on every desktop, so the letters have to be as well.
const QColor kBackground(240, 240, 255);
const QColor kLetters(0, 0, 0);
const QColor kLines(176, 176, 200);

}  // namespace

CPinPropGridTitle::CPinPropGridTitle(const CPinPropGrid& grid, const TextTable& texts,
                                     QWidget* parent)
    : QWidget(parent), grid_(grid), texts_(texts) {
  setObjectName(QStringLiteral("pinGridTitle"));
  setFont(PinGridFont(*this));
  setAttribute(Qt::WA_OpaquePaintEvent);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize CPinPropGridTitle::sizeHint() const {
  const int half = fontMetrics().height() * 5 / 4;
  return {grid_.sizeHint().width(), 2 * half + 1};
}

void CPinPropGridTitle::paintEvent(QPaintEvent*) {
  const PinGridLayout& cells = grid_.Cells();
  const PinGrid& grid = grid_.Grid();
  const int half = height() / 2;
  QPainter painter(this);
  painter.fillRect(rect(), kBackground);

  const auto drawLine = [&](int x1, int y1, int x2, int y2) {
    painter.setPen(kLines);
    painter.drawLine(x1, y1, x2, y2);
  };
  const auto drawText = [&](int column, int top, int end, const QString& heading) {
    painter.setPen(kLetters);
    painter.drawText(QRect(cells.Left(column), top, cells.Width(column), end - top),
                     Qt::AlignCenter | Qt::TextSingleLine, heading);
  };
  const auto drawHeading = [&](int column, int top, int end, TextId id) {
    drawText(column, top, end, ToQString(texts_.Text(id)));
  };

  drawHeading(kLocation, 0, height(), text::kLocation);
  drawHeading(kName, 0, height(), text::kName);
  drawHeading(kStyle, 0, height(), text::kStyle);
  drawHeading(kHide, half, height(), text::kHide);
  for (const int column : {kName, kStyle, kHide}) {
    drawLine(cells.Left(column), 0, cells.Left(column), height());
  }

  const int left = cells.Left(kHide);
  painter.setPen(kLetters);
  painter.drawText(QRect(left, 0, width() - left, half), Qt::AlignCenter | Qt::TextSingleLine,
                   ToQString(texts_.Text(text::kNumber)));
  drawLine(left, half, width(), half);

  drawLine(cells.Left(kFirstBlock), half, cells.Left(kFirstBlock), height());
  int column = kFirstBlock;
  for (int block = grid.BlockScroll().First();
       block < grid.Blocks() && cells.Left(column) < width(); ++block, ++column) {
    QString heading = ToQString(texts_.Text(text::kBlock));
    heading.replace(QStringLiteral("%d"), ToQString(IntText(block + 1)));
    drawText(column, half, height(), heading);
    drawLine(cells.Left(column + 1), half, cells.Left(column + 1), height());
  }
  drawLine(0, height() - 1, width(), height() - 1);
}

}  // namespace mivo
