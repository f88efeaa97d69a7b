#include "window_placement.h"

#include <QGuiApplication>
#include <QWidget>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace mivo {
namespace {

#ifdef Q_OS_WIN
/// False as well for a window that Windows does not know, which tests draw off screen.
bool IsPlacedByWindows() {
  return QGuiApplication::platformName() == QLatin1String("windows");
}

/// What Windows counts in beside the window's content. The toolkit's margins would lack the borders
/// that are not drawn.
QSize FrameOf(const QWidget& window) {
  const HWND handle = reinterpret_cast<HWND>(window.winId());
  RECT outer{};
  RECT inner{};
  GetWindowRect(handle, &outer);
  GetClientRect(handle, &inner);
  return {static_cast<int>(outer.right - outer.left - inner.right),
          static_cast<int>(outer.bottom - outer.top - inner.bottom)};
}
#endif

}  // namespace

WindowPlacement PlacementOf(const QWidget& window) {
#ifdef Q_OS_WIN
  if (IsPlacedByWindows()) {
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    if (!GetWindowPlacement(reinterpret_cast<HWND>(window.winId()), &placement)) return {};
    const RECT& normal = placement.rcNormalPosition;
    return {static_cast<std::int32_t>(placement.showCmd),
            QSize(normal.right - normal.left, normal.bottom - normal.top)};
  }
#endif
  const bool isNormal = !window.isMaximized() && !window.isMinimized() && !window.isFullScreen();
  WindowPlacement placement;
  if (window.isMaximized()) placement.show = WindowPlacement::kMaximized;
  if (window.isMinimized()) placement.show = WindowPlacement::kMinimized;
  placement.size = isNormal ? window.size() : window.normalGeometry().size();
  return placement;
}

QSize PlacedSize([[maybe_unused]] const QWidget& window, QSize inner) {
#ifdef Q_OS_WIN
  if (IsPlacedByWindows()) return inner * window.devicePixelRatio() + FrameOf(window);
#endif
  return inner;
}

QSize InnerSize([[maybe_unused]] const QWidget& window, QSize placed) {
#ifdef Q_OS_WIN
  if (IsPlacedByWindows()) {
    return ((placed - FrameOf(window)) / window.devicePixelRatio()).expandedTo({1, 1});
  }
#endif
  return placed;
}

}  // namespace mivo
