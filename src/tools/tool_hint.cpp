#include "tool_hint.h"

namespace mivo {

std::u16string_view HintText(ToolHint hint) noexcept {
  switch (hint) {
    case ToolHint::None:
      return u"";
    case ToolHint::Select:
      return u"Select pins and objects";
    case ToolHint::DragNode:
      return u"Drag a node";
    case ToolHint::PlacePin:
      return u"Place pin";
    case ToolHint::PlaceLine:
      return u"Place line";
    case ToolHint::LineEnd:
      return u"Place line: end point";
    case ToolHint::PlaceEllipse:
      return u"Place ellipse";
    case ToolHint::EllipseCorner:
      return u"Place ellipse: opposite corner";
    case ToolHint::PlacePolygon:
      return u"Place polygon";
    case ToolHint::PolygonSecondCorner:
      return u"Place polygon: next corner";
    case ToolHint::PolygonNextCorner:
      return u"Place polygon: next corner, double click to finish";
    case ToolHint::PolygonFull:
      return u"Place polygon: double click to finish";
    case ToolHint::PlaceArc:
      return u"Place arc";
    case ToolHint::ArcRadius:
      return u"Place arc: radius";
    case ToolHint::ArcStart:
      return u"Place arc: start direction";
    case ToolHint::ArcEnd:
      return u"Place arc: end direction";
    case ToolHint::PlaceText:
      return u"Place text";
    case ToolHint::NoPattern:
      return u"The component has no pattern to draw in";
  }
  return u"";
}

}  // namespace mivo
