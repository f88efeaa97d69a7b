#ifndef MIVO_TOOLS_EDIT_COMMAND_H
#define MIVO_TOOLS_EDIT_COMMAND_H

#include <array>
#include <cstdint>

namespace mivo {

/// What menus, toolbar and keys ask of the editing view. Values are the program's command numbers.
enum class EditCommand : std::int32_t {
  Undo = 57643,
  Cut = 57635,
  Copy = 57634,
  Paste = 57637,
  Delete = 57632,
  Mirror = 32812,
  Rotate = 32814,
  Property = 32803,
  NextPinName = 32838,
  NextPinNumber = 32837,
  ZoomIn = 32785,
  ZoomOut = 32784,
  PinProperty = 32864,
  SwapNameAndNumber = 32870,
  SelectorTool = 32786,
  PinTool = 32788,
  LineTool = 32789,
  EllipseTool = 32790,
  PolygonTool = 32791,
  ArcTool = 32793,
  TextTool = 32833,
  EditNodeMode = 32818,
  CreateBitPattern = 32820,
  AddNode = 32867,
};

inline constexpr std::array kAllEditCommands = {
    EditCommand::Undo,
    EditCommand::Cut,
    EditCommand::Copy,
    EditCommand::Paste,
    EditCommand::Delete,
    EditCommand::Mirror,
    EditCommand::Rotate,
    EditCommand::Property,
    EditCommand::NextPinName,
    EditCommand::NextPinNumber,
    EditCommand::ZoomIn,
    EditCommand::ZoomOut,
    EditCommand::PinProperty,
    EditCommand::SwapNameAndNumber,
    EditCommand::SelectorTool,
    EditCommand::PinTool,
    EditCommand::LineTool,
    EditCommand::EllipseTool,
    EditCommand::PolygonTool,
    EditCommand::ArcTool,
    EditCommand::TextTool,
    EditCommand::EditNodeMode,
    EditCommand::CreateBitPattern,
    EditCommand::AddNode,
};

}  // namespace mivo

#endif
