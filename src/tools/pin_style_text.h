#ifndef MIVO_TOOLS_PIN_STYLE_TEXT_H
#define MIVO_TOOLS_PIN_STYLE_TEXT_H

#include <cstdint>

#include "text_table.h"

namespace mivo {

/// What is said of the style of a pin of `type`, see SCompPin, to those who cannot see it; of a
/// style that cannot be chosen, what is said of the plain one.
[[nodiscard]] TextId PinStyleText(std::int32_t type) noexcept;

}  // namespace mivo

#endif
