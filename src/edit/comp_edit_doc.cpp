#include "comp_edit_doc.h"

#include <algorithm>
#include <utility>

#include "integer.h"

namespace mivo {
namespace {

/// How far outside the body a drawing object may lie to survive a write-back that drops the rest.
constexpr std::int32_t kFarDistance = 15;

}  // namespace

void SCompEditDoc::Clear() {
  history_.Clear();
  selection_.clear();
  blocks_ = 1;
  dirty_ = false;
  selectionChanged_ = false;
  lastPinName.clear();
  lastPinNumber.clear();
}

void SCompEditDoc::Load(const SComponent* component) {
  Clear();
  if (component == nullptr) return;
  bodySize_ = component->Size();
  blocks_ = component->BlockCount();
  for (const SCompPin& pin : component->Pins()) {
    history_.Append(SCompEditElm(Operation(), std::make_unique<SCompPin>(pin)));
  }
  if (component->Pattern() == nullptr) return;
  for (const std::unique_ptr<SPtnObj>& object : component->Pattern()->objects) {
    history_.Append(SCompEditElm(Operation(), object->Clone()));
  }
}

void SCompEditDoc::DropFarObjects() {
  const SPoint body = BodyUnits(bodySize_);
  const SRect keep{-kFarDistance, -kFarDistance, WrapAdd(body.x, kFarDistance),
                   WrapAdd(body.y, kFarDistance)};
  for (std::size_t i = 0; i < Elements().size(); ++i) {
    SCompEditElm& element = history_.At(i);
    if (!element.IsAlive() || element.Object() == nullptr) continue;
    if (element.Object()->IsInRect(keep)) continue;
    element.MarkDeleted(Operation());
    SetDirty(true);
  }
}

void SCompEditDoc::WriteBack(SComponent& component, FarObjects farObjects) {
  ReleaseSelection();
  RaiseOperation();
  if (farObjects == FarObjects::Drop) DropFarObjects();
  CopyTo(component);
}

void SCompEditDoc::CopyTo(SComponent& component) const {
  std::vector<SCompPin> pins;
  std::vector<std::unique_ptr<SPtnObj>> objects;
  const auto take = [&](const SCompEditElm& element) {
    if (element.Pin() != nullptr) {
      pins.push_back(*element.Pin());
    } else {
      objects.push_back(element.Object()->Clone());
    }
  };
  // An unchanged selection goes back where it came from.
  std::vector<bool> returns(Elements().size());
  for (const SCompEditElm& element : selection_) {
    if (!selectionChanged_ && element.Source()) returns[*element.Source()] = true;
  }
  for (std::size_t i = 0; i < Elements().size(); ++i) {
    if (Elements()[i].IsAlive() || returns[i]) take(Elements()[i]);
  }
  if (selectionChanged_) {
    for (const SCompEditElm& element : selection_) {
      if (element.Object() == nullptr || element.Object()->IsValid()) take(element);
    }
  }
  component.SetBodySize(bodySize_);
  // The pins get their number slots from the block count, so it comes first.
  component.SetBlockCount(blocks_);
  component.SetPins(std::move(pins));
  if (SPtn* const pattern = component.MutablePattern()) pattern->objects = std::move(objects);
}

bool SCompEditDoc::Undo() {
  ReleaseSelection();
  const bool changed = history_.UndoLast();
  // The mark may have been taken back since: without it the next save would miss the undo.
  if (changed) SetDirty(true);
  return changed;
}

const SCompPin* SCompEditDoc::FindPinAtLocation(SPinLocation location) const noexcept {
  for (const SCompEditElm& element : Elements()) {
    if (element.IsAlive() && element.Pin() != nullptr && element.Pin()->location == location) {
      return element.Pin();
    }
  }
  return nullptr;
}

}  // namespace mivo
