#include "pin_grid_look.h"

#include <QPainter>
#include <QPalette>
#include <QWidget>
#include <cmath>

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
