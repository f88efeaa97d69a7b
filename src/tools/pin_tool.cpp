#include "pin_tool.h"

#include "feedback_painter.h"

namespace mivo {

PinTool::PinTool(const EditSession& session) {
  Label({}, {});
  if (session.mouse) {
    pin_.location = session.document.PinLocationFromPoint(session.PointerAt(*session.mouse).point);
  }
}

void PinTool::Label(std::u16string_view name, std::u16string_view number) {
  pin_.SetNameFromDisplayText(name);
  pin_.SetNumber(0, number);
}

void PinTool::Press(EditSession& session, const Pointer& pointer) {
  Move(session, pointer);
  Label(u"NAME", u"NUM");
  session.PlacePin(pin_);
  Label({}, {});
}

void PinTool::Move(EditSession& session, const Pointer& pointer) {
  session.MovePinTo(pin_, pointer.point);
}

void PinTool::DrawFeedback(FeedbackPainter& painter) const {
  painter.HeldPin(pin_);
}

}  // namespace mivo
