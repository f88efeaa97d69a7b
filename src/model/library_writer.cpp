#include "library_writer.h"

#include <tsl/robin_map.h>

#include "mivo_doc.h"

namespace mivo {
namespace {

void WriteAlias(SRecordWriter& writer, std::u16string_view alias, std::u16string_view target) {
  writer.WriteField(u"+ALIAS");
  writer.WriteText(u"A", alias);
  writer.WriteText(u"N", target);
  writer.WriteField(u"-ALIAS");
  writer.EndLine();
}

}  // namespace

void WriteLibrary(SRecordWriter& writer, std::u16string_view property,
                  std::span<const NameEntry* const> entries, ProgressSink* progress) {
  writer.WriteField(SMivoDoc::kLibraryTag);
  writer.EndLine();
  writer.WriteInt(u"VER", SMivoDoc::kVersion);
  writer.EndLine();
  writer.WriteText(u"PROP", property);
  writer.EndLine();

  tsl::robin_map<const SComponent*, const NameEntry*> firstEntries;
  firstEntries.reserve(entries.size());
  std::uint64_t done = 0;
  for (const NameEntry* const entry : entries) {
    if (progress != nullptr) progress->Advance(done++, entries.size());
    if (entry->Name().empty()) continue;
    const auto [first, isFirst] = firstEntries.emplace(entry->Component(), entry);
    if (isFirst) {
      entry->Component()->Write(writer, entry->Name());
    } else {
      WriteAlias(writer, entry->Name(), first->second->Name());
    }
  }

  writer.WriteField(SMivoDoc::kLibraryEndTag);
  writer.EndLine();
}

}  // namespace mivo
