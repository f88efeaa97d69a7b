#include "name_list_accessible.h"

#include <QAccessibleActionInterface>

#include "accessible_item.h"
#include "lb_comp_name.h"

namespace mivo {
namespace {

/// A row of the list. Its action selects it.
class NameAccessible final : public AccessibleItem, public QAccessibleActionInterface {
 public:
  NameAccessible(SLBCompName& list, int row) : AccessibleItem(list), row_(row) {}

  [[nodiscard]] int Row() const noexcept { return row_; }

  [[nodiscard]] QRect Place() const override {
    const QRect place = List()->visualRect(List()->Names().index(row_));
    return place.translated(List()->viewport()->pos());
  }
  [[nodiscard]] bool isValid() const override {
    return List() != nullptr && List()->Names().Entry(row_) != nullptr;
  }
  [[nodiscard]] QAccessible::Role role() const override { return QAccessible::ListItem; }
  [[nodiscard]] QString text(QAccessible::Text kind) const override {
    if (!isValid() || kind != QAccessible::Name) return {};
    return List()->Names().index(row_).data().toString();
  }
  [[nodiscard]] QAccessible::State state() const override {
    QAccessible::State state = CommonState();
    if (state.invalid) return state;
    state.selectable = true;
    state.focusable = true;
    state.selected = List()->SelectedRow() == row_;
    state.focused = state.selected && List()->hasFocus();
    return state;
  }
  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                : nullptr;
  }
  [[nodiscard]] QStringList actionNames() const override { return {pressAction()}; }
  void doAction(const QString& name) override {
    if (name == pressAction() && isValid()) List()->SelectRow(row_);
  }
  [[nodiscard]] QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  [[nodiscard]] SLBCompName* List() const noexcept { return static_cast<SLBCompName*>(Owner()); }

  int row_;
};

QAccessibleInterface* Create(const QString&, QObject* object) {
  auto* const list = qobject_cast<SLBCompName*>(object);
  return list != nullptr ? new NameListAccessible(*list) : nullptr;
}

}  // namespace

void NameListAccessible::Install() {
  QAccessible::installFactory(&Create);  // the toolkit ignores what it has already
}

NameListAccessible::NameListAccessible(SLBCompName& list)
    : AccessibleItemsWidget(&list, QAccessible::List, Controls::Hidden), list_(list) {
  const auto tell = [this] {
    QAccessibleEvent event(this, QAccessible::ObjectReorder);
    QAccessible::updateAccessibility(&event);
  };
  const NameListModel& names = list.Names();
  QObject::connect(&names, &QAbstractItemModel::modelReset, &listener_, tell);
  QObject::connect(&names, &QAbstractItemModel::rowsInserted, &listener_, tell);
  QObject::connect(&names, &QAbstractItemModel::rowsRemoved, &listener_, tell);
  QObject::connect(&names, &QAbstractItemModel::rowsMoved, &listener_, tell);
}

NameListAccessible::~NameListAccessible() {
  for (const auto& [row, id] : known_) QAccessible::deleteAccessibleInterface(id);
}

int NameListAccessible::ItemCount() const {
  return list_.Names().rowCount();
}

QAccessibleInterface* NameListAccessible::Item(int row) const {
  if (row < 0 || row >= ItemCount()) return nullptr;
  const auto [known, isNew] = known_.try_emplace(row, QAccessible::Id());
  if (isNew) {
    // The toolkit owns what is registered.
    known->second = QAccessible::registerAccessibleInterface(new NameAccessible(list_, row));
  }
  return QAccessible::accessibleInterface(known->second);
}

int NameListAccessible::IndexOfItem(const QAccessibleInterface& item) const {
  const auto* const name = dynamic_cast<const NameAccessible*>(&item);
  return name != nullptr && name->isValid() ? name->Row() : -1;
}

QAccessibleInterface* NameListAccessible::ItemAt(QPoint global) const {
  const QPoint at = list_.viewport()->mapFromGlobal(global);
  return list_.viewport()->rect().contains(at) ? Item(list_.indexAt(at).row()) : nullptr;
}

QAccessibleInterface* NameListAccessible::focusChild() const {
  return list_.hasFocus() ? Item(list_.SelectedRow()) : nullptr;
}

}  // namespace mivo
