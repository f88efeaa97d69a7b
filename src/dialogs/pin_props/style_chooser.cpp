#include "style_chooser.h"

#include <QAbstractItemView>
#include <QFocusEvent>
#include <QPainter>
#include <QPixmap>
#include <QStyledItemDelegate>

#include "pin_grid_look.h"

namespace mivo {
namespace {

constexpr int kMostEntries = 16;  // all can be seen at once

/// Draws the entries as the grid draws its cells.
class PictureDelegate final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                               const QModelIndex& index) const override {
    return QStyledItemDelegate::sizeHint(option, index)
        .expandedTo(option.decorationSize + QSize(0, 1));
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    DrawStylePicture(*painter, option.rect, index.data(Qt::DecorationRole).value<QPixmap>());
    if (option.state.testFlag(QStyle::State_Selected)) {
      MarkSelected(*painter, option.rect, option.palette, true);
    }
  }
};

}  // namespace

StyleChooser::StyleChooser(QWidget* parent) : QComboBox(parent) {
  setItemDelegate(new PictureDelegate(this));
  setMaxVisibleItems(kMostEntries);
  hide();
}

void StyleChooser::AddStyle(const QString& name) {
  addItem(QString());
  setItemData(count() - 1, name, Qt::AccessibleTextRole);
  setItemData(count() - 1, name, Qt::ToolTipRole);
}

void StyleChooser::SetPicture(int entry, const QPixmap& picture) {
  setIconSize(picture.deviceIndependentSize().toSize());
  setItemData(entry, picture, Qt::DecorationRole);
}

void StyleChooser::Open(int entry, const QRect& cell) {
  setCurrentIndex(entry);
  setGeometry(cell);
  show();
  setFocus(Qt::OtherFocusReason);
  showPopup();
}

void StyleChooser::hidePopup() {
  const bool wasOpen = view()->isVisible();
  QComboBox::hidePopup();
  // A choice is told after the list has gone.
  if (wasOpen) QMetaObject::invokeMethod(this, &StyleChooser::Dismissed, Qt::QueuedConnection);
}

bool StyleChooser::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    event->accept();
    return true;
  }
  return QComboBox::event(event);
}

void StyleChooser::focusOutEvent(QFocusEvent* event) {
  QComboBox::focusOutEvent(event);
  // The list takes the focus while it is open.
  if (!view()->isVisible()) emit Dismissed();
}

}  // namespace mivo
