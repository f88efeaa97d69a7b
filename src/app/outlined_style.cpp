#include "outlined_style.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOption>

namespace mivo {
namespace {

const QString kOwnStyle = QStringLiteral("fusion");

}  // namespace

OutlinedStyle::OutlinedStyle() : QProxyStyle(kOwnStyle) {}

void OutlinedStyle::UseWhereNeeded() {
  const bool isDark = QApplication::palette().color(QPalette::Window).lightness() < 128;
  if (isDark && QApplication::style()->name() == kOwnStyle) {
    QApplication::setStyle(new OutlinedStyle);
  }
}

void OutlinedStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                  QPainter* painter, const QWidget* widget) const {
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  const bool isRound = element == PE_IndicatorRadioButton;
  if (!isRound && element != PE_IndicatorCheckBox && element != PE_IndicatorItemViewItemCheck) {
    return;
  }
  // With the focus the outline is bright already.
  if ((option->state & State_HasFocus) != 0 && (option->state & State_KeyboardFocusChange) != 0) {
    return;
  }
  QColor color = option->palette.color(QPalette::WindowText);
  color.setAlphaF(color.alphaF() / 2);
  const QRectF outline = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing, isRound);
  painter->setPen(color);
  painter->setBrush(Qt::NoBrush);
  isRound ? painter->drawEllipse(outline) : painter->drawRect(outline);
  painter->restore();
}

}  // namespace mivo
