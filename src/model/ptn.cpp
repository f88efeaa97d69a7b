#include "ptn.h"

#include <algorithm>
#include <utility>

#include "keyed_field.h"
#include "number_text.h"

namespace mivo {
namespace {

// Without it, the length of a literal is counted each time.
using namespace std::string_view_literals;

/// What a drawing object takes in memory, roughly.
constexpr std::size_t kObjectCost = 96;

/// Takes the bit pattern behind "+BMP" where the pattern is ready for it, and skips it elsewhere.
/// False when that fails the pattern.
bool ReadBitPattern(SRecordReader& reader, BitPatternBudget& budget, bool named, SPtn& pattern) {
  const bool ready = named && pattern.size.x > 0 && pattern.size.y > 0;
  if (!ready || pattern.bitPattern) {
    reader.Report(ready ? FindingKind::SurplusValue : FindingKind::BitPatternSkipped, u"+BMP");
    if (reader.SkipRecord(u"+BMP") == FieldStatus::Ok) return true;
    reader.Report(FindingKind::UnclosedRecord, u"+PTN");
    return false;
  }
  if (!budget.Take(SBitPattern::ByteCountOf(pattern.size))) {
    reader.Report(FindingKind::BitPatternsTooLarge, u"+BMP");
    return false;
  }
  pattern.bitPattern = SBitPattern::Read(reader, pattern.size);
  return pattern.bitPattern.has_value();
}

/// Looks after a size that has changed behind the bit pattern: it will be saved in front of it.
/// False when that fails the pattern.
bool CheckSize(SRecordReader& reader, BitPatternBudget& budget, const SPtn& pattern) {
  if (!pattern.bitPattern || pattern.bitPattern->Size() == pattern.size) return true;
  reader.Report(FindingKind::NotCanonical, u"+BMP");
  const std::int64_t more =
      SBitPattern::ByteCountOf(pattern.size) - SBitPattern::ByteCountOf(pattern.bitPattern->Size());
  if (more <= 0 || budget.Take(more)) return true;
  reader.Report(FindingKind::BitPatternsTooLarge, u"+BMP");
  return false;
}

}  // namespace

SPtn::SPtn(const SPtn& other) : name(other.name), size(other.size), bitPattern(other.bitPattern) {
  objects.reserve(other.objects.size());
  for (const auto& object : other.objects) objects.push_back(object->Clone());
}

SPtn& SPtn::operator=(const SPtn& other) {
  if (this != &other) *this = SPtn(other);
  return *this;
}

bool SPtn::Read(SRecordReader& reader, BitPatternBudget& budget) {
  const SRecordReader::RecordScope scope(reader, u"+PTN"sv);
  bitPattern.reset();
  objects.clear();
  bool named = false;
  std::u16string_view field;
  while (reader.ReadField(field) == FieldStatus::Ok) {
    if (field == u"-PTN"sv) return CheckSize(reader, budget, *this);
    if (field.starts_with(u'-')) {
      reader.Report(FindingKind::WrongClosingTag, field);
      return false;
    }
    if (field == u"+BMP"sv) {
      if (!ReadBitPattern(reader, budget, named, *this)) return false;
    } else if (field.starts_with(u'+')) {
      if (std::unique_ptr<SPtnObj> object = CreatePtnObj(field)) {
        const std::u16string tag(field);
        if (object->Read(reader)) {
          objects.push_back(std::move(object));
          if (!reader.Afford(kObjectCost)) return false;
        } else {
          reader.Report(FindingKind::ObjectDropped, tag);
        }
        continue;
      }
      if (!reader.SkipUnknownRecord(field)) return false;
    } else if (const auto keyed = SplitKeyedField(field, EmptyValue::Refused)) {
      if (keyed->key == u"X") {
        size.x = ParseInt(keyed->value);
      } else if (keyed->key == u"Y") {
        size.y = ParseInt(keyed->value);
      } else if (keyed->key == u"N") {
        name = reader.TextValue(keyed->value);
        named = true;
      } else {
        reader.Report(FindingKind::UnknownKey, field);
      }
    } else {
      reader.Report(FindingKind::FieldWithoutValue, field);
    }
  }
  reader.Report(FindingKind::DataCutOff, u"+PTN");
  return CheckSize(reader, budget, *this);
}

void SPtn::Write(SRecordWriter& writer, std::u16string_view recordName) const {
  writer.WriteField(u"+PTN");
  writer.WriteText(u"N", recordName);
  writer.WriteInt(u"X", size.x);
  writer.WriteInt(u"Y", size.y);
  writer.EndLine();
  if (bitPattern) bitPattern->Write(writer, size);
  for (const auto& object : objects) object->Write(writer);
  writer.WriteField(u"-PTN");
  writer.EndLine();
}

void SPtn::SetBitPatternArea(SPoint newSize, bool clear) {
  if (clear) {
    bitPattern.reset();
    size = newSize;
    return;
  }
  const SPoint limited = {std::min(newSize.x, SBitPattern::kMaxSide),
                          std::min(newSize.y, SBitPattern::kMaxSide)};
  bitPattern = bitPattern ? bitPattern->Resized(size, limited) : SBitPattern(limited);
  size = limited;
}

}  // namespace mivo
