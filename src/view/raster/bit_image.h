#ifndef MIVO_VIEW_RASTER_BIT_IMAGE_H
#define MIVO_VIEW_RASTER_BIT_IMAGE_H

#include <cstdint>
#include <span>
#include <vector>

namespace mivo {

/// One bit per pixel in somebody else's bytes: rows from the top down, `stride` bytes apart, the
/// leftmost pixel in the most significant bit.
struct BitImageView {
  std::span<const std::uint8_t> bytes;
  std::int32_t width = 0;
  std::int32_t height = 0;
  std::int32_t stride = 0;

  /// False outside the image and behind the end of the bytes.
  [[nodiscard]] bool At(std::int32_t x, std::int32_t y) const noexcept {
    if (x < 0 || x >= width || y < 0 || y >= height) return false;
    const auto index = static_cast<std::size_t>(y) * static_cast<std::size_t>(stride) +
                       static_cast<std::size_t>(x / 8);
    return index < bytes.size() && (bytes[index] & (0x80u >> (x % 8))) != 0;
  }
};

/// A bit image that owns its bytes.
class BitImage {
 public:
  /// No bit set. Both sides are at least 0.
  BitImage(std::int32_t width, std::int32_t height)
      : width_(width),
        height_(height),
        bytes_(static_cast<std::size_t>(Stride()) * static_cast<std::size_t>(height)) {}

  [[nodiscard]] BitImageView View() const noexcept { return {bytes_, width_, height_, Stride()}; }
  void Set(std::int32_t x, std::int32_t y) noexcept {
    std::uint8_t& byte = bytes_[static_cast<std::size_t>(y) * static_cast<std::size_t>(Stride()) +
                                static_cast<std::size_t>(x / 8)];
    byte = static_cast<std::uint8_t>(byte | (0x80u >> (x % 8)));
  }

 private:
  [[nodiscard]] std::int32_t Stride() const noexcept { return (width_ + 15) / 16 * 2; }

  std::int32_t width_;
  std::int32_t height_;
  std::vector<std::uint8_t> bytes_;
};

}  // namespace mivo

#endif
