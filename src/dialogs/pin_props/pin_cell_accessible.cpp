#include "pin_cell_accessible.h"

#include "dialog_texts.h"
#include "pin_prop_grid.h"
#include "pin_style_text.h"
#include "qt_text.h"

namespace mivo {

using namespace pin_grid_column;

PinCellAccessible::PinCellAccessible(CPinPropGrid& grid, int row, int column)
    : AccessibleItem(grid), row_(row), column_(column) {}

CPinPropGrid* PinCellAccessible::Grid() const noexcept {
  return static_cast<CPinPropGrid*>(Owner());
}

const SCompPin* PinCellAccessible::Pin() const {
  if (Grid() == nullptr) return nullptr;
  const PinGrid& grid = Grid()->Grid();
  if (row_ >= grid.RowCount() || column_ >= kFirstBlock + grid.Blocks()) return nullptr;
  return grid.Rows()[static_cast<std::size_t>(row_)].pin;
}

int PinCellAccessible::ColumnInSight() const {
  if (column_ < kFirstBlock) return column_;
  const int column = column_ - Grid()->Grid().BlockScroll().First();
  return column >= kFirstBlock ? column : -1;
}

QRect PinCellAccessible::Place() const {
  const int column = ColumnInSight();
  return column >= 0 ? Grid()->CellRect(row_, column) : QRect();
}

QString PinCellAccessible::text(QAccessible::Text kind) const {
  const SCompPin* const pin = Pin();
  if (pin == nullptr || kind != QAccessible::Name) return {};
  const TextTable& texts = Grid()->Texts();
  switch (column_) {
    case kLocation:
      return ToQString(LocationText(pin->location));
    case kName:
      return ToQString(pin->DisplayName());
    case kStyle:
      return ToQString(texts.Text(PinStyleText(pin->type)));
    case kHide:
      return ToQString(texts.Text(dialog_text::pin_props::kHide));
    default:
      return ToQString(pin->GetNumber(column_ - kFirstBlock).value_or(std::u16string_view()));
  }
}

QAccessible::State PinCellAccessible::state() const {
  QAccessible::State state = CommonState();
  if (state.invalid) return state;
  state.selectable = true;
  state.selected = isSelected();
  state.editable = column_ != kLocation && column_ != kHide;
  state.checkable = column_ == kHide;
  state.checked = state.checkable && (Pin()->type & SCompPin::kHideNumber) != 0;
  return state;
}

void* PinCellAccessible::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::TableCellInterface) {
    return static_cast<QAccessibleTableCellInterface*>(this);
  }
  return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                              : nullptr;
}

bool PinCellAccessible::isSelected() const {
  return isValid() && Grid()->Grid().SelectedRow() == row_;
}

QStringList PinCellAccessible::actionNames() const {
  return {pressAction()};
}

void PinCellAccessible::doAction(const QString& name) {
  if (name == pressAction() && isValid() && ColumnInSight() >= 0) {
    Grid()->Click(row_, ColumnInSight());
  }
}

}  // namespace mivo
