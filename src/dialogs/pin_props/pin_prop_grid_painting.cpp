// How the cells of the pin grid look.

#include <QFontMetrics>
#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "entered_text.h"
#include "pin_grid_look.h"
#include "pin_prop_grid.h"
#include "qt_text.h"

namespace mivo {
namespace {

using namespace pin_grid_column;

constexpr int kTextMargin = 4;
constexpr int kCheckMark = 15;

QColor Blend(const QColor& a, const QColor& b, float shareOfB) {
  const auto mix = [&](float x, float y) { return x + (y - x) * shareOfB; };
  return QColor::fromRgbF(mix(a.redF(), b.redF()), mix(a.greenF(), b.greenF()),
                          mix(a.blueF(), b.blueF()));
}

/// As much of `text` as can show in `width` pixels.
QString FittingText(const QFontMetrics& metrics, std::u16string_view text, int width) {
  // No character is narrower than a pixel, and to measure a text of any length takes time.
  const auto most = static_cast<std::size_t>(std::max(width, 0)) + 1;
  const QString shown = ToQString(WithVisibleControls(text.substr(0, most)));
  return metrics.elidedText(shown, Qt::ElideRight, width);
}

}  // namespace

void CPinPropGrid::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.fillRect(event->rect(), palette().color(QPalette::Base));
  const int first = grid_.RowScroll().First();
  const int end = std::min(grid_.RowCount(), first + cells_.RowAt(event->rect().bottom()) + 1);
  for (int row = first + cells_.RowAt(event->rect().top()); row < end; ++row) {
    DrawRow(painter, row);
  }
}

void CPinPropGrid::DrawRow(QPainter& painter, int row) {
  const SCompPin& pin = *grid_.Rows()[static_cast<std::size_t>(row)].pin;
  painter.setPen(palette().color(QPalette::Text));
  DrawLocation(painter, CellRect(row, kLocation), pin.location);
  DrawText(painter, CellRect(row, kName), pin.DisplayName());
  DrawStylePicture(painter, CellRect(row, kStyle),
                   pictures_.Get(pin.type & SCompPin::kShapeMask, devicePixelRatioF()));
  if ((pin.type & SCompPin::kHideNumber) != 0) DrawCheckMark(painter, CellRect(row, kHide));
  const int lastColumn = LastColumnInSight();
  for (int column = kFirstBlock; column <= lastColumn; ++column) {
    const std::int32_t block = column - kFirstBlock + grid_.BlockScroll().First();
    if (const auto number = pin.GetNumber(block)) {
      DrawText(painter, CellRect(row, column), *number);
    }
  }
  DrawLines(painter, row);
}

void CPinPropGrid::DrawLocation(QPainter& painter, const QRect& cell, SPinLocation location) const {
  const QString text = ToQString(LocationText(location));
  const QRect place = cell.adjusted(kTextMargin, 1, -1, 0);
  const QFont font = painter.font();
  // Of most fonts three digits are too wide for the column, and cut off they would mean nothing.
  const int width = painter.fontMetrics().horizontalAdvance(text);
  if (width > place.width()) {
    QFont narrow = font;
    narrow.setStretch(QFont::Unstretched * place.width() / width);
    painter.setFont(narrow);
  }
  painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text);
  painter.setFont(font);
}

void CPinPropGrid::DrawText(QPainter& painter, const QRect& cell, std::u16string_view text) const {
  const QRect place = cell.adjusted(kTextMargin, 1, -kTextMargin, 0);
  painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                   FittingText(painter.fontMetrics(), text, place.width()));
}

void CPinPropGrid::DrawCheckMark(QPainter& painter, const QRect& cell) const {
  QRectF box(0, 0, kCheckMark, kCheckMark);
  box.moveCenter(QRectF(cell).center());
  QPainterPath mark;
  mark.moveTo(box.topLeft() + QPointF(2.5, 7.5));
  mark.lineTo(box.topLeft() + QPointF(6, 11));
  mark.lineTo(box.topLeft() + QPointF(12.5, 3.5));
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(painter.pen().color(), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPath(mark);
  painter.restore();
}

void CPinPropGrid::DrawLines(QPainter& painter, int row) const {
  const QColor line = Blend(palette().color(QPalette::Base), palette().color(QPalette::Text), 0.2F);
  const int lastColumn = LastColumnInSight();
  const QRect cells = CellRect(row, kLocation) | CellRect(row, lastColumn);
  if (row == grid_.SelectedRow()) {
    MarkSelected(painter, cells, palette(), hasFocus());
  }
  painter.setPen(line);
  for (int column = kName; column <= lastColumn + 1; ++column) {
    const int x = cells_.Left(column);
    painter.drawLine(x, cells.top(), x, cells.bottom());
  }
  if (row > grid_.RowScroll().First()) {
    painter.drawLine(cells.left(), cells.top(), cells.right(), cells.top());
  }
  if (row == grid_.RowCount() - 1) {
    painter.drawLine(cells.left(), cells.bottom() + 1, cells.right() + 1, cells.bottom() + 1);
  }
}
}  // namespace mivo
