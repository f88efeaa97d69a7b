#include "schematic_data.h"

#include <new>

#include "keyed_field.h"

namespace mivo {
namespace {

constexpr std::u16string_view kSchematicEndTag = u"-TARSL_DATA_V.1.0";

/// A clipboard block of this size cannot hold more than the opening tag.
constexpr std::size_t kSmallestBlock = 4 * SMivoDoc::kSchematicTag.size();

}  // namespace

std::u16string WriteComponentText(const NameEntry& entry) {
  std::u16string text;
  if (entry.Name().empty()) return text;
  const SComponent& component = *entry.Component();
  SRecordWriter writer;
  writer.AttachString(text);
  const auto writeTagLine = [&writer](std::u16string_view tag) {
    writer.WriteField(tag);
    writer.EndLine();
  };
  writeTagLine(SMivoDoc::kSchematicTag);
  writeTagLine(u"+COMPONENT");
  writeTagLine(SMivoDoc::kLibraryTag);
  writer.WriteInt(u"VER", SMivoDoc::kVersion);
  writer.EndLine();
  component.Write(writer, entry.Name());
  writeTagLine(SMivoDoc::kLibraryEndTag);
  writer.WriteInt(u"X", WrapMul(10, component.Size().x));
  writer.WriteInt(u"Y", WrapMul(10, component.Size().y));
  writer.WriteText(u"LIB", entry.Name());
  writer.WriteText(u"N", entry.Name());
  writer.WriteText(u"R", component.prefix);
  writer.EndLine();
  writeTagLine(u"-COMPONENT");
  writeTagLine(kSchematicEndTag);
  return text;
}

bool CanPasteComponent(std::u16string_view text) noexcept {
  text = UpToNul(text);
  const std::size_t blockBytes = (text.size() + 1) * sizeof(char16_t);
  return blockBytes > kSmallestBlock && text.starts_with(SMivoDoc::kSchematicTag);
}

NameEntry* PasteComponentText(SMivoDoc& doc, std::u16string_view text) try {
  SRecordReader reader;
  reader.AttachString(text);
  std::u16string_view field;
  if (reader.ReadField(field) != FieldStatus::Ok || field != SMivoDoc::kSchematicTag ||
      reader.SkipToField(SMivoDoc::kLibraryTag) != FieldStatus::Ok) {
    return nullptr;
  }
  const std::size_t before = doc.Names().Entries().size();
  const bool read = doc.ReadBody(reader, SMivoDoc::BodyExtent::FirstComponent);
  const auto& entries = doc.Names().Entries();
  return read && entries.size() > before ? entries.back().get() : nullptr;
} catch (const std::bad_alloc&) {
  return nullptr;
}

}  // namespace mivo
