#ifndef MIVO_DIALOGS_PIN_PROP_GRID_ACCESSIBLE_H
#define MIVO_DIALOGS_PIN_PROP_GRID_ACCESSIBLE_H

#include <QAccessibleTableInterface>
#include <map>
#include <utility>

#include "accessible_items_widget.h"

namespace mivo {

class CPinPropGrid;

/// The pin grid as assistive programs see it: a table with a row per pin and the columns location,
/// name, style, hidden number and one per block, in sight or not. Its first children are the cells,
/// row by row; then comes the control that edits a cell.
class PinPropGridAccessible final : public AccessibleItemsWidget, public QAccessibleTableInterface {
 public:
  /// Makes the toolkit use this for every CPinPropGrid. Any number of calls.
  static void Install();
  /// Pins came, went or changed, or another one is selected.
  static void TellRefreshed(CPinPropGrid& grid);

  explicit PinPropGridAccessible(CPinPropGrid& grid);
  ~PinPropGridAccessible() override;

  [[nodiscard]] QAccessibleInterface* focusChild() const override;
  void* interface_cast(QAccessible::InterfaceType type) override;

  // The table. Rows are selected one at a time, by selecting their pin; columns never are.
  [[nodiscard]] QAccessibleInterface* caption() const override { return nullptr; }
  [[nodiscard]] QAccessibleInterface* summary() const override { return nullptr; }
  [[nodiscard]] QAccessibleInterface* cellAt(int row, int column) const override;
  [[nodiscard]] int selectedCellCount() const override;
  [[nodiscard]] QList<QAccessibleInterface*> selectedCells() const override;
  [[nodiscard]] QString columnDescription(int column) const override;
  [[nodiscard]] QString rowDescription(int row) const override;
  [[nodiscard]] int selectedColumnCount() const override { return 0; }
  [[nodiscard]] int selectedRowCount() const override;
  [[nodiscard]] int columnCount() const override;
  [[nodiscard]] int rowCount() const override;
  [[nodiscard]] QList<int> selectedColumns() const override { return {}; }
  [[nodiscard]] QList<int> selectedRows() const override;
  [[nodiscard]] bool isColumnSelected(int) const override { return false; }
  [[nodiscard]] bool isRowSelected(int row) const override;
  bool selectRow(int row) override;
  bool selectColumn(int) override { return false; }
  bool unselectRow(int) override { return false; }
  bool unselectColumn(int) override { return false; }
  void modelChange(QAccessibleTableModelChangeEvent*) override {}

 protected:
  [[nodiscard]] int ItemCount() const override;
  [[nodiscard]] QAccessibleInterface* Item(int index) const override;
  [[nodiscard]] int IndexOfItem(const QAccessibleInterface& item) const override;
  [[nodiscard]] QAccessibleInterface* ItemAt(QPoint global) const override;

 private:
  [[nodiscard]] bool HasCell(int row, int column) const;

  CPinPropGrid& grid_;
  /// The cells that anybody asked for, by row and column.
  mutable std::map<std::pair<int, int>, QAccessible::Id> known_;
};

}  // namespace mivo

#endif
