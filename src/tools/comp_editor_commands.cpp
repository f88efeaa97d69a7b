#include <algorithm>
#include <utility>

#include "bit_pattern_creation.h"
#include "clipboard_text.h"
#include "comp_editor.h"
#include "next_name.h"
#include "property_edit.h"
#include "ptn_obj_polygon.h"
#include "selector_tool.h"

namespace mivo {
namespace {

[[nodiscard]] constexpr std::optional<ToolKind> ToolOf(Command command) noexcept {
  switch (command) {
    case Command::Selector:
      return ToolKind::Selector;
    case Command::PinTool:
      return ToolKind::Pin;
    case Command::LineTool:
      return ToolKind::Line;
    case Command::CircleTool:
      return ToolKind::Ellipse;
    case Command::PolygonTool:
      return ToolKind::Polygon;
    case Command::ArcTool:
      return ToolKind::Arc;
    case Command::TextTool:
      return ToolKind::Text;
    default:
      return {};
  }
}

}  // namespace

bool CompEditor::IsEnabled(Command command) const {
  const SCompEditDoc& document = session_.document;
  switch (command) {
    case Command::Undo:
      return document.CanUndo();
    case Command::Cut:
    case Command::Copy:
    case Command::Delete:
      return !document.Selection().empty();
    case Command::Paste: {
      if (session_.component == nullptr) return false;
      const std::optional<std::u16string> text = session_.ports.clipboard.GetText();
      return text && CanPaste(*text);
    }
    case Command::Mirror:
    case Command::Rotate:
      return document.SelectionHasObject();
    case Command::Property:
      return document.SingleSelection() != nullptr;
    case Command::NextPinName:
      return session_.SelectedPin() != nullptr;
    case Command::NextPinNumber:
      return session_.SelectedPin() != nullptr && session_.SelectedPin()->NumberCount() == 1;
    case Command::ZoomIn:
    case Command::ZoomOut:
    case Command::PinProperty:
    case Command::SwapPinNameAndNumber:
      return true;
    case Command::AddNode:
      return newNode_.has_value();
    case Command::EditNodeMode:
    case Command::CreateBitPattern:
      return session_.component != nullptr;
    default:
      return ToolOf(command) && session_.component != nullptr;
  }
}

bool CompEditor::IsChecked(Command command) const {
  switch (command) {
    case Command::EditNodeMode:
      return session_.nodeEdit;
    case Command::SwapPinNameAndNumber:
      return swapped_;
    case Command::PinProperty:
      return session_.ports.host.IsPinGridShown();
    default:
      return ToolOf(command) == tool_->Kind();
  }
}

bool CompEditor::Execute(Command command) {
  // Zooming lets a drag go on; everything else ends it, and may become possible by that.
  if (command == Command::ZoomIn || command == Command::ZoomOut) {
    Zoom(command == Command::ZoomIn ? 1 : -1);
    return true;
  }
  EndGesture();
  if (command == Command::Paste) return Paste();
  if (!IsEnabled(command)) return false;
  Perform(command);
  Settle();
  return true;
}

void CompEditor::Perform(Command command) {
  SCompEditDoc& document = session_.document;
  switch (command) {
    case Command::Undo:
      Undo();
      break;
    case Command::Cut:
      // What did not reach the clipboard is not lost.
      if (document.CopyToClipboard(session_.ports.clipboard)) session_.DeleteSelection();
      break;
    case Command::Copy:
      static_cast<void>(document.CopyToClipboard(session_.ports.clipboard));
      break;
    case Command::Delete:
      session_.DeleteSelection();
      break;
    case Command::Mirror:
      document.MirrorSelection();
      session_.pending.repaint = true;
      break;
    case Command::Rotate:
      document.RotateSelection();
      session_.pending.repaint = true;
      break;
    case Command::Property:
      EditProperty();
      break;
    case Command::NextPinName:
      NextPinName();
      break;
    case Command::NextPinNumber:
      NextPinNumber();
      break;
    case Command::PinProperty:
      session_.ports.host.TogglePinGrid();
      session_.pending.repaint = true;
      break;
    case Command::SwapPinNameAndNumber:
      swapped_ = !swapped_;
      session_.pending.render = true;
      break;
    case Command::EditNodeMode:
      session_.nodeEdit = !session_.nodeEdit;
      session_.pending.repaint = true;
      break;
    case Command::AddNode:
      AddNode();
      break;
    case Command::CreateBitPattern:
      CreateBitPattern();
      break;
    default:
      SetTool(*ToolOf(command));
      break;
  }
}

void CompEditor::SetTool(ToolKind kind) {
  if (kind == tool_->Kind()) return;
  session_.ReleaseSelection();
  RestartTool(MakeTool(kind, session_));
}

void CompEditor::RestartTool(std::unique_ptr<Tool> tool) {
  tool_ = std::move(tool);
  session_.pending.repaint = true;
}

void CompEditor::Undo() {
  session_.document.Undo();
  session_.pending.render = true;
  session_.pending.pins = true;
}

void CompEditor::EditProperty() {
  session_.PrepareForDialog();
  if (SCompPin* const pin = session_.SelectedPin()) {
    if (!EditProperties(*pin, session_.ports.prompts)) return;
    // The next name and number count on from what was entered here.
    session_.document.lastPinName = pin->DisplayName();
    session_.document.lastPinNumber = pin->GetNumber(0).value_or(u"");
    session_.pending.pins = true;
  } else if (!EditProperties(*session_.SelectedObject(), session_.ports.prompts)) {
    return;
  }
  session_.SelectionEdited();
}

void CompEditor::NextPinName() {
  std::u16string& name = session_.document.lastPinName;
  name = NextName(name);
  session_.SelectedPin()->SetNameFromDisplayText(name);
  SelectedPinEdited();
}

void CompEditor::NextPinNumber() {
  std::u16string& number = session_.document.lastPinNumber;
  number = NextName(number);
  session_.SelectedPin()->SetNumber(0, number);
  SelectedPinEdited();
}

bool CompEditor::SelectPin(SPinLocation location) {
  EndGesture();
  const bool found = session_.PickPin(location);
  Settle();
  return found;
}

void CompEditor::SelectedPinEdited() {
  session_.SelectionEdited();
  session_.pending.pins = true;
  Settle();
}

void CompEditor::AddNode() {
  const auto [element, behind, point] = *newNode_;
  SPtnObj* const object = session_.document.Selection()[element].Object();
  static_cast<SPtnObjPolygon*>(object)->InsertNode(behind, point.x, point.y);
  session_.SelectionEdited();
}

void CompEditor::CreateBitPattern() {
  // It goes past the history, straight into the component: only the mark tells that there is
  // something to save.
  if (mivo::CreateBitPattern(session_.component, session_.document, session_.ports.surfaces,
                             session_.ports.commonFont)) {
    session_.document.SetDirty(true);
  }
  session_.pending.render = true;
  session_.pending.pins = true;
}

bool CompEditor::Paste() {
  if (session_.component == nullptr) return false;
  const std::optional<std::u16string> text = session_.ports.clipboard.GetText();
  if (!text || !CanPaste(*text)) return false;
  session_.ReleaseSelection();
  std::optional<SCompPin> heldPin;
  ClipboardContent content = ReadClipboardText(*text, session_.document.Blocks());
  if (auto* const pinText = std::get_if<PinText>(&content)) {
    heldPin = std::move(pinText->pin);
    session_.pending.pins = true;
  } else if (auto* const patternText = std::get_if<PatternText>(&content)) {
    const SPoint corner = session_.coordinates.ToComponent({});
    session_.document.PasteObjects(std::move(patternText->objects), std::max(corner.x, 0),
                                   std::max(corner.y, 0));
  }
  RestartTool(std::make_unique<SelectorTool>(std::move(heldPin)));
  Settle();
  return true;
}

}  // namespace mivo
