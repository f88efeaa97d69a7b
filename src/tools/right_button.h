#ifndef MIVO_TOOLS_RIGHT_BUTTON_H
#define MIVO_TOOLS_RIGHT_BUTTON_H

#include <optional>

#include "edit_session.h"

namespace mivo {

/// The right button: held and moved it pans, held and turned with the wheel it zooms, and pressed
/// and released without either it asks for the floating menu.
class RightButton {
 public:
  [[nodiscard]] bool IsHeld() const noexcept { return press_.has_value(); }

  void Press(const Pointer& pointer) { press_ = HeldPress{pointer, true}; }
  /// Keeps the pressed component point under the mouse once this is more than a trembling hand.
  void Move(EditSession& session, PixelPoint pixel);
  /// No floating menu for this press any more.
  void CancelMenu() noexcept {
    if (press_) press_->menuPending = false;
  }
  /// Pans on from here: the scale changed.
  void ContinueFrom(const Pointer& pointer) noexcept {
    if (press_) press_->at = pointer;
  }
  /// Whether the floating menu is to be opened.
  [[nodiscard]] bool Release() noexcept;

 private:
  struct HeldPress {
    Pointer at;
    bool menuPending = true;
  };

  std::optional<HeldPress> press_;
};

}  // namespace mivo

#endif
