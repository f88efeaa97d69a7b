#ifndef MIVO_TOOLS_ARC_TOOL_H
#define MIVO_TOOLS_ARC_TOOL_H

#include "figure_tool.h"

namespace mivo {

/// Draws arcs by their centre, a point at the radius to its side, and a point in the direction of
/// either end.
class ArcTool final : public FigureTool {
 public:
  [[nodiscard]] ToolKind Kind() const noexcept override { return ToolKind::Arc; }

 private:
  [[nodiscard]] StringId StepHint(std::size_t fixed) const override;
  [[nodiscard]] std::size_t MaxFixed() const override { return 3; }
  [[nodiscard]] std::unique_ptr<SPtnObj> Complete(std::span<const SPoint> points) const override;
  void DrawFigure(std::span<const SPoint> points, FeedbackPainter& painter) const override;
};

}  // namespace mivo

#endif
