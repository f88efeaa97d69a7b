#ifndef MIVO_MODEL_COMPONENT_H
#define MIVO_MODEL_COMPONENT_H

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "comp_pin.h"
#include "geometry.h"
#include "ptn.h"

namespace mivo {

enum class BlockType : std::int8_t {
  General = 0,  ///< "GEN"
  Shared = 1,   ///< "SHB"
  Fixed = 2,    ///< "FXB"
};

/// "GEN", "SHB" or "FXB".
[[nodiscard]] std::u16string_view BlockTypeName(BlockType type) noexcept;

/// One schematic symbol: a body of grid cells with pins on its outline. Its names are kept by the
/// library. The block count is 1 to 255 and every pin has that many number slots; shared-block and
/// fixed-block components have one block.
class SComponent {
 public:
  static constexpr std::int32_t kMaxBlocks = 255;
  static constexpr std::int32_t kMaxFixedBlock = 255;

  /// What a component record says beside the component itself; one serves record after record.
  struct ReadContext {
    std::u16string name;         ///< the library resolves this
    std::u16string patternName;  ///< and this
    std::vector<SCompPin> pins;  ///< room to collect the pins of a record in; empty outside of Read
  };

  /// Replaces everything by the record behind "+COMP". False when the record is malformed; the
  /// component is then worthless.
  [[nodiscard]] bool Read(SRecordReader& reader, ReadContext& context);

  /// Writes the pattern's record, if there is a pattern, and the component's under `name`. False,
  /// with nothing written, when the name is empty.
  bool Write(SRecordWriter& writer, std::u16string_view name) const;

  /// Body width and height in grid cells; below 1 only in a component that the end of a file cut
  /// off.
  [[nodiscard]] SPoint Size() const noexcept { return size_; }
  /// Stores the size; with `createPattern` an absent pattern is created. A pattern's area follows
  /// the size; `clearBits` drops its bit pattern instead of keeping the overlap.
  void SetSize(SPoint size, bool createPattern, bool clearBits);
  /// The size alone, without a change to the pattern: what the editing document writes back.
  void SetBodySize(SPoint size) noexcept { size_ = size; }

  [[nodiscard]] std::int32_t BlockCount() const noexcept { return blockCount_; }
  /// Limits `count` to 1..255 and gives every pin that many number slots.
  void SetBlockCount(std::int32_t count);

  [[nodiscard]] BlockType Type() const noexcept { return type_; }
  /// Shared and fixed set the block count to 1, shared also the fixed block number to 0.
  void SetBlockType(BlockType type);

  [[nodiscard]] std::int32_t FixedBlock() const noexcept { return fixedBlock_; }
  /// Limits `number` to 0..255.
  void SetFixedBlock(std::int32_t number) noexcept;

  /// Null without a pattern. Components may share the stored pattern until one of them changes it.
  [[nodiscard]] const SPtn* Pattern() const noexcept { return pattern_.get(); }
  /// For changes; makes the pattern this component's own first. Null without a pattern.
  [[nodiscard]] SPtn* MutablePattern();
  /// Shares `pattern`, which nobody may change any more; null for no pattern.
  void SharePattern(std::shared_ptr<SPtn> pattern) noexcept { pattern_ = std::move(pattern); }
  /// Removes the pattern, or creates an absent one and gives it the area of the body.
  void UsePattern(bool on, bool clearBits);
  /// The pattern's size in pixels, or (0, 0) without a pattern.
  [[nodiscard]] SPoint PatternSize() const noexcept;

  /// In record order.
  [[nodiscard]] const std::vector<SCompPin>& Pins() const noexcept { return pins_; }
  /// Replaces all pins, each of which gets one number slot per block.
  void SetPins(std::vector<SCompPin> pins);

  std::u16string prefix = u"U";  ///< reference prefix: the U of U12
  std::u16string note;
  std::u16string manufacturer;
  std::u16string partNumber;  ///< the manufacturer's
  std::u16string package;

 private:
  struct PendingRecord;
  bool ReadKeyedField(SRecordReader& reader, std::u16string_view field, PendingRecord& pending);
  bool ReadFields(SRecordReader& reader, PendingRecord& pending);

  std::vector<SCompPin> pins_;
  std::shared_ptr<SPtn> pattern_;
  SPoint size_;
  std::int32_t blockCount_ = 1;
  std::int32_t fixedBlock_ = 0;
  BlockType type_ = BlockType::General;
};

}  // namespace mivo

#endif
