#ifndef MIVO_DIALOGS_PIN_CELL_ACCESSIBLE_H
#define MIVO_DIALOGS_PIN_CELL_ACCESSIBLE_H

#include <QAccessibleActionInterface>
#include <QAccessibleTableCellInterface>

#include "accessible_item.h"
#include "comp_pin.h"

namespace mivo {

class CPinPropGrid;

/// A cell of the pin grid as assistive programs see it, by its place in the table. Its action is a
/// click on it.
class PinCellAccessible final : public AccessibleItem,
                                public QAccessibleTableCellInterface,
                                public QAccessibleActionInterface {
 public:
  PinCellAccessible(CPinPropGrid& grid, int row, int column);

  [[nodiscard]] QRect Place() const override;
  [[nodiscard]] bool isValid() const override { return Pin() != nullptr; }
  [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Cell; }
  [[nodiscard]] QString text(QAccessible::Text kind) const override;
  [[nodiscard]] QAccessible::State state() const override;
  void* interface_cast(QAccessible::InterfaceType type) override;

  [[nodiscard]] bool isSelected() const override;
  [[nodiscard]] QList<QAccessibleInterface*> columnHeaderCells() const override { return {}; }
  [[nodiscard]] QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
  [[nodiscard]] int columnIndex() const override { return column_; }
  [[nodiscard]] int rowIndex() const override { return row_; }
  [[nodiscard]] int columnExtent() const override { return 1; }
  [[nodiscard]] int rowExtent() const override { return 1; }
  [[nodiscard]] QAccessibleInterface* table() const override { return parent(); }

  [[nodiscard]] QStringList actionNames() const override;
  void doAction(const QString& name) override;
  [[nodiscard]] QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  [[nodiscard]] CPinPropGrid* Grid() const noexcept;
  /// Null for a cell that does not exist any more.
  [[nodiscard]] const SCompPin* Pin() const;
  /// The column as pin_grid_column counts it; less than 0 for a block that is out of sight.
  [[nodiscard]] int ColumnInSight() const;

  int row_;
  int column_;
};

}  // namespace mivo

#endif
