#ifndef MIVO_EDIT_NEXT_NAME_H
#define MIVO_EDIT_NEXT_NAME_H

#include <string>
#include <string_view>

namespace mivo {

/// `text` with the number at its end counted up by one, without leading zeros; a text without a
/// number gets a 1. A9 gives A10, VCC gives VCC1, P007 gives P8. Numbers may have any length.
[[nodiscard]] std::u16string NextName(std::u16string_view text);

}  // namespace mivo

#endif
