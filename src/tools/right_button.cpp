#include "right_button.h"

#include <cstdlib>

namespace mivo {
namespace {

/// A mouse that moves this far to the side, or farther than that up or down, pans. Mark pixels of
/// the display.
constexpr std::int64_t kPanSideways = 6;
constexpr std::int64_t kPanUpOrDown = 5;

}  // namespace

void RightButton::Move(EditSession& session, PixelPoint pixel) {
  if (!press_) return;
  const PixelPoint from = press_->at.pixel;
  const std::int32_t mark = session.coordinates.Scale().markPixels;
  if (std::abs(std::int64_t{pixel.x} - from.x) >= kPanSideways * mark ||
      std::abs(std::int64_t{pixel.y} - from.y) > kPanUpOrDown * mark) {
    press_->menuPending = false;
  }
  if (!press_->menuPending) session.ScrollToKeep(pixel, press_->at.point);
}

bool RightButton::Release() noexcept {
  const bool openMenu = press_ && press_->menuPending;
  press_.reset();
  return openMenu;
}

}  // namespace mivo
