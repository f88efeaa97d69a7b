#ifndef MIVO_BASE_INTEGER_H
#define MIVO_BASE_INTEGER_H

#include <cstdint>

// 32-bit two's-complement arithmetic that wraps. Files supply coordinates without limits, so every
// sum, product and negation of them goes through these helpers: bare operators would be undefined
// behaviour at the ends of the range.

namespace mivo {

[[nodiscard]] constexpr std::int32_t WrapAdd(std::int32_t a, std::int32_t b) noexcept {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}

[[nodiscard]] constexpr std::int32_t WrapSub(std::int32_t a, std::int32_t b) noexcept {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) - static_cast<std::uint32_t>(b));
}

[[nodiscard]] constexpr std::int32_t WrapMul(std::int32_t a, std::int32_t b) noexcept {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) * static_cast<std::uint32_t>(b));
}

[[nodiscard]] constexpr std::int32_t WrapNeg(std::int32_t a) noexcept {
  return WrapSub(0, a);
}

/// |a|; the smallest integer is its own absolute value.
[[nodiscard]] constexpr std::int32_t WrapAbs(std::int32_t a) noexcept {
  return a < 0 ? WrapNeg(a) : a;
}

/// Quotient truncated toward zero; `divisor` must not be 0. The smallest integer divided by -1
/// wraps to itself.
[[nodiscard]] constexpr std::int32_t WrapDiv(std::int32_t a, std::int32_t divisor) noexcept {
  return divisor == -1 ? WrapNeg(a) : a / divisor;
}

/// `value` × `numerator` ÷ `divisor`: the product wraps, the quotient is truncated toward zero.
[[nodiscard]] constexpr std::int32_t WrapScale(std::int32_t value, std::int32_t numerator,
                                               std::int32_t divisor) noexcept {
  return WrapDiv(WrapMul(value, numerator), divisor);
}

/// The integer part of `value`; a value outside the 32-bit range, or not a number, becomes the
/// smallest integer (what the processors of the file format's first home do).
[[nodiscard]] constexpr std::int32_t TruncateToInt(double value) noexcept {
  constexpr std::int32_t kSmallest = -2147483647 - 1;
  return value > -2147483649.0 && value < 2147483648.0 ? static_cast<std::int32_t>(value)
                                                       : kSmallest;
}

}  // namespace mivo

#endif
