#ifndef MIVO_MODEL_COMP_PIN_H
#define MIVO_MODEL_COMP_PIN_H

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "compact_text.h"
#include "packed_texts.h"
#include "record_reader.h"
#include "record_writer.h"

namespace mivo {

enum class PinSide : std::int8_t { Left = 0, Top = 1, Right = 2, Bottom = 3 };

/// Place on the body outline. `offset` counts grid cells, 0 to kMaxOffset, from the top of the left
/// and right side and from the left end of the top and bottom side.
struct SPinLocation {
  static constexpr std::int32_t kMaxOffset = 255;

  PinSide side = PinSide::Left;
  std::int32_t offset = 0;
  bool operator==(const SPinLocation&) const = default;
};

/// One pin of a component.
class SCompPin {
 public:
  // Bits of `type`.
  static constexpr std::int32_t kShapeMask = 0x0F;  ///< 0 plain, or one of the shapes below
  static constexpr std::int32_t kShapeS = 1;
  static constexpr std::int32_t kShapeZ = 2;
  static constexpr std::int32_t kClock = 4;
  static constexpr std::int32_t kNegation = 8;  ///< also together with kClock
  static constexpr std::int32_t kHideNumber = 0x10;

  /// Bit of a name character that marks it as overlined.
  static constexpr char16_t kOverline = 0x80;
  /// Characters that a name read from display text can have.
  static constexpr std::size_t kMaxNameLength = 255;
  static constexpr std::uint32_t kWholeNameShown = 0xFFFFFFFF;

  explicit SCompPin(std::int32_t blockCount = 1) : numbers_(blockCount) {}

  /// Reads the fields behind "+PIN"; the pin gets one number slot for each of `blockCount` blocks.
  /// False when the record is malformed; the caller then drops the pin.
  [[nodiscard]] bool Read(SRecordReader& reader, std::int32_t blockCount);

  /// Writes the record on one line without ending the line.
  bool Write(SRecordWriter& writer) const;

  /// Number slots: one per block of the component.
  [[nodiscard]] std::int32_t NumberCount() const noexcept { return numbers_.Count(); }
  /// The number for block `block`, counted from 0; nothing when absent or out of range.
  [[nodiscard]] std::optional<std::u16string_view> GetNumber(std::int32_t block) const noexcept {
    return numbers_.Get(block);
  }
  /// Does nothing when `block` is out of range.
  void SetNumber(std::int32_t block, std::optional<std::u16string_view> number) {
    numbers_.Set(block, number);
  }
  void ResizeNumbers(std::int32_t count) { numbers_.Resize(count); }

  /// The name as stored: overlined characters carry kOverline.
  [[nodiscard]] std::u16string_view Name() const noexcept { return name_.View(); }
  /// The name as people type and files hold it: "\" in front of every overlined character, every
  /// character reduced to seven bits.
  [[nodiscard]] std::u16string DisplayName() const;
  /// Takes at most kMaxNameLength characters; a lone "\" at the end is dropped.
  void SetNameFromDisplayText(std::u16string_view text);

  bool operator==(const SCompPin&) const = default;

  SPinLocation location;
  std::int32_t type = 0;
  /// One bit per part of the name between slashes, bit 0 the first; a clear bit hides the part.
  std::uint32_t nameMask = kWholeNameShown;

 private:
  /// Sets the name from display text; false when it is displayed as another text.
  bool TakeName(std::u16string_view text);

  CompactText name_;
  PackedTexts numbers_;
};

/// "\" escapes to overlined characters and back, see SCompPin.
[[nodiscard]] std::u16string PinNameFromDisplayText(std::u16string_view text);
[[nodiscard]] std::u16string PinNameToDisplayText(std::u16string_view name);

}  // namespace mivo

#endif
