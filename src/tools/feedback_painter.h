#ifndef MIVO_TOOLS_FEEDBACK_PAINTER_H
#define MIVO_TOOLS_FEEDBACK_PAINTER_H

#include <cstdint>
#include <span>

#include "comp_pin.h"
#include "component_renderer.h"
#include "drawing_surface.h"
#include "geometry.h"
#include "view_scale.h"

namespace mivo {

/// Draws what the user is doing, given in component units, on a surface whose origin is that of the
/// view.
class FeedbackPainter {
 public:
  /// Everything is borrowed.
  FeedbackPainter(DrawingSurface& surface, ComponentRenderer& renderer, const ViewScale& scale,
                  SPoint bodySize, bool swapped)
      : surface_(surface),
        renderer_(renderer),
        scale_(scale),
        bodySize_(bodySize),
        swapped_(swapped) {}

  /// The frame of a selection being made, between two opposite corners.
  void Band(SPoint from, SPoint to);
  /// A pin that is about to be placed.
  void HeldPin(const SCompPin& pin);
  /// Figures that are being drawn.
  void Lines(std::span<const SPoint> points);
  void Ellipse(SPoint corner1, SPoint corner2);
  /// Part of a circle, counter-clockwise between the directions of two points.
  void Arc(SPoint center, std::int32_t radius, SPoint from, SPoint to);
  /// The whole circle of which an arc is going to be part.
  void GuideCircle(SPoint center, std::int32_t radius);
  /// Where a node can be added.
  void NewNodeMark(SPoint point);

 private:
  [[nodiscard]] PixelRect CircleBox(SPoint center, std::int32_t radius) const noexcept;

  DrawingSurface& surface_;
  ComponentRenderer& renderer_;
  const ViewScale& scale_;
  SPoint bodySize_;
  bool swapped_;
};

}  // namespace mivo

#endif
