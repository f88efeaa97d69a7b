// Components and their names: the selection, the clipboard, the order of the list.

#include <algorithm>

#include "comp_edit_view.h"
#include "lb_comp_name.h"
#include "main_frame.h"
#include "name_pane.h"
#include "schematic_data.h"
#include "start_label.h"

namespace mivo {

void CMainFrame::CommitEdit() {
  EndGridEdit();
  if (view_->Editor().Commit(farObjects_)) modified_ = true;
}

void CMainFrame::HandToView(NameEntry* entry) {
  SComponent* const component = entry != nullptr ? entry->Component() : nullptr;
  view_->Editor().SetComponent(component);
  startLabel_->setVisible(component == nullptr);
  pane_->ShowNote(component != nullptr ? component->note : u"");
}

void CMainFrame::ShowSelectedComponent() {
  if (busy_) {
    selectionHeldBack_ = true;
    return;
  }
  CommitEdit();
  HandToView(Names().SelectedEntry());
  UpdateActions();
  UpdateStatus();
}

void CMainFrame::InsertName(NameEntry* entry) {
  const int selected = Names().SelectedRow();
  const int row = selected >= 0 ? selected : Names().Names().rowCount();
  Names().Names().Insert(row, entry);
  Names().SelectRow(row);
}

void CMainFrame::MoveSelectedName(int down) {
  const int row = Names().SelectedRow();
  const int target = row + down;
  if (row < 0 || target < 0 || target >= Names().Names().rowCount()) return;
  Names().Names().SwapWithNext(std::min(row, target));
  modified_ = true;
  UpdateActions();
}

void CMainFrame::CopyComponent() {
  CommitEdit();
  NameEntry* const entry = Names().SelectedEntry();
  if (entry == nullptr) return;
  const std::u16string text = WriteComponentText(*entry);
  if (!text.empty()) static_cast<void>(view_->Clipboard().SetText(text));
}

void CMainFrame::CutComponent() {
  NameEntry* const entry = Names().SelectedEntry();
  if (entry == nullptr) return;
  CopyComponent();
  const int row = Names().SelectedRow();
  // The view must let go of a component before the library frees it.
  HandToView(nullptr);
  Names().Names().Remove(row);
  doc_.Remove(*entry);
  Names().SelectRow(std::min(row, Names().Names().rowCount() - 1));
  HandToView(Names().SelectedEntry());
  UpdateActions();
  UpdateStatus();
}

void CMainFrame::PasteComponent() {
  const std::optional<std::u16string> text = view_->Clipboard().GetText();
  if (!text || !CanPasteComponent(*text)) return;
  NameEntry* const entry = PasteComponentText(doc_, *text);
  if (entry == nullptr) return;
  CommitEdit();
  InsertName(entry);
  view_->Editor().MarkChanged();
  modified_ = true;
}

void CMainFrame::NewComponent() {
  const std::optional<CompPropertyValues> values = prompts_->AskComponent({});
  if (!values) return;
  CommitEdit();
  auto component = std::make_unique<SComponent>();
  Apply(*values, *component);
  InsertName(doc_.AddComponent(std::move(component), values->name));
  modified_ = true;
}

void CMainFrame::EditComponentProperty() {
  NameEntry* const entry = Names().SelectedEntry();
  if (entry == nullptr) return;
  CommitEdit();
  SComponent& component = *entry->Component();
  const auto values = prompts_->AskComponent(ValuesOf(entry->Name(), component));
  if (!values) return;
  Apply(*values, component);
  if (values->name != entry->Name()) {
    doc_.Rename(*entry, values->name);
    Names().Names().NameChanged(Names().SelectedRow());
  }
  HandToView(entry);
  view_->Editor().MarkChanged();
  modified_ = true;
}

void CMainFrame::AddAlias() {
  NameEntry* const entry = Names().SelectedEntry();
  if (entry == nullptr) return;
  CommitEdit();
  const std::optional<std::u16string> alias = prompts_->AskAlias(entry->Name());
  if (!alias || alias->empty()) return;
  const int row = Names().SelectedRow() + 1;
  Names().Names().Insert(row, doc_.AddAlias(entry->Component(), *alias));
  Names().SelectRow(row);
}

void CMainFrame::EditLibraryProperty() {
  std::optional<std::u16string> text = prompts_->AskLibraryText(doc_.property);
  if (!text) return;
  doc_.property = *std::move(text);
  modified_ = true;
}

void CMainFrame::SortByName() {
  if (Names().Names().rowCount() < 2 || !prompts_->Confirm(StringId::CannotUndo)) return;
  CommitEdit();
  std::vector<NameEntry*> entries = Names().Names().Entries();
  std::sort(entries.begin(), entries.end(),
            [](const NameEntry* a, const NameEntry* b) { return a->Name() < b->Name(); });
  Names().Names().SetEntries(std::move(entries));
  Names().SelectRow(0);
}

}  // namespace mivo
