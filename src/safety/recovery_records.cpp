#include "recovery_records.h"

#include <charconv>

#include "keyed_field.h"
#include "mivo_doc.h"
#include "text_encoding.h"

namespace mivo {
namespace {

/// A whole number of 64 bits, which the record format has no key for.
void WriteNumber(SRecordWriter& writer, std::u16string_view key, std::uint64_t number) {
  writer.WriteText(key, Utf8ToUtf16(std::to_string(number)));
}

template <typename Number>
bool ReadNumber(std::u16string_view text, Number& number) {
  const std::string digits = Utf16ToUtf8(text);
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  return error == std::errc() && end == digits.data() + digits.size();
}

/// Hands every keyed field of a record to `take`, which returns false at a malformed one. False
/// when the record is not whole or that happened.
template <typename Take>
bool ReadRecord(std::string_view bytes, std::u16string_view tag, std::u16string_view endTag,
                Take take) {
  MemoryByteSource source(bytes);
  SRecordReader reader;
  reader.AttachFile(source, ByteDecoding::Utf8);
  std::u16string_view field;
  if (reader.ReadField(field) != FieldStatus::Ok || field != tag) return false;
  while (reader.ReadField(field) == FieldStatus::Ok) {
    if (field == endTag) return true;
    const std::optional<KeyedField> keyed = SplitKeyedField(field, EmptyValue::Allowed);
    if (!keyed || !take(keyed->key, keyed->value)) return false;
  }
  return false;
}

}  // namespace

std::string WriteStart(const RecoveryStart& start) {
  std::string bytes;
  StringByteSink sink(bytes);
  SRecordWriter writer;
  writer.AttachFile(sink);
  writer.WriteField(u"+FILE");
  if (start.path) writer.WriteText(u"PATH", *start.path);
  WriteNumber(writer, u"SIZE", start.identity.size);
  WriteNumber(writer, u"HASH", start.identity.hash);
  writer.WriteField(u"-FILE");
  writer.EndLine();  // which ends the last field
  writer.Flush();
  return bytes;
}

std::optional<RecoveryStart> ReadStart(std::string_view bytes) {
  RecoveryStart start;
  const auto take = [&](const FieldKey& key, std::u16string_view value) {
    if (key == u"SIZE") return ReadNumber(value, start.identity.size);
    if (key == u"HASH") return ReadNumber(value, start.identity.hash);
    if (key == u"PATH") start.path = value;
    return true;
  };
  if (!ReadRecord(bytes, u"+FILE", u"-FILE", take)) return std::nullopt;
  return start;
}

std::string WriteNames(const RecoveryNames& names) {
  std::string bytes;
  StringByteSink sink(bytes);
  SRecordWriter writer;
  writer.AttachFile(sink);
  writer.WriteField(u"+NAMES");
  writer.WriteText(u"PROP", names.property);
  for (const ListedName& listed : names.names) {
    WriteNumber(writer, u"C", listed.component);
    writer.WriteText(u"N", listed.name);
  }
  writer.WriteField(u"-NAMES");
  writer.EndLine();  // which ends the last field
  writer.Flush();
  return bytes;
}

std::optional<RecoveryNames> ReadNames(std::string_view bytes) {
  RecoveryNames names;
  std::uint32_t component = 0;
  const auto take = [&](const FieldKey& key, std::u16string_view value) {
    if (key == u"C") return ReadNumber(value, component);
    if (key == u"N") names.names.push_back({component, std::u16string(value)});
    if (key == u"PROP") names.property = value;
    return true;
  };
  if (!ReadRecord(bytes, u"+NAMES", u"-NAMES", take)) return std::nullopt;
  return names;
}

std::string WriteOneComponent(const SComponent& component) {
  std::string bytes;
  StringByteSink sink(bytes);
  SRecordWriter writer;
  writer.AttachFile(sink);
  writer.WriteField(SMivoDoc::kLibraryTag);
  writer.WriteInt(u"VER", SMivoDoc::kVersion);
  component.Write(writer, u"COMPONENT");
  writer.WriteField(SMivoDoc::kLibraryEndTag);
  writer.EndLine();  // which ends the last field
  writer.Flush();
  return bytes;
}

std::unique_ptr<SComponent> ReadOneComponent(std::string_view bytes) {
  SMivoDoc doc;
  if (!doc.Load(bytes, u"") || doc.Components().empty()) return nullptr;
  return std::make_unique<SComponent>(*doc.Components().front());
}

}  // namespace mivo
