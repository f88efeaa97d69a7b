#include "ptn_obj_drawing.h"

#include <array>
#include <utility>

#include "colors.h"
#include "integer.h"
#include "ptn_obj_arc.h"
#include "ptn_obj_circle.h"
#include "ptn_obj_line.h"
#include "ptn_obj_polygon.h"
#include "ptn_obj_text.h"
#include "ptn_text_drawing.h"

namespace mivo {
namespace {

Pen PenOf(const SPtnObj& object, Color color, const PtnPlacement& placement) noexcept {
  const std::int32_t width = placement.Scaled(object.width);
  if (object.style == SPtnObj::kSolid) return {color, width, PenStyle::Solid};
  return {color, width, width > 1 ? PenStyle::Dashed : PenStyle::Dotted};
}

Brush BrushOf(const SPtnObj& object, Color color) noexcept {
  if (object.fill == SPtnObj::kNotFilled) return {};
  if (object.fill == SPtnObj::kFilled) return {color};
  return {color == colors::kBlack ? colors::kWhite : colors::kBlack};
}

void Draw(DrawingSurface& surface, const SPtnObjLine& line, const Pen& pen,
          const PtnPlacement& placement) {
  const PixelPoint start = placement.Map(line.GetNode(0));
  const PixelPoint end = placement.Map(line.GetNode(1));
  if (line.IsCurve()) {
    surface.Bezier({start, placement.Map(line.GetNode(2)), placement.Map(line.GetNode(3)), end},
                   pen);
  } else {
    surface.Line(start, end, pen);
  }
}

void Draw(DrawingSurface& surface, const SPtnObjCircle& circle, const Pen& pen, const Brush& brush,
          const PtnPlacement& placement) {
  const PixelRect box =
      PixelRect::Around(placement.Map(circle.GetNode(0)), placement.Map(circle.GetNode(1)));
  surface.Ellipse(box, pen, brush);
}

void Draw(DrawingSurface& surface, const SPtnObjPolygon& polygon, const Pen& pen,
          const Brush& brush, const PtnPlacement& placement) {
  const std::int32_t count = polygon.GetNodeCount();
  if (count < SPtnObjPolygon::kMinVertices || count > SPtnObjPolygon::kMaxVertices) return;
  std::array<PixelPoint, SPtnObjPolygon::kMaxVertices> points;
  const auto used = static_cast<std::size_t>(count);
  for (std::size_t i = 0; i < used; ++i) points[i] = placement.Map(polygon.Points()[i]);
  surface.Polygon({points.data(), used}, pen, brush);
}

void Draw(DrawingSurface& surface, const SPtnObjArc& arc, const Pen& pen,
          const PtnPlacement& placement) {
  // Far enough out that directions keep their precision, whatever the radius.
  constexpr std::int32_t kDirectionDistance = 500;
  const SPoint center = arc.Center();
  const SPoint toCorner{arc.Radius(), arc.Radius()};
  const PixelRect box =
      PixelRect::Around(placement.Map(center - toCorner), placement.Map(center + toCorner));
  PixelPoint from = placement.Map(PointAtAngle(center, kDirectionDistance, arc.Begin()));
  PixelPoint to = placement.Map(PointAtAngle(center, kDirectionDistance, arc.End()));
  // A mirror image runs the other way.
  if ((placement.orientation & PtnPlacement::kMirrored) != 0) std::swap(from, to);
  surface.Arc(box, from, to, pen);
}

}  // namespace

SPoint PtnPlacement::Oriented(SPoint p) const noexcept {
  const std::int32_t a = box.x;
  const std::int32_t b = box.y;
  const bool mirrored = (orientation & kMirrored) != 0;
  switch (orientation & kTurnMask) {
    case 0:
      return mirrored ? SPoint{WrapSub(a, p.x), p.y} : p;
    case 1:
      return mirrored ? SPoint{p.y, p.x} : SPoint{WrapSub(b, p.y), p.x};
    case 2:
      return mirrored ? SPoint{p.x, WrapSub(b, p.y)} : SPoint{WrapSub(a, p.x), WrapSub(b, p.y)};
    default:
      return mirrored ? SPoint{WrapSub(b, p.y), WrapSub(a, p.x)} : SPoint{p.y, WrapSub(a, p.x)};
  }
}

PixelPoint PtnPlacement::Map(SPoint p) const noexcept {
  const SPoint placed = Placed(p);
  return {Scaled(placed.x), Scaled(placed.y)};
}

std::int32_t PtnPlacement::Scaled(std::int32_t length) const noexcept {
  return WrapScale(length, numerator, denominator);
}

void DrawPtnObj(DrawingSurface& surface, SPtnObj& object, Color color,
                const PtnPlacement& placement, const SCommonFont& commonFont) {
  const Pen pen = PenOf(object, color, placement);
  const Brush brush = BrushOf(object, color);
  switch (object.GetType()) {
    case PtnObjType::Line:
      Draw(surface, static_cast<const SPtnObjLine&>(object), pen, placement);
      break;
    case PtnObjType::Circle:
      Draw(surface, static_cast<const SPtnObjCircle&>(object), pen, brush, placement);
      break;
    case PtnObjType::Polygon:
      Draw(surface, static_cast<const SPtnObjPolygon&>(object), pen, brush, placement);
      break;
    case PtnObjType::Arc:
      Draw(surface, static_cast<const SPtnObjArc&>(object), pen, placement);
      break;
    case PtnObjType::Text:
      DrawPtnText(surface, static_cast<SPtnObjText&>(object), color, placement, commonFont);
      break;
    case PtnObjType::None:
      break;
  }
}

}  // namespace mivo
