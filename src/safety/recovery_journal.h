#ifndef MIVO_SAFETY_RECOVERY_JOURNAL_H
#define MIVO_SAFETY_RECOVERY_JOURNAL_H

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <unordered_map>

#include "library_view.h"
#include "locked_file.h"
#include "recovery_frames.h"
#include "recovery_records.h"

namespace mivo {

/// Writes the recovery file of the open library: what the library was, followed by whatever has
/// changed since, appended operation by operation. There is no file before the first change.
///
/// Nothing waits for the disk: what was written survives the end of the process, however it comes,
/// but not that of the machine. A write that fails takes the file away, and the next change starts
/// over with the library as it is then.
class RecoveryJournal {
 public:
  static constexpr const char* kExtension = ".mivo-recovery";

  /// A file of this size starts over: reading it would take longer than it saves.
  static constexpr std::uint64_t kMostBytes = std::uint64_t{64} << 20;

  /// `folder` is created when there is something to write; an empty one writes nothing.
  explicit RecoveryJournal(std::filesystem::path folder, std::uint64_t mostBytes = kMostBytes)
      : folder_(std::move(folder)), mostBytes_(mostBytes) {}

  enum class Origin {
    Loaded,  ///< the library was just read from its file, or is new
    Saved    ///< it was just written to it
  };
  /// From here on changes count; the recovery file that there was goes. The path of `file` must be
  /// one that text can tell.
  void Begin(const LibraryView& library, const RecoveryStart& file, Origin origin);
  /// The same for a library that is nowhere but here: all of it is to be recovered.
  void BeginUnsaved(const LibraryView& library, const RecoveryStart& file);

  /// Writes what has changed in the names, their order or the library's text, and all components
  /// that are new.
  void RecordNames(const LibraryView& library);
  /// Writes what has become of `component`, one of the library's: `now` is what a commit would make
  /// of it.
  void RecordComponent(const LibraryView& library, const SComponent& component,
                       const SComponent& now);

  /// Nothing is left to recover: the recovery file goes.
  void Discard() noexcept { file_.Remove(); }

  /// Empty when there is none.
  [[nodiscard]] const std::filesystem::path& File() const noexcept { return file_.Path(); }

 private:
  void Number(const LibraryView& library, Origin origin);
  [[nodiscard]] bool Start(const LibraryView& library);
  [[nodiscard]] bool CreateFile();
  [[nodiscard]] std::string Base(const LibraryView& library);
  void AppendComponent(std::string& bytes, const SComponent& component, const SComponent& now);
  bool Write(const std::string& bytes);

  std::filesystem::path folder_;
  std::uint64_t mostBytes_;
  LockedFile file_;
  RecoveryStart start_;
  bool baseIsFile_ = false;  // what the library was is in its file, if that has not changed since
  std::unordered_map<const SComponent*, std::uint32_t> numbers_;
  std::unordered_map<std::uint32_t, ContentIdentity> written_;  // of components, since the start
  std::uint32_t nextNumber_ = 0;
  std::uint64_t names_ = 0;  // tells the names apart from those recorded last
  std::uint64_t size_ = 0;   // bytes of the recovery file
};

}  // namespace mivo

#endif
