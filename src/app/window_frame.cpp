#include "window_frame.h"

#include <QWidget>
#include <QWindow>

namespace mivo {

QMargins CountedFrame(const QWidget& window) {
#ifdef Q_OS_WIN
  static_cast<void>(window.winId());  // before that nobody knows the frame
  return window.windowHandle()->frameMargins();
#else
  static_cast<void>(window);
  return {};
#endif
}

}  // namespace mivo
