#include "ellipse_tool.h"

#include "feedback_painter.h"
#include "ptn_obj_circle.h"

namespace mivo {

StringId EllipseTool::StepHint(std::size_t fixed) const {
  return fixed == 0 ? StringId::HintPlaceEllipse : StringId::HintEllipseCorner;
}

std::unique_ptr<SPtnObj> EllipseTool::Complete(std::span<const SPoint> points) const {
  if (points.size() < 2) return nullptr;
  return std::make_unique<SPtnObjCircle>(points[0], points[1]);
}

void EllipseTool::DrawFigure(std::span<const SPoint> points, FeedbackPainter& painter) const {
  painter.Ellipse(points[0], points[1]);
}

}  // namespace mivo
