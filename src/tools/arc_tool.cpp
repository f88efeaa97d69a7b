#include "arc_tool.h"

#include "feedback_painter.h"
#include "integer.h"
#include "ptn_obj_arc.h"

namespace mivo {
namespace {

/// Only the horizontal distance counts.
[[nodiscard]] std::int32_t Radius(SPoint center, SPoint point) noexcept {
  return WrapAbs(WrapSub(point.x, center.x));
}

}  // namespace

StringId ArcTool::StepHint(std::size_t fixed) const {
  switch (fixed) {
    case 0:
      return StringId::HintPlaceArc;
    case 1:
      return StringId::HintArcRadius;
    case 2:
      return StringId::HintArcStart;
    default:
      return StringId::HintArcEnd;
  }
}

std::unique_ptr<SPtnObj> ArcTool::Complete(std::span<const SPoint> points) const {
  if (points.size() < 4) return nullptr;
  auto arc = std::make_unique<SPtnObjArc>();
  arc->SetCenter(points[0]);
  arc->SetRadius(Radius(points[0], points[1]));
  arc->SetBeginFromPoint(points[2].x, points[2].y);
  arc->SetEndFromPoint(points[3].x, points[3].y);
  return arc;
}

void ArcTool::DrawFigure(std::span<const SPoint> points, FeedbackPainter& painter) const {
  const SPoint center = points[0];
  const std::int32_t radius = Radius(center, points[1]);
  painter.GuideCircle(center, radius);
  if (points.size() < 3) return;
  // As long as there is no end, half a circle shows which way round the arc will go.
  const SPoint end = points.size() > 3 ? points[3] : center + (center - points[2]);
  painter.Arc(center, radius, points[2], end);
}

}  // namespace mivo
