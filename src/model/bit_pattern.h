#ifndef MIVO_MODEL_BIT_PATTERN_H
#define MIVO_MODEL_BIT_PATTERN_H

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "geometry.h"
#include "record_reader.h"
#include "record_writer.h"

namespace mivo {

/// The bytes of a monochrome image: rows from the top down, each a whole number of 16-bit words,
/// the most significant bit of a byte leftmost. A set bit is a drawn pixel; bits beyond the width
/// are 0. Rows and columns beyond kMaxSide are not stored: they have no set bits.
class SBitPattern {
 public:
  /// Pattern area of a component of 50 cells.
  static constexpr std::int32_t kMaxSide = 501;
  /// All bit patterns of one load together; see BitPatternBudget.
  static constexpr std::int64_t kMaxTotalBytes = std::int64_t{1} << 30;

  /// An image of `size` pixels, which may be anything, with no bit set.
  explicit SBitPattern(SPoint size);

  /// Bytes from one row to the next for an image `width` pixels wide (at most kMaxSide are stored).
  [[nodiscard]] static std::int32_t Stride(std::int32_t width) noexcept;
  /// ((width + 15) ÷ 16) × height × 2 for a positive size, else 0.
  [[nodiscard]] static std::int64_t ByteCountOf(SPoint size) noexcept;

  /// The size that it was made for. A file can change the size of the pattern around it (SPtn)
  /// later, and that size is the one that counts.
  [[nodiscard]] SPoint Size() const noexcept { return size_; }

  /// The stored bytes, row behind row.
  [[nodiscard]] const std::vector<std::uint8_t>& Bytes() const noexcept { return bytes_; }

  /// The stored bytes of row `y` of an image `width` pixels wide: without the row's padding word
  /// bytes, shorter or empty where nothing is stored.
  [[nodiscard]] std::span<const std::uint8_t> Row(std::int32_t width,
                                                  std::int32_t y) const noexcept;
  [[nodiscard]] std::span<std::uint8_t> Row(std::int32_t width, std::int32_t y) noexcept;

  /// A copy for another size: the overlap is kept, pixels beyond the new width are cleared.
  [[nodiscard]] SBitPattern Resized(SPoint oldSize, SPoint newSize) const;

  /// Reads the fields behind "+BMP" of a pattern of `size`; nothing when the record is malformed.
  [[nodiscard]] static std::optional<SBitPattern> Read(SRecordReader& reader, SPoint size);
  /// Writes the whole record for a pattern of `size`.
  void Write(SRecordWriter& writer, SPoint size) const;

  bool operator==(const SBitPattern&) const = default;

 private:
  SPoint size_;
  std::vector<std::uint8_t> bytes_;
};

/// How many bytes of bit patterns a load may still declare. A short file can declare any size, so
/// one load as a whole is held to SBitPattern::kMaxTotalBytes.
class BitPatternBudget {
 public:
  /// Takes `bytes` off; false, with nothing taken, when they are not left.
  [[nodiscard]] bool Take(std::int64_t bytes) noexcept {
    if (bytes > left_) return false;
    left_ -= bytes;
    return true;
  }

 private:
  std::int64_t left_ = SBitPattern::kMaxTotalBytes;
};

}  // namespace mivo

#endif
