#include "ptn_obj_record.h"

namespace mivo {

std::optional<KeyedField> PtnObjRecord::Next(EmptyValue emptyValue) {
  while (reader_.ReadField(field_) == FieldStatus::Ok) {
    if (field_.starts_with(u'-')) {
      const bool own = field_.substr(1) == openingTag_.substr(1);
      if (!own) reader_.Report(FindingKind::ObjectClosedWrongly, field_);
      end_ = own ? RecordEnd::Closed : RecordEnd::Failed;
      return std::nullopt;
    }
    if (field_.starts_with(u'+')) {
      if (reader_.SkipUnknownRecord(field_, FindingKind::DataCutOff)) continue;
      end_ = RecordEnd::Failed;
      return std::nullopt;
    }
    if (const auto keyed = SplitKeyedField(field_, emptyValue)) return keyed;
    reader_.Report(FindingKind::FieldWithoutValue, field_);
  }
  reader_.Report(FindingKind::DataCutOff, openingTag_);
  end_ = RecordEnd::DataEnd;
  return std::nullopt;
}

bool StrokeFields::Take(const FieldKey& key, std::int32_t value) {
  if (key == u"W") {
    width = value;
  } else if (key == u"S") {
    style = value;
  } else {
    return false;
  }
  return true;
}

bool StrokeFields::TakeWithFill(const FieldKey& key, std::int32_t value) {
  if (key != u"F") return Take(key, value);
  fill = value;
  return true;
}

void StrokeFields::StoreTo(SPtnObj& object) const {
  object.width = width;
  object.style = style;
  object.fill = fill;
}

void WriteStroke(SRecordWriter& writer, std::u16string_view openingTag, const SPtnObj& object) {
  writer.WriteField(openingTag);
  writer.WriteInt(u"W", object.width);
  writer.WriteInt(u"S", object.style);
}

void WritePoint(SRecordWriter& writer, SPoint point) {
  writer.WriteInt(u"X", point.x);
  writer.WriteInt(u"Y", point.y);
}

void CloseRecord(SRecordWriter& writer, std::u16string_view closingTag) {
  writer.WriteField(closingTag);
  writer.EndLine();
}

}  // namespace mivo
