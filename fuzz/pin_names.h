#ifndef MIVO_FUZZ_PIN_NAMES_H
#define MIVO_FUZZ_PIN_NAMES_H

#include <algorithm>
#include <string_view>

namespace mivo {

/// Whether a pin's stored name has a character that is shown as a backslash without being one that
/// marks an overline: what is written then means another name.
inline bool HasPlainBackslash(std::u16string_view name) {
  return std::any_of(name.begin(), name.end(), [](char16_t c) { return (c & 0xFF) == u'\\'; });
}

}  // namespace mivo

#endif
