#include "ptn_form.h"

#include <algorithm>

#include "ptn_obj_text.h"

namespace mivo {
namespace {

constexpr std::int32_t kVerticalUnit = 4;

/// Left or Lower, Right or Upper, Center.
template <typename Anchor>
Anchor AnchorOf(std::int32_t bits) noexcept {
  return static_cast<Anchor>(std::min(bits, 2));
}

}  // namespace

std::int32_t OfferedPenWidth(std::int32_t width) noexcept {
  return std::clamp(width, 0, kMaxPenWidth);
}

HorizontalAnchor HorizontalAnchorOf(std::int32_t align) noexcept {
  return AnchorOf<HorizontalAnchor>(align & SPtnObjText::kAlongMask);
}

VerticalAnchor VerticalAnchorOf(std::int32_t align) noexcept {
  return AnchorOf<VerticalAnchor>((align & SPtnObjText::kAcrossMask) / kVerticalUnit);
}

std::int32_t AlignOf(HorizontalAnchor horizontal, VerticalAnchor vertical) noexcept {
  return static_cast<std::int32_t>(horizontal) +
         kVerticalUnit * static_cast<std::int32_t>(vertical);
}

bool UsesCommonFont(const TextValues& values) noexcept {
  return values.face.empty();
}

void UseCommonFont(TextValues& values) {
  const TextValues fresh;
  values.face = fresh.face;
  values.height = fresh.height;
  values.weight = fresh.weight;
  values.italic = fresh.italic;
}

}  // namespace mivo
