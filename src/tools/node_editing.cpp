#include "node_editing.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "component_renderer.h"
#include "ptn_obj_line.h"
#include "ptn_obj_polygon.h"

namespace mivo {
namespace {

/// `share` of the way from `start` to `end`, rounded.
[[nodiscard]] std::int32_t Between(std::int32_t start, std::int32_t end, double share) noexcept {
  const double at = start + (static_cast<double>(end) - start) * share;
  // Rounding cannot leave the two ends, but the arithmetic in front of it could by a hair.
  const double low = std::min(start, end);
  const double high = std::max(start, end);
  return static_cast<std::int32_t>(std::clamp(std::floor(at + 0.5), low, high));
}

}  // namespace

std::optional<std::int32_t> NodeAt(const SPtnObj& object, PixelPoint pixel,
                                   const ViewCoordinates& coordinates) {
  const std::int64_t reach = std::int64_t{kNodeMarkReach} * coordinates.Scale().markPixels;
  for (std::int32_t i = object.GetNodeCount(); i-- > 0;) {
    const PixelPoint mark = coordinates.ToDevice(object.GetNode(i));
    if (std::abs(std::int64_t{mark.x} - pixel.x) <= reach &&
        std::abs(std::int64_t{mark.y} - pixel.y) <= reach) {
      return i;
    }
  }
  return {};
}

std::optional<NewNodePlace> FindNewNodePlace(std::span<const SCompEditElm> selection,
                                             SPoint point) {
  for (std::size_t element = 0; element < selection.size(); ++element) {
    const auto* const polygon = dynamic_cast<const SPtnObjPolygon*>(selection[element].Object());
    if (polygon == nullptr || polygon->GetNodeCount() >= SPtnObjPolygon::kMaxVertices) continue;
    const std::vector<SPoint>& corners = polygon->Points();
    for (std::size_t i = 0; i < corners.size(); ++i) {
      const SPoint start = corners[i];
      const SPoint end = corners[(i + 1) % corners.size()];
      if (!SegmentHitTest(start, end, point)) continue;
      return NewNodePlace{element, static_cast<std::int32_t>(i),
                          NearestOnSegment(start, end, point)};
    }
  }
  return {};
}

SPoint NearestOnSegment(SPoint start, SPoint end, SPoint point) noexcept {
  const double dx = static_cast<double>(end.x) - start.x;
  const double dy = static_cast<double>(end.y) - start.y;
  const double square = dx * dx + dy * dy;
  if (square == 0) return start;
  const double along =
      (static_cast<double>(point.x) - start.x) * dx + (static_cast<double>(point.y) - start.y) * dy;
  const double share = std::clamp(along / square, 0.0, 1.0);
  return {Between(start.x, end.x, share), Between(start.y, end.y, share)};
}

}  // namespace mivo
