#include "pin_geometry.h"

#include <algorithm>

#include "integer.h"

namespace mivo {
namespace {

constexpr std::int32_t kPinLength = 10;
constexpr std::int32_t kHitHalfWidth = 4;

PinSide SideFromPoint(SPoint p, SPoint body) noexcept {
  if (0 <= p.x && p.x <= body.x) {
    if (p.y < 0) return PinSide::Top;
    if (p.y > body.y) return PinSide::Bottom;
  }
  // How far inside the nearer of the two upright edges; negative outside of it.
  const std::int32_t toRight = WrapSub(body.x, p.x);
  const bool rightHalf = p.x >= toRight;
  const std::int32_t toEdge = rightHalf ? toRight : p.x;
  const std::int32_t toBottom = WrapSub(body.y, p.y);
  if (p.y > toEdge && toBottom > toEdge) return rightHalf ? PinSide::Right : PinSide::Left;
  return p.y < toBottom ? PinSide::Top : PinSide::Bottom;
}

}  // namespace

SPoint BodyUnits(SPoint bodySize) noexcept {
  return {WrapMul(bodySize.x, kUnitsPerCell), WrapMul(bodySize.y, kUnitsPerCell)};
}

SPoint PinPoint(SPinLocation location, SPoint bodySize) noexcept {
  const SPoint body = BodyUnits(bodySize);
  const std::int32_t along = WrapMul(location.offset, kUnitsPerCell);
  switch (location.side) {
    case PinSide::Left:
      return {0, along};
    case PinSide::Top:
      return {along, 0};
    case PinSide::Right:
      return {body.x, along};
    case PinSide::Bottom:
      break;
  }
  return {along, body.y};
}

SRect PinRect(SPinLocation location, SPoint bodySize) noexcept {
  const SPoint p = PinPoint(location, bodySize);
  SRect rect{p.x, p.y, p.x, p.y};
  if (location.side == PinSide::Left || location.side == PinSide::Right) {
    rect.top = WrapSub(p.y, kHitHalfWidth);
    rect.bottom = WrapAdd(p.y, kHitHalfWidth);
  } else {
    rect.left = WrapSub(p.x, kHitHalfWidth);
    rect.right = WrapAdd(p.x, kHitHalfWidth);
  }
  switch (location.side) {
    case PinSide::Left:
      rect.left = WrapSub(p.x, kPinLength);
      break;
    case PinSide::Top:
      rect.top = WrapSub(p.y, kPinLength);
      break;
    case PinSide::Right:
      rect.right = WrapAdd(p.x, kPinLength);
      break;
    case PinSide::Bottom:
      rect.bottom = WrapAdd(p.y, kPinLength);
      break;
  }
  return rect;
}

SPinLocation PinLocationFromPoint(SPoint point, SPoint bodySize) noexcept {
  const SPoint body = BodyUnits(bodySize);
  const PinSide side = SideFromPoint(point, body);
  const bool upright = side == PinSide::Left || side == PinSide::Right;
  const std::int32_t along =
      std::max(0, upright ? std::min(point.y, body.y) : std::min(point.x, body.x));
  // Files can bring bodies on which the nearest cell is farther along than any pin record can say.
  const std::int32_t cell = WrapAdd(along, kUnitsPerCell / 2) / kUnitsPerCell;
  return {side, std::clamp(cell, 0, SPinLocation::kMaxOffset)};
}

}  // namespace mivo
