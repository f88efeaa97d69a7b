#include "comp_editor.h"
#include "component_renderer.h"
#include "feedback_painter.h"

namespace mivo {
namespace {

/// The block whose pin numbers are shown; nothing in the program chooses another one.
constexpr std::int32_t kShownBlock = 0;

}  // namespace

void CompEditor::PaintBack(DrawingSurface& surface) {
  surface.SetOrigin(session_.coordinates.Origin());
  ComponentRenderer renderer(surface, session_.ports.commonFont);
  const ViewScale scale = session_.coordinates.Scale();
  if (session_.component == nullptr) {
    renderer.Render(nullptr, scale);
    return;
  }
  ComponentPicture picture = ComponentPicture::Of(*session_.component, session_.document.BodySize(),
                                                  session_.document.Elements());
  picture.block = kShownBlock;
  picture.swapped = swapped_;
  renderer.Render(&picture, scale);
}

bool CompEditor::HasFront() const noexcept {
  return !session_.document.Selection().empty() || tool_->HasFeedback();
}

void CompEditor::PaintFront(DrawingSurface& surface) {
  if (session_.component == nullptr) return;
  SCompEditDoc& document = session_.document;
  surface.SetOrigin(session_.coordinates.Origin());
  ComponentRenderer renderer(surface, session_.ports.commonFont);
  const ViewScale scale = session_.coordinates.Scale();
  renderer.RenderSelection(document.Selection(), document.BodySize(), kShownBlock, swapped_, scale);
  // A text knows its extent only once it has been drawn.
  document.UpdateSelectionRect();
  const SPtnObj* const object = session_.SelectedObject();
  if (tool_->Kind() == ToolKind::Selector && session_.nodeEdit && object != nullptr) {
    renderer.RenderNodeMarks(*object, scale);
  }
  if (!document.Selection().empty()) renderer.RenderFocus(document.SelectionRect(), scale);
  FeedbackPainter painter(surface, renderer, scale, document.BodySize(), swapped_);
  if (tool_->HasFeedback()) tool_->DrawFeedback(painter);
  if (newNode_) painter.NewNodeMark(newNode_->point);
}

}  // namespace mivo
