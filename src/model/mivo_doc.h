#ifndef MIVO_MODEL_MIVO_DOC_H
#define MIVO_MODEL_MIVO_DOC_H

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "byte_stream.h"
#include "component.h"
#include "name_index.h"
#include "progress.h"

namespace mivo {

/// The open library: components, the names under which they are listed, and the library's text.
///
/// Every component has at least one entry. The readers stay silent; a sink hears what they ignored,
/// skipped, dropped or failed at.
class SMivoDoc {
 public:
  /// The file version that is written; files of a later version may hold what is lost here.
  static constexpr std::int32_t kVersion = 82;
  /// Files below this version are in the system's 8-bit code page, from it on in UTF-8.
  static constexpr std::int32_t kFirstUtf8Version = 71;

  static constexpr std::u16string_view kLibraryTag = u"+TARSL_LIB_V.1.0";
  static constexpr std::u16string_view kLibraryEndTag = u"-TARSL_LIB_V.1.0";
  static constexpr std::u16string_view kSchematicTag = u"+TARSL_DATA_V.1.0";

  /// Deletes all components, entries and the path. The property text and the version stay.
  void Clear();

  /// Reads the content of a library or schematic file and, when that succeeds, takes `path` as the
  /// library's path. False when there is a path already or the content is malformed; what was read
  /// before the fault stays in the library. False as well, with the library empty, when the memory
  /// does not suffice. `progress` hears how many bytes of `size` were read, and must leave the
  /// library alone. A library in UTF-8 is read as it comes, anything else is fetched whole; where a
  /// NUL ends the data, the source is left in the middle.
  [[nodiscard]] bool Load(ByteSource& source, std::uint64_t size, std::u16string_view path,
                          FindingSink* sink = nullptr, ProgressSink* progress = nullptr);
  /// The same with a content in memory.
  [[nodiscard]] bool Load(std::string_view bytes, std::u16string_view path,
                          FindingSink* sink = nullptr, ProgressSink* progress = nullptr);

  enum class BodyExtent { Whole, FirstComponent };
  /// Reads records up to the end of the data, or up to the first component; the reader stands
  /// behind a library tag.
  [[nodiscard]] bool ReadBody(SRecordReader& reader, BodyExtent extent);

  /// Writes the library with `entries` in this order: each component under its first entry, its
  /// further entries as aliases. False when the sink failed. `progress` counts entries, and must
  /// leave the library alone.
  [[nodiscard]] bool Write(ByteSink& sink, std::span<const NameEntry* const> entries,
                           ProgressSink* progress = nullptr) const;
  /// The same with the entries in the order in which they were added.
  [[nodiscard]] bool Write(ByteSink& sink) const;

  /// Takes the component over and lists it under the unique name for `name`. Where the memory does
  /// not suffice, nothing is added.
  NameEntry* AddComponent(std::unique_ptr<SComponent> component, std::u16string_view name);
  /// Lists `component`, one of this library's, also under the unique name for `name`.
  NameEntry* AddAlias(SComponent* component, std::u16string_view name);
  /// Renames to the unique name for `name`.
  void Rename(NameEntry& entry, std::u16string_view name);
  /// Removes the entry, and its component when no other entry lists it.
  void Remove(NameEntry& entry);

  [[nodiscard]] NameIndex& Names() noexcept { return names_; }
  [[nodiscard]] const NameIndex& Names() const noexcept { return names_; }
  [[nodiscard]] const std::vector<std::unique_ptr<SComponent>>& Components() const noexcept {
    return components_;
  }

  /// Absent for a library that was neither loaded nor saved.
  [[nodiscard]] const std::optional<std::u16string>& Path() const noexcept { return path_; }
  void SetPath(std::u16string_view path) { path_ = path; }

  /// The version read from the file; 70 when the file names none.
  [[nodiscard]] std::int32_t Version() const noexcept { return version_; }

  std::u16string property;

 private:
  [[nodiscard]] bool ReadContent(SRecordReader& reader, ByteSource& source, std::uint64_t size,
                                 std::u16string_view path, FindingSink* sink,
                                 ProgressSink* progress);

  std::vector<std::unique_ptr<SComponent>> components_;
  NameIndex names_;
  std::optional<std::u16string> path_;
  std::int32_t version_ = kVersion;
};

}  // namespace mivo

#endif
