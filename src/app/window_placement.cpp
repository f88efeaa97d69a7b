#include "window_placement.h"

#include <QGuiApplication>
#include <QWidget>
#include <QWindow>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace mivo {
namespace {

/// False as well for a window that Windows does not know, which tests draw off screen.
bool IsPlacedByWindows() {
  return QGuiApplication::platformName() == QLatin1String("windows");
}

QSize FrameOf(QWidget& window) {
  window.winId();  // only a window that exists has a frame
  const QMargins margins = window.windowHandle()->frameMargins();
  return {margins.left() + margins.right(), margins.top() + margins.bottom()};
}

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

QSize PlacedSize(QWidget& window, QSize inner) {
  return IsPlacedByWindows() ? (inner + FrameOf(window)) * window.devicePixelRatio() : inner;
}

QSize InnerSize(QWidget& window, QSize placed) {
  if (!IsPlacedByWindows()) return placed;
  return (placed / window.devicePixelRatio() - FrameOf(window)).expandedTo({1, 1});
}

}  // namespace mivo
