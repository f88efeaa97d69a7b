#include "style_chooser.h"

#include <QAbstractItemView>
#include <QEvent>
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
  view()->installEventFilter(this);
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

bool StyleChooser::eventFilter(QObject* watched, QEvent* event) {
  if (watched == view() && event->type() == QEvent::Hide) {
    // A choice is told after the list has gone.
    QMetaObject::invokeMethod(
        this,
        [this] {
          if (!view()->isVisible()) emit Dismissed();
        },
        Qt::QueuedConnection);
  }
  return QComboBox::eventFilter(watched, event);
}

}  // namespace mivo
