#ifndef MIVO_TOOLS_TOOL_H
#define MIVO_TOOLS_TOOL_H

#include <cstdint>
#include <memory>

#include "edit_session.h"
#include "text_table.h"

namespace mivo {

class FeedbackPainter;

enum class ToolKind : std::int8_t {
  Selector = 1,
  Pin = 2,
  Line = 3,
  Ellipse = 4,
  Polygon = 5,
  Arc = 6,
  Text = 7,
};

/// Whether the tool makes drawing objects, for which a component needs a pattern.
[[nodiscard]] constexpr bool IsDrawingTool(ToolKind kind) noexcept {
  return kind >= ToolKind::Line;
}

/// What the left button and the mouse do. A tool lives from the moment it is chosen until another
/// one is, or another component is opened; what it has begun goes with it.
///
/// Dragging the selection and its nodes comes before all tools: they only see a press that begins
/// nothing of the kind, while a component is open.
class Tool {
 public:
  virtual ~Tool() = default;

  [[nodiscard]] virtual ToolKind Kind() const noexcept = 0;
  /// What is expected next, or why nothing can be done.
  [[nodiscard]] virtual StringId Hint(const EditSession& session) const = 0;

  /// Nothing is selected any more when this comes.
  virtual void Press(EditSession& session, const Pointer& pointer) = 0;
  /// The mouse moved, or the view under it, with or without the button.
  virtual void Move(EditSession& /*session*/, const Pointer& /*pointer*/) {}
  /// Comes once after each Press, for whatever reason the gesture ends there.
  virtual void Release(EditSession& /*session*/, const Pointer& /*pointer*/) {}
  /// Takes the place of the second press of a double click.
  virtual void DoubleClick(EditSession& /*session*/) {}
  /// Takes back the last step; false when there is none.
  virtual bool StepBack(EditSession& /*session*/) { return false; }
  /// Whether the tool has begun something that is to be seen.
  [[nodiscard]] virtual bool HasFeedback() const noexcept { return false; }
  /// What the tool has begun, on top of everything else; only while there is something.
  virtual void DrawFeedback(FeedbackPainter& /*painter*/) const {}
};

/// A tool in its first state.
[[nodiscard]] std::unique_ptr<Tool> MakeTool(ToolKind kind, const EditSession& session);

}  // namespace mivo

#endif
