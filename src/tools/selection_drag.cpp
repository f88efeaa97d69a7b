#include "selection_drag.h"

#include <utility>

#include "node_editing.h"

namespace mivo {

bool SelectionDrag::Press(const EditSession& session, const Pointer& pointer) {
  const SCompEditDoc& document = session.document;
  const SPtnObj* const object = session.SelectedObject();
  const std::optional<std::int32_t> node = session.nodeEdit && object != nullptr
                                               ? NodeAt(*object, pointer.pixel, session.coordinates)
                                               : std::nullopt;
  if (node) {
    what_ = What::Node;
    node_ = *node;
  } else if (!document.SelectionContains(pointer.point)) {
    return false;
  } else if (const SCompPin* const pin = session.SelectedPin()) {
    what_ = What::Pin;
    savedLocation_ = pin->location;
    changedBefore_ = document.SelectionChanged();
  } else {
    what_ = What::Objects;
    applied_ = {};
  }
  press_ = last_ = pointer.point;
  return true;
}

void SelectionDrag::Move(EditSession& session, const Pointer& pointer) {
  // A press beside the middle of a node or pin must not move it before the mouse does.
  if (!IsActive() || pointer.point == last_) return;
  last_ = pointer.point;
  switch (what_) {
    case What::Nothing:
      break;
    case What::Node:
      session.SelectedObject()->SetNode(node_, last_.x, last_.y);
      session.SelectionEdited();
      break;
    case What::Pin:
      MovePin(session, last_);
      break;
    case What::Objects: {
      const SPoint total = last_ - press_;
      const SPoint step = total - applied_;
      if (session.document.MoveSelection(step.x, step.y)) session.pending.repaint = true;
      applied_ = total;
      break;
    }
  }
}

void SelectionDrag::MovePin(EditSession& session, SPoint point) const {
  SCompPin& pin = *session.SelectedPin();
  session.MovePinTo(pin, point);
  // Back where it started, the pin is no reason for an operation.
  session.document.SetSelectionChanged(changedBefore_ || pin.location != savedLocation_);
}

void SelectionDrag::Release(EditSession& session, const Pointer& pointer) {
  Move(session, pointer);
  if (std::exchange(what_, What::Nothing) == What::Pin) FinishPin(session);
}

void SelectionDrag::FinishPin(EditSession& session) const {
  SCompPin& pin = *session.SelectedPin();
  if (session.document.FindPinAtLocation(pin.location) == nullptr) {
    session.pending.pins = true;
    return;
  }
  pin.location = savedLocation_;
  session.document.SetSelectionChanged(changedBefore_);
  session.pending.repaint = true;
}

void SelectionDrag::ContinueFrom(const Pointer& pointer) noexcept {
  press_ = pointer.point - applied_;
  last_ = pointer.point;
}

}  // namespace mivo
