#include "clipboard_text.h"

#include <new>

#include "record_reader.h"
#include "record_writer.h"

namespace mivo {
namespace {

constexpr std::u16string_view kPinHeader = u"+MIVO_PIN_V.1.0";
constexpr std::u16string_view kPinFooter = u"-MIVO_PIN_V.1.0";
// A pattern text is closed by its opening tag; there is no form with a minus.
constexpr std::u16string_view kPatternHeader = u"+MIVO_PTN_V.1.0";

void WriteTagLine(SRecordWriter& writer, std::u16string_view tag) {
  writer.WriteField(tag);
  writer.EndLine();
}

PinText ReadPins(SRecordReader& reader, std::int32_t blockCount) {
  PinText result;
  std::u16string_view field;
  while (reader.ReadField(field) == FieldStatus::Ok && !field.starts_with(u'-')) {
    if (field == u"+PIN") {
      SCompPin pin(blockCount);
      if (pin.Read(reader, blockCount)) result.pin = std::move(pin);
    } else if (field.starts_with(u'+')) {
      reader.SkipRecord(field);
    }
  }
  return result;
}

PatternText ReadObjects(SRecordReader& reader) {
  PatternText result;
  std::u16string_view field;
  while (reader.ReadField(field) == FieldStatus::Ok) {
    if (!field.starts_with(u'+')) continue;
    if (std::unique_ptr<SPtnObj> object = CreatePtnObj(field)) {
      if (object->Read(reader)) result.objects.push_back(std::move(object));
    } else {
      reader.SkipRecord(field);
    }
  }
  return result;
}

}  // namespace

std::u16string WriteClipboardText(std::span<const SCompEditElm> selection, SPoint origin) {
  std::u16string text;
  SRecordWriter writer;
  writer.AttachString(text);
  if (selection.size() == 1 && selection.front().Pin() != nullptr) {
    WriteTagLine(writer, kPinHeader);
    selection.front().Pin()->Write(writer);
    writer.EndLine();
    WriteTagLine(writer, kPinFooter);
  } else {
    WriteTagLine(writer, kPatternHeader);
    for (const SCompEditElm& element : selection) {
      if (element.Object() != nullptr) element.Object()->Write(writer, origin);
    }
    WriteTagLine(writer, kPatternHeader);
  }
  return text;
}

bool CanPaste(std::u16string_view text) noexcept {
  return text.starts_with(kPinHeader) || text.starts_with(kPatternHeader);
}

ClipboardContent ReadClipboardText(std::u16string_view text, std::int32_t blockCount) try {
  // The reader would take blanks in front of the header, the header test does not.
  if (!CanPaste(text)) return {};
  SRecordReader reader;
  reader.AttachString(text);
  std::u16string_view header;
  if (reader.ReadField(header) != FieldStatus::Ok) return {};
  if (header == kPinHeader) return ReadPins(reader, blockCount);
  if (header == kPatternHeader) return ReadObjects(reader);
  return {};
} catch (const std::bad_alloc&) {
  return {};
}

}  // namespace mivo
