#include "start_label.h"

#include <QPainter>
#include <QVBoxLayout>
#include <algorithm>

#include "qt_text.h"
#include "text_table.h"

namespace mivo {
namespace {

/// Dark grey on the white drawing area, where the theme's own colour may be white as well.
const QColor kTextColor(64, 64, 64);
constexpr int kMargin = 24;
constexpr int kGap = 24;
constexpr double kTitleSize = 1.5;  ///< times the size of the other text
constexpr int kFlags = static_cast<int>(Qt::AlignHCenter) | static_cast<int>(Qt::TextWordWrap);

}  // namespace

StartLabel::StartLabel(const TextTable& texts, QWidget& area) : QLabel(&area) {
  setObjectName(QStringLiteral("startLabel"));
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setTextFormat(Qt::PlainText);
  setText(ToQString(texts.Text(StringId::StartTitle)));
  setAccessibleDescription(ToQString(texts.Text(StringId::StartSteps)));
  auto* const filling = new QVBoxLayout(&area);
  filling->setContentsMargins(0, 0, 0, 0);
  filling->addWidget(this);
}

void StartLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(kTextColor);
  const QString title = text();
  const QString steps = accessibleDescription();
  QFont titleFont = font();
  titleFont.setPointSizeF(titleFont.pointSizeF() * kTitleSize);
  QRect room = rect().adjusted(kMargin, kMargin, -kMargin, -kMargin);
  const int titleHeight = QFontMetrics(titleFont).boundingRect(room, kFlags, title).height();
  const int stepsHeight = fontMetrics().boundingRect(room, kFlags, steps).height();
  room.setTop(room.top() + std::max(0, (room.height() - titleHeight - kGap - stepsHeight) / 2));
  painter.setFont(titleFont);
  painter.drawText(room, kFlags, title);
  painter.setFont(font());
  room.setTop(room.top() + titleHeight + kGap);
  painter.drawText(room, kFlags, steps);
}

}  // namespace mivo
