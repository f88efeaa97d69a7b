#ifndef MIVO_VIEW_COMMON_FONT_H
#define MIVO_VIEW_COMMON_FONT_H

#include <cstdint>
#include <string>

#include "drawing_surface.h"

namespace mivo {

/// The label font of a program run: pin texts and all pattern texts without a font of their own.
/// The name may be of a font that is not installed; a replacement is the platform's business.
struct SCommonFont {
  std::u16string face = u"Tahoma";
  std::int32_t height = 9;  ///< of the em, component units; the sign has no meaning
  std::int32_t weight = 400;
  bool italic = false;
  bool operator==(const SCommonFont&) const = default;
};

/// Font heights in pixels are kept within these limits: settings and files can ask for anything.
inline constexpr std::int32_t kMinFontPixels = 1;
inline constexpr std::int32_t kMaxFontPixels = 4096;

/// |height| × numerator ÷ denominator in pixels, within the limits.
[[nodiscard]] std::int32_t FontPixels(std::int32_t height, std::int32_t numerator,
                                      std::int32_t denominator) noexcept;

/// The label font at a scale.
[[nodiscard]] Font ScaledFont(const SCommonFont& font, bool vertical, std::int32_t numerator,
                              std::int32_t denominator);

}  // namespace mivo

#endif
