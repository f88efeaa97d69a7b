#include "comp_edit_view_accessible.h"

#include <algorithm>
#include <utility>

#include "comp_edit_view.h"
#include "pin_accessible.h"

namespace mivo {
namespace {

QAccessibleInterface* Create(const QString&, QObject* object) {
  auto* const view = qobject_cast<CCompEditView*>(object);
  return view != nullptr ? new CompEditViewAccessible(*view) : nullptr;
}

void Tell(QAccessibleInterface& item, QAccessible::Event what) {
  QAccessibleEvent event(&item, what);
  QAccessible::updateAccessibility(&event);
}

}  // namespace

void CompEditViewAccessible::Install() {
  QAccessible::installFactory(&Create);  // the toolkit ignores what it has already
}

CompEditViewAccessible::CompEditViewAccessible(CCompEditView& view)
    : AccessibleItemsWidget(&view, QAccessible::Canvas, Controls::Shown),
      view_(view),
      shownPins_(Keys().size()) {
  updates_ = QObject::connect(&view, &CCompEditView::PinsEdited, [this] { Update(); });
}

CompEditViewAccessible::~CompEditViewAccessible() {
  QObject::disconnect(updates_);
  for (const auto& [key, known] : known_) QAccessible::deleteAccessibleInterface(known.id);
}

std::vector<PinPlaceKey> CompEditViewAccessible::Keys() const {
  return KeysOf(PinRows(view_.Editor().Document()));
}

PinAccessible* CompEditViewAccessible::Pin(const PinPlaceKey& key) const {
  const auto found = known_.find(key);
  if (found != known_.end()) {
    return static_cast<PinAccessible*>(QAccessible::accessibleInterface(found->second.id));
  }
  auto* const item = new PinAccessible(view_, key);  // the toolkit owns what is registered
  known_[key] = {QAccessible::registerAccessibleInterface(item), item->text(QAccessible::Name),
                 item->IsSelected()};
  return item;
}

void CompEditViewAccessible::Update() {
  const std::vector<PinPlaceKey> keys = Keys();
  bool gone = false;
  for (auto it = known_.begin(); it != known_.end();) {
    if (std::find(keys.begin(), keys.end(), it->first) == keys.end()) {
      QAccessible::deleteAccessibleInterface(it->second.id);
      it = known_.erase(it);
      gone = true;
    } else {
      ++it;
    }
  }
  if (gone || keys.size() != shownPins_) Tell(*this, QAccessible::ObjectReorder);
  shownPins_ = keys.size();
  for (auto& [key, known] : known_) {
    PinAccessible& item = *Pin(key);
    const QString name = item.text(QAccessible::Name);
    const bool selected = item.IsSelected();
    if (std::exchange(known.name, name) != name) Tell(item, QAccessible::NameChanged);
    if (std::exchange(known.selected, selected) != selected) {
      Tell(item, selected ? QAccessible::SelectionAdd : QAccessible::SelectionRemove);
      if (item.state().focused) Tell(item, QAccessible::Focus);
    }
  }
}

int CompEditViewAccessible::ItemCount() const {
  return static_cast<int>(Keys().size());
}

QAccessibleInterface* CompEditViewAccessible::Item(int index) const {
  const std::vector<PinPlaceKey> keys = Keys();
  return index < static_cast<int>(keys.size()) ? Pin(keys[static_cast<std::size_t>(index)])
                                               : nullptr;
}

int CompEditViewAccessible::IndexOfItem(const QAccessibleInterface& item) const {
  const auto* const pin = dynamic_cast<const PinAccessible*>(&item);
  if (pin == nullptr) return -1;
  const std::vector<PinPlaceKey> keys = Keys();
  const auto found = std::find(keys.begin(), keys.end(), pin->Key());
  return found != keys.end() ? static_cast<int>(found - keys.begin()) : -1;
}

QAccessibleInterface* CompEditViewAccessible::ItemAt(QPoint global) const {
  const QWidget& viewport = *view_.viewport();
  if (!viewport.rect().contains(viewport.mapFromGlobal(global))) return nullptr;
  for (const PinPlaceKey& key : Keys()) {
    PinAccessible* const pin = Pin(key);
    if (pin->rect().contains(global)) return pin;
  }
  return nullptr;
}

QAccessibleInterface* CompEditViewAccessible::focusChild() const {
  for (const PinPlaceKey& key : Keys()) {
    PinAccessible* const pin = Pin(key);
    if (pin->state().focused) return pin;
  }
  return QAccessibleWidget::focusChild();
}

}  // namespace mivo
