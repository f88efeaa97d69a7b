#ifndef MIVO_TOOLS_TOOL_HINT_H
#define MIVO_TOOLS_TOOL_HINT_H

#include <cstdint>
#include <string_view>

namespace mivo {

/// What the current tool expects next, or why it does nothing: one line for the status bar.
enum class ToolHint : std::int8_t {
  None,  ///< no component is open
  Select,
  DragNode,
  PlacePin,
  PlaceLine,
  LineEnd,
  PlaceEllipse,
  EllipseCorner,
  PlacePolygon,
  PolygonSecondCorner,
  PolygonNextCorner,
  PolygonFull,
  PlaceArc,
  ArcRadius,
  ArcStart,
  ArcEnd,
  PlaceText,
  NoPattern,
};

/// The English text.
[[nodiscard]] std::u16string_view HintText(ToolHint hint) noexcept;

}  // namespace mivo

#endif
