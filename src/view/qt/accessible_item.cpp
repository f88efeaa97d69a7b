#include "accessible_item.h"

namespace mivo {

QWindow* AccessibleItem::window() const {
  return owner_ != nullptr ? owner_->window()->windowHandle() : nullptr;
}

QAccessibleInterface* AccessibleItem::parent() const {
  return QAccessible::queryAccessibleInterface(owner_);
}

QRect AccessibleItem::rect() const {
  if (!isValid()) return {};
  const QRect place = Place();
  return {owner_->mapToGlobal(place.topLeft()), place.size()};
}

QAccessible::State AccessibleItem::CommonState() const {
  QAccessible::State state;
  state.invalid = !isValid();
  if (state.invalid) return state;
  state.invisible = !owner_->isVisible();
  state.offscreen = !Place().intersects(owner_->rect());
  state.disabled = !owner_->isEnabled();
  return state;
}

}  // namespace mivo
