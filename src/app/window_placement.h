#ifndef MIVO_APP_WINDOW_PLACEMENT_H
#define MIVO_APP_WINDOW_PLACEMENT_H

#include <QSize>
#include <cstdint>

class QWidget;

namespace mivo {

/// How a window is shown, as the settings keep it.
struct WindowPlacement {
  static constexpr std::int32_t kNormal = 1;
  static constexpr std::int32_t kMinimized = 2;
  static constexpr std::int32_t kMaximized = 3;

  std::int32_t show = kNormal;
  /// Of the window when it is neither minimised nor maximised: on Windows in pixels of its screen,
  /// with title bar and borders; elsewhere as the toolkit counts, without what a window manager
  /// adds. Empty when that is not known.
  QSize size;
};

[[nodiscard]] WindowPlacement PlacementOf(const QWidget& window);

/// The size that a placement of `window` has when its inside has `inner`, and the other way round.
[[nodiscard]] QSize PlacedSize(const QWidget& window, QSize inner);
[[nodiscard]] QSize InnerSize(const QWidget& window, QSize placed);

}  // namespace mivo

#endif
