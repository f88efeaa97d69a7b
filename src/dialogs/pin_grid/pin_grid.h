#ifndef MIVO_DIALOGS_PIN_GRID_H
#define MIVO_DIALOGS_PIN_GRID_H

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "comp_editor.h"
#include "grid_scroll.h"
#include "pin_rows.h"
#include "property_values.h"

namespace mivo {

/// The pin grid without its window: the rows, which of them are in sight, and the edit of one cell.
///
/// The selected row is the pin that is selected in the editor, and the only one that is edited:
/// clicking another row selects its pin first. A cell's edit ends by EndEdit or CancelEdit, and is
/// given up when the pins change from elsewhere.
class PinGrid {
 public:
  static constexpr int kRowsPerPage = 4;
  static constexpr int kBlocksPerPage = 2;

  /// Refresh has to be called for every ViewHost::PinsChanged of the editor, which must outlive the
  /// grid.
  explicit PinGrid(CompEditor& editor);

  // --- Rows ------------------------------------------------------------------------------------

  /// Pins came, went or changed. A pin that has just been selected is brought into sight.
  void Refresh();

  [[nodiscard]] std::span<const PinRow> Rows() const noexcept { return rows_; }
  [[nodiscard]] int RowCount() const noexcept { return static_cast<int>(rows_.size()); }
  /// -1 when no pin is selected.
  [[nodiscard]] int SelectedRow() const noexcept { return selectedRow_; }
  /// Blocks of the component.
  [[nodiscard]] int Blocks() const noexcept { return editor_.Document().Blocks(); }

  // --- Scrolling -------------------------------------------------------------------------------

  /// How many rows and block columns fit into the window wholly.
  void SetVisible(int rows, int blocks);
  [[nodiscard]] const GridScroll& RowScroll() const noexcept { return rowScroll_; }
  [[nodiscard]] const GridScroll& BlockScroll() const noexcept { return blockScroll_; }
  /// These end an edit first. `thumb`: see GridScroll.
  void ScrollRows(ScrollRequest request, int thumb);
  void ScrollBlocks(ScrollRequest request, int thumb);

  // --- Editing ---------------------------------------------------------------------------------

  enum class EditKind { None, Name, Style, Number };

  [[nodiscard]] EditKind Edit() const noexcept { return edit_.kind; }
  [[nodiscard]] bool IsTextEdit() const noexcept {
    return edit_.kind == EditKind::Name || edit_.kind == EditKind::Number;
  }
  /// The column that is being edited, see pin_grid_column.
  [[nodiscard]] int EditColumn() const noexcept;
  /// The text under edit, and how long typing can make it.
  [[nodiscard]] const std::u16string& EditText() const noexcept { return edit_.text; }
  [[nodiscard]] int EditTextLimit() const noexcept {
    return edit_.kind == EditKind::Name ? PinValues::kMaxNameLength : PinValues::kMaxNumberLength;
  }
  /// The entry of the style list that stands for the pin as it is.
  [[nodiscard]] std::size_t EditStyle() const noexcept { return edit_.style; }

  /// A click on a cell of any row: ends an edit, selects the row's pin and starts to edit the cell.
  /// Nothing but the end of an edit when there is no such row.
  void Click(int row, int column);
  /// Starts to edit a cell of the selected row. The check mark of the hide column changes at once;
  /// locations and blocks that the pin does not have cannot be edited.
  void StartEdit(int column);

  /// The text under edit was changed by typing; what was not typed is never stored.
  void SetEditText(std::u16string_view text) { edit_.text = text; }
  /// Stores an entry of the style list, which ends the edit.
  void ChooseStyle(std::size_t entry);

  /// Ends an edit and keeps what was typed.
  void EndEdit();
  /// Ends an edit and leaves the pin as it was.
  void CancelEdit() { edit_ = {}; }

  /// Up and Down (or Enter) while a text is edited: keeps the text and edits the same column of the
  /// row above or below, where the last row has to do for the row below it and the first for the
  /// one above. Nothing when no text is edited.
  void MoveUp() { MoveEdit(-1); }
  void MoveDown() { MoveEdit(+1); }

 private:
  struct CellEdit {
    EditKind kind = EditKind::None;
    std::int32_t block = 0;
    std::u16string text;
    std::size_t style = 0;
  };

  [[nodiscard]] SCompPin* SelectedPin() const noexcept;
  bool SelectRow(int row);
  [[nodiscard]] int NeighbourOfSelectedRow(int step) const;
  void MoveEdit(int step);

  CompEditor& editor_;
  const SComponent* component_ = nullptr;  ///< whose rows are shown; only compared
  std::vector<PinRow> rows_;
  int selectedRow_ = -1;
  GridScroll rowScroll_{kRowsPerPage};
  GridScroll blockScroll_{kBlocksPerPage};
  CellEdit edit_;
};

}  // namespace mivo

#endif
