#include "grid_drawing.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <vector>

#include "colors.h"
#include "pin_geometry.h"

namespace mivo {
namespace {

constexpr std::int32_t kFirstUnitFactor = 5;

std::int32_t Saturated(std::int64_t value) noexcept {
  return static_cast<std::int32_t>(std::clamp<std::int64_t>(
      value, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()));
}

// Grid points along one axis.
struct Ticks {
  std::int32_t first;
  std::int32_t last;
  std::int32_t step;
};

Ticks TicksWithin(std::int32_t low, std::int32_t high, std::int32_t step) noexcept {
  const std::int32_t below = low % step;
  return {low - below - (below < 0 ? step : 0), high, step};
}

}  // namespace

SRect VisibleUnits(const PixelRect& bounds, const ViewScale& scale) noexcept {
  // One more unit on each side, since conversion truncates toward zero.
  const auto unit = [&](std::int64_t pixel, std::int64_t more) {
    return Saturated(pixel * scale.divisor / scale.multiplier + more);
  };
  return {unit(bounds.left, -1), unit(bounds.top, -1), unit(bounds.right, 1),
          unit(bounds.bottom, 1)};
}

void DrawGrid(DrawingSurface& surface, const ViewScale& scale) {
  const PixelRect bounds = surface.Bounds();
  const SRect units = VisibleUnits(bounds, scale);
  const bool everyUnit = scale.factor >= kFirstUnitFactor;
  const std::int32_t step = everyUnit ? 1 : kUnitsPerCell;

  // The columns are the same in every row; a large mark is several pixels each way.
  std::vector<std::int32_t> onLine;
  std::vector<std::int32_t> between;
  const Ticks columns = TicksWithin(units.left, units.right, step);
  for (std::int64_t x = columns.first; x <= columns.last; x += columns.step) {
    std::vector<std::int32_t>& target = x % kUnitsPerCell == 0 ? onLine : between;
    for (std::int32_t i = 0; i < scale.markPixels; ++i) {
      target.push_back(WrapAdd(scale.Scaled(static_cast<std::int32_t>(x)), i));
    }
  }
  const Ticks rows = TicksWithin(units.top, units.bottom, step);
  for (std::int64_t y = rows.first; y <= rows.last; y += rows.step) {
    const Color betweenColor = y % kUnitsPerCell == 0 ? colors::kGridCell : colors::kGridUnit;
    for (std::int32_t i = 0; i < scale.markPixels; ++i) {
      const std::int32_t row = WrapAdd(scale.Scaled(static_cast<std::int32_t>(y)), i);
      if (row < bounds.top || row >= bounds.bottom) continue;
      surface.Pixels(row, onLine, colors::kGridCell);
      if (!between.empty()) surface.Pixels(row, between, betweenColor);
    }
  }
}

}  // namespace mivo
