#include "bit_pattern_drawing.h"

#include <algorithm>
#include <limits>

#include "colors.h"
#include "integer.h"

namespace mivo {
namespace {

BitImage Turned(const BitImageView& bits, std::int32_t quarterTurns, bool flipped) {
  const bool exchanged = (quarterTurns & 1) != 0;
  const std::int32_t width = exchanged ? bits.height : bits.width;
  const std::int32_t height = exchanged ? bits.width : bits.height;
  BitImage turned(width, height);
  for (std::int32_t y = 0; y < bits.height; ++y) {
    for (std::int32_t x = 0; x < bits.width; ++x) {
      if (!bits.At(x, y)) continue;
      const std::int32_t fromRight = bits.width - 1 - x;
      const std::int32_t fromBottom = bits.height - 1 - y;
      SPoint to{x, y};
      if (quarterTurns == 1) to = {fromBottom, x};
      if (quarterTurns == 2) to = {fromRight, fromBottom};
      if (quarterTurns == 3) to = {y, fromRight};
      turned.Set(to.x, flipped ? height - 1 - to.y : to.y);
    }
  }
  return turned;
}

// Turned so that flipping top to bottom afterwards makes the left-right mirror image.
BitImage Oriented(const BitImageView& bits, BitOrientation orientation) {
  constexpr std::int32_t kMaxFlippedRowBytes = 256;
  const std::int32_t turns =
      orientation.mirrored ? (orientation.quarterTurns - 2) & 3 : orientation.quarterTurns & 3;
  const std::int32_t width = (turns & 1) != 0 ? bits.height : bits.width;
  const bool flipped = orientation.mirrored && (width + 15) / 16 * 2 <= kMaxFlippedRowBytes;
  return Turned(bits, turns, flipped);
}

std::int32_t Saturated(std::int64_t value) noexcept {
  return static_cast<std::int32_t>(std::clamp<std::int64_t>(
      value, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()));
}

void Stretch(DrawingSurface& surface, SPoint position, const BitImageView& bits, Color color,
             const ViewScale& scale) {
  const std::int32_t half = scale.UnitWidth() / 2;
  const std::int32_t left = WrapSub(scale.Scaled(position.x), half);
  const std::int32_t top = WrapSub(scale.Scaled(position.y), half);
  const std::int64_t extra = scale.multiplier < scale.divisor ? 1 : 0;
  const auto end = [&](std::int32_t start, std::int32_t length) {
    return Saturated(start + std::int64_t{length} * scale.multiplier / scale.divisor + extra);
  };
  surface.Bits({left, top, end(left, bits.width), end(top, bits.height)}, bits, color);
}

}  // namespace

BitImageView ViewOf(const SBitPattern& bits, SPoint size) noexcept {
  return {bits.Bytes(), std::clamp(size.x, 0, SBitPattern::kMaxSide),
          std::clamp(size.y, 0, SBitPattern::kMaxSide), SBitPattern::Stride(size.x)};
}

void DrawBitPattern(DrawingSurface& surface, SPoint position, const BitImageView& bits,
                    DrawFlags flags, Color color, BitOrientation orientation,
                    const ViewScale& scale) {
  if ((flags & (kDrawNormal | kDrawSelected)) == 0) {
    if ((flags & kDrawMonochrome) == 0) return;
    color = colors::kBlack;
  }
  if ((orientation.quarterTurns & 3) == 0 && !orientation.mirrored) {
    Stretch(surface, position, bits, color, scale);
  } else {
    Stretch(surface, position, Oriented(bits, orientation).View(), color, scale);
  }
}

}  // namespace mivo
