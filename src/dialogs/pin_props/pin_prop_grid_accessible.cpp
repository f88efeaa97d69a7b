#include "pin_prop_grid_accessible.h"

#include "dialog_texts.h"
#include "pin_cell_accessible.h"
#include "pin_prop_grid.h"
#include "qt_text.h"

namespace mivo {
namespace {

namespace text = dialog_text::pin_props;
using namespace pin_grid_column;

QAccessibleInterface* Create(const QString&, QObject* object) {
  auto* const grid = qobject_cast<CPinPropGrid*>(object);
  return grid != nullptr ? new PinPropGridAccessible(*grid) : nullptr;
}

}  // namespace

void PinPropGridAccessible::Install() {
  QAccessible::installFactory(&Create);  // the toolkit ignores what it has already
}

void PinPropGridAccessible::TellRefreshed(CPinPropGrid& grid) {
  if (!QAccessible::isActive()) return;
  QAccessibleTableModelChangeEvent event(&grid, QAccessibleTableModelChangeEvent::DataChanged);
  QAccessible::updateAccessibility(&event);
}

PinPropGridAccessible::PinPropGridAccessible(CPinPropGrid& grid)
    : AccessibleItemsWidget(&grid, QAccessible::Table, Controls::Shown), grid_(grid) {}

PinPropGridAccessible::~PinPropGridAccessible() {
  for (const auto& [place, id] : known_) QAccessible::deleteAccessibleInterface(id);
}

void* PinPropGridAccessible::interface_cast(QAccessible::InterfaceType type) {
  return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface*>(this)
                                             : QAccessibleWidget::interface_cast(type);
}

int PinPropGridAccessible::rowCount() const {
  return grid_.Grid().RowCount();
}

int PinPropGridAccessible::columnCount() const {
  return kFirstBlock + grid_.Grid().Blocks();
}

bool PinPropGridAccessible::HasCell(int row, int column) const {
  return row >= 0 && row < rowCount() && column >= 0 && column < columnCount();
}

QAccessibleInterface* PinPropGridAccessible::cellAt(int row, int column) const {
  if (!HasCell(row, column)) return nullptr;
  const auto [known, isNew] = known_.try_emplace({row, column}, QAccessible::Id());
  if (isNew) {
    // The toolkit owns what is registered.
    known->second =
        QAccessible::registerAccessibleInterface(new PinCellAccessible(grid_, row, column));
  }
  return QAccessible::accessibleInterface(known->second);
}

int PinPropGridAccessible::ItemCount() const {
  return rowCount() * columnCount();
}

QAccessibleInterface* PinPropGridAccessible::Item(int index) const {
  return cellAt(index / columnCount(), index % columnCount());
}

int PinPropGridAccessible::IndexOfItem(const QAccessibleInterface& item) const {
  const auto* const cell = dynamic_cast<const PinCellAccessible*>(&item);
  if (cell == nullptr || !HasCell(cell->rowIndex(), cell->columnIndex())) return -1;
  return cell->rowIndex() * columnCount() + cell->columnIndex();
}

QAccessibleInterface* PinPropGridAccessible::ItemAt(QPoint global) const {
  const QPoint at = grid_.mapFromGlobal(global);
  // The control that edits a cell covers it.
  if (!grid_.rect().contains(at) || grid_.childAt(at) != nullptr) return nullptr;
  const PinGrid& grid = grid_.Grid();
  const int column = grid_.Cells().ColumnAt(at.x());
  return cellAt(grid_.Cells().RowAt(at.y()) + grid.RowScroll().First(),
                column < kFirstBlock ? column : column + grid.BlockScroll().First());
}

QAccessibleInterface* PinPropGridAccessible::focusChild() const {
  return grid_.hasFocus() ? nullptr : QAccessibleWidget::focusChild();
}

QString PinPropGridAccessible::columnDescription(int column) const {
  const auto title = [&](TextId id) { return ToQString(grid_.Texts().Text(id)); };
  switch (column) {
    case kLocation:
      return title(text::kLocation);
    case kName:
      return title(text::kName);
    case kStyle:
      return title(text::kStyle);
    case kHide:
      return title(text::kHide);
    default:
      return title(text::kBlock)
          .replace(QStringLiteral("%d"), QString::number(column - kFirstBlock + 1));
  }
}

QString PinPropGridAccessible::rowDescription(int row) const {
  const QAccessibleInterface* const location = cellAt(row, kLocation);
  return location != nullptr ? location->text(QAccessible::Name) : QString();
}

bool PinPropGridAccessible::isRowSelected(int row) const {
  return row >= 0 && row == grid_.Grid().SelectedRow();
}

int PinPropGridAccessible::selectedRowCount() const {
  return static_cast<int>(selectedRows().size());
}

QList<int> PinPropGridAccessible::selectedRows() const {
  const int row = grid_.Grid().SelectedRow();
  return row >= 0 ? QList<int>{row} : QList<int>();
}

bool PinPropGridAccessible::selectRow(int row) {
  if (!HasCell(row, kLocation)) return false;
  grid_.Click(row, kLocation);
  return isRowSelected(row);
}

int PinPropGridAccessible::selectedCellCount() const {
  return selectedRowCount() * columnCount();
}

QList<QAccessibleInterface*> PinPropGridAccessible::selectedCells() const {
  QList<QAccessibleInterface*> cells;
  for (const int row : selectedRows()) {
    for (int column = 0; column < columnCount(); ++column) cells += cellAt(row, column);
  }
  return cells;
}

}  // namespace mivo
