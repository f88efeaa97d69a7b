#include "raster_image.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <new>

namespace mivo {
namespace {

constexpr std::uint32_t kOpaque = 0xFF000000;

[[nodiscard]] constexpr std::uint32_t ToWord(Color color) noexcept {
  return kOpaque | (std::uint32_t{color.red} << 16) | (std::uint32_t{color.green} << 8) |
         color.blue;
}

[[nodiscard]] constexpr Color ToColor(std::uint32_t word) noexcept {
  return {static_cast<std::uint8_t>(word >> 16), static_cast<std::uint8_t>(word >> 8),
          static_cast<std::uint8_t>(word)};
}

[[nodiscard]] constexpr bool IsLight(Color color) noexcept {
  return color.red + color.green + color.blue >= 3 * 128;
}

// The bits of one byte from `first` up to but without `end`, counted from its leftmost pixel.
[[nodiscard]] constexpr unsigned char BitMask(unsigned first, unsigned end) noexcept {
  return static_cast<unsigned char>((0xFFu >> first) & ~(0xFFu >> end));
}

void SetBits(unsigned char& byte, unsigned char mask, bool on) noexcept {
  byte = static_cast<unsigned char>(on ? byte | mask : byte & ~mask);
}

}  // namespace

std::optional<RasterImage> RasterImage::Create(PixelSize size, ImageDepth depth) {
  if (size.width < 1 || size.height < 1) return std::nullopt;
  const std::int64_t wordsPerRow =
      depth == ImageDepth::Color ? size.width : (std::int64_t{size.width} + 31) / 32;
  constexpr std::int64_t kMaxWords = std::numeric_limits<std::int32_t>::max() / 4;
  if (wordsPerRow > kMaxWords / size.height) return std::nullopt;
  const auto count = static_cast<std::size_t>(wordsPerRow * size.height);
  std::unique_ptr<std::uint32_t[]> words(new (std::nothrow) std::uint32_t[count]);
  if (!words) return std::nullopt;
  std::fill_n(words.get(), count, depth == ImageDepth::Color ? kOpaque : 0u);
  return RasterImage(size, depth, static_cast<std::size_t>(wordsPerRow), std::move(words));
}

Color RasterImage::PixelAt(std::int32_t x, std::int32_t y) const noexcept {
  if (depth_ == ImageDepth::Color) return ToColor(Words(y)[x]);
  const bool white = (Row(y)[static_cast<std::size_t>(x) / 8] & (0x80u >> (x % 8))) != 0;
  return white ? Color{255, 255, 255} : Color{};
}

void RasterImage::SetPixel(std::int32_t x, std::int32_t y, Color color) noexcept {
  if (depth_ == ImageDepth::Color) {
    Words(y)[x] = ToWord(color);
  } else {
    FillSpan(y, x, x + 1, color);
  }
}

void RasterImage::FillSpan(std::int32_t y, std::int32_t first, std::int32_t end,
                           Color color) noexcept {
  if (depth_ == ImageDepth::Color) {
    std::fill(Words(y) + first, Words(y) + end, ToWord(color));
    return;
  }
  const bool on = IsLight(color);
  unsigned char* const row = reinterpret_cast<unsigned char*>(Words(y));
  unsigned char* const firstByte = row + first / 8;
  unsigned char* const lastByte = row + (end - 1) / 8;
  const auto firstBit = static_cast<unsigned>(first % 8);
  const auto endBit = static_cast<unsigned>((end - 1) % 8 + 1);
  if (firstByte == lastByte) {
    SetBits(*firstByte, BitMask(firstBit, endBit), on);
    return;
  }
  SetBits(*firstByte, BitMask(firstBit, 8), on);
  std::fill(firstByte + 1, lastByte, static_cast<unsigned char>(on ? 0xFF : 0));
  SetBits(*lastByte, BitMask(0, endBit), on);
}

void RasterImage::InvertPixel(std::int32_t x, std::int32_t y) noexcept {
  if (depth_ == ImageDepth::Color) {
    Words(y)[x] ^= ~kOpaque;
  } else {
    unsigned char& byte = reinterpret_cast<unsigned char*>(Words(y))[x / 8];
    byte = static_cast<unsigned char>(byte ^ (0x80u >> (x % 8)));
  }
}

void RasterImage::CopyFrom(const RasterImage& source, const PixelRect& area,
                           PixelPoint at) noexcept {
  if (depth_ != ImageDepth::Color || source.depth_ != ImageDepth::Color) return;
  const auto bytes = static_cast<std::size_t>(area.Width()) * sizeof(std::uint32_t);
  for (std::int32_t y = area.top; y < area.bottom; ++y) {
    std::memcpy(Words(at.y + (y - area.top)) + at.x, source.Words(y) + area.left, bytes);
  }
}

}  // namespace mivo
