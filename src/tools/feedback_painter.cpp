#include "feedback_painter.h"

#include <vector>

#include "colors.h"
#include "integer.h"

namespace mivo {
namespace {

const Pen kThinRed{colors::kFeedback, 0};
const Pen kThinGuide{colors::kGuideCircle, 0};

/// Half the height and width of the mark of a new node, in mark pixels of the display.
constexpr std::int32_t kNewNodeReach = 4;

}  // namespace

void FeedbackPainter::Band(SPoint from, SPoint to) {
  renderer_.RenderFocus(SRect::Spanning(from, to), scale_);
}

void FeedbackPainter::HeldPin(const SCompPin& pin) {
  renderer_.RenderHeldPin(pin, bodySize_, swapped_, scale_);
}

void FeedbackPainter::Lines(std::span<const SPoint> points) {
  std::vector<PixelPoint> pixels;
  pixels.reserve(points.size());
  for (const SPoint point : points) pixels.push_back(scale_.Map(point));
  surface_.Polyline(pixels, kThinRed);
}

void FeedbackPainter::Ellipse(SPoint corner1, SPoint corner2) {
  surface_.Ellipse(PixelRect::Around(scale_.Map(corner1), scale_.Map(corner2)), kThinRed, {});
}

void FeedbackPainter::Arc(SPoint center, std::int32_t radius, SPoint from, SPoint to) {
  surface_.Arc(CircleBox(center, radius), scale_.Map(from), scale_.Map(to), kThinRed);
}

void FeedbackPainter::GuideCircle(SPoint center, std::int32_t radius) {
  surface_.Ellipse(CircleBox(center, radius), kThinGuide, {});
}

void FeedbackPainter::NewNodeMark(SPoint point) {
  // A plus sign: a node more.
  const std::int32_t reach = WrapMul(kNewNodeReach, scale_.markPixels);
  const PixelPoint at = scale_.Map(point);
  const Pen pen{colors::kFeedback, scale_.markPixels};
  surface_.Line({WrapSub(at.x, reach), at.y}, {WrapAdd(at.x, reach), at.y}, pen);
  surface_.Line({at.x, WrapSub(at.y, reach)}, {at.x, WrapAdd(at.y, reach)}, pen);
}

PixelRect FeedbackPainter::CircleBox(SPoint center, std::int32_t radius) const noexcept {
  const SPoint reach{radius, radius};
  return PixelRect::Around(scale_.Map(center - reach), scale_.Map(center + reach));
}

}  // namespace mivo
