#include "pin_grid_look.h"

#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QWidget>
#include <cmath>

#include "colors.h"

namespace mivo {

double PinGridScale(const QWidget& widget) {
  constexpr double kNormalDotsPerInch = 96;
  return widget.logicalDpiY() / kNormalDotsPerInch;
}

QFont PinGridFont(const QWidget& widget) {
  constexpr int kPixels = 12;
  QFont font(QStringLiteral("MS UI Gothic"));
  font.setPixelSize(static_cast<int>(std::lround(kPixels * PinGridScale(widget))));
  return font;
}

void DrawStylePicture(QPainter& painter, const QRect& cell, const QPixmap& picture) {
  // Pins have the colours of the drawing, which show on its paper only, whatever the desktop's.
  const Color paper = colors::kBackground;
  painter.fillRect(cell, QColor(paper.red, paper.green, paper.blue));
  QRect place({}, picture.deviceIndependentSize().toSize());
  place.moveCenter(cell.center());
  painter.drawPixmap(place.topLeft(), picture);
}

void MarkSelected(QPainter& painter, const QRect& cells, const QPalette& palette, bool hasFocus) {
  QColor color = palette.color(QPalette::Highlight);
  if (hasFocus) {
    painter.setPen(color);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(cells.adjusted(1, 1, -1, -1));
  }
  color.setAlpha(56);  // the drawing of the cells shows through, whatever its colours
  painter.fillRect(cells, color);
}

}  // namespace mivo
