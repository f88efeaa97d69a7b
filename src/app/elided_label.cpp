#include "elided_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace mivo {

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

QSize ElidedLabel::minimumSizeHint() const {
  return {0, fontMetrics().height()};
}

QString ElidedLabel::Shown() const {
  QString line = text();
  line.replace(QLatin1Char('\n'), QLatin1Char(' '));
  return fontMetrics().elidedText(line, Qt::ElideRight, contentsRect().width());
}

void ElidedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const int flags = static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine);
  style()->drawItemText(&painter, contentsRect(), flags, palette(), isEnabled(), Shown(),
                        QPalette::WindowText);
}

bool ElidedLabel::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QLabel::event(event);
  const auto& help = static_cast<const QHelpEvent&>(*event);
  QToolTip::showText(help.globalPos(), Shown() == text() ? QString() : text(), this);
  return true;
}

}  // namespace mivo
