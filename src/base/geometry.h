#ifndef MIVO_BASE_GEOMETRY_H
#define MIVO_BASE_GEOMETRY_H

#include <algorithm>
#include <cstdint>
#include <limits>

#include "integer.h"

namespace mivo {

/// Point, displacement or size in component units (one grid cell is 10 units; y grows downward).
/// All arithmetic wraps at 32 bits.
struct SPoint {
  std::int32_t x = 0;
  std::int32_t y = 0;

  bool operator==(const SPoint&) const = default;

  constexpr SPoint& operator+=(SPoint d) noexcept { return *this = *this + d; }

  friend constexpr SPoint operator+(SPoint a, SPoint b) noexcept {
    return {WrapAdd(a.x, b.x), WrapAdd(a.y, b.y)};
  }
  friend constexpr SPoint operator-(SPoint a, SPoint b) noexcept {
    return {WrapSub(a.x, b.x), WrapSub(a.y, b.y)};
  }
};

/// `p` mirrored left-right about the vertical axis at `axis`: (2·axis − x, y).
[[nodiscard]] constexpr SPoint MirroredAt(SPoint p, std::int32_t axis) noexcept {
  return {WrapSub(WrapMul(2, axis), p.x), p.y};
}

/// `p` turned a quarter about `pivot`, clockwise on the screen: (px + py − y, x − px + py).
[[nodiscard]] constexpr SPoint RotatedAt(SPoint p, SPoint pivot) noexcept {
  return {WrapSub(WrapAdd(pivot.x, pivot.y), p.y), WrapAdd(WrapSub(p.x, pivot.x), pivot.y)};
}

/// Rectangle given by its edges, all of them part of it. Empty until something is included: left
/// and top the largest, right and bottom the smallest integer.
struct SRect {
  std::int32_t left = std::numeric_limits<std::int32_t>::max();
  std::int32_t top = std::numeric_limits<std::int32_t>::max();
  std::int32_t right = std::numeric_limits<std::int32_t>::min();
  std::int32_t bottom = std::numeric_limits<std::int32_t>::min();

  bool operator==(const SRect&) const = default;

  /// The normalised rectangle (left ≤ right, top ≤ bottom) with opposite corners `a` and `b`.
  [[nodiscard]] static constexpr SRect Spanning(SPoint a, SPoint b) noexcept {
    return {std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x), std::max(a.y, b.y)};
  }

  [[nodiscard]] constexpr SPoint TopLeft() const noexcept { return {left, top}; }
  [[nodiscard]] constexpr SPoint BottomRight() const noexcept { return {right, bottom}; }

  /// ((left + right) ÷ 2, (top + bottom) ÷ 2), wrapping sums, truncated toward zero.
  [[nodiscard]] constexpr SPoint Center() const noexcept {
    return {WrapAdd(left, right) / 2, WrapAdd(top, bottom) / 2};
  }

  [[nodiscard]] constexpr bool Contains(SPoint p) const noexcept {
    return left <= p.x && p.x <= right && top <= p.y && p.y <= bottom;
  }

  /// Whether both the top-left and the bottom-right corner of `other` lie inside.
  [[nodiscard]] constexpr bool Contains(const SRect& other) const noexcept {
    return Contains(other.TopLeft()) && Contains(other.BottomRight());
  }

  /// Whether the two have a point in common, touching edges included.
  [[nodiscard]] constexpr bool Touches(const SRect& other) const noexcept {
    return other.top <= bottom && other.bottom >= top && other.left <= right && other.right >= left;
  }

  constexpr void Include(SPoint p) noexcept { Include(SRect{p.x, p.y, p.x, p.y}); }

  constexpr void Include(const SRect& other) noexcept {
    left = std::min(left, other.left);
    top = std::min(top, other.top);
    right = std::max(right, other.right);
    bottom = std::max(bottom, other.bottom);
  }
};

}  // namespace mivo

#endif
