#define NOMINMAX
// clang-format off
#include <windows.h>
#include <aclapi.h>
// clang-format on

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <new>
#include <string>
#include <utility>
#include <vector>

#include "canonical_path.h"
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

// What a path begins with that the system takes as it is, whatever its length; and one of a server,
// in place of the first of its two backslashes.
constexpr std::wstring_view kMark = LR"(\\?\)";
constexpr std::wstring_view kServerMark = LR"(\\?\UNC)";

/// The complete path; empty when there is no such thing.
std::wstring FullPath(const std::filesystem::path& path) {
  std::wstring full(GetFullPathNameW(path.c_str(), 0, nullptr, nullptr), L'\0');
  const DWORD length =
      GetFullPathNameW(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr);
  full.resize(length < full.size() ? length : 0);
  return full;
}

/// The path as the system takes it whatever its length: a long one has to be complete, with a mark.
std::wstring AnyLength(const std::filesystem::path& path) {
  // What is usual, less a short name: the limit for a folder in which files are to be made.
  constexpr std::size_t kUsualLength = MAX_PATH - 12;
  std::wstring full = FullPath(path);
  if (full.size() < kUsualLength || path.native().starts_with(kMark)) return path.native();
  const bool isShared = full.starts_with(LR"(\\)");
  return isShared ? full.replace(0, 1, kServerMark) : full.insert(0, kMark);
}

std::wstring WithoutMark(std::wstring path) {
  if (path.starts_with(kServerMark)) return path.replace(0, kServerMark.size(), LR"(\)");
  return path.starts_with(kMark) ? path.substr(kMark.size()) : path;
}

std::error_code Open(const std::filesystem::path& path, DWORD access, DWORD disposition,
                     std::intptr_t& handle) {
  // Others may go on using the file. A directory can be opened only with backup semantics, and is
  // to be refused in words that say what it is.
  const HANDLE opened = CreateFileW(
      AnyLength(path).c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
      nullptr, disposition, FILE_ATTRIBUTE_NORMAL | FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (opened == INVALID_HANDLE_VALUE) return LastError();
  handle = reinterpret_cast<std::intptr_t>(opened);
  return {};
}

/// The path by which the system knows what is at `path`: links followed, in the volume's own
/// spelling, with the mark of a long path. Empty when it is not there, or the system does not know.
std::wstring FinalPath(const std::filesystem::path& path) {
  std::intptr_t handle = 0;
  if (Open(path, 0, OPEN_EXISTING, handle)) return {};
  std::wstring final(GetFinalPathNameByHandleW(ToHandle(handle), nullptr, 0, 0), L'\0');
  const DWORD length =
      GetFinalPathNameByHandleW(ToHandle(handle), final.data(), static_cast<DWORD>(final.size()),
                                FILE_NAME_NORMALIZED | VOLUME_NAME_DOS);
  CloseHandle(ToHandle(handle));
  final.resize(length < final.size() ? length : 0);
  return final;
}

// FileRenameInfoEx, which the headers of mingw-w64 forget.
constexpr auto kFileRenameInfoEx = static_cast<FILE_INFO_BY_HANDLE_CLASS>(22);

/// Renames as POSIX does, also when somebody has the target open and shares it for that. Only some
/// file systems can, and Wine cannot.
bool RenameOverOpenFile(const std::wstring& from, const std::wstring& to) {
  std::intptr_t handle = 0;
  if (Open(from, DELETE, OPEN_EXISTING, handle)) return false;
  std::vector<char> memory(sizeof(FILE_RENAME_INFO) + to.size() * sizeof(wchar_t));
  auto* const info = new (memory.data()) FILE_RENAME_INFO{};
  info->Flags = FILE_RENAME_FLAG_REPLACE_IF_EXISTS | FILE_RENAME_FLAG_POSIX_SEMANTICS;
  info->FileNameLength = static_cast<DWORD>(to.size() * sizeof(wchar_t));
  std::memcpy(memory.data() + offsetof(FILE_RENAME_INFO, FileName), to.data(),
              info->FileNameLength);
  const BOOL renamed = SetFileInformationByHandle(ToHandle(handle), kFileRenameInfoEx, info,
                                                  static_cast<DWORD>(memory.size()));
  CloseHandle(ToHandle(handle));
  return renamed != FALSE;
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
  // Wine lets its root write what is read-only.
  const DWORD attributes = GetFileAttributesW(AnyLength(path).c_str());
  if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0 &&
      (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
    return {ERROR_ACCESS_DENIED, std::system_category()};
  }
  NativeFile opened;
  const auto error = Open(path, GENERIC_WRITE, OPEN_EXISTING, opened.handle_);
  file = std::move(opened);
  return error;
}

std::error_code NativeFile::Create(const std::filesystem::path& path, Access /*access*/,
                                   NativeFile& file) {
  // The folder's access list holds for the new file until it takes the old file's.
  NativeFile created;
  const auto error = Open(path, GENERIC_WRITE | WRITE_DAC, CREATE_NEW, created.handle_);
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

std::error_code NativeFile::TakeAccessFrom(const NativeFile& other) noexcept {
  // Nobody is refused a save because a file system has no such things.
  FILE_BASIC_INFO basic{};
  if (GetFileInformationByHandleEx(ToHandle(other.handle_), FileBasicInfo, &basic, sizeof basic)) {
    basic.LastAccessTime = basic.LastWriteTime = basic.ChangeTime = {};  // as they are
    SetFileInformationByHandle(ToHandle(handle_), FileBasicInfo, &basic, sizeof basic);
  }
  PACL list = nullptr;
  PSECURITY_DESCRIPTOR descriptor = nullptr;
  if (GetSecurityInfo(ToHandle(other.handle_), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr,
                      nullptr, &list, nullptr, &descriptor) == ERROR_SUCCESS) {
    SECURITY_DESCRIPTOR_CONTROL control = 0;
    DWORD revision = 0;
    GetSecurityDescriptorControl(descriptor, &control, &revision);
    const DWORD inheriting = (control & SE_DACL_PROTECTED) != 0
                                 ? PROTECTED_DACL_SECURITY_INFORMATION
                                 : UNPROTECTED_DACL_SECURITY_INFORMATION;
    SetSecurityInfo(ToHandle(handle_), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION | inheriting,
                    nullptr, nullptr, list, nullptr);
    LocalFree(descriptor);
  }
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
  std::wstring target = FinalPath(path);
  return target.empty() ? path : std::filesystem::path(std::move(target));
}

std::filesystem::path CanonicalPath(const std::filesystem::path& path) {
  const std::filesystem::path full = FullPath(path);
  // A file that is not there is named by its folder.
  if (std::wstring file = FinalPath(full); !file.empty()) return WithoutMark(std::move(file));
  const std::filesystem::path folder = FinalPath(full.parent_path());
  return WithoutMark(folder.empty() ? full : folder / full.filename());
}

std::error_code MoveOver(const std::filesystem::path& source, const std::filesystem::path& target) {
  const std::wstring from = AnyLength(source);
  const std::wstring to = AnyLength(target);
  if (RenameOverOpenFile(from, to) ||
      MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
    return {};
  }
  return LastError();
}

void FlushFolderOf(const std::filesystem::path& /*path*/) noexcept {
  // The system keeps its folders in order by itself.
}

void RemoveFile(const std::filesystem::path& path) noexcept {
  DeleteFileW(AnyLength(path).c_str());
}

void ReportFileSizeLimitAsFailure() noexcept {
  // There is no such limit here.
}

}  // namespace mivo
