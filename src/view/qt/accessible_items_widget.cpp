#include "accessible_items_widget.h"

namespace mivo {

int AccessibleItemsWidget::ControlCount() const {
  return controls_ == Controls::Shown ? QAccessibleWidget::childCount() : 0;
}

int AccessibleItemsWidget::childCount() const {
  return ItemCount() + ControlCount();
}

QAccessibleInterface* AccessibleItemsWidget::child(int index) const {
  const int items = ItemCount();
  if (index < items) return index >= 0 ? Item(index) : nullptr;
  return index - items < ControlCount() ? QAccessibleWidget::child(index - items) : nullptr;
}

int AccessibleItemsWidget::indexOfChild(const QAccessibleInterface* child) const {
  if (child == nullptr) return -1;
  const int item = IndexOfItem(*child);
  if (item >= 0) return item;
  const int index = controls_ == Controls::Shown ? QAccessibleWidget::indexOfChild(child) : -1;
  return index >= 0 ? index + ItemCount() : -1;
}

QAccessibleInterface* AccessibleItemsWidget::childAt(int x, int y) const {
  if (QAccessibleInterface* const item = ItemAt({x, y})) return item;
  // The base class would ask for the items again.
  for (int i = 0; i < ControlCount(); ++i) {
    QAccessibleInterface* const control = QAccessibleWidget::child(i);
    if (!control->state().invisible && control->rect().contains(x, y)) return control;
  }
  return nullptr;
}

}  // namespace mivo
