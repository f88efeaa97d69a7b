#include "arc_tool.h"
#include "ellipse_tool.h"
#include "line_tool.h"
#include "pin_tool.h"
#include "polygon_tool.h"
#include "selector_tool.h"
#include "text_tool.h"

namespace mivo {

std::unique_ptr<Tool> MakeTool(ToolKind kind, const EditSession& session) {
  switch (kind) {
    case ToolKind::Selector:
      break;
    case ToolKind::Pin:
      return std::make_unique<PinTool>(session);
    case ToolKind::Line:
      return std::make_unique<LineTool>();
    case ToolKind::Ellipse:
      return std::make_unique<EllipseTool>();
    case ToolKind::Polygon:
      return std::make_unique<PolygonTool>();
    case ToolKind::Arc:
      return std::make_unique<ArcTool>();
    case ToolKind::Text:
      return std::make_unique<TextTool>();
  }
  return std::make_unique<SelectorTool>();
}

}  // namespace mivo
