#include "common_font.h"

#include <algorithm>
#include <cstdlib>

namespace mivo {

std::int32_t FontPixels(std::int32_t height, std::int32_t numerator,
                        std::int32_t denominator) noexcept {
  const std::int64_t pixels = std::abs(std::int64_t{height}) * numerator / denominator;
  return static_cast<std::int32_t>(
      std::clamp<std::int64_t>(pixels, kMinFontPixels, kMaxFontPixels));
}

Font ScaledFont(const SCommonFont& font, bool vertical, std::int32_t numerator,
                std::int32_t denominator) {
  return {font.face, FontPixels(font.height, numerator, denominator), font.weight, font.italic,
          vertical};
}

}  // namespace mivo
