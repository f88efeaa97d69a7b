#include "component.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>

#include "keyed_field.h"
#include "number_text.h"

namespace mivo {
namespace {

// Without it, the length of a literal is counted each time.
using namespace std::string_view_literals;

/// What a pin takes in memory while the pins of a record are collected: room that grows by
/// doubling.
constexpr std::size_t kPinCost = 3 * sizeof(SCompPin);

constexpr std::array<std::u16string_view, 3> kBlockTypeNames = {u"GEN", u"SHB", u"FXB"};

std::optional<BlockType> BlockTypeFromName(std::u16string_view name) {
  const auto found = std::find(kBlockTypeNames.begin(), kBlockTypeNames.end(), name);
  if (found == kBlockTypeNames.end()) return std::nullopt;
  return static_cast<BlockType>(found - kBlockTypeNames.begin());
}

/// Takes a number from 0 to 255 that has not been given yet, 0 counting as not given.
bool TakeBlockNumber(std::u16string_view value, std::int32_t& number) {
  const std::int32_t parsed = ParseInt(value);
  if (number != 0 || parsed < 0 || parsed > 255) return false;
  number = parsed;
  return true;
}

SPoint PatternArea(SPoint body) {
  return {WrapAdd(WrapMul(10, body.x), 1), WrapAdd(WrapMul(10, body.y), 1)};
}

}  // namespace

std::u16string_view BlockTypeName(BlockType type) noexcept {
  return kBlockTypeNames[static_cast<std::size_t>(type)];
}

/// The keyed fields of a component record as they come, before the record is complete.
struct SComponent::PendingRecord {
  ReadContext& context;
  BlockType type = BlockType::General;
  std::int32_t blockCount = 0;
  std::int32_t fixedBlock = 0;
};

bool SComponent::ReadKeyedField(SRecordReader& reader, std::u16string_view field,
                                PendingRecord& pending) {
  const std::optional<KeyedField> keyed = SplitKeyedField(field, EmptyValue::Allowed);
  if (!keyed) {
    reader.Report(FindingKind::FieldWithoutValue, field);
    return true;
  }
  const auto [key, value] = *keyed;
  bool valid = true;
  if (key == u"N") {
    pending.context.name = reader.TextValue(value);
  } else if (key == u"R") {
    prefix = reader.TextValue(value);
  } else if (key == u"P") {
    pending.context.patternName = reader.TextValue(value);
  } else if (key == u"TYPE") {
    const std::optional<BlockType> type = BlockTypeFromName(reader.TextValue(value));
    if (!type) reader.Report(FindingKind::ValueIgnored, field);
    pending.type = type.value_or(BlockType::General);
  } else if (key == u"NOTE") {
    note = reader.TextValue(value);
  } else if (key == u"MFR") {
    manufacturer = reader.TextValue(value);
  } else if (key == u"MFRPN") {
    partNumber = reader.TextValue(value);
  } else if (key == u"PKG") {
    package = reader.TextValue(value);
  } else if (key == u"X") {
    size_.x = ParseInt(value);
    valid = size_.x >= 0;
  } else if (key == u"Y") {
    size_.y = ParseInt(value);
    valid = size_.y >= 0;
  } else if (key == u"B") {
    valid = TakeBlockNumber(value, pending.blockCount);
  } else if (key == u"FB") {
    valid = TakeBlockNumber(value, pending.fixedBlock);
  } else {
    reader.Report(FindingKind::UnknownKey, field);
  }
  if (!valid) reader.Report(FindingKind::InvalidValue, field);
  return valid;
}

bool SComponent::ReadFields(SRecordReader& reader, PendingRecord& pending) {
  const auto isSized = [&] { return size_.x >= 1 && size_.y >= 1 && pending.blockCount >= 1; };
  std::u16string_view field;
  while (reader.ReadField(field) == FieldStatus::Ok) {
    if (IsText(field, u"+PIN")) {
      if (!isSized()) {
        reader.Report(FindingKind::PinBeforeSize, field);
        return false;
      }
      if (!pending.context.pins.emplace_back().Read(reader, pending.blockCount)) return false;
      if (!reader.Afford(kPinCost)) return false;
    } else if (field.starts_with(u'+')) {
      if (!reader.SkipUnknownRecord(field)) return false;
    } else if (IsText(field, u"-COMP")) {
      if (!pending.context.name.empty() && isSized()) return true;
      reader.Report(FindingKind::IncompleteRecord, field);
      return false;
    } else if (field.starts_with(u'-')) {
      reader.Report(FindingKind::WrongClosingTag, field);
      return false;
    } else if (!ReadKeyedField(reader, field, pending)) {
      return false;
    }
  }
  reader.Report(FindingKind::DataCutOff, u"+COMP");
  return true;
}

bool SComponent::Read(SRecordReader& reader, ReadContext& context) {
  const SRecordReader::RecordScope scope(reader, u"+COMP"sv);
  *this = SComponent();
  context.name.clear();
  context.patternName.clear();
  PendingRecord pending{context};
  const bool good = ReadFields(reader, pending);
  pins_.assign(std::move_iterator(context.pins.begin()), std::move_iterator(context.pins.end()));
  context.pins.clear();
  if (!good) return false;

  type_ = pending.type;
  blockCount_ = pending.blockCount;
  if (type_ == BlockType::Fixed) {
    fixedBlock_ = pending.fixedBlock;
  } else if (pending.fixedBlock != 0) {
    reader.Report(FindingKind::ValueIgnored, u"FB");
  }
  if (type_ != BlockType::General) {
    if (blockCount_ > 1) reader.Report(FindingKind::BlocksReduced, context.name);
    SetBlockCount(1);
  }
  return true;
}

bool SComponent::Write(SRecordWriter& writer, std::u16string_view name) const {
  if (name.empty()) return false;
  if (pattern_) pattern_->Write(writer, name);
  writer.WriteField(u"+COMP");
  writer.WriteText(u"N", name);
  writer.EndLine();
  // A component that the end of a file cut off must not make the saved file unreadable.
  writer.WriteInt(u"X", std::max(size_.x, 1));
  writer.WriteInt(u"Y", std::max(size_.y, 1));
  writer.WriteInt(u"B", std::max(blockCount_, 1));
  writer.EndLine();
  writer.WriteText(u"TYPE", BlockTypeName(type_));
  writer.WriteInt(u"FB", fixedBlock_);
  writer.EndLine();
  writer.WriteText(u"R", prefix);
  writer.EndLine();
  if (pattern_) {
    writer.WriteText(u"P", name);
    writer.EndLine();
  }
  for (const SCompPin& pin : pins_) {
    pin.Write(writer);
    writer.EndLine();
  }
  writer.WriteText(u"NOTE", note);
  writer.WriteText(u"MFR", manufacturer);
  writer.WriteText(u"MFRPN", partNumber);
  writer.WriteText(u"PKG", package);
  writer.WriteField(u"-COMP");
  return writer.EndLine() == FieldStatus::Ok;
}

void SComponent::SetSize(SPoint size, bool createPattern, bool clearBits) {
  size_ = size;
  if (pattern_ || createPattern) UsePattern(true, clearBits);
}

void SComponent::SetBlockCount(std::int32_t count) {
  blockCount_ = std::clamp(count, 1, kMaxBlocks);
  for (SCompPin& pin : pins_) pin.ResizeNumbers(blockCount_);
}

void SComponent::SetBlockType(BlockType type) {
  type_ = type;
  if (type != BlockType::General) SetBlockCount(1);
  if (type == BlockType::Shared) fixedBlock_ = 0;
}

void SComponent::SetFixedBlock(std::int32_t number) noexcept {
  fixedBlock_ = std::clamp(number, 0, kMaxFixedBlock);
}

SPtn* SComponent::MutablePattern() {
  if (pattern_ && pattern_.use_count() > 1) pattern_ = std::make_shared<SPtn>(*pattern_);
  return pattern_.get();
}

void SComponent::UsePattern(bool on, bool clearBits) {
  if (!on) {
    pattern_.reset();
    return;
  }
  if (!pattern_) pattern_ = std::make_shared<SPtn>();
  MutablePattern()->SetBitPatternArea(PatternArea(size_), clearBits);
}

SPoint SComponent::PatternSize() const noexcept {
  return pattern_ ? pattern_->size : SPoint{};
}

void SComponent::SetPins(std::vector<SCompPin> pins) {
  pins_ = std::move(pins);
  for (SCompPin& pin : pins_) pin.ResizeNumbers(blockCount_);
}

}  // namespace mivo
