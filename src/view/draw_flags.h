#ifndef MIVO_VIEW_DRAW_FLAGS_H
#define MIVO_VIEW_DRAW_FLAGS_H

#include <cstdint>

namespace mivo {

/// How pins and bit patterns are drawn: an or of these bits.
using DrawFlags = std::uint32_t;

inline constexpr DrawFlags kDrawNormal = 1;
inline constexpr DrawFlags kDrawMonochrome = 2;  ///< black
inline constexpr DrawFlags kDrawSelected = 4;    ///< red
inline constexpr DrawFlags kDrawNoTexts = 8;
inline constexpr DrawFlags kDrawGrey = 64;
inline constexpr DrawFlags kDrawSwapped = 2048;  ///< name and number change places

}  // namespace mivo

#endif
