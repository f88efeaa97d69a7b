#ifndef MIVO_TOOLS_EDIT_SESSION_H
#define MIVO_TOOLS_EDIT_SESSION_H

#include <cstdint>
#include <optional>

#include "comp_edit_doc.h"
#include "component.h"
#include "edit_ports.h"
#include "pixel_geometry.h"
#include "view_coordinates.h"

namespace mivo {

/// A place of the mouse: the pixel of the window, and the component point under it.
struct Pointer {
  PixelPoint pixel;
  SPoint point;
};

/// What all tools work on: the component under edit, how it is shown, and whom to ask and tell.
class EditSession {
 public:
  explicit EditSession(const EditPorts& editPorts) : ports(editPorts) {}

  SCompEditDoc document;
  ViewCoordinates coordinates;
  SComponent* component = nullptr;  ///< not owned; null when nothing is open
  bool nodeEdit = false;
  /// Where the mouse was last, inside the window or not; nothing before it was seen for the first
  /// time.
  std::optional<PixelPoint> mouse;
  const EditPorts ports;

  /// What the window has to be told, collected so that each thing is told once an event.
  struct Pending {
    bool repaint = false;
    bool render = false;
    bool scrollBars = false;
    bool pins = false;
  };
  Pending pending;
  void Flush();

  void SetCapture(bool on);
  [[nodiscard]] bool HasCapture() const noexcept { return captured_; }
  /// Lets the window show what has happened and gives the mouse free. The release of the button
  /// that was pressed will go to the dialog, if anywhere.
  void PrepareForDialog();

  /// Whether there is something that drawing tools can draw in.
  [[nodiscard]] bool HasPattern() const noexcept {
    return component != nullptr && component->Pattern() != nullptr;
  }
  [[nodiscard]] Pointer PointerAt(PixelPoint pixel) const noexcept {
    return {pixel, coordinates.ToComponent(pixel)};
  }

  /// The only selected element's pin or object; null for anything else.
  [[nodiscard]] SCompPin* SelectedPin() const noexcept;
  [[nodiscard]] SPtnObj* SelectedObject() const noexcept;

  /// Reports a change that was made to a selected pin or object.
  void SelectionEdited();

  /// Takes a pin to the place on the outline that is nearest to `point`.
  void MovePinTo(SCompPin& pin, SPoint point);

  /// Ends the selection; false when there is none.
  bool ReleaseSelection();
  bool DeleteSelection();

  /// These select instead of what is selected, as an operation of its own. False when nothing is
  /// found there; then only the old selection is gone.
  bool PickAt(const Pointer& pointer);
  bool PickPin(SPinLocation location);
  bool PickElement(std::size_t position);
  bool PickObjectsInRect(const SRect& rect);

  /// Adds a new object, selected, as an operation of its own.
  void AddNewObject(const SPtnObj& object);
  /// Adds a copy of `pin`, selected, as an operation of its own. False, with nothing done, when its
  /// place is taken or out of sight.
  bool PlacePin(SCompPin& pin);

  /// Scrolls until `point` is under `pixel` of the window, or as near as scrolling can take it.
  void ScrollToKeep(PixelPoint pixel, SPoint point);

 private:
  template <typename PickSomething>
  bool Pick(PickSomething pickSomething);

  bool captured_ = false;
};

}  // namespace mivo

#endif
