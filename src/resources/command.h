#ifndef MIVO_RESOURCES_COMMAND_H
#define MIVO_RESOURCES_COMMAND_H

#include <cstdint>

namespace mivo {

/// What the user can ask for, by the number under which menus, accelerators, toolbar and texts know
/// it.
enum class Command : std::int32_t {
  MoveNameUp = 1000,
  MoveNameDown = 1001,

  CutComponent = 32777,
  CopyComponent = 32780,
  PasteComponent = 32781,
  ZoomOut = 32784,
  ZoomIn = 32785,
  Selector = 32786,
  PinTool = 32788,
  LineTool = 32789,
  CircleTool = 32790,
  PolygonTool = 32791,
  ArcTool = 32793,
  Property = 32803,
  NewComponent = 32808,
  ComponentProperty = 32810,
  Mirror = 32812,
  Rotate = 32814,
  EditNodeMode = 32818,
  CreateBitPattern = 32820,
  LibraryProperty = 32827,
  AddAlias = 32829,
  SortByName = 32832,
  TextTool = 32833,
  NextPinNumber = 32837,
  NextPinName = 32838,
  PinProperty = 32864,
  AddNode = 32867,
  SwapPinNameAndNumber = 32870,
  SafetyCopies = 32871,

  New = 57600,
  Open = 57601,
  Save = 57603,
  SaveAs = 57604,
  Delete = 57632,
  Copy = 57634,
  Cut = 57635,
  Paste = 57637,
  Undo = 57643,
  About = 57664,
  Exit = 57665,
  Manual = 57666,
};

}  // namespace mivo

#endif
