#include "key_locks.h"

namespace mivo {

std::optional<KeyLocks> ReadKeyLocks() {
  return std::nullopt;
}

}  // namespace mivo
