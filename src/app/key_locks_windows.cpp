#include <windows.h>

#include "key_locks.h"

namespace mivo {
namespace {

bool IsOn(int key) {
  return (GetKeyState(key) & 1) != 0;
}

}  // namespace

std::optional<KeyLocks> ReadKeyLocks() {
  return KeyLocks{IsOn(VK_CAPITAL), IsOn(VK_NUMLOCK), IsOn(VK_SCROLL)};
}

}  // namespace mivo
