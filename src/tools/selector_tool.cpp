#include "selector_tool.h"

#include <cstdlib>

#include "feedback_painter.h"

namespace mivo {
namespace {

/// A mouse that moves less than this between press and release clicks; component units.
constexpr std::int64_t kBandThreshold = 3;

[[nodiscard]] bool IsClick(SPoint from, SPoint to) noexcept {
  return std::abs(std::int64_t{to.x} - from.x) < kBandThreshold &&
         std::abs(std::int64_t{to.y} - from.y) < kBandThreshold;
}

}  // namespace

StringId SelectorTool::Hint(const EditSession& session) const {
  if (heldPin_) return StringId::HintPlacePin;
  return session.nodeEdit && session.SelectedObject() != nullptr ? StringId::HintDragNode
                                                                 : StringId::HintSelect;
}

void SelectorTool::Press(EditSession& session, const Pointer& pointer) {
  if (!heldPin_) {
    band_ = Band{pointer.point, pointer.point};
    return;
  }
  Move(session, pointer);
  if (session.PlacePin(*heldPin_)) heldPin_.reset();
}

void SelectorTool::Move(EditSession& session, const Pointer& pointer) {
  if (band_ && band_->to != pointer.point) {
    band_->to = pointer.point;
    session.pending.repaint = true;
  }
  if (heldPin_) session.MovePinTo(*heldPin_, pointer.point);
}

void SelectorTool::Release(EditSession& session, const Pointer& pointer) {
  if (!band_) return;
  const SPoint from = band_->from;
  band_.reset();
  session.pending.repaint = true;
  if (IsClick(from, pointer.point)) {
    session.PickAt(pointer);
  } else {
    session.PickObjectsInRect(SRect::Spanning(from, pointer.point));
  }
}

bool SelectorTool::StepBack(EditSession& session) {
  if (!heldPin_) return false;
  heldPin_.reset();
  session.pending.repaint = true;
  return true;
}

void SelectorTool::DrawFeedback(FeedbackPainter& painter) const {
  if (band_) painter.Band(band_->from, band_->to);
  if (heldPin_) painter.HeldPin(*heldPin_);
}

}  // namespace mivo
