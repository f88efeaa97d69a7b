#include "locked_file.h"

#include <utility>

#include "native_file.h"

namespace mivo {

LockedFile::LockedFile() = default;
LockedFile::LockedFile(LockedFile&& other) noexcept = default;
LockedFile& LockedFile::operator=(LockedFile&& other) noexcept = default;
LockedFile::~LockedFile() = default;

LockedFile::Outcome LockedFile::Acquire(const std::filesystem::path& path) {
  // Whoever held the file may remove it at any moment.
  constexpr int kMostAttempts = 10;
  Outcome outcome = Outcome::Failed;
  for (int i = 0; i < kMostAttempts && outcome == Outcome::Failed; ++i) {
    NativeFile created;
    static_cast<void>(NativeFile::Create(path, NativeFile::Access::OwnerOnly, created));
    outcome = AcquireExisting(path);
  }
  return outcome;
}

LockedFile::Outcome LockedFile::AcquireExisting(const std::filesystem::path& path) {
  Release();
  auto file = std::make_unique<NativeFile>();
  if (NativeFile::OpenToWrite(path, *file)) return Outcome::Failed;
  if (file->TryLock() == NativeFile::Lock::HeldElsewhere) return Outcome::HeldElsewhere;
  // What was removed between opening and locking is no longer the file of that name.
  if (file->LinkCount() == 0) return Outcome::Failed;
  file_ = std::move(file);
  path_ = path;
  return Outcome::Locked;
}

bool LockedFile::Write(std::string_view bytes) {
  return file_ != nullptr && !file_->Write(bytes);
}

bool LockedFile::Flush() {
  return file_ != nullptr && !file_->Flush();
}

void LockedFile::Release() noexcept {
  file_.reset();
  path_.clear();
}

void LockedFile::Remove() noexcept {
  if (file_ == nullptr) return;
  // Before the lock goes, so that nobody gets to lock what is no longer there.
  RemoveFile(path_);
  file_.reset();
  path_.clear();
}

}  // namespace mivo
