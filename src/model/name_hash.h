#ifndef MIVO_MODEL_NAME_HASH_H
#define MIVO_MODEL_NAME_HASH_H

#include <cstddef>
#include <string_view>

namespace mivo {

/// Hashes names with a key that is another in each run, so that no file can be made whose names all
/// meet in one place of a table.
struct NameHash {
  [[nodiscard]] std::size_t operator()(std::u16string_view name) const noexcept;
};

}  // namespace mivo

#endif
