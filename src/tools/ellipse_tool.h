#ifndef MIVO_TOOLS_ELLIPSE_TOOL_H
#define MIVO_TOOLS_ELLIPSE_TOOL_H

#include "figure_tool.h"

namespace mivo {

/// Draws ellipses between two opposite corners.
class EllipseTool final : public FigureTool {
 public:
  [[nodiscard]] ToolKind Kind() const noexcept override { return ToolKind::Ellipse; }

 private:
  [[nodiscard]] StringId StepHint(std::size_t fixed) const override;
  [[nodiscard]] std::size_t MaxFixed() const override { return 1; }
  [[nodiscard]] std::unique_ptr<SPtnObj> Complete(std::span<const SPoint> points) const override;
  void DrawFigure(std::span<const SPoint> points, FeedbackPainter& painter) const override;
};

}  // namespace mivo

#endif
