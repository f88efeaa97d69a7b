#ifndef MIVO_TOOLS_COMP_EDITOR_H
#define MIVO_TOOLS_COMP_EDITOR_H

#include <bitset>
#include <cstdint>
#include <memory>
#include <optional>

#include "edit_session.h"
#include "node_editing.h"
#include "right_button.h"
#include "selection_drag.h"
#include "tool.h"
#include "view_commands.h"
#include "view_key.h"
#include "wheel_steps.h"

namespace mivo {

/// The editing view without its window: owns the document under edit, the view coordinates and the
/// current tool, takes mouse, wheel, keys and commands, and tells its host what follows.
///
/// Mouse positions are device pixels of the window, (0, 0) its top left one. A gesture of the left
/// button ends as if the button were released when anything comes between: another button, a
/// command, a key, another component. Only zooming and scrolling let it go on.
class CompEditor {
 public:
  explicit CompEditor(const EditPorts& ports);
  CompEditor(const CompEditor&) = delete;
  CompEditor& operator=(const CompEditor&) = delete;

  // --- The component under edit ----------------------------------------------------------------

  /// Loads `component` (not owned; it must stay until another one or null is set) and forgets the
  /// history. Commit first.
  void SetComponent(SComponent* component);
  [[nodiscard]] SComponent* Component() const noexcept { return session_.component; }
  /// Releases the selection and writes a changed document back into the component. Returns whether
  /// it was changed; its library then differs from its file.
  [[nodiscard]] bool Commit(SCompEditDoc::FarObjects farObjects);
  /// Makes the next Commit write back and return true.
  void MarkChanged() { session_.document.SetDirty(true); }

  // --- The window ------------------------------------------------------------------------------

  /// New size, or a display with another number of device pixels per logical pixel.
  void Resize(PixelSize client, double devicePixelRatio);
  /// Empty border around the body in component units, kept within its limits.
  void SetMargin(std::int32_t margin);
  /// Moves to a position of the scroll bars.
  void ScrollTo(PixelPoint position);

  void PressLeft(PixelPoint at);
  void ReleaseLeft(PixelPoint at);
  /// Comes instead of the second press of a double click.
  void DoubleClick(PixelPoint at);
  void PressRight(PixelPoint at);
  void ReleaseRight(PixelPoint at);
  void MoveMouse(PixelPoint at);
  /// The mouse is over another window now.
  void LeaveMouse() { mouseInside_ = false; }
  /// The window lost the capture, or will be hidden or closed.
  void CaptureLost();
  /// Ends a gesture of the left button where the mouse is now.
  void EndGesture();
  /// `delta` is 120 for a notch away from the user.
  void Wheel(std::int32_t delta, bool control);
  /// A key that was pressed, or repeats, while the view has the focus. False when it means nothing
  /// here and now.
  bool Key(ViewKey key, bool shift);

  // --- Commands --------------------------------------------------------------------------------

  /// False, with nothing done, when the command is not enabled or not one of kViewCommands.
  bool Execute(Command command);
  /// For Paste this looks at the clipboard; ViewHost::StateChanged tells about all others.
  [[nodiscard]] bool IsEnabled(Command command) const;
  [[nodiscard]] bool IsChecked(Command command) const;
  /// What the current tool expects next, or why it does nothing; nothing without a component.
  [[nodiscard]] std::optional<StringId> Hint() const;

  /// For the pin grid: selects the pin at `location`; false when there is none.
  bool SelectPin(SPinLocation location);
  /// The pin grid changed the selected pin.
  void SelectedPinEdited();

  // --- What there is to show -------------------------------------------------------------------

  [[nodiscard]] const SCompEditDoc& Document() const noexcept { return session_.document; }
  [[nodiscard]] const ViewCoordinates& Coordinates() const noexcept { return session_.coordinates; }

  /// Fills a surface as large as the window with everything that is not being edited: the back
  /// image, good until the host is asked to render it again.
  void PaintBack(DrawingSurface& surface);
  /// Whether something is selected or begun; otherwise the back image is all there is to see.
  [[nodiscard]] bool HasFront() const noexcept;
  /// Draws the selection and what the tools have begun over a copy of the back image.
  void PaintFront(DrawingSurface& surface);

 private:
  struct State {
    std::bitset<kViewCommands.size()> enabled;
    std::bitset<kViewCommands.size()> checked;
    std::optional<StringId> hint;
    bool operator==(const State&) const = default;
  };

  void SetMouse(PixelPoint at);
  void BeginPress(const Pointer& pointer);
  void FinishPress();
  void Track();
  void Zoom(std::int32_t steps);
  void Scroll(std::int32_t notches);
  void ViewMoved();
  void OpenMenuAtSelection();
  void Escape();
  bool SelectorKey(ViewKey key, bool shift);
  void ShowSelection();

  void Perform(Command command);
  void SetTool(ToolKind kind);
  void RestartTool(std::unique_ptr<Tool> tool);
  void Undo();
  void EditProperty();
  void NextPinName();
  void NextPinNumber();
  void AddNode();
  void CreateBitPattern();
  bool Paste();

  void Settle();
  [[nodiscard]] CursorShape Cursor() const;
  [[nodiscard]] State CurrentState() const;

  EditSession session_;
  std::unique_ptr<Tool> tool_;
  SelectionDrag drag_;
  RightButton right_;
  bool mouseInside_ = false;
  bool leftDown_ = false;
  bool toolPressed_ = false;
  WheelSteps scrollSteps_;
  WheelSteps zoomSteps_;
  bool swapped_ = false;
  std::optional<NewNodePlace> newNode_;
  CursorShape cursor_ = CursorShape::Arrow;
  State state_;
  std::uint64_t toldRevision_ = 0;
};

}  // namespace mivo

#endif
