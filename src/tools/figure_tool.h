#ifndef MIVO_TOOLS_FIGURE_TOOL_H
#define MIVO_TOOLS_FIGURE_TOOL_H

#include <cstddef>
#include <memory>
#include <span>
#include <vector>

#include "tool.h"

namespace mivo {

/// Collects the points that a figure is drawn with, one per click; a further point follows the
/// mouse in between. What the points mean is the derived tool's business.
class FigureTool : public Tool {
 public:
  [[nodiscard]] StringId Hint(const EditSession& session) const final;
  void Press(EditSession& session, const Pointer& pointer) final;
  void Move(EditSession& session, const Pointer& pointer) final;
  bool StepBack(EditSession& session) final;
  [[nodiscard]] bool HasFeedback() const noexcept final { return !fixed_.empty(); }
  void DrawFeedback(FeedbackPainter& painter) const final;

 protected:
  /// What is expected when `fixed` points are fixed.
  [[nodiscard]] virtual StringId StepHint(std::size_t fixed) const = 0;
  /// Fixed points beyond which clicks are ignored.
  [[nodiscard]] virtual std::size_t MaxFixed() const = 0;
  /// The figure, when `points` are all that it takes; null when more must come.
  [[nodiscard]] virtual std::unique_ptr<SPtnObj> Complete(std::span<const SPoint> points) const = 0;
  /// Draws the figure as far as it goes: at least one fixed point, then the one at the mouse.
  virtual void DrawFigure(std::span<const SPoint> points, FeedbackPainter& painter) const = 0;

  [[nodiscard]] std::span<const SPoint> FixedPoints() const noexcept { return fixed_; }
  /// Adds the object and starts over.
  void Finish(EditSession& session, const SPtnObj& object);

 private:
  [[nodiscard]] std::vector<SPoint> PointsWithRubber() const;

  std::vector<SPoint> fixed_;
  SPoint rubber_;
};

}  // namespace mivo

#endif
