#include "comp_property_values.h"

#include <algorithm>

namespace mivo {
namespace {

bool IsWithinLimits(std::int32_t value) noexcept {
  return value >= 1 && value <= CompPropertyValues::kMaxSize;
}

}  // namespace

CompPropertyValues ValuesOf(std::u16string_view name, const SComponent& component) {
  const SPtn* const pattern = component.Pattern();
  return {.name = std::u16string(name),
          .prefix = component.prefix,
          .width = component.Size().x,
          .height = component.Size().y,
          .usePattern = pattern != nullptr,
          .noBitPattern = pattern != nullptr && !pattern->bitPattern,
          .blocks = component.BlockCount(),
          .fixedBlock = component.Type() == BlockType::Fixed,
          .fixedBlockNumber = component.FixedBlock() + 1,
          .sharedBlock = component.Type() == BlockType::Shared,
          .note = component.note,
          .manufacturer = component.manufacturer,
          .partNumber = component.partNumber,
          .package = component.package};
}

void Apply(const CompPropertyValues& values, SComponent& component) {
  if (!values.usePattern) component.UsePattern(false, false);
  component.SetSize({values.width, values.height}, values.usePattern, values.noBitPattern);
  component.SetBlockCount(values.blocks);
  component.SetFixedBlock(values.fixedBlockNumber - 1);
  component.SetBlockType(values.fixedBlock    ? BlockType::Fixed
                         : values.sharedBlock ? BlockType::Shared
                                              : BlockType::General);
  component.prefix = values.prefix;
  component.note = values.note;
  component.manufacturer = values.manufacturer;
  component.partNumber = values.partNumber;
  component.package = values.package;
}

bool IsComponentName(std::u16string_view name) noexcept {
  return !name.empty() && name.size() <= CompPropertyValues::kMaxNameLength &&
         std::all_of(name.begin(), name.end(),
                     [](char16_t c) { return c >= u'!' && c <= u'~' && c != u'{' && c != u'}'; });
}

std::optional<CompPropertyRefusal> Check(const CompPropertyValues& values) noexcept {
  using Field = CompPropertyRefusal::Field;
  if (!IsComponentName(values.name)) {
    return CompPropertyRefusal{StringId::InvalidComponentName, Field::Name};
  }
  if (!IsWithinLimits(values.width)) return CompPropertyRefusal{StringId::SizeRange, Field::Width};
  if (!IsWithinLimits(values.height)) {
    return CompPropertyRefusal{StringId::SizeRange, Field::Height};
  }
  if (!IsWithinLimits(values.blocks)) {
    return CompPropertyRefusal{StringId::BlocksRange, Field::Blocks};
  }
  if (!IsWithinLimits(values.fixedBlockNumber)) {
    return CompPropertyRefusal{StringId::FixedBlockRange, Field::FixedBlockNumber};
  }
  return std::nullopt;
}

BlockControls BlockControlsFor(const CompPropertyValues& values) noexcept {
  const bool isNormal = !values.sharedBlock && !values.fixedBlock;
  return {.isFixedChecked = values.fixedBlock && !values.sharedBlock,
          .isSharedChecked = values.sharedBlock,
          .isBlocksEnabled = isNormal,
          .isFixedNumberEnabled = values.fixedBlock,
          .blocks = isNormal ? values.blocks : 1,
          .fixedNumber = values.fixedBlock && !values.sharedBlock ? values.fixedBlockNumber : 1};
}

}  // namespace mivo
