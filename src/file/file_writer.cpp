#include "file_writer.h"

#include <chrono>
#include <cstdint>

#include "file_calls.h"
#include "read_file.h"

namespace mivo {
namespace {

constexpr std::size_t kDigitCount = 6;

/// NAME becomes .NAME.mivo-, which six digits follow.
std::filesystem::path TemporaryPrefix(const std::filesystem::path& name) {
  // Short enough for the file systems that allow the least, long enough to be recognised.
  constexpr std::size_t kLongestName = 60;
  std::filesystem::path prefix(".");
  prefix += name.native().substr(0, kLongestName);
  prefix += FileWriter::kTemporaryMark;
  return prefix;
}

std::string Digits(std::uint64_t number) {
  constexpr std::string_view kDigits = "0123456789abcdefghijklmnopqrstuvwxyz";
  std::string digits;
  while (digits.size() < kDigitCount) {
    digits.push_back(kDigits[number % kDigits.size()]);
    number /= kDigits.size();
  }
  return digits;
}

/// Removes the temporary files of `target` whose process is gone: nobody has them locked.
void RemoveAbandoned(FileCalls& calls, const std::filesystem::path& target) {
  namespace fs = std::filesystem;
  const fs::path folder = target.parent_path();
  const fs::path::string_type prefix = TemporaryPrefix(target.filename()).native();
  std::error_code error;
  fs::directory_iterator entry(folder.empty() ? fs::path(".") : folder, error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    const fs::path name = entry->path().filename();
    if (name.native().size() != prefix.size() + kDigitCount) continue;
    if (!name.native().starts_with(prefix)) continue;
    NativeFile file;
    if (calls.OpenToWrite(entry->path(), file)) continue;
    if (file.TryLock() != NativeFile::Lock::Taken) continue;
    static_cast<void>(file.Close());
    calls.Remove(entry->path());
  }
}

/// Whether a folder lets nothing be created in it, though files in it may be written.
bool IsClosedFolder(const std::error_code& error) {
  return error == std::errc::permission_denied || error == std::errc::operation_not_permitted ||
         error == std::errc::read_only_file_system;
}

/// Differs from call to call and, nearly always, from process to process.
std::uint64_t NextNumber(const void* address) {
  const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
  const auto seed = static_cast<std::uint64_t>(now) ^ reinterpret_cast<std::uintptr_t>(address);
  return (seed * 0x9E3779B97F4A7C15u) >> 16;
}

/// Creates a file beside `target` and tells its path.
std::error_code CreateBeside(FileCalls& calls, const std::filesystem::path& target,
                             NativeFile::Access access, NativeFile& file,
                             std::filesystem::path& path) {
  constexpr int kMostAttempts = 100;
  std::error_code error;
  for (int i = 0; i < kMostAttempts; ++i) {
    path = target.parent_path() / TemporaryPrefix(target.filename());
    path += Digits(NextNumber(&file));
    error = calls.Create(path, access, file);
    if (error != std::errc::file_exists) break;
  }
  if (error) path.clear();
  return error;
}

/// Whether the system does not let us give a file to its owner, nothing else being wrong.
bool IsNotOursToGive(const std::error_code& error) {
  return error == std::errc::operation_not_permitted || error == std::errc::not_supported ||
         error == std::errc::invalid_argument;  // an owner who does not exist in a container
}

}  // namespace

FileWriter::FileWriter(const std::filesystem::path& target, Durability durability,
                       Rewriting rewriting)
    : FileWriter(target, durability, rewriting, FileCalls::OfTheSystem()) {}

FileWriter::FileWriter(const std::filesystem::path& target, Durability durability,
                       Rewriting rewriting, FileCalls& calls)
    : calls_(calls),
      durability_(durability),
      rewriting_(rewriting),
      file_(std::make_unique<NativeFile>()) {
  Open(target);
}

FileWriter::~FileWriter() {
  // Closed first: an open file cannot be removed everywhere.
  file_.reset();
  if (!temporary_.empty()) calls_.Remove(temporary_);
}

void FileWriter::Open(const std::filesystem::path& target) {
  NativeFile old;
  const std::error_code error = calls_.OpenToWrite(target, old);
  if (error && (error != std::errc::no_such_file_or_directory || !target.has_filename())) {
    error_ = error;
    return;
  }
  if (old.IsOpen() && old.GetKind() != NativeFile::Kind::Regular) {
    *file_ = std::move(old);
    return;
  }
  target_ = FinalTarget(target);
  if (durability_ == Durability::OnDisk) RemoveAbandoned(calls_, target_);
  if (rewriting_ == Rewriting::WhenNeeded && old.IsOpen() && old.LinkCount() > 1) {
    StartRewriting(old);
  } else {
    CreateTemporary(old);
  }
}

void FileWriter::CreateTemporary(NativeFile& old) {
  const bool mayRewrite = rewriting_ == Rewriting::WhenNeeded && old.IsOpen();
  // Nobody who may not read the old file gets to read the new one, not even for a moment.
  const auto access = old.IsOpen() ? NativeFile::Access::OwnerOnly : NativeFile::Access::Default;
  const std::error_code error = CreateBeside(calls_, target_, access, *file_, temporary_);
  if (error && mayRewrite && IsClosedFolder(error)) return StartRewriting(old);
  if (!Check(error) || !old.IsOpen()) return;
  const std::error_code taken = calls_.TakeAccess(*file_, old);
  if (!taken || !mayRewrite) return;
  if (!IsNotOursToGive(taken)) {
    Check(taken);
    return;
  }
  static_cast<void>(file_->Close());
  calls_.Remove(temporary_);
  temporary_.clear();
  StartRewriting(old);
}

void FileWriter::StartRewriting(NativeFile& old) {
  *file_ = std::move(old);
  newContent_.emplace();
}

bool FileWriter::Check(const std::error_code& error) {
  if (error && !error_) error_ = error;
  return !error;
}

bool FileWriter::Write(std::string_view bytes) {
  if (error_ || !file_->IsOpen()) return false;
  if (!newContent_) return Check(calls_.Write(*file_, bytes));
  newContent_->append(bytes);
  return true;
}

void FileWriter::Rewrite() {
  const FileResult<std::string> old = ReadFile(target_);
  if (!old.Ok()) {
    Check(std::make_error_code(std::errc::permission_denied));
  } else if (!Check(PutInPlace(*newContent_))) {
    // As good as it goes: what failed may fail again.
    static_cast<void>(PutInPlace(old.Value()));
  }
}

std::error_code FileWriter::PutInPlace(std::string_view bytes) {
  // Cut off at the end and not emptied at the start: the room that the file has stays its own.
  if (const auto error = file_->Rewind()) return error;
  if (const auto error = calls_.Write(*file_, bytes)) return error;
  if (const auto error = calls_.SetSize(*file_, bytes.size())) return error;
  return durability_ == Durability::OnDisk ? calls_.Flush(*file_) : std::error_code();
}

bool FileWriter::Commit() {
  const bool flushes = durability_ == Durability::OnDisk;
  if (!error_ && newContent_) {
    Rewrite();
  } else if (!error_ && flushes) {
    Check(calls_.Flush(*file_));
  }
  if (file_->IsOpen()) {
    const std::error_code closed = calls_.Close(*file_);
    // What was rewritten has been flushed or put back by now; nothing is left that could fail.
    if (!newContent_) Check(closed);
  }
  if (temporary_.empty()) return !error_;
  if (!error_ && Check(calls_.MoveOver(temporary_, target_)) && flushes) {
    calls_.FlushFolderOf(target_);
  }
  if (error_) calls_.Remove(temporary_);
  temporary_.clear();
  return !error_;
}

std::string FileWriter::ErrorText() const {
  return error_ ? SystemMessage(error_) : std::string();
}

}  // namespace mivo
