#ifndef MIVO_SAFETY_LIBRARY_GUARD_H
#define MIVO_SAFETY_LIBRARY_GUARD_H

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "content_identity.h"
#include "library_view.h"
#include "locked_file.h"
#include "recovered_library.h"
#include "recovery_journal.h"
#include "safety_copies.h"

namespace mivo {

/// Sees to it that nothing of the open library is lost: knows what its file held when it was read
/// or written last, keeps what a save replaces, and has every change in a recovery file.
///
/// Whatever cannot be kept, since the state folder cannot be written, stands in nobody's way.
class LibraryGuard {
 public:
  /// An empty folder keeps nothing.
  explicit LibraryGuard(const std::filesystem::path& stateFolder);

  // --- The library and its file ----------------------------------------------------------------

  /// The library is new, or what was read of a file that failed to load.
  void OpenedWithoutFile(const LibraryView& library);

  enum class Losses { None, Some };
  /// The library, whose path is that of the file, was read from this content.
  void Opened(const LibraryView& library, const ContentIdentity& content, Losses losses);

  /// Whether another running program had the file open already.
  [[nodiscard]] bool IsOpenElsewhere() const noexcept { return openElsewhere_; }

  /// Whether `path` is the library's file and holds something else than what was read or written
  /// last. A file that is not there or cannot be read is nothing that could be overwritten.
  [[nodiscard]] bool HasChangedOnDisk(std::u16string_view path) const;

  struct SaveResult {
    bool saved = false;
    bool copyKept = true;      ///< false when what was replaced is kept nowhere
    std::string errorMessage;  ///< the system's words when it was not saved for its reasons
  };
  /// Writes the library to `path` and keeps what was there; what can be kept nowhere is not saved
  /// over when that has to be done in place. The caller sets the library's path.
  [[nodiscard]] SaveResult Save(const LibraryView& library, std::u16string_view path,
                                ProgressSink* progress = nullptr);

  /// Where copies of the library's file are, or, as long as there are none, those of all.
  [[nodiscard]] std::filesystem::path CopiesFolder() const;

  // --- Recovery --------------------------------------------------------------------------------

  /// What other programs left when they ended.
  [[nodiscard]] std::vector<FoundRecovery> FindRecoveries() const;
  /// The library is what was recovered. True when it is in this program's own recovery file now, so
  /// that the one it came from can go.
  bool Restored(const LibraryView& library, const RecoveryStart& file);

  /// See RecoveryJournal.
  void RecordNames(const LibraryView& library) { journal_.RecordNames(library); }
  void RecordComponent(const LibraryView& library, const SComponent& component,
                       const SComponent& now) {
    journal_.RecordComponent(library, component, now);
  }
  /// The library is left for good: what has not been saved is not wanted.
  void Left() noexcept;

 private:
  void TakeFile(const RecoveryStart& file);
  /// Whether `path`, however it is spelt, is that of the library's file.
  [[nodiscard]] bool IsFile(std::u16string_view path) const;

  std::filesystem::path stateFolder_;
  SafetyCopies copies_;
  RecoveryJournal journal_;
  LockedFile lock_;
  bool openElsewhere_ = false;
  RecoveryStart file_;
  bool hasLosses_ = false;
};

}  // namespace mivo

#endif
