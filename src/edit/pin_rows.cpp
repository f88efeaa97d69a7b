#include "pin_rows.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <tuple>

#include "integer.h"
#include "number_text.h"

namespace mivo {
namespace {

// Rank of the side, and how far the way around the body has come on it.
std::tuple<std::int32_t, std::int32_t> PlaceOnTheWay(SPinLocation location) noexcept {
  switch (location.side) {
    case PinSide::Left:
      return {0, location.offset};
    case PinSide::Bottom:
      return {1, location.offset};
    case PinSide::Right:
      return {2, WrapNeg(location.offset)};
    case PinSide::Top:
      break;
  }
  return {3, WrapNeg(location.offset)};
}

}  // namespace

std::vector<PinRow> PinRows(const SCompEditDoc& document) {
  std::vector<PinRow> rows;
  for (const SCompEditElm& element : document.Elements()) {
    if (element.IsAlive() && element.Pin() != nullptr) rows.push_back({element.Pin(), false});
  }
  for (const SCompEditElm& element : document.Selection()) {
    if (element.Pin() != nullptr) rows.push_back({element.Pin(), true});
  }
  std::stable_sort(rows.begin(), rows.end(), [](const PinRow& a, const PinRow& b) {
    return PlaceOnTheWay(a.pin->location) < PlaceOnTheWay(b.pin->location);
  });
  return rows;
}

std::u16string LocationText(SPinLocation location) {
  constexpr std::array<char16_t, 4> kLetters = {u'L', u'T', u'R', u'B'};
  std::u16string text(1, kLetters[static_cast<std::size_t>(location.side)]);
  return text.append(IntText(location.offset));
}

}  // namespace mivo
