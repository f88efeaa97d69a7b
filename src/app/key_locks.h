#ifndef MIVO_APP_KEY_LOCKS_H
#define MIVO_APP_KEY_LOCKS_H

#include <optional>

namespace mivo {

/// Which locks of the keyboard are on.
struct KeyLocks {
  bool caps = false;
  bool num = false;
  bool scroll = false;

  bool operator==(const KeyLocks&) const = default;
};

/// Asks the window system; nothing where it does not tell. Only with a QGuiApplication.
[[nodiscard]] std::optional<KeyLocks> ReadKeyLocks();

}  // namespace mivo

#endif
