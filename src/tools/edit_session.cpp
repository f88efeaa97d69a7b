#include "edit_session.h"

#include <utility>

#include "object_picking.h"

namespace mivo {

void EditSession::Flush() {
  const Pending now = std::exchange(pending, {});
  if (now.scrollBars) ports.host.ScrollBarsChanged();
  if (now.render) {
    ports.host.Render();
  } else if (now.repaint) {
    ports.host.Repaint();
  }
  if (now.pins) ports.host.PinsChanged();
}

void EditSession::SetCapture(bool on) {
  if (std::exchange(captured_, on) != on) ports.host.SetCapture(on);
}

void EditSession::PrepareForDialog() {
  SetCapture(false);
  Flush();
}

SCompPin* EditSession::SelectedPin() const noexcept {
  const SCompEditElm* const element = document.SingleSelection();
  return element != nullptr ? element->Pin() : nullptr;
}

SPtnObj* EditSession::SelectedObject() const noexcept {
  const SCompEditElm* const element = document.SingleSelection();
  return element != nullptr ? element->Object() : nullptr;
}

void EditSession::SelectionEdited() {
  document.SetSelectionChanged(true);
  pending.repaint = true;
}

void EditSession::MovePinTo(SCompPin& pin, SPoint point) {
  const SPinLocation place = document.PinLocationFromPoint(point);
  if (pin.location == place) return;
  pin.location = place;
  pending.repaint = true;
}

bool EditSession::ReleaseSelection() {
  const bool hadPin = document.SelectionHasPin();
  if (!document.ReleaseSelection()) return false;
  pending.render = true;
  if (hadPin) pending.pins = true;
  return true;
}

bool EditSession::DeleteSelection() {
  const bool hadPin = document.SelectionHasPin();
  if (!document.DeleteSelection()) return false;
  pending.render = true;
  if (hadPin) pending.pins = true;
  return true;
}

template <typename PickSomething>
bool EditSession::Pick(PickSomething pickSomething) {
  ReleaseSelection();
  // The picked elements count as deleted by this operation until they are released.
  document.RaiseOperation();
  if (!pickSomething()) {
    document.LowerOperation();
    return false;
  }
  pending.render = true;
  if (document.SelectionHasPin()) pending.pins = true;
  return true;
}

bool EditSession::PickAt(const Pointer& pointer) {
  return Pick([&] {
    if (document.PickPinAt(pointer.point)) return true;
    const std::optional<std::size_t> position = ObjectAt(pointer.pixel, *this);
    return position && document.PickElement(*position);
  });
}

bool EditSession::PickPin(SPinLocation location) {
  return Pick([&] { return document.PickPinByLocation(location); });
}

bool EditSession::PickElement(std::size_t position) {
  return Pick([&] { return document.PickElement(position); });
}

bool EditSession::PickObjectsInRect(const SRect& rect) {
  return Pick([&] { return document.PickObjectsInRect(rect) > 0; });
}

void EditSession::AddNewObject(const SPtnObj& object) {
  document.RaiseOperation();
  document.AddObject(&object);
  pending.repaint = true;
}

bool EditSession::PlacePin(SCompPin& pin) {
  if (document.FindPinAtLocation(pin.location) != nullptr) return false;
  if (!coordinates.VisibleArea().Contains(document.PinPoint(pin.location))) return false;
  document.RaiseOperation();
  pin.ResizeNumbers(document.Blocks());
  document.AddPin(&pin);
  pending.repaint = true;
  pending.pins = true;
  return true;
}

void EditSession::ScrollToKeep(PixelPoint pixel, SPoint point) {
  const PixelPoint before = coordinates.Origin();
  coordinates.ScrollToKeep(pixel, point);
  if (coordinates.Origin() == before) return;
  pending.render = true;
  pending.scrollBars = true;
}

}  // namespace mivo
