#include "library_listing.h"

#include <cstdint>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <unordered_map>

#include "printable_text.h"
#include "text_encoding.h"

namespace mivo {
namespace {

/// What both forms of the listing tell of one name.
struct Row {
  const NameEntry& entry;
  const SComponent& component;
  std::size_t index;
  std::optional<std::size_t> patternObjects;
  std::int64_t bitPatternBytes;  ///< that its size takes, stored or not
};

/// Calls `write` with each row in list order and hands the sink what that appends to `text`.
template <typename WriteRow>
bool WriteRows(ByteSink& sink, const SMivoDoc& doc, std::string& text, WriteRow write) {
  constexpr std::size_t kPieceBytes = std::size_t{1} << 16;
  std::unordered_map<const SComponent*, std::size_t> indices;
  indices.reserve(doc.Components().size());
  for (const auto& component : doc.Components()) indices.emplace(component.get(), indices.size());

  for (const auto& entry : doc.Names().Entries()) {
    const SComponent& component = *entry->Component();
    Row row{*entry, component, indices.at(&component), std::nullopt, 0};
    if (const SPtn* pattern = component.Pattern()) {
      row.patternObjects = pattern->objects.size();
      if (pattern->bitPattern) {
        row.bitPatternBytes = SBitPattern::ByteCountOf(pattern->bitPattern->Size());
      }
    }
    write(row);
    if (text.size() < kPieceBytes) continue;
    if (!sink.Write(text)) return false;
    text.clear();
  }
  return true;
}

}  // namespace

bool WriteListing(ByteSink& sink, const SMivoDoc& doc) {
  std::string text;
  const auto writeRow = [&text](const Row& row) {
    const SPoint size = row.component.Size();
    AppendColumn(text, row.entry.Name());
    text += '\t';
    text += std::to_string(row.index);
    text += '\t';
    text += std::to_string(size.x);
    text += 'x';
    text += std::to_string(size.y);
    text += '\t';
    text += std::to_string(row.component.BlockCount());
    text += '\t';
    AppendUtf8(text, BlockTypeName(row.component.Type()));
    text += '\t';
    text += std::to_string(row.component.Pins().size());
    text += '\t';
    text += row.patternObjects ? std::to_string(*row.patternObjects) : "-";
    text += '\t';
    text += std::to_string(row.bitPatternBytes);
    text += '\n';
  };
  return WriteRows(sink, doc, text, writeRow) && sink.Write(text);
}

bool WriteJsonListing(ByteSink& sink, const SMivoDoc& doc) {
  using Json = nlohmann::ordered_json;
  std::string text = "{\"version\":" + std::to_string(doc.Version()) +
                     ",\"property\":" + Json(Utf16ToUtf8(doc.property)).dump() + ",\"names\":[";
  const char* separator = "\n";
  const auto writeRow = [&](const Row& row) {
    const SComponent& component = row.component;
    const Json object = {
        {"name", Utf16ToUtf8(row.entry.Name())},
        {"component", row.index},
        {"width", component.Size().x},
        {"height", component.Size().y},
        {"blocks", component.BlockCount()},
        {"type", Utf16ToUtf8(BlockTypeName(component.Type()))},
        {"pins", component.Pins().size()},
        {"patternObjects", row.patternObjects ? Json(*row.patternObjects) : Json(nullptr)},
        {"bitPatternBytes", row.bitPatternBytes},
        {"prefix", Utf16ToUtf8(component.prefix)},
        {"note", Utf16ToUtf8(component.note)},
        {"manufacturer", Utf16ToUtf8(component.manufacturer)},
        {"partNumber", Utf16ToUtf8(component.partNumber)},
        {"package", Utf16ToUtf8(component.package)},
    };
    text += separator;
    text += object.dump();
    separator = ",\n";
  };
  if (!WriteRows(sink, doc, text, writeRow)) return false;
  text += "\n]}\n";
  return sink.Write(text);
}

}  // namespace mivo
