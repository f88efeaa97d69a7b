#include "mended_style.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPointer>
#include <QStyleOption>

namespace mivo {
namespace {

const QString kOwnStyle = QStringLiteral("fusion");

/// An icon of a style, which is asked for it whenever it is painted.
class LateIconEngine final : public QIconEngine {
 public:
  LateIconEngine(QStyle& style, QStyle::StandardPixmap which) : style_(&style), which_(which) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    Icon().paint(painter, rect, Qt::AlignCenter, mode, state);
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    return Icon().pixmap(size, 1, mode, state);
  }
  QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    return Icon().actualSize(size, mode, state);
  }
  [[nodiscard]] QIconEngine* clone() const override { return new LateIconEngine(*this); }

 private:
  [[nodiscard]] QIcon Icon() const {
    return style_ != nullptr ? style_->standardIcon(which_) : QIcon();
  }

  QPointer<QStyle> style_;
  QStyle::StandardPixmap which_;
};

}  // namespace

MendedStyle::MendedStyle() : QProxyStyle(kOwnStyle) {}

void MendedStyle::UseWhereNeeded() {
  if (QApplication::style()->name() == kOwnStyle) QApplication::setStyle(new MendedStyle);
}

void MendedStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                QPainter* painter, const QWidget* widget) const {
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  const bool isRound = element == PE_IndicatorRadioButton;
  if (!isRound && element != PE_IndicatorCheckBox && element != PE_IndicatorItemViewItemCheck) {
    return;
  }
  if (option->palette.color(QPalette::Window).lightness() >= 128) return;
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

QIcon MendedStyle::standardIcon(StandardPixmap which, const QStyleOption* option,
                                const QWidget* widget) const {
  if (which == SP_ToolBarHorizontalExtensionButton || which == SP_ToolBarVerticalExtensionButton) {
    return QIcon(new LateIconEngine(*baseStyle(), which));
  }
  return QProxyStyle::standardIcon(which, option, widget);
}

}  // namespace mivo
