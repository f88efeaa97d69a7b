#define NOMINMAX
#include <windows.h>

#include <algorithm>
#include <string>
#include <utility>

#include "file_writer.h"
#include "native_file.h"
#include "text_encoding.h"

namespace mivo {
namespace {

// One call takes a 32-bit count.
constexpr std::size_t kMostAtOnce = std::size_t{1} << 30;

std::error_code LastError() noexcept {
  return {static_cast<int>(GetLastError()), std::system_category()};
}

HANDLE ToHandle(std::intptr_t handle) noexcept {
  return reinterpret_cast<HANDLE>(handle);
}

std::error_code Open(const std::filesystem::path& path, DWORD access, DWORD disposition,
                     std::intptr_t& handle) noexcept {
  // Others may go on using the file. A directory can be opened only with backup semantics, and is
  // to be refused in words that say what it is.
  const HANDLE opened = CreateFileW(
      path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
      disposition, FILE_ATTRIBUTE_NORMAL | FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (opened == INVALID_HANDLE_VALUE) return LastError();
  handle = reinterpret_cast<std::intptr_t>(opened);
  return {};
}

}  // namespace

std::string SystemMessage(const std::error_code& error) {
  return Utf16ToUtf8(DecodeSystemCodePage(error.message()));
}

NativeFile::~NativeFile() {
  if (IsOpen() && owned_) CloseHandle(ToHandle(handle_));
}

std::error_code NativeFile::OpenToRead(const std::filesystem::path& path, NativeFile& file) {
  NativeFile opened;
  const auto error = Open(path, GENERIC_READ, OPEN_EXISTING, opened.handle_);
  file = std::move(opened);
  return error;
}

std::error_code NativeFile::OpenToWrite(const std::filesystem::path& path, NativeFile& file) {
  NativeFile opened;
  const auto error = Open(path, GENERIC_WRITE, OPEN_EXISTING, opened.handle_);
  file = std::move(opened);
  return error;
}

std::error_code NativeFile::Create(const std::filesystem::path& path, Access /*access*/,
                                   NativeFile& file) {
  // The folder's access list holds for the new file; MoveOver gives it the old file's.
  NativeFile created;
  const auto error = Open(path, GENERIC_WRITE, CREATE_NEW, created.handle_);
  file = std::move(created);
  return error;
}

NativeFile NativeFile::StandardInput() noexcept {
  return Borrowed(reinterpret_cast<std::intptr_t>(GetStdHandle(STD_INPUT_HANDLE)));
}

NativeFile NativeFile::StandardOutput() noexcept {
  return Borrowed(reinterpret_cast<std::intptr_t>(GetStdHandle(STD_OUTPUT_HANDLE)));
}

NativeFile NativeFile::StandardError() noexcept {
  return Borrowed(reinterpret_cast<std::intptr_t>(GetStdHandle(STD_ERROR_HANDLE)));
}

NativeFile::Kind NativeFile::GetKind() const noexcept {
  BY_HANDLE_FILE_INFORMATION information;
  if (GetFileType(ToHandle(handle_)) != FILE_TYPE_DISK ||
      !GetFileInformationByHandle(ToHandle(handle_), &information)) {
    return Kind::Other;
  }
  const bool directory = (information.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  return directory ? Kind::Directory : Kind::Regular;
}

std::size_t NativeFile::SizeHint() const noexcept {
  LARGE_INTEGER size;
  if (!GetFileSizeEx(ToHandle(handle_), &size) || size.QuadPart < 0) return 0;
  return static_cast<std::size_t>(size.QuadPart);
}

std::uint64_t NativeFile::LinkCount() const noexcept {
  BY_HANDLE_FILE_INFORMATION information;
  return GetFileInformationByHandle(ToHandle(handle_), &information) ? information.nNumberOfLinks
                                                                     : 1;
}

std::error_code NativeFile::Read(std::span<char> into, std::size_t& got) noexcept {
  DWORD count = 0;
  const auto wanted = static_cast<DWORD>(std::min(into.size(), kMostAtOnce));
  // A pipe whose other end is closed has come to its end.
  if (!::ReadFile(ToHandle(handle_), into.data(), wanted, &count, nullptr) &&
      GetLastError() != ERROR_BROKEN_PIPE) {
    return LastError();
  }
  got = count;
  return {};
}

std::error_code NativeFile::Write(std::string_view bytes) noexcept {
  while (!bytes.empty()) {
    DWORD count = 0;
    const auto wanted = static_cast<DWORD>(std::min(bytes.size(), kMostAtOnce));
    if (!::WriteFile(ToHandle(handle_), bytes.data(), wanted, &count, nullptr)) return LastError();
    bytes.remove_prefix(count);
  }
  return {};
}

std::error_code NativeFile::Rewind() noexcept {
  return SetFilePointerEx(ToHandle(handle_), {}, nullptr, FILE_BEGIN) ? std::error_code()
                                                                      : LastError();
}

std::error_code NativeFile::SetSize(std::uint64_t size) noexcept {
  LARGE_INTEGER end;
  end.QuadPart = static_cast<LONGLONG>(size);
  if (SetFilePointerEx(ToHandle(handle_), end, nullptr, FILE_BEGIN) &&
      SetEndOfFile(ToHandle(handle_))) {
    return {};
  }
  return LastError();
}

std::error_code NativeFile::Flush() noexcept {
  // Only files on a disk have anything to flush.
  if (GetKind() != Kind::Regular || FlushFileBuffers(ToHandle(handle_))) return {};
  return LastError();
}

std::error_code NativeFile::Close() noexcept {
  if (!CloseHandle(ToHandle(std::exchange(handle_, kNone)))) return LastError();
  return {};
}

std::error_code NativeFile::TakeAccessFrom(const NativeFile& /*other*/) noexcept {
  // ReplaceFileW does it when the file is put in its place.
  return {};
}

NativeFile::Lock NativeFile::TryLock() noexcept {
  // A locked byte can be read by nobody else, so it is one that no file has.
  OVERLAPPED place{};
  place.OffsetHigh = 0x40000000;
  constexpr DWORD kFlags = LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY;
  if (LockFileEx(ToHandle(handle_), kFlags, 0, 1, 0, &place)) return Lock::Taken;
  const DWORD error = GetLastError();
  return error == ERROR_LOCK_VIOLATION || error == ERROR_IO_PENDING ? Lock::HeldElsewhere
                                                                    : Lock::Impossible;
}

std::filesystem::path FinalTarget(const std::filesystem::path& path) {
  std::intptr_t handle = 0;
  if (Open(path, 0, OPEN_EXISTING, handle)) return path;
  std::wstring target(GetFinalPathNameByHandleW(ToHandle(handle), nullptr, 0, 0), L'\0');
  const DWORD length =
      GetFinalPathNameByHandleW(ToHandle(handle), target.data(), static_cast<DWORD>(target.size()),
                                FILE_NAME_NORMALIZED | VOLUME_NAME_DOS);
  CloseHandle(ToHandle(handle));
  if (length == 0 || length >= target.size()) return path;
  target.resize(length);
  return target;
}

std::error_code MoveOver(const std::filesystem::path& source, const std::filesystem::path& target) {
  // Keeps the old file's attributes and access list, but wants an old file.
  constexpr DWORD kFlags = REPLACEFILE_IGNORE_MERGE_ERRORS | REPLACEFILE_IGNORE_ACL_ERRORS;
  if (ReplaceFileW(target.c_str(), source.c_str(), nullptr, kFlags, nullptr, nullptr)) return {};
  if (GetLastError() == ERROR_FILE_NOT_FOUND &&
      MoveFileExW(source.c_str(), target.c_str(), MOVEFILE_WRITE_THROUGH)) {
    return {};
  }
  return LastError();
}

void FlushFolderOf(const std::filesystem::path& /*path*/) noexcept {
  // The system keeps its folders in order by itself.
}

void RemoveFile(const std::filesystem::path& path) noexcept {
  DeleteFileW(path.c_str());
}

void ReportFileSizeLimitAsFailure() noexcept {
  // There is no such limit here.
}

}  // namespace mivo
