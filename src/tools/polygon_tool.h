#ifndef MIVO_TOOLS_POLYGON_TOOL_H
#define MIVO_TOOLS_POLYGON_TOOL_H

#include "figure_tool.h"

namespace mivo {

/// Draws polygons corner by corner; a double click closes them.
class PolygonTool final : public FigureTool {
 public:
  static constexpr std::size_t kMaxClicks = 30;

  [[nodiscard]] ToolKind Kind() const noexcept override { return ToolKind::Polygon; }
  void DoubleClick(EditSession& session) override;

 private:
  [[nodiscard]] StringId StepHint(std::size_t fixed) const override;
  [[nodiscard]] std::size_t MaxFixed() const override { return kMaxClicks; }
  [[nodiscard]] std::unique_ptr<SPtnObj> Complete(
      std::span<const SPoint> /*points*/) const override {
    return nullptr;
  }
  void DrawFigure(std::span<const SPoint> points, FeedbackPainter& painter) const override;
};

}  // namespace mivo

#endif
