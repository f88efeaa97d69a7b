#include "polygon_tool.h"

#include "feedback_painter.h"
#include "ptn_obj_polygon.h"

namespace mivo {

static_assert(PolygonTool::kMaxClicks <= SPtnObjPolygon::kMaxVertices);

void PolygonTool::DoubleClick(EditSession& session) {
  const std::span<const SPoint> points = FixedPoints();
  if (points.size() < SPtnObjPolygon::kMinVertices) return;
  Finish(session, SPtnObjPolygon({points.begin(), points.end()}));
}

StringId PolygonTool::StepHint(std::size_t fixed) const {
  if (fixed == 0) return StringId::HintPlacePolygon;
  if (fixed < SPtnObjPolygon::kMinVertices) return StringId::HintPolygonSecondCorner;
  return fixed < kMaxClicks ? StringId::HintPolygonNextCorner : StringId::HintPolygonFull;
}

void PolygonTool::DrawFigure(std::span<const SPoint> points, FeedbackPainter& painter) const {
  painter.Lines(points);
}

}  // namespace mivo
