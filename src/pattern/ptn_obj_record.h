#ifndef MIVO_PATTERN_PTN_OBJ_RECORD_H
#define MIVO_PATTERN_PTN_OBJ_RECORD_H

#include <cstdint>
#include <optional>
#include <string_view>

#include "keyed_field.h"
#include "ptn_obj.h"

namespace mivo {

/// How the record of a drawing object ended.
enum class RecordEnd {
  Closed,   ///< by its own closing tag
  DataEnd,  ///< by the end of the data, which most objects take for a closing tag
  Failed,   ///< by another closing tag, or inside a nested record that the data cut off
};

/// Walks over the fields of a drawing object's record: hands out the keyed ones, skips nested
/// records and reports what it passes over. One lives as long as its record is being read.
class PtnObjRecord {
 public:
  /// `openingTag` is a literal; the reader stands behind it.
  PtnObjRecord(SRecordReader& reader, std::u16string_view openingTag)
      : reader_(reader), openingTag_(openingTag), scope_(reader, openingTag) {}

  /// The next field with a key and a value, valid until the next call; nothing once the record has
  /// ended.
  [[nodiscard]] std::optional<KeyedField> Next(EmptyValue emptyValue = EmptyValue::Refused);

  /// Meaningful once Next has returned nothing.
  [[nodiscard]] RecordEnd End() const noexcept { return end_; }

  /// Reports a finding about the field that Next has returned last.
  void Report(FindingKind kind) { reader_.Report(kind, field_); }

 private:
  SRecordReader& reader_;
  std::u16string_view openingTag_;
  SRecordReader::RecordScope scope_;
  std::u16string_view field_;
  RecordEnd end_ = RecordEnd::Failed;
};

/// Width, style and fill of a record, which the object takes over once the record has proved good.
struct StrokeFields {
  std::int32_t width = 1;
  std::int32_t style = SPtnObj::kSolid;
  std::int32_t fill = SPtnObj::kNotFilled;

  /// Takes "W" and "S"; whether the key was one of them.
  bool Take(const FieldKey& key, std::int32_t value);
  /// Takes "W", "S" and "F"; whether the key was one of them.
  bool TakeWithFill(const FieldKey& key, std::int32_t value);

  void StoreTo(SPtnObj& object) const;
};

/// Writes the opening tag, "W" and "S".
void WriteStroke(SRecordWriter& writer, std::u16string_view openingTag, const SPtnObj& object);

/// Writes "X" and "Y".
void WritePoint(SRecordWriter& writer, SPoint point);

/// Writes the closing tag and ends the line.
void CloseRecord(SRecordWriter& writer, std::u16string_view closingTag);

}  // namespace mivo

#endif
