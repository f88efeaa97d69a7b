#ifndef MIVO_TOOLS_SELECTOR_TOOL_H
#define MIVO_TOOLS_SELECTOR_TOOL_H

#include <optional>

#include "tool.h"

namespace mivo {

/// Picks what is clicked, or all drawing objects in a band. It may hold a pasted pin that follows
/// the mouse until a click finds a free place for it.
class SelectorTool final : public Tool {
 public:
  explicit SelectorTool(std::optional<SCompPin> heldPin = {}) : heldPin_(std::move(heldPin)) {}

  [[nodiscard]] ToolKind Kind() const noexcept override { return ToolKind::Selector; }
  [[nodiscard]] StringId Hint(const EditSession& session) const override;
  void Press(EditSession& session, const Pointer& pointer) override;
  void Move(EditSession& session, const Pointer& pointer) override;
  void Release(EditSession& session, const Pointer& pointer) override;
  bool StepBack(EditSession& session) override;
  [[nodiscard]] bool HasFeedback() const noexcept override { return band_ || heldPin_; }
  void DrawFeedback(FeedbackPainter& painter) const override;

 private:
  struct Band {
    SPoint from;
    SPoint to;
  };

  std::optional<SCompPin> heldPin_;
  std::optional<Band> band_;
};

}  // namespace mivo

#endif
