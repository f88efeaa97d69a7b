#include "first_paint.h"

#include <QEvent>
#include <QGuiApplication>
#include <QWidget>

#if QT_CONFIG(xcb)  // last, since it defines words like None and Bool as macros
#include <X11/Xlib.h>
#endif

namespace mivo::bench {
namespace {

void AwaitServer() {
#if QT_CONFIG(xcb)
  auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  if (x11 != nullptr) XSync(x11->display(), 0);
#endif
}

}  // namespace

FirstPaint::FirstPaint(QWidget& window, std::function<void()> then)
    : window_(window), then_(std::move(then)) {
  QCoreApplication::instance()->installEventFilter(this);
}

bool FirstPaint::eventFilter(QObject* watched, QEvent* event) {
  if (watched == &window_ && event->type() == QEvent::Paint) {
    QCoreApplication::instance()->removeEventFilter(this);
    // The painted image goes to the server right after this event.
    QMetaObject::invokeMethod(
        this,
        [this] {
          AwaitServer();
          then_();
        },
        Qt::QueuedConnection);
  }
  return false;
}

}  // namespace mivo::bench
