#ifndef MIVO_TOOLS_VIEW_COMMANDS_H
#define MIVO_TOOLS_VIEW_COMMANDS_H

#include <array>

#include "command.h"

namespace mivo {

/// The commands that the editing view carries out and enables; all others are the main frame's.
inline constexpr std::array kViewCommands = {
    Command::Undo,
    Command::Cut,
    Command::Copy,
    Command::Paste,
    Command::Delete,
    Command::Mirror,
    Command::Rotate,
    Command::Property,
    Command::NextPinName,
    Command::NextPinNumber,
    Command::ZoomIn,
    Command::ZoomOut,
    Command::PinProperty,
    Command::SwapPinNameAndNumber,
    Command::Selector,
    Command::PinTool,
    Command::LineTool,
    Command::CircleTool,
    Command::PolygonTool,
    Command::ArcTool,
    Command::TextTool,
    Command::EditNodeMode,
    Command::CreateBitPattern,
    Command::AddNode,
};

}  // namespace mivo

#endif
