#ifndef MIVO_APP_SESSION_END_H
#define MIVO_APP_SESSION_END_H

#include <functional>
#include <memory>

class QWidget;

namespace mivo {

/// The end of the desktop session is a way out like any other: while this object lives, the system
/// waits for `mayEnd`, and goes on with the session when that says no. Its argument says whether it
/// may ask the user.
class SessionEnd final {
 public:
  /// `window` is the program's main window and outlives this object.
  SessionEnd(QWidget& window, std::function<bool(bool)> mayEnd);
  ~SessionEnd();
  SessionEnd(const SessionEnd&) = delete;
  SessionEnd& operator=(const SessionEnd&) = delete;

 private:
  class Watch;
  std::unique_ptr<Watch> watch_;
};

}  // namespace mivo

#endif
