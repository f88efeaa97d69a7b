#include "file_writer.h"

#include <chrono>
#include <cstdint>

#include "native_file.h"

namespace mivo {
namespace {

/// NAME becomes .NAME.mivo-XXXXXX, with `number` giving the last part.
std::filesystem::path TemporaryName(const std::filesystem::path& name, std::uint64_t number) {
  // Short enough for the file systems that allow the least, long enough to be recognised.
  constexpr std::size_t kLongestName = 60;
  constexpr std::string_view kDigits = "0123456789abcdefghijklmnopqrstuvwxyz";
  constexpr int kDigitCount = 6;

  std::string ending(FileWriter::kTemporaryMark);
  for (int i = 0; i < kDigitCount; ++i) {
    ending.push_back(kDigits[number % kDigits.size()]);
    number /= kDigits.size();
  }
  std::filesystem::path temporary(".");
  temporary += name.native().substr(0, kLongestName);
  temporary += ending;
  return temporary;
}

/// Differs from call to call and, nearly always, from process to process.
std::uint64_t NextNumber(const void* address) {
  const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
  const auto seed = static_cast<std::uint64_t>(now) ^ reinterpret_cast<std::uintptr_t>(address);
  return (seed * 0x9E3779B97F4A7C15u) >> 16;
}

/// Creates a file beside `target` and tells its path.
std::error_code CreateBeside(const std::filesystem::path& target, NativeFile::Access access,
                             NativeFile& file, std::filesystem::path& path) {
  constexpr int kMostAttempts = 100;
  std::error_code error;
  for (int i = 0; i < kMostAttempts; ++i) {
    path = target.parent_path() / TemporaryName(target.filename(), NextNumber(&file));
    error = NativeFile::Create(path, access, file);
    if (error != std::errc::file_exists) break;
  }
  if (error) path.clear();
  return error;
}

}  // namespace

FileWriter::FileWriter(const std::filesystem::path& target, Durability durability)
    : durability_(durability), file_(std::make_unique<NativeFile>()) {
  Open(target);
}

FileWriter::~FileWriter() {
  // Closed first: an open file cannot be removed everywhere.
  file_.reset();
  if (!temporary_.empty()) RemoveFile(temporary_);
}

void FileWriter::Open(const std::filesystem::path& target) {
  NativeFile old;
  const std::error_code error = NativeFile::OpenToWrite(target, old);
  if (error && (error != std::errc::no_such_file_or_directory || !target.has_filename())) {
    error_ = error;
    return;
  }
  if (old.IsOpen() && old.GetKind() != NativeFile::Kind::Regular) {
    *file_ = std::move(old);
    return;
  }
  target_ = FinalTarget(target);
  // Nobody who may not read the old file gets to read the new one, not even for a moment.
  const auto access = old.IsOpen() ? NativeFile::Access::OwnerOnly : NativeFile::Access::Default;
  if (Check(CreateBeside(target_, access, *file_, temporary_)) && old.IsOpen()) {
    file_->TakeAccessFrom(old);
  }
}

bool FileWriter::Check(const std::error_code& error) {
  if (error && !error_) error_ = error;
  return !error;
}

bool FileWriter::Write(std::string_view bytes) {
  return !error_ && Check(file_->Write(bytes));
}

bool FileWriter::Commit() {
  const bool flushes = durability_ == Durability::OnDisk;
  if (!error_ && flushes) Check(file_->Flush());
  if (file_->IsOpen()) Check(file_->Close());
  if (temporary_.empty()) return !error_;
  if (!error_ && Check(MoveOver(temporary_, target_)) && flushes) FlushFolderOf(target_);
  if (error_) RemoveFile(temporary_);
  temporary_.clear();
  return !error_;
}

std::string FileWriter::ErrorText() const {
  return error_ ? SystemMessage(error_) : std::string();
}

}  // namespace mivo
