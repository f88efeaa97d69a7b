#include "keyboard_selection.h"

#include <algorithm>
#include <optional>

namespace mivo {
namespace {

/// Position in the list of the element that the first selected one is a copy of.
[[nodiscard]] std::optional<std::size_t> SelectedPosition(const SCompEditDoc& document) {
  return document.Selection().empty() ? std::nullopt : document.Selection().front().Source();
}

[[nodiscard]] SPoint Displacement(ViewKey arrow, std::int32_t distance) noexcept {
  switch (arrow) {
    case ViewKey::Left:
      return {-distance, 0};
    case ViewKey::Right:
      return {distance, 0};
    case ViewKey::Up:
      return {0, -distance};
    default:
      return {0, distance};
  }
}

enum class Turn : std::int8_t { None, Clockwise, CounterClockwise };

/// Which way round the body an arrow key leads from a place on `side`.
[[nodiscard]] Turn TurnToward(PinSide side, ViewKey arrow) noexcept {
  struct Arrows {
    ViewKey clockwise;
    ViewKey back;
  };
  const auto [clockwise, back] = side == PinSide::Left    ? Arrows{ViewKey::Up, ViewKey::Down}
                                 : side == PinSide::Top   ? Arrows{ViewKey::Right, ViewKey::Left}
                                 : side == PinSide::Right ? Arrows{ViewKey::Down, ViewKey::Up}
                                                          : Arrows{ViewKey::Left, ViewKey::Right};
  if (arrow == clockwise) return Turn::Clockwise;
  return arrow == back ? Turn::CounterClockwise : Turn::None;
}

/// All places on an outline as a ring: up the left side, along the top, down the right side and
/// back along the bottom.
class OutlineRing {
 public:
  explicit OutlineRing(SPoint bodySize) noexcept
      : width_(std::clamp(bodySize.x, 0, SPinLocation::kMaxOffset)),
        height_(std::clamp(bodySize.y, 0, SPinLocation::kMaxOffset)) {}

  [[nodiscard]] std::int32_t Count() const noexcept { return 2 * (width_ + 1) + 2 * (height_ + 1); }

  [[nodiscard]] std::int32_t IndexOf(SPinLocation place) const noexcept {
    const std::int32_t x = std::min(place.offset, width_);
    const std::int32_t y = std::min(place.offset, height_);
    switch (place.side) {
      case PinSide::Left:
        return height_ - y;
      case PinSide::Top:
        return height_ + 1 + x;
      case PinSide::Right:
        return height_ + 1 + width_ + 1 + y;
      case PinSide::Bottom:
        break;
    }
    return Count() - 1 - x;
  }

  [[nodiscard]] SPinLocation At(std::int32_t index) const noexcept {
    if (index <= height_) return {PinSide::Left, height_ - index};
    index -= height_ + 1;
    if (index <= width_) return {PinSide::Top, index};
    index -= width_ + 1;
    if (index <= height_) return {PinSide::Right, index};
    index -= height_ + 1;
    return {PinSide::Bottom, width_ - index};
  }

 private:
  std::int32_t width_;
  std::int32_t height_;
};

}  // namespace

bool SelectNext(EditSession& session) {
  const std::span<const SCompEditElm> elements = session.document.Elements();
  const std::optional<std::size_t> selected = SelectedPosition(session.document);
  // A new element joins the list at its end: nothing comes behind it.
  std::size_t next = selected                               ? *selected + 1
                     : session.document.Selection().empty() ? 0
                                                            : elements.size();
  while (next < elements.size() && !elements[next].IsAlive()) ++next;
  return next < elements.size() && session.PickElement(next);
}

bool SelectPrevious(EditSession& session) {
  const std::span<const SCompEditElm> elements = session.document.Elements();
  std::size_t end = SelectedPosition(session.document).value_or(elements.size());
  while (end > 0 && !elements[end - 1].IsAlive()) --end;
  return end > 0 && session.PickElement(end - 1);
}

bool NudgeSelection(EditSession& session, ViewKey arrow, bool byCell) {
  if (SCompPin* const pin = session.SelectedPin()) {
    const SPinLocation place = NextPinPlace(session.document, pin->location, arrow);
    if (place == pin->location) return true;
    pin->location = place;
    session.SelectionEdited();
    session.pending.pins = true;
    return true;
  }
  const SPoint step = Displacement(arrow, byCell ? kUnitsPerCell : 1);
  if (!session.document.MoveSelection(step.x, step.y)) return false;
  session.pending.repaint = true;
  return true;
}

SPinLocation NextPinPlace(const SCompEditDoc& document, SPinLocation from, ViewKey arrow) {
  const Turn turn = TurnToward(from.side, arrow);
  if (turn == Turn::None) return from;
  const OutlineRing ring(document.BodySize());
  const std::int32_t step = turn == Turn::Clockwise ? 1 : ring.Count() - 1;
  std::int32_t index = ring.IndexOf(from);
  for (std::int32_t i = 1; i < ring.Count(); ++i) {
    index = (index + step) % ring.Count();
    if (document.FindPinAtLocation(ring.At(index)) == nullptr) return ring.At(index);
  }
  return from;
}

}  // namespace mivo
