#include "pin_grid.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "pin_grid_layout.h"
#include "pin_grid_style.h"

namespace mivo {
namespace {

std::u16string NumberOf(const SCompPin& pin, std::int32_t block) {
  return std::u16string(pin.GetNumber(block).value_or(u""));
}

}  // namespace

using namespace pin_grid_column;

PinGrid::PinGrid(CompEditor& editor) : editor_(editor) {
  Refresh();
}

// --- Rows ----------------------------------------------------------------------------------------

void PinGrid::Refresh() {
  CancelEdit();
  const bool isOtherComponent = std::exchange(component_, editor_.Component()) != component_;
  rows_ = PinRows(editor_.Document());
  const auto selected =
      std::find_if(rows_.begin(), rows_.end(), [](const PinRow& row) { return row.isSelected; });
  const int before = std::exchange(
      selectedRow_, selected != rows_.end() ? static_cast<int>(selected - rows_.begin()) : -1);

  rowScroll_.SetCount(RowCount());
  blockScroll_.SetCount(Blocks());
  if (isOtherComponent) {
    rowScroll_.ScrollTo(0);
    blockScroll_.ScrollTo(0);
  }
  if (selectedRow_ >= 0 && selectedRow_ != before) rowScroll_.Reveal(selectedRow_);
}

SCompPin* PinGrid::SelectedPin() const noexcept {
  // Not by way of the rows: here the pin is alive whatever happened since they were made.
  for (const SCompEditElm& element : editor_.Document().Selection()) {
    if (element.Pin() != nullptr) return element.Pin();
  }
  return nullptr;
}

bool PinGrid::SelectRow(int row) {
  return editor_.SelectPin(rows_[static_cast<std::size_t>(row)].pin->location);
}

// --- Scrolling -----------------------------------------------------------------------------------

void PinGrid::SetVisible(int rows, int blocks) {
  rowScroll_.SetVisible(rows);
  blockScroll_.SetVisible(blocks);
}

void PinGrid::ScrollRows(ScrollRequest request, int thumb) {
  EndEdit();
  rowScroll_.Scroll(request, thumb);
}

void PinGrid::ScrollBlocks(ScrollRequest request, int thumb) {
  EndEdit();
  blockScroll_.Scroll(request, thumb);
}

// --- Editing -------------------------------------------------------------------------------------

int PinGrid::EditColumn() const noexcept {
  switch (edit_.kind) {
    case EditKind::Name:
      return kName;
    case EditKind::Style:
      return kStyle;
    case EditKind::Number:
      return kFirstBlock + edit_.block - blockScroll_.First();
    case EditKind::None:
      break;
  }
  return kLocation;
}

void PinGrid::Click(int row, int column) {
  EndEdit();
  if (row < 0 || row >= RowCount()) return;
  if (SelectRow(row)) StartEdit(column);
}

void PinGrid::StartEdit(int column) {
  EndEdit();
  SCompPin* const pin = SelectedPin();
  if (pin == nullptr) return;
  switch (column) {
    case kLocation:
      break;
    case kName:
      edit_ = {EditKind::Name, 0, pin->DisplayName(), 0};
      break;
    case kStyle:
      edit_ = {EditKind::Style, 0, {}, PinGridStyleEntry(pin->type)};
      break;
    case kHide:
      pin->type ^= SCompPin::kHideNumber;
      editor_.SelectedPinEdited();
      break;
    default:
      const std::int32_t block = column - kFirstBlock + blockScroll_.First();
      if (block >= pin->NumberCount()) break;
      edit_ = {EditKind::Number, block, NumberOf(*pin, block), 0};
      break;
  }
  if (edit_.kind != EditKind::None) rowScroll_.Reveal(selectedRow_);
}

void PinGrid::ChooseStyle(std::size_t entry) {
  if (std::exchange(edit_, {}).kind != EditKind::Style) return;
  SCompPin* const pin = SelectedPin();
  if (pin == nullptr) return;
  const std::int32_t type = TypeWithPinGridStyle(pin->type, entry);
  if (std::exchange(pin->type, type) != type) editor_.SelectedPinEdited();
}

void PinGrid::EndEdit() {
  // Telling the editor leads back to Refresh, so the edit has to be over by then.
  const CellEdit edit = std::exchange(edit_, {});
  SCompPin* const pin = SelectedPin();
  if (pin == nullptr) return;
  if (edit.kind == EditKind::Name && edit.text != pin->DisplayName()) {
    pin->SetNameFromDisplayText(edit.text);
    editor_.SelectedPinEdited();
  } else if (edit.kind == EditKind::Number && edit.text != NumberOf(*pin, edit.block)) {
    pin->SetNumber(edit.block, edit.text);
    editor_.SelectedPinEdited();
  }
}

int PinGrid::NeighbourOfSelectedRow(int step) const {
  const auto locationOf = [&](int row) {
    return rows_[static_cast<std::size_t>(row)].pin->location;
  };
  // The editor would select the same pin again for another row of the same place.
  for (int row = selectedRow_ + step; row >= 0 && row < RowCount(); row += step) {
    if (locationOf(row) != locationOf(selectedRow_)) return row;
  }
  return selectedRow_;
}

void PinGrid::MoveEdit(int step) {
  if (!IsTextEdit()) return;
  const int column = EditColumn();
  EndEdit();
  if (SelectRow(NeighbourOfSelectedRow(step))) StartEdit(column);
}

}  // namespace mivo
