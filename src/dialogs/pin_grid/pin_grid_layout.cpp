#include "pin_grid_layout.h"

#include <algorithm>
#include <cmath>

namespace mivo {
namespace {

int Scaled(int length, double scale) {
  return std::max(1, static_cast<int>(std::lround(length * scale)));
}

}  // namespace

using namespace pin_grid_column;

PinGridLayout::PinGridLayout(int rowHeight, double scale)
    : rowHeight_(std::max(rowHeight, 1)),
      location_(Scaled(32, scale)),
      name_(Scaled(156, scale)),
      style_(Scaled(80, scale)),
      hide_(Scaled(32, scale)),
      block_(Scaled(100, scale)) {}

int PinGridLayout::Width(int column) const noexcept {
  switch (column) {
    case kLocation:
      return location_;
    case kName:
      return name_;
    case kStyle:
      return style_;
    case kHide:
      return hide_;
    default:
      return block_;
  }
}

int PinGridLayout::Left(int column) const noexcept {
  int left = 0;
  for (int before = 0; before < std::min(column, kFirstBlock); ++before) left += Width(before);
  return left + std::max(0, column - kFirstBlock) * block_;
}

int PinGridLayout::ColumnAt(int x) const noexcept {
  for (int column = kLocation; column < kFirstBlock; ++column) {
    if (x < Left(column + 1)) return column;
  }
  return kFirstBlock + (x - Left(kFirstBlock)) / block_;
}

int PinGridLayout::WholeBlocks(int width) const noexcept {
  return std::max(0, width - Left(kFirstBlock)) / block_;
}

}  // namespace mivo
