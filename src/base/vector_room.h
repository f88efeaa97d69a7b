#ifndef MIVO_BASE_VECTOR_ROOM_H
#define MIVO_BASE_VECTOR_ROOM_H

#include <algorithm>
#include <vector>

namespace mivo {

/// Sees to it that one more element can be appended without memory, so that what has to happen
/// together with it happens as a whole or, when there is no memory, not at all. Any number of
/// elements so appended take time with their number.
template <typename T>
void MakeRoomForOne(std::vector<T>& elements) {
  constexpr std::size_t kLeast = 8;
  if (elements.size() < elements.capacity()) return;
  elements.reserve(std::max(kLeast, 2 * elements.size()));
}

}  // namespace mivo

#endif
