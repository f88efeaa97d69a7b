#include "comp_editor.h"

#include <utility>

#include "integer.h"
#include "keyboard_selection.h"

namespace mivo {

CompEditor::CompEditor(const EditPorts& ports)
    : session_(ports), tool_(MakeTool(ToolKind::Selector, session_)) {}

// --- The component under edit --------------------------------------------------------------------

void CompEditor::SetComponent(SComponent* component) {
  CaptureLost();
  session_.component = component;
  session_.document.Load(component);
  session_.coordinates.SetBody(component != nullptr ? std::optional(component->Size())
                                                    : std::nullopt);
  RestartTool(MakeTool(tool_->Kind(), session_));
  session_.pending.scrollBars = true;
  session_.pending.render = true;
  session_.pending.pins = true;
  Settle();
}

bool CompEditor::Commit(SCompEditDoc::FarObjects farObjects) {
  EndGesture();
  session_.ReleaseSelection();
  const bool changed = session_.component != nullptr && session_.document.IsDirty();
  if (changed) {
    session_.document.WriteBack(*session_.component, farObjects);
    session_.document.SetDirty(false);
    session_.pending.render = true;  // without the objects that were dropped
  }
  Settle();
  return changed;
}

// --- The window ----------------------------------------------------------------------------------

void CompEditor::Resize(PixelSize client, double devicePixelRatio) {
  session_.coordinates.SetDevicePixelRatio(devicePixelRatio);
  session_.coordinates.SetClientSize(client);
  ViewMoved();
}

void CompEditor::SetMargin(std::int32_t margin) {
  session_.coordinates.SetMargin(margin);
  ViewMoved();
}

void CompEditor::ScrollTo(PixelPoint position) {
  session_.coordinates.ScrollTo(position);
  ViewMoved();
}

void CompEditor::ViewMoved() {
  session_.pending.render = true;
  session_.pending.scrollBars = true;
  Track();
  Settle();
}

void CompEditor::Track() {
  if (!session_.mouse) return;
  const Pointer pointer = session_.PointerAt(*session_.mouse);
  if (drag_.IsActive()) {
    drag_.Move(session_, pointer);
  } else {
    tool_->Move(session_, pointer);
  }
}

// --- Mouse ---------------------------------------------------------------------------------------

void CompEditor::SetMouse(PixelPoint at) {
  session_.mouse = at;
  mouseInside_ = session_.coordinates.ClientContains(at);
}

void CompEditor::PressLeft(PixelPoint at) {
  CaptureLost();
  SetMouse(at);
  leftDown_ = true;
  session_.SetCapture(true);
  if (session_.component != nullptr) BeginPress(session_.PointerAt(at));
  Settle();
}

void CompEditor::BeginPress(const Pointer& pointer) {
  if (drag_.Press(session_, pointer)) return;
  const bool released = session_.ReleaseSelection();
  if (released && IsDrawingTool(tool_->Kind())) return;
  toolPressed_ = true;
  tool_->Press(session_, pointer);
}

void CompEditor::ReleaseLeft(PixelPoint at) {
  if (!leftDown_) return;
  SetMouse(at);
  EndGesture();
}

void CompEditor::EndGesture() {
  if (!leftDown_) return;
  FinishPress();
  Settle();
}

void CompEditor::FinishPress() {
  leftDown_ = false;
  session_.SetCapture(right_.IsHeld());
  const Pointer pointer = session_.PointerAt(*session_.mouse);
  drag_.Release(session_, pointer);
  if (std::exchange(toolPressed_, false)) tool_->Release(session_, pointer);
}

void CompEditor::DoubleClick(PixelPoint at) {
  CaptureLost();
  SetMouse(at);
  if (session_.document.SingleSelection() != nullptr) {
    EditProperty();
  } else {
    tool_->DoubleClick(session_);
  }
  Settle();
}

void CompEditor::PressRight(PixelPoint at) {
  SetMouse(at);
  CaptureLost();
  right_.Press(session_.PointerAt(at));
  session_.SetCapture(true);
  Settle();
}

void CompEditor::ReleaseRight(PixelPoint at) {
  if (!right_.IsHeld()) return;
  MoveMouse(at);
  const bool openMenu = right_.Release();
  session_.SetCapture(leftDown_);
  if (openMenu) session_.ports.host.ShowContextMenu(at);
}

void CompEditor::MoveMouse(PixelPoint at) {
  SetMouse(at);
  right_.Move(session_, at);
  Track();
  Settle();
}

void CompEditor::CaptureLost() {
  EndGesture();
  static_cast<void>(right_.Release());
  session_.SetCapture(false);
}

void CompEditor::Wheel(std::int32_t delta, bool control) {
  if (control || right_.IsHeld()) {
    const std::int32_t notches = zoomSteps_.Take(delta);
    if (notches == 0) return;
    right_.CancelMenu();
    Zoom(notches);
  } else if (const std::int32_t notches = scrollSteps_.Take(delta); notches != 0) {
    Scroll(notches);
  }
}

void CompEditor::Zoom(std::int32_t steps) {
  ViewCoordinates& coordinates = session_.coordinates;
  const SPoint under = session_.mouse ? session_.PointerAt(*session_.mouse).point : SPoint{};
  coordinates.SetZoom(WrapAdd(coordinates.ZoomIndex(), steps));
  if (mouseInside_) coordinates.ScrollToKeep(*session_.mouse, under);
  if (session_.mouse) {
    // What is being dragged or panned goes on from here in the new scale.
    const Pointer pointer = session_.PointerAt(*session_.mouse);
    drag_.ContinueFrom(pointer);
    right_.ContinueFrom(pointer);
  }
  ViewMoved();
}

void CompEditor::Scroll(std::int32_t notches) {
  session_.coordinates.ScrollByLines({0, WrapNeg(notches)});
  ViewMoved();
}

// --- Keys ----------------------------------------------------------------------------------------

bool CompEditor::Key(ViewKey key, bool shift) {
  switch (key) {
    case ViewKey::Escape:
      Escape();
      return true;
    case ViewKey::Menu:
      OpenMenuAtSelection();
      return true;
    case ViewKey::Delete:
      return Execute(Command::Delete);
    case ViewKey::PageUp:
      return Execute(Command::ZoomIn);
    case ViewKey::PageDown:
      return Execute(Command::ZoomOut);
    case ViewKey::S:
      return Execute(Command::Selector);
    case ViewKey::P:
      return Execute(Command::PinTool);
    case ViewKey::L:
      return Execute(Command::LineTool);
    case ViewKey::C:
      return Execute(Command::CircleTool);
    case ViewKey::G:
      return Execute(Command::PolygonTool);
    case ViewKey::A:
      return Execute(Command::ArcTool);
    case ViewKey::T:
      return Execute(Command::TextTool);
    case ViewKey::N:
      return Execute(Command::EditNodeMode);
    default:
      return SelectorKey(key, shift);
  }
}

bool CompEditor::SelectorKey(ViewKey key, bool shift) {
  if (tool_->Kind() != ToolKind::Selector) return false;
  if (key == ViewKey::Enter) return Execute(Command::Property);
  EndGesture();
  const bool done = key == ViewKey::Tab       ? SelectNext(session_)
                    : key == ViewKey::BackTab ? SelectPrevious(session_)
                                              : NudgeSelection(session_, key, shift);
  if (done) ShowSelection();
  Settle();
  return done;
}

void CompEditor::ShowSelection() {
  const SPoint center = session_.document.SelectionRect().Center();
  if (session_.coordinates.VisibleArea().Contains(center)) return;
  const PixelSize client = session_.coordinates.ClientSize();
  session_.ScrollToKeep({client.width / 2, client.height / 2}, center);
}

void CompEditor::Escape() {
  EndGesture();
  const bool released = session_.ReleaseSelection();
  if (!tool_->StepBack(session_) && !released) SetTool(ToolKind::Selector);
  Settle();
}

void CompEditor::OpenMenuAtSelection() {
  EndGesture();
  const PixelSize client = session_.coordinates.ClientSize();
  PixelPoint at{client.width / 2, client.height / 2};
  if (!session_.document.Selection().empty()) {
    const PixelPoint center =
        session_.coordinates.ToDevice(session_.document.SelectionRect().Center());
    if (session_.coordinates.ClientContains(center)) at = center;
  }
  session_.ports.host.ShowContextMenu(at);
}

// --- After every event ---------------------------------------------------------------------------

void CompEditor::Settle() {
  std::optional<NewNodePlace> newNode;
  if (session_.nodeEdit && session_.mouse && !drag_.IsActive()) {
    newNode =
        FindNewNodePlace(session_.document.Selection(), session_.PointerAt(*session_.mouse).point);
  }
  if (newNode != newNode_) session_.pending.repaint = true;
  newNode_ = newNode;
  session_.Flush();
  if (const CursorShape cursor = Cursor(); cursor != cursor_) {
    cursor_ = cursor;
    session_.ports.host.SetCursor(cursor);
  }
  if (State state = CurrentState(); state != state_) {
    state_ = std::move(state);
    session_.ports.host.StateChanged();
  }
  const std::uint64_t revision = session_.document.Revision();
  // A dialog takes the capture, and the release of the button with it.
  const bool inGesture = leftDown_ && session_.HasCapture();
  if (!inGesture && std::exchange(toldRevision_, revision) != revision) {
    session_.ports.host.Edited();
  }
}

CursorShape CompEditor::Cursor() const {
  if (drag_.IsNodeDrag()) return CursorShape::Move;
  if (!session_.mouse) return CursorShape::Arrow;
  const Pointer pointer = session_.PointerAt(*session_.mouse);
  const SPtnObj* const object = session_.SelectedObject();
  const bool onNode = session_.nodeEdit && object != nullptr &&
                      NodeAt(*object, pointer.pixel, session_.coordinates).has_value();
  return onNode || session_.document.SelectionContains(pointer.point) ? CursorShape::Move
                                                                      : CursorShape::Arrow;
}

CompEditor::State CompEditor::CurrentState() const {
  State state;
  for (std::size_t i = 0; i < kViewCommands.size(); ++i) {
    const Command command = kViewCommands[i];
    // The clipboard is other people's: its changes are not ours to notice, and asking is slow.
    if (command != Command::Paste) state.enabled[i] = IsEnabled(command);
    state.checked[i] = IsChecked(command);
  }
  state.hint = Hint();
  return state;
}

std::optional<StringId> CompEditor::Hint() const {
  return session_.component != nullptr ? std::optional(tool_->Hint(session_)) : std::nullopt;
}

}  // namespace mivo
