#ifndef MIVO_DIALOGS_PTN_FORM_H
#define MIVO_DIALOGS_PTN_FORM_H

#include <cstdint>

#include "property_values.h"

// What the dialogs of drawing objects decide.

namespace mivo {

/// The largest pen width that the dialogs offer, component units.
inline constexpr std::int32_t kMaxPenWidth = 5;

/// The nearest of the widths that the dialogs offer.
[[nodiscard]] std::int32_t OfferedPenWidth(std::int32_t width) noexcept;

enum class HorizontalAnchor : std::int32_t { Left = 0, Right = 1, Center = 2 };
enum class VerticalAnchor : std::int32_t { Lower = 0, Upper = 1, Center = 2 };

// Alignment bits as in SPtnObjText; bits that mean nothing count as centred.
[[nodiscard]] HorizontalAnchor HorizontalAnchorOf(std::int32_t align) noexcept;
[[nodiscard]] VerticalAnchor VerticalAnchorOf(std::int32_t align) noexcept;
[[nodiscard]] std::int32_t AlignOf(HorizontalAnchor horizontal, VerticalAnchor vertical) noexcept;

/// Characters that can be typed as a text of a pattern.
inline constexpr int kMaxPtnTextLength = 250;

[[nodiscard]] bool UsesCommonFont(const TextValues& values) noexcept;
/// Takes the text's own font away.
void UseCommonFont(TextValues& values);

}  // namespace mivo

#endif
