#ifndef MIVO_VIEW_RASTER_RASTER_IMAGE_H
#define MIVO_VIEW_RASTER_RASTER_IMAGE_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>

#include "color.h"
#include "pixel_geometry.h"

namespace mivo {

enum class ImageDepth {
  Color,   ///< 32 bits per pixel: 0xFFRRGGBB in the machine's byte order
  OneBit,  ///< black and white, the leftmost pixel in the most significant bit; 0 is black
};

/// Pixels in memory, in rows from the top down that start at multiples of four bytes. The layout is
/// one that window systems take as it is.
class RasterImage {
 public:
  /// A black image of `size` pixels; nothing when a side is below 1 or the memory cannot be had.
  [[nodiscard]] static std::optional<RasterImage> Create(PixelSize size, ImageDepth depth);

  [[nodiscard]] PixelSize Size() const noexcept { return size_; }
  [[nodiscard]] ImageDepth Depth() const noexcept { return depth_; }
  /// Bytes from one row to the next.
  [[nodiscard]] std::size_t Stride() const noexcept { return wordsPerRow_ * sizeof(std::uint32_t); }
  [[nodiscard]] unsigned char* Bytes() noexcept {
    return reinterpret_cast<unsigned char*>(words_.get());
  }
  [[nodiscard]] const unsigned char* Bytes() const noexcept {
    return reinterpret_cast<const unsigned char*>(words_.get());
  }
  /// The bytes of row `y`, which must be in the image.
  [[nodiscard]] std::span<const unsigned char> Row(std::int32_t y) const noexcept {
    return {Bytes() + static_cast<std::size_t>(y) * Stride(), Stride()};
  }

  // All pixels below must be in the image. A one-bit image shows every colour but the light ones as
  // black.

  [[nodiscard]] Color PixelAt(std::int32_t x, std::int32_t y) const noexcept;
  void SetPixel(std::int32_t x, std::int32_t y, Color color) noexcept;
  /// Pixels `first` up to but without `end` of row `y`.
  void FillSpan(std::int32_t y, std::int32_t first, std::int32_t end, Color color) noexcept;
  void InvertPixel(std::int32_t x, std::int32_t y) noexcept;

  /// Copies `area` of `source`, an image of the same depth, to `at`; both must lie inside. One-bit
  /// images cannot be copied.
  void CopyFrom(const RasterImage& source, const PixelRect& area, PixelPoint at) noexcept;

 private:
  RasterImage(PixelSize size, ImageDepth depth, std::size_t wordsPerRow,
              std::unique_ptr<std::uint32_t[]> words) noexcept
      : size_(size), depth_(depth), wordsPerRow_(wordsPerRow), words_(std::move(words)) {}

  [[nodiscard]] std::uint32_t* Words(std::int32_t y) const noexcept {
    return words_.get() + static_cast<std::size_t>(y) * wordsPerRow_;
  }

  PixelSize size_;
  ImageDepth depth_;
  std::size_t wordsPerRow_;
  std::unique_ptr<std::uint32_t[]> words_;
};

}  // namespace mivo

#endif
