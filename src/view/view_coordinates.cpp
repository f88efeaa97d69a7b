#include "view_coordinates.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "pin_geometry.h"

namespace mivo {
namespace {

// Size in grid cells of what is shown without a component.
constexpr SPoint kNoBody{1, 1};

// Beyond any display, and small enough that scaled margins cannot overflow.
constexpr double kMaxDevicePixelRatio = 64;

std::int32_t Rounded(double value) noexcept {
  return std::max(1, static_cast<std::int32_t>(std::lround(value)));
}

}  // namespace

void ViewCoordinates::SetBody(std::optional<SPoint> cells) {
  body_ = cells;
  UpdateExtent();
}

void ViewCoordinates::SetMargin(std::int32_t margin) {
  margin_ = std::clamp(margin, kMinMargin, kMaxMargin);
  UpdateExtent();
}

void ViewCoordinates::SetClientSize(PixelSize size) {
  client_ = size;
  PlaceBoth(x_.bar.position, y_.bar.position);
}

void ViewCoordinates::SetDevicePixelRatio(double ratio) {
  devicePixelRatio_ = ratio > 0 ? std::min(ratio, kMaxDevicePixelRatio) : 1.0;
  UpdateScale();
}

void ViewCoordinates::SetZoom(std::int32_t index) {
  zoomIndex_ = std::clamp(index, 0, static_cast<std::int32_t>(kZoomTable.size()) - 1);
  UpdateScale();
}

void ViewCoordinates::ScrollTo(PixelPoint position) {
  PlaceBoth(position.x, position.y);
}

void ViewCoordinates::ScrollByLines(SPoint lines) {
  const std::int64_t line = std::int64_t{kScrollLine} * scale_.markPixels;
  PlaceBoth(x_.bar.position + lines.x * line, y_.bar.position + lines.y * line);
}

void ViewCoordinates::ScrollToKeep(PixelPoint pixel, SPoint point) {
  const std::int64_t margin = MarginPixels();
  const PixelPoint scaled = scale_.Map(point);
  PlaceBoth(std::int64_t{scaled.x} - pixel.x + margin, std::int64_t{scaled.y} - pixel.y + margin);
}

PixelPoint ViewCoordinates::ToDevice(SPoint point) const noexcept {
  const PixelPoint scaled = scale_.Map(point);
  return {WrapSub(scaled.x, x_.origin), WrapSub(scaled.y, y_.origin)};
}

SPoint ViewCoordinates::ToComponent(PixelPoint pixel) const noexcept {
  return scale_.Unmap({WrapAdd(pixel.x, x_.origin), WrapAdd(pixel.y, y_.origin)});
}

bool ViewCoordinates::ClientContains(PixelPoint pixel) const noexcept {
  return 0 <= pixel.x && pixel.x < client_.width && 0 <= pixel.y && pixel.y < client_.height;
}

SRect ViewCoordinates::VisibleArea() const noexcept {
  return SRect::Spanning(ToComponent({0, 0}), ToComponent({client_.width, client_.height}));
}

void ViewCoordinates::UpdateScale() {
  scale_.factor = kZoomTable[static_cast<std::size_t>(zoomIndex_)];
  scale_.multiplier = Rounded(scale_.factor * devicePixelRatio_);
  scale_.divisor = 1;
  scale_.markPixels = Rounded(devicePixelRatio_);
  UpdateExtent();
}

void ViewCoordinates::UpdateExtent() {
  const SPoint cells = body_.value_or(kNoBody);
  const auto extent = [&](std::int64_t side) {
    const std::int64_t units = side * kUnitsPerCell + 2 * std::int64_t{margin_};
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(
        units * scale_.multiplier / scale_.divisor, 0, std::numeric_limits<std::int32_t>::max()));
  };
  extent_ = {extent(cells.x), extent(cells.y)};
  PlaceBoth(x_.bar.position, y_.bar.position);
}

void ViewCoordinates::Place(Axis& axis, std::int64_t position, std::int32_t extent,
                            std::int32_t client) const {
  axis.bar.range = extent;
  axis.bar.page = client;
  if (extent <= client) {
    axis.bar.position = 0;
    axis.origin = -MarginPixels() - (client - extent) / 2;
  } else {
    axis.bar.position =
        static_cast<std::int32_t>(std::clamp<std::int64_t>(position, 0, extent - client));
    axis.origin = axis.bar.position - MarginPixels();
  }
}

void ViewCoordinates::PlaceBoth(std::int64_t x, std::int64_t y) {
  Place(x_, x, extent_.width, client_.width);
  Place(y_, y, extent_.height, client_.height);
}

}  // namespace mivo
