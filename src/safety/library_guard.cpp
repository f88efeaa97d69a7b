#include "library_guard.h"

#include <system_error>
#include <utility>

#include "canonical_path.h"
#include "file_source.h"
#include "file_writer.h"
#include "path_text.h"
#include "read_file.h"
#include "state_folder.h"

namespace mivo {
namespace {

namespace fs = std::filesystem;

/// A folder within the state folder; empty when there is no state folder.
fs::path Within(const fs::path& stateFolder, const char* name) {
  return stateFolder.empty() ? fs::path() : stateFolder / name;
}

}  // namespace

LibraryGuard::LibraryGuard(const fs::path& stateFolder)
    : stateFolder_(stateFolder),
      copies_(Within(stateFolder, "copies")),
      journal_(Within(stateFolder, "recovery")) {}

void LibraryGuard::TakeFile(const RecoveryStart& file) {
  file_ = file;
  const fs::path folder = Within(stateFolder_, "open");
  const fs::path lock = file.path ? folder / NameForPath(PathFromText(*file.path)) : fs::path();
  if (lock_.IsHeld() && lock_.Path() == lock) return;
  lock_.Remove();
  openElsewhere_ = false;
  if (!file.path || !CreatePrivateFolder(folder)) return;
  openElsewhere_ = lock_.Acquire(lock) == LockedFile::Outcome::HeldElsewhere;
}

bool LibraryGuard::IsFile(std::u16string_view path) const {
  return file_.path &&
         CanonicalPath(PathFromText(*file_.path)) == CanonicalPath(PathFromText(path));
}

void LibraryGuard::OpenedWithoutFile(const LibraryView& library) {
  TakeFile({});
  hasLosses_ = false;
  journal_.Begin(library, file_, RecoveryJournal::Origin::Loaded);
}

void LibraryGuard::Opened(const LibraryView& library, const ContentIdentity& content,
                          Losses losses) {
  TakeFile({library.doc.Path(), content});
  hasLosses_ = losses == Losses::Some;
  journal_.Begin(library, file_, RecoveryJournal::Origin::Loaded);
}

bool LibraryGuard::HasChangedOnDisk(std::u16string_view path) const {
  if (!IsFile(path)) return false;
  FileSource file(PathFromText(path));
  const ContentIdentity identity = IdentifyingSource(file).IdentityOfAll();
  return file.Error().empty() && identity != file_.identity;
}

LibraryGuard::SaveResult LibraryGuard::Save(const LibraryView& library, std::u16string_view path,
                                            ProgressSink* progress) {
  SaveResult result;
  std::string text;
  StringByteSink sink(text);
  static_cast<void>(library.doc.Write(sink, library.entries, progress));

  const fs::path target = PathFromText(path);
  FileWriter file(target, FileWriter::Durability::OnDisk, FileWriter::Rewriting::WhenNeeded);
  std::error_code ignored;
  if (fs::is_regular_file(target, ignored)) {
    const bool isOwn = IsFile(path);
    const FileResult<std::string> old = ReadFile(target);
    result.copyKept = old.Ok() && copies_.Keep(target, old.Value(),
                                               isOwn && hasLosses_ ? SafetyCopies::Kind::Original
                                                                   : SafetyCopies::Kind::Previous,
                                               file.RewritesInPlace()
                                                   ? SafetyCopies::Durability::OnDisk
                                                   : SafetyCopies::Durability::LeftToTheSystem);
    // A process that ends in the middle would leave nothing whole.
    if (!result.copyKept && file.RewritesInPlace()) return result;
  }
  result.saved = file.Write(text) && file.Commit();
  if (!result.saved) {
    result.errorMessage = file.ErrorText();
    return result;
  }
  TakeFile({std::u16string(path), IdentityOf(text)});
  hasLosses_ = false;
  journal_.Begin(library, file_, RecoveryJournal::Origin::Saved);
  return result;
}

fs::path LibraryGuard::CopiesFolder() const {
  std::error_code error;
  if (file_.path) {
    fs::path folder = copies_.FolderOf(PathFromText(*file_.path));
    if (fs::is_directory(folder, error)) return folder;
  }
  return copies_.Folder();
}

std::vector<FoundRecovery> LibraryGuard::FindRecoveries() const {
  const fs::path folder = Within(stateFolder_, "recovery");
  return folder.empty() ? std::vector<FoundRecovery>() : mivo::FindRecoveries(folder);
}

bool LibraryGuard::Restored(const LibraryView& library, const RecoveryStart& file) {
  TakeFile(file);
  hasLosses_ = false;
  journal_.BeginUnsaved(library, file_);
  return !journal_.File().empty();
}

void LibraryGuard::Left() noexcept {
  journal_.Discard();
  lock_.Remove();
}

}  // namespace mivo
