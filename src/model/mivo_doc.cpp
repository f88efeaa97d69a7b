#include "mivo_doc.h"

#include <algorithm>
#include <array>
#include <new>
#include <span>
#include <utility>

#include "library_reader.h"
#include "library_writer.h"
#include "number_text.h"
#include "text_encoding.h"
#include "vector_room.h"

namespace mivo {
namespace {

constexpr std::int32_t kVersionOfFilesWithoutOne = 70;

/// A source whose first bytes can be read twice.
class PeekedSource final : public ByteSource {
 public:
  explicit PeekedSource(ByteSource& source) : source_(source) {}

  [[nodiscard]] std::size_t Read(std::span<char> into) override {
    if (isPeeking_) {
      const std::size_t count = source_.Read(into);
      peeked_.append(into.data(), count);
      return count;
    }
    const std::size_t count = peeked_.copy(into.data(), into.size(), again_);
    again_ += count;
    return count > 0 ? count : source_.Read(into);
  }

  /// The next byte is the first one once more, for the last time.
  void Rewind() noexcept { isPeeking_ = false; }

  /// Everything, first bytes and all. In place of reading. Tells `progress` of the first half of a
  /// task; `size` bytes are expected.
  [[nodiscard]] std::string TakeAll(std::uint64_t size, ProgressSink* progress) {
    std::string bytes = std::move(peeked_);
    std::array<char, 1 << 16> piece;
    while (const std::size_t count = source_.Read(piece)) {
      bytes.append(piece.data(), count);
      if (progress != nullptr) progress->Advance(bytes.size(), 2 * size);
    }
    return bytes;
  }

 private:
  ByteSource& source_;
  std::string peeked_;
  std::size_t again_ = 0;  // how many of them have been read for the second time
  bool isPeeking_ = true;
};

/// Passes on how far the second half of a task has come, the first being as long.
class SecondHalf final : public ProgressSink {
 public:
  explicit SecondHalf(ProgressSink* sink) : sink_(sink) {}

  void Advance(std::uint64_t done, std::uint64_t total) override {
    if (sink_ != nullptr) sink_->Advance(total + done, 2 * total);
  }

