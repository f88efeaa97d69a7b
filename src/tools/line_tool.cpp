#include "line_tool.h"

#include "feedback_painter.h"
#include "ptn_obj_line.h"

namespace mivo {

StringId LineTool::StepHint(std::size_t fixed) const {
  return fixed == 0 ? StringId::HintPlaceLine : StringId::HintLineEnd;
}

std::unique_ptr<SPtnObj> LineTool::Complete(std::span<const SPoint> points) const {
  if (points.size() < 2) return nullptr;
  auto line = std::make_unique<SPtnObjLine>();
  line->SetStart(points[0]);
  line->SetEnd(points[1]);
  return line;
}

void LineTool::DrawFigure(std::span<const SPoint> points, FeedbackPainter& painter) const {
  painter.Lines(points);
}

}  // namespace mivo
