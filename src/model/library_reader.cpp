#include "library_reader.h"

#include <algorithm>
#include <vector>

#include "keyed_field.h"

namespace mivo {
namespace {

// What these take in memory besides their texts and what they hold, roughly.
constexpr std::size_t kPatternCost = 480;
constexpr std::size_t kComponentCost = 340;
constexpr std::size_t kAliasCost = 190;

}  // namespace

LibraryReader::LibraryReader(SMivoDoc& doc, SRecordReader& reader) : doc_(doc), reader_(reader) {
  patterns_.max_load_factor(NameIndex::kFullness);
}

bool LibraryReader::ReadBody(SMivoDoc::BodyExtent extent) {
  std::u16string_view field;
  while (reader_.ReadField(field) == FieldStatus::Ok) {
    if (field.starts_with(u'-')) {
      if (field != SMivoDoc::kLibraryEndTag) {
        reader_.Report(FindingKind::WrongClosingTag, field);
        return false;
      }
      EmptyPatternPool();
      if (reader_.SkipToField(SMivoDoc::kLibraryTag) != FieldStatus::Ok) return true;
    } else if (!field.starts_with(u'+')) {
      ReadKeyedField(field);
    } else if (field == u"+PTN") {
      if (!ReadPattern()) return false;
    } else if (field == u"+COMP") {
      if (!ReadComponent()) return false;
      if (extent == SMivoDoc::BodyExtent::FirstComponent) return true;
    } else if (field == u"+ALIAS") {
      if (!ReadAlias()) return false;
    } else {
      if (!reader_.SkipUnknownRecord(field)) return false;
    }
  }
  EmptyPatternPool();
  reader_.Report(FindingKind::DataCutOff, SMivoDoc::kLibraryTag);
  return true;
}

void LibraryReader::ReadKeyedField(std::u16string_view field) {
  const auto keyed = SplitKeyedField(field, EmptyValue::Allowed);
  if (!keyed) {
    reader_.Report(FindingKind::FieldWithoutValue, field);
  } else if (keyed->key == u"PROP") {
    doc_.property = reader_.TextValue(keyed->value);
  } else if (keyed->key != u"VER") {
    reader_.Report(FindingKind::UnknownKey, field);
  }
}

bool LibraryReader::ReadPattern() {
  auto pattern = std::make_shared<SPtn>();
  if (!pattern->Read(reader_, bitPatternBudget_) || !reader_.Afford(kPatternCost)) return false;
  // Components name their pattern, so one without a name, or with a name taken, is out of reach.
  const std::u16string& name = pattern->name;
  if (name.empty() || !patterns_.emplace(name, pattern).second) {
    reader_.Report(FindingKind::PatternUnused, name);
  }
  return true;
}

void LibraryReader::EmptyPatternPool() {
  std::vector<std::u16string_view> unused;
  for (const auto& [name, pattern] : patterns_) {
    if (pattern.use_count() == 1) unused.push_back(name);
  }
  std::sort(unused.begin(), unused.end());
  for (const std::u16string_view name : unused) reader_.Report(FindingKind::PatternUnused, name);
  patterns_.clear();
}

bool LibraryReader::GivePattern(SComponent& component, std::u16string_view name) {
  const auto found = patterns_.find(name);
  if (found == patterns_.end()) {
    reader_.Report(FindingKind::PatternMissing, name);
    return true;
  }
  const std::shared_ptr<SPtn>& pattern = found->second;
  // Saving writes the pattern once for every component that shares it.
  const bool shared = pattern.use_count() > 1;
  if (shared && pattern->bitPattern &&
      !bitPatternBudget_.Take(SBitPattern::ByteCountOf(pattern->size))) {
    reader_.Report(FindingKind::BitPatternsTooLarge, name);
    return false;
  }
  component.SharePattern(pattern);
  return true;
}

bool LibraryReader::ReadComponent() {
  auto component = std::make_unique<SComponent>();
  if (!component->Read(reader_, component_) || !reader_.Afford(kComponentCost)) return false;
  if (!component_.patternName.empty() && !GivePattern(*component, component_.patternName)) {
    return false;
  }
  ReportRenamed(*doc_.AddComponent(std::move(component), component_.name), component_.name);
  return true;
}

bool LibraryReader::ReadAlias() {
  const SRecordReader::RecordScope scope(reader_, u"+ALIAS");
  std::u16string target;
  std::u16string alias;
  std::u16string_view field;
  bool closed = false;
  while (!closed && reader_.ReadField(field) == FieldStatus::Ok) {
    if (field.starts_with(u'-')) {
      if (field != u"-ALIAS") {
        reader_.Report(FindingKind::WrongClosingTag, field);
        return false;
      }
      closed = true;
    } else if (field.starts_with(u'+')) {
      if (!reader_.SkipUnknownRecord(field)) return false;
    } else if (const auto keyed = SplitKeyedField(field, EmptyValue::Refused); !keyed) {
      reader_.Report(FindingKind::FieldWithoutValue, field);
    } else if (keyed->key == u"N") {
      target = reader_.TextValue(keyed->value);
    } else if (keyed->key == u"A") {
      alias = reader_.TextValue(keyed->value);
    } else {
      reader_.Report(FindingKind::UnknownKey, field);
    }
  }
  const bool complete = !target.empty() && !alias.empty();
  if (!closed) reader_.Report(FindingKind::DataCutOff, u"+ALIAS");
  if (!complete) {
    if (closed) reader_.Report(FindingKind::IncompleteRecord, u"-ALIAS");
    return !closed;
  }
  const NameEntry* const existing = doc_.Names().Find(target);
  if (existing == nullptr) {
    reader_.Report(FindingKind::AliasTargetMissing, target);
    return true;
  }
  if (!reader_.Afford(kAliasCost)) return false;
  ReportRenamed(*doc_.AddAlias(existing->Component(), alias), alias);
  return true;
}

void LibraryReader::ReportRenamed(const NameEntry& entry, std::u16string_view nameInFile) {
  if (entry.Name() == nameInFile) return;
  // Once the attempts are used up the same name is given twice, and the next load renames it again.
  const bool unique = doc_.Names().Find(entry.Name()) == &entry;
  reader_.Report(unique ? FindingKind::NameChanged : FindingKind::NotCanonical, entry.Name());
}

}  // namespace mivo