 private:
  ProgressSink* sink_;
};

/// What the first fields of a file say.
struct FileHead {
  bool isSchematic;
  std::int32_t version;
};

/// A field of the first look as text: its bytes, which stand in it sign-extended, in UTF-8. What
/// fills up a field that the end of the data cuts off stays.
std::u16string Decoded(std::u16string_view field) {
  const std::size_t end = std::min(field.find(u'\xFFFF'), field.size());
  std::string bytes;
  for (const char16_t unit : field.substr(0, end)) bytes.push_back(static_cast<char>(unit));
  return Utf8ToUtf16(bytes).append(field.substr(end));
}

/// Looks at the fields up to the version, which decides how the file is decoded; so it is read
/// before anything is decoded. Nothing when the content is no library or schematic.
std::optional<FileHead> PeekHead(ByteSource& source, FindingSink* sink) {
  SRecordReader reader;
  reader.AttachFile(source, ByteDecoding::SignExtended);
  std::u16string_view field;
  const bool hasField = reader.ReadField(field) == FieldStatus::Ok;
  const bool isSchematic = hasField && field == SMivoDoc::kSchematicTag;
  if (!hasField || (!isSchematic && field != SMivoDoc::kLibraryTag)) {
    reader.SetSink(sink);  // whatever else there is to find is read once more
    reader.Report(FindingKind::NotALibrary, Decoded(field));
    return std::nullopt;
  }
  if (isSchematic) reader.SkipToField(SMivoDoc::kLibraryTag);
  reader.ReadField(field);
  const std::size_t colon = field.find(u':');
  if (colon == std::u16string_view::npos || field.substr(0, colon) != u"VER") {
    return FileHead{isSchematic, kVersionOfFilesWithoutOne};
  }
  const std::int32_t version = ParseInt(field.substr(colon + 1));
  if (version > SMivoDoc::kVersion) {
    reader.SetSink(sink);
    reader.Report(FindingKind::LaterVersion, Decoded(field));
  }
  return FileHead{isSchematic, version};
}

/// Whether a schematic is whole: what lies between its library blocks is not looked at.
bool HasSchematicEnd(std::string_view bytes) {
  const std::size_t end = bytes.find_last_not_of(" \t\r\n");
  return bytes.substr(0, end + 1).ends_with("-TARSL_DATA_V.1.0");
}

}  // namespace

void SMivoDoc::Clear() {
  names_.Clear();
  components_.clear();
  path_.reset();
}

bool SMivoDoc::Load(ByteSource& source, std::uint64_t size, std::u16string_view path,
                    FindingSink* sink, ProgressSink* progress) {
  if (path_) return false;
  SRecordReader reader;
  try {
    return ReadContent(reader, source, size, path, sink, progress);
  } catch (const std::bad_alloc&) {
    // Half a library in the last of the memory is of no use to anybody.
    Clear();
    if (sink != nullptr) {
      sink->Report({FindingKind::OutOfMemory, std::max(reader.Line(), 1), 1, {}, {}});
    }
    return false;
  }
}

bool SMivoDoc::ReadContent(SRecordReader& reader, ByteSource& source, std::uint64_t size,
                           std::u16string_view path, FindingSink* sink, ProgressSink* progress) {
  PeekedSource peeked(source);
  const std::optional<FileHead> head = PeekHead(peeked, sink);
  if (!head) return false;
  version_ = head->version;

  const bool isOld = version_ < kFirstUtf8Version;
  const bool isWhole = isOld || head->isSchematic;
  std::string whole = isWhole ? peeked.TakeAll(size, progress) : std::string();
  SecondHalf secondHalf(progress);
  reader.SetProgress(isWhole ? &secondHalf : progress, isWhole ? whole.size() : size);
  const bool isCutOff = head->isSchematic && !HasSchematicEnd(whole);
  MemoryByteSource wholeSource(whole);
  std::u16string decoded;
  if (isOld) {
    decoded = DecodeSystemCodePage(whole);
    std::string().swap(whole);
    reader.AttachString(decoded);
  } else {
    peeked.Rewind();
    reader.AttachFile(head->isSchematic ? static_cast<ByteSource&>(wholeSource) : peeked,
                      ByteDecoding::Utf8);
  }
  // A schematic without components has no library block.
  const bool hasBlock = reader.SkipToField(kLibraryTag) == FieldStatus::Ok;
  reader.SetSink(sink);
  if (hasBlock && !ReadBody(reader, BodyExtent::Whole)) return false;
  if (isCutOff) reader.Report(FindingKind::DataCutOff, kSchematicTag);
  path_ = path;
  return true;
}

bool SMivoDoc::Load(std::string_view bytes, std::u16string_view path, FindingSink* sink,
                    ProgressSink* progress) {
  MemoryByteSource source(bytes);
  return Load(source, bytes.size(), path, sink, progress);
}

bool SMivoDoc::ReadBody(SRecordReader& reader, BodyExtent extent) {
  return LibraryReader(*this, reader).ReadBody(extent);
}

bool SMivoDoc::Write(ByteSink& sink, std::span<const NameEntry* const> entries,
                     ProgressSink* progress) const {
  SRecordWriter writer;
  writer.AttachFile(sink);
  WriteLibrary(writer, property, entries, progress);
  return writer.Flush() == FieldStatus::Ok;
}

bool SMivoDoc::Write(ByteSink& sink) const {
  std::vector<const NameEntry*> entries;
  entries.reserve(names_.Entries().size());
  for (const auto& entry : names_.Entries()) entries.push_back(entry.get());
  return Write(sink, entries);
}

NameEntry* SMivoDoc::AddComponent(std::unique_ptr<SComponent> component, std::u16string_view name) {
  MakeRoomForOne(components_);
  NameEntry* const entry = AddAlias(component.get(), name);
  components_.push_back(std::move(component));
  return entry;
}

NameEntry* SMivoDoc::AddAlias(SComponent* component, std::u16string_view name) {
  NameEntry* const entry = names_.AddIfFree(name, component);
  return entry != nullptr ? entry : names_.Add(names_.UniqueName(name), component);
}

void SMivoDoc::Rename(NameEntry& entry, std::u16string_view name) {
  names_.Rename(entry, names_.UniqueName(name));
}

void SMivoDoc::Remove(NameEntry& entry) {
  const SComponent* const component = entry.Component();
  names_.Remove(entry);
  const auto& entries = names_.Entries();
  const bool listed = std::any_of(entries.begin(), entries.end(), [component](const auto& other) {
    return other->Component() == component;
  });
  if (!listed) {
    std::erase_if(components_, [component](const auto& other) { return other.get() == component; });
  }
}

}  // namespace mivo
