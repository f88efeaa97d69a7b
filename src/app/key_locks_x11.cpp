// Where the window system is X11; others, which run the same program, do not tell.

#include <QGuiApplication>

#include "key_locks.h"

// Last, since it defines words like None and Bool as macros.
#include <X11/XKBlib.h>

namespace mivo {
namespace {

/// The state of a lamp of the keyboard; off when the keyboard has no such lamp.
bool IsLit(Display* display, const char* lamp) {
  const Atom name = XInternAtom(display, lamp, True);
  int state = False;
  return name != 0 &&
         XkbGetNamedIndicator(display, name, nullptr, &state, nullptr, nullptr) != False &&
         state != False;
}

}  // namespace

std::optional<KeyLocks> ReadKeyLocks() {
  const auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  Display* const display = x11 != nullptr ? x11->display() : nullptr;
  if (display == nullptr) return std::nullopt;
  return KeyLocks{IsLit(display, "Caps Lock"), IsLit(display, "Num Lock"),
                  IsLit(display, "Scroll Lock")};
}

}  // namespace mivo
