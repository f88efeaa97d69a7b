#include "comp_pin.h"

#include <algorithm>
#include <array>

#include "keyed_field.h"
#include "number_text.h"

namespace mivo {
namespace {

// Without it, the length of a literal is counted each time.
using namespace std::string_view_literals;

constexpr std::u16string_view kSideLetters = u"LTRB";

struct TypeLetter {
  char16_t letter;
  std::int32_t bit;
};

/// In the order in which they are written.
constexpr std::array<TypeLetter, 5> kTypeLetters = {{{u'Z', SCompPin::kShapeZ},
                                                     {u'S', SCompPin::kShapeS},
                                                     {u'N', SCompPin::kNegation},
                                                     {u'C', SCompPin::kClock},
                                                     {u'm', SCompPin::kHideNumber}}};

std::int32_t TypeFromLetters(SRecordReader& reader, std::u16string_view letters) {
  std::int32_t type = 0;
  bool allKnown = true;
  for (const char16_t c : letters) {
    bool known = false;
    for (const TypeLetter& entry : kTypeLetters) {
      if (entry.letter != c) continue;
      type |= entry.bit;
      known = true;
    }
    allKnown = allKnown && known;
  }
  if (!allKnown) reader.Report(FindingKind::ValueIgnored, letters);
  return type;
}

void ReadLocation(SRecordReader& reader, std::u16string_view value, SPinLocation& location) {
  if (value.empty()) return;
  const std::size_t side = kSideLetters.find(value.front());
  const std::int32_t offset = ParseInt(value.substr(1));
  const bool offsetValid = offset >= 0 && offset <= 255;
  if (side != std::u16string_view::npos) location.side = static_cast<PinSide>(side);
  if (offsetValid) location.offset = offset;
  if (side == std::u16string_view::npos || !offsetValid) {
    reader.Report(FindingKind::ValueIgnored, value);
  }
}

/// Whether a name reads the same as people type it and as it is stored. Most do, and a library has
/// a million of them.
bool IsPlain(std::u16string_view name) {
  return name.size() <= SCompPin::kMaxNameLength &&
         std::all_of(name.begin(), name.end(), [](char16_t c) {
           return c < SCompPin::kOverline && c != u'\\' && c != u'\0';
         });
}

/// Whether a name read from `text` is displayed as `text` again.
bool IsDisplayForm(std::u16string_view text) {
  std::size_t characters = 0;
  for (std::size_t i = 0; i < text.size(); ++i, ++characters) {
    if (text[i] == u'\\' && ++i == text.size()) return false;
    if (text[i] >= SCompPin::kOverline) return false;
  }
  return characters <= SCompPin::kMaxNameLength;
}

}  // namespace

std::u16string PinNameFromDisplayText(std::u16string_view text) {
  std::u16string name;
  for (std::size_t i = 0; i < text.size() && name.size() < SCompPin::kMaxNameLength; ++i) {
    if (text[i] != u'\\') {
      name.push_back(text[i]);
    } else if (++i < text.size()) {
      name.push_back(static_cast<char16_t>(text[i] | SCompPin::kOverline));
    }
  }
  return name;
}

std::u16string PinNameToDisplayText(std::u16string_view name) {
  std::u16string text;
  for (const char16_t c : name) {
    const auto shown = static_cast<char16_t>(c & (SCompPin::kOverline - 1));
    if (shown == u'\0') break;  // ends every text
    if ((c & SCompPin::kOverline) != 0) text.push_back(u'\\');
    text.push_back(shown);
  }
  return text;
}

std::u16string SCompPin::DisplayName() const {
  return PinNameToDisplayText(Name());
}

void SCompPin::SetNameFromDisplayText(std::u16string_view text) {
  name_ = CompactText(PinNameFromDisplayText(text));
}

bool SCompPin::TakeName(std::u16string_view text) {
  if (IsPlain(text)) {
    name_ = CompactText(text);
    return true;
  }
  SetNameFromDisplayText(text);
  return IsDisplayForm(text);
}

bool SCompPin::Read(SRecordReader& reader, std::int32_t blockCount) {
  const SRecordReader::RecordScope scope(reader, u"+PIN"sv);
  *this = SCompPin(blockCount);
  std::int32_t nextNumber = 0;
  std::u16string_view field;
  while (reader.ReadField(field) == FieldStatus::Ok) {
    if (field.starts_with(u'-')) {
      if (IsText(field, u"-PIN")) return true;
      reader.Report(FindingKind::WrongClosingTag, field);
      return false;
    }
    if (field.starts_with(u'+')) {
      if (!reader.SkipUnknownRecord(field)) return false;
      continue;
    }
    const std::optional<KeyedField> keyed = SplitKeyedField(field, EmptyValue::Allowed);
    if (!keyed) {
      reader.Report(FindingKind::FieldWithoutValue, field);
    } else if (keyed->key == u"N") {
      if (!TakeName(reader.TextValue(keyed->value))) {
        reader.Report(FindingKind::NotCanonical, field);
      }
    } else if (keyed->key == u"DF") {
      // Nearly all names are shown whole.
      nameMask = IsText(keyed->value, u"FFFFFFFF") ? kWholeNameShown : ParseHex(keyed->value);
    } else if (keyed->key == u"L") {
      ReadLocation(reader, keyed->value, location);
    } else if (keyed->key == u"T") {
      type = TypeFromLetters(reader, keyed->value);
    } else if (keyed->key == u"M") {
      if (nextNumber < blockCount) {
        numbers_.Set(nextNumber++, reader.TextValue(keyed->value));
      } else {
        reader.Report(FindingKind::SurplusValue, field);
      }
    } else {
      reader.Report(FindingKind::UnknownKey, field);
    }
  }
  reader.Report(FindingKind::DataCutOff, u"+PIN");
  return true;
}

bool SCompPin::Write(SRecordWriter& writer) const {
  std::u16string place(1, kSideLetters[static_cast<std::size_t>(location.side)]);
  place.append(IntText(location.offset));
  std::array<char16_t, kTypeLetters.size()> letters;
  std::size_t letterCount = 0;
  for (const TypeLetter& entry : kTypeLetters) {
    if ((type & entry.bit) != 0) letters[letterCount++] = entry.letter;
  }
  writer.WriteField(u"+PIN");
  if (IsPlain(Name())) {
    writer.WriteText(u"N", Name());
  } else {
    writer.WriteText(u"N", DisplayName());
  }
  writer.WriteHex(u"DF", nameMask);
  writer.WriteText(u"L", place);
  writer.WriteText(u"T", {letters.data(), letterCount});
  for (std::int32_t block = 0; block < NumberCount(); ++block) {
    writer.WriteText(u"M", GetNumber(block).value_or(u""));
  }
  return writer.WriteField(u"-PIN") == FieldStatus::Ok;
}

}  // namespace mivo
