#ifndef MIVO_VIEW_QT_ACCESSIBLE_ITEMS_WIDGET_H
#define MIVO_VIEW_QT_ACCESSIBLE_ITEMS_WIDGET_H

#include <QAccessibleWidget>
#include <QPoint>

namespace mivo {

/// A widget that draws items itself, as assistive programs see it: the items are its first
/// children, then come its child widgets, if they are of any use.
class AccessibleItemsWidget : public QAccessibleWidget {
 public:
  enum class Controls { Shown, Hidden };

  AccessibleItemsWidget(QWidget* widget, QAccessible::Role role, Controls controls)
      : QAccessibleWidget(widget, role), controls_(controls) {}

  [[nodiscard]] int childCount() const final;
  [[nodiscard]] QAccessibleInterface* child(int index) const final;
  [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const final;
  [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const final;

 protected:
  [[nodiscard]] virtual int ItemCount() const = 0;
  /// Null when there is none. Registered with the toolkit, which owns it.
  [[nodiscard]] virtual QAccessibleInterface* Item(int index) const = 0;
  /// -1 for what is no item, or none any more.
  [[nodiscard]] virtual int IndexOfItem(const QAccessibleInterface& item) const = 0;
  /// The item that can be seen at a point of the screen; null when there is none.
  [[nodiscard]] virtual QAccessibleInterface* ItemAt(QPoint global) const = 0;

 private:
  [[nodiscard]] int ControlCount() const;

  Controls controls_;
};

}  // namespace mivo

#endif
