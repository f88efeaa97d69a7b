#define NOMINMAX
#include <windows.h>

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>
#include <QWidget>
#include <utility>

#include "session_end.h"

namespace mivo {

// A toolkit without session management hands the system's messages on all the same.
class SessionEnd::Watch final : public QAbstractNativeEventFilter {
 public:
  Watch(QWidget& window, std::function<bool(bool)> mayEnd)
      : window_(window), mayEnd_(std::move(mayEnd)) {
    QCoreApplication::instance()->installNativeEventFilter(this);
  }

  bool nativeEventFilter(const QByteArray& /*type*/, void* message, qintptr* result) override {
    const MSG& msg = *static_cast<const MSG*>(message);
    if (msg.message == WM_ENDSESSION && msg.wParam != FALSE && std::exchange(mayEndNow_, false)) {
      window_.close();  // the system ends the program without
    }
    if (msg.message != WM_QUERYENDSESSION) return false;
    // Every window of the program is asked in turn, and once more while the question is shown.
    const HWND window = reinterpret_cast<HWND>(window_.winId());
    if (msg.hwnd != window && !isAsking_) return false;
    *result = !isAsking_ && Ask(window) ? TRUE : FALSE;
    return true;
  }

 private:
  bool Ask(HWND window) {
    isAsking_ = true;
    // The system would end a program that does not answer at once, but for a reason that it can
    // show.
    ShutdownBlockReasonCreate(window,
                              reinterpret_cast<const wchar_t*>(window_.windowTitle().utf16()));
    mayEndNow_ = mayEnd_(true);
    ShutdownBlockReasonDestroy(window);
    isAsking_ = false;
    return mayEndNow_;
  }

  QWidget& window_;
  std::function<bool(bool)> mayEnd_;
  bool isAsking_ = false;
  bool mayEndNow_ = false;
};

SessionEnd::SessionEnd(QWidget& window, std::function<bool(bool)> mayEnd)
    : watch_(std::make_unique<Watch>(window, std::move(mayEnd))) {}

SessionEnd::~SessionEnd() = default;

}  // namespace mivo
