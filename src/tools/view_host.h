#ifndef MIVO_TOOLS_VIEW_HOST_H
#define MIVO_TOOLS_VIEW_HOST_H

#include "pixel_geometry.h"

namespace mivo {

enum class CursorShape { Arrow, Move };

/// What the editor asks of the window that shows it. It tells what changed, at the end of the event
/// that changed it and each thing at most once; the window asks the editor for the rest.
class ViewHost {
 public:
  virtual ~ViewHost() = default;

  /// The selection or a tool's feedback changed: paint again over the back image.
  virtual void Repaint() = 0;
  /// What the back image shows changed: render it again, then paint.
  virtual void Render() = 0;
  /// Extent or scroll position changed; Render follows.
  virtual void ScrollBarsChanged() = 0;
  virtual void SetCursor(CursorShape shape) = 0;
  /// Whether mouse events outside the window have to come here too.
  virtual void SetCapture(bool on) = 0;
  /// Opens the floating menu at a point of the window, for the commands of CompEditor.
  virtual void ShowContextMenu(PixelPoint at) = 0;

  /// A command may have become possible or impossible, checked or unchecked, or the hint changed.
  virtual void StateChanged() = 0;
  /// An operation is complete, and a commit now would give something else than before it.
  virtual void Edited() = 0;
  /// Pins came, went or changed: pointers to them are void.
  virtual void PinsChanged() = 0;
  /// Shows the pin grid, or hides it when it is shown.
  virtual void TogglePinGrid() = 0;
  [[nodiscard]] virtual bool IsPinGridShown() const = 0;
};

}  // namespace mivo

#endif
