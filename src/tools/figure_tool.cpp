#include "figure_tool.h"

#include "feedback_painter.h"

namespace mivo {

StringId FigureTool::Hint(const EditSession& session) const {
  return session.HasPattern() ? StepHint(fixed_.size()) : StringId::HintNoPattern;
}

void FigureTool::Press(EditSession& session, const Pointer& pointer) {
  if (!session.HasPattern()) return;
  rubber_ = pointer.point;
  if (const std::unique_ptr<SPtnObj> object = Complete(PointsWithRubber())) {
    Finish(session, *object);
  } else if (fixed_.size() < MaxFixed()) {
    fixed_.push_back(rubber_);
    session.pending.repaint = true;
  }
}

void FigureTool::Move(EditSession& session, const Pointer& pointer) {
  if (fixed_.empty() || rubber_ == pointer.point) return;
  rubber_ = pointer.point;
  session.pending.repaint = true;
}

bool FigureTool::StepBack(EditSession& session) {
  if (fixed_.empty()) return false;
  fixed_.pop_back();
  session.pending.repaint = true;
  return true;
}

void FigureTool::DrawFeedback(FeedbackPainter& painter) const {
  DrawFigure(PointsWithRubber(), painter);
}

void FigureTool::Finish(EditSession& session, const SPtnObj& object) {
  session.AddNewObject(object);
  fixed_.clear();
}

std::vector<SPoint> FigureTool::PointsWithRubber() const {
  std::vector<SPoint> points = fixed_;
  points.push_back(rubber_);
  return points;
}

}  // namespace mivo
