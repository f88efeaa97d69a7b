#include <algorithm>
#include <utility>

#include "clipboard_text.h"
#include "comp_edit_doc.h"
#include "integer.h"

namespace mivo {

bool SCompEditDoc::SelectionHasPin() const noexcept {
  return std::any_of(selection_.begin(), selection_.end(),
                     [](const SCompEditElm& e) { return e.Pin() != nullptr; });
}

bool SCompEditDoc::SelectionHasObject() const noexcept {
  return std::any_of(selection_.begin(), selection_.end(),
                     [](const SCompEditElm& e) { return e.Object() != nullptr; });
}

bool SCompEditDoc::SelectionContains(SPoint point) const noexcept {
  return !selection_.empty() && selectionRect_.Contains(point);
}

void SCompEditDoc::UpdateSelectionRect() {
  if (selection_.empty()) return;
  SRect rect;
  for (const SCompEditElm& element : selection_) {
    rect.Include(element.Pin() != nullptr ? PinRect(element.Pin()->location)
                                          : element.Object()->GetBoundingRect());
  }
  selectionRect_ = {WrapSub(rect.left, 1), WrapSub(rect.top, 1), WrapAdd(rect.right, 1),
                    WrapAdd(rect.bottom, 1)};
}

void SCompEditDoc::SetSelectionChanged(bool changed) {
  if (changed || selectionChanged_) ++revision_;
  selectionChanged_ = changed;
  UpdateSelectionRect();
}

bool SCompEditDoc::AddPin(const SCompPin* pin) {
  if (pin == nullptr) return false;
  selection_.emplace_back(Operation(), std::make_unique<SCompPin>(*pin));
  SetSelectionChanged(true);
  return true;
}

bool SCompEditDoc::AddObject(const SPtnObj* object) {
  if (object == nullptr) return false;
  selection_.emplace_back(Operation(), object->Clone());
  SetSelectionChanged(true);
  return true;
}

void SCompEditDoc::PasteObjects(std::vector<std::unique_ptr<SPtnObj>> objects, std::int32_t dx,
                                std::int32_t dy) {
  RaiseOperation();
  if (objects.empty()) return;
  for (std::unique_ptr<SPtnObj>& object : objects) {
    object->Move(dx, dy);
    selection_.emplace_back(Operation(), std::move(object));
  }
  SetSelectionChanged(true);
}

void SCompEditDoc::Pick(std::size_t position) {
  SCompEditElm& element = history_.At(position);
  selection_.push_back(element.PickedCopy(Operation(), position));
  element.MarkDeleted(Operation());
}

template <typename Matches>
bool SCompEditDoc::PickFirstPin(Matches matches) {
  ReleaseSelection();
  const std::span<const SCompEditElm> elements = Elements();
  const auto found = std::find_if(elements.begin(), elements.end(), [&](const SCompEditElm& e) {
    return e.IsAlive() && e.Pin() != nullptr && matches(e.Pin()->location);
  });
  return PickElement(static_cast<std::size_t>(found - elements.begin()));
}

bool SCompEditDoc::PickPinAt(SPoint point) {
  return PickFirstPin([&](SPinLocation location) { return PinRect(location).Contains(point); });
}

bool SCompEditDoc::PickPinByLocation(SPinLocation location) {
  return PickFirstPin([&](SPinLocation other) { return other == location; });
}

bool SCompEditDoc::PickElement(std::size_t position) {
  ReleaseSelection();
  if (position >= Elements().size() || !Elements()[position].IsAlive()) return false;
  Pick(position);
  SetSelectionChanged(false);
  return true;
}

std::size_t SCompEditDoc::PickObjectsInRect(const SRect& rect) {
  const std::size_t before = selection_.size();
  for (std::size_t i = 0; i < Elements().size(); ++i) {
    const SCompEditElm& element = Elements()[i];
    if (element.IsAlive() && element.Object() != nullptr && element.Object()->IsInRect(rect)) {
      Pick(i);
    }
  }
  const std::size_t picked = selection_.size() - before;
  if (picked > 0) SetSelectionChanged(false);
  return picked;
}

bool SCompEditDoc::ReleaseSelection() {
  if (selection_.empty()) return false;
  // Taken out first, so that the selection is empty before positions of elements can change.
  std::vector<SCompEditElm> released = std::exchange(selection_, {});
  if (std::exchange(selectionChanged_, false)) {
    for (SCompEditElm& element : released) {
      if (element.Object() != nullptr && !element.Object()->IsValid()) continue;
      element.ForgetSource();
      history_.Append(std::move(element));
    }
    SetDirty(true);
  } else {
    for (const SCompEditElm& element : released) {
      if (element.Source()) history_.At(*element.Source()).Revive();
    }
  }
  return true;
}

bool SCompEditDoc::DeleteSelection() {
  if (selection_.empty()) return false;
  if (std::any_of(selection_.begin(), selection_.end(),
                  [](const SCompEditElm& e) { return e.Source().has_value(); })) {
    SetDirty(true);
  }
  selection_.clear();
  if (std::exchange(selectionChanged_, false)) ++revision_;
  return true;
}

template <typename Change>
bool SCompEditDoc::ChangeSelectedObjects(Change change) {
  if (!SelectionHasObject()) return false;
  for (const SCompEditElm& element : selection_) {
    if (element.Object() != nullptr) change(*element.Object());
  }
  SetSelectionChanged(true);
  return true;
}

bool SCompEditDoc::MoveSelection(std::int32_t dx, std::int32_t dy) {
  if (dx == 0 && dy == 0) return false;  // a mouse that trembles is no operation
  return ChangeSelectedObjects([&](SPtnObj& object) { object.Move(dx, dy); });
}

bool SCompEditDoc::MirrorSelection() {
  return ChangeSelectedObjects(
      [axis = selectionRect_.Center().x](SPtnObj& object) { object.MirrorAt(axis); });
}

bool SCompEditDoc::RotateSelection() {
  return ChangeSelectedObjects(
      [center = selectionRect_.Center()](SPtnObj& object) { object.RotateAt(center); });
}

bool SCompEditDoc::CopyToClipboard(TextClipboard& clipboard) const {
  if (selection_.empty()) return false;
  return clipboard.SetText(WriteClipboardText(selection_, selectionRect_.TopLeft()));
}

}  // namespace mivo
