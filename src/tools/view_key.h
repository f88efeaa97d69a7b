#ifndef MIVO_TOOLS_VIEW_KEY_H
#define MIVO_TOOLS_VIEW_KEY_H

#include <cstdint>

namespace mivo {

/// Keys that the editing view acts on while it has the focus. The letters mean the keys without
/// Ctrl and Alt, whatever Shift and Caps Lock say.
enum class ViewKey : std::int8_t {
  Escape,
  Delete,
  PageUp,
  PageDown,
  Left,
  Up,
  Right,
  Down,
  Tab,
  BackTab,
  Enter,
  Menu,
  S,
  P,
  L,
  C,
  G,
  A,
  T,
  N,
};

}  // namespace mivo

#endif
