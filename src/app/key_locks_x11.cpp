// Where the window system is X11; others, which run the same program, do not tell.

#include <QGuiApplication>

#include "key_locks.h"

// Last, since it defines words like None and Bool as macros.
#include <X11/XKBlib.h>

namespace mivo {
namespace {

// The lamps of every keyboard, as the X keyboard extension's key codes number them.
constexpr unsigned kCapsLamp = 1u << 0;
constexpr unsigned kNumLamp = 1u << 1;
constexpr unsigned kScrollLamp = 1u << 2;

}  // namespace

std::optional<KeyLocks> ReadKeyLocks() {
  const auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  Display* const display = x11 != nullptr ? x11->display() : nullptr;
  unsigned lit = 0;
  if (display == nullptr || XkbGetIndicatorState(display, XkbUseCoreKbd, &lit) != Success) {
    return std::nullopt;
  }
  return KeyLocks{(lit & kCapsLamp) != 0, (lit & kNumLamp) != 0, (lit & kScrollLamp) != 0};
}

}  // namespace mivo
