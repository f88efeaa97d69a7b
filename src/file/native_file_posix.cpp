#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <utility>

#include "canonical_path.h"
#include "file_writer.h"
#include "native_file.h"

namespace mivo {
namespace {

// One call takes no more than this on any system.
constexpr std::size_t kMostAtOnce = std::size_t{1} << 30;

std::error_code LastError() noexcept {
  return {errno, std::system_category()};
}

int Descriptor(std::intptr_t handle) noexcept {
  return static_cast<int>(handle);
}

std::error_code Open(const std::filesystem::path& path, int flags, mode_t mode,
                     std::intptr_t& handle) {
  int descriptor;
  do {
    // A terminal must not become the one that controls the process.
    descriptor = open(path.c_str(), flags | O_CLOEXEC | O_NOCTTY, mode);
  } while (descriptor < 0 && errno == EINTR);
  if (descriptor < 0) return LastError();
  handle = descriptor;
  return {};
}

}  // namespace

std::string SystemMessage(const std::error_code& error) {
  return error.message();
}

NativeFile::~NativeFile() {
  if (IsOpen() && owned_) close(Descriptor(handle_));
}

std::error_code NativeFile::OpenToRead(const std::filesystem::path& path, NativeFile& file) {
  NativeFile opened;
  const auto error = Open(path, O_RDONLY | O_NONBLOCK, 0, opened.handle_);
  file = std::move(opened);
  return error;
}

std::error_code NativeFile::OpenToWrite(const std::filesystem::path& path, NativeFile& file) {
  NativeFile opened;
  const auto error = Open(path, O_WRONLY, 0, opened.handle_);
  file = std::move(opened);
  return error;
}

std::error_code NativeFile::Create(const std::filesystem::path& path, Access access,
                                   NativeFile& file) {
  NativeFile created;
  const mode_t mode = access == Access::OwnerOnly ? 0600 : 0666;
  const auto error = Open(path, O_WRONLY | O_CREAT | O_EXCL, mode, created.handle_);
  file = std::move(created);
  return error;
}

NativeFile NativeFile::StandardInput() noexcept {
  return Borrowed(STDIN_FILENO);
}

NativeFile NativeFile::StandardOutput() noexcept {
  return Borrowed(STDOUT_FILENO);
}

NativeFile NativeFile::StandardError() noexcept {
  return Borrowed(STDERR_FILENO);
}

NativeFile::Kind NativeFile::GetKind() const noexcept {
  struct stat status;
  if (fstat(Descriptor(handle_), &status) != 0) return Kind::Other;
  if (S_ISREG(status.st_mode)) return Kind::Regular;
  return S_ISDIR(status.st_mode) ? Kind::Directory : Kind::Other;
}

std::size_t NativeFile::SizeHint() const noexcept {
  struct stat status;
  if (fstat(Descriptor(handle_), &status) != 0 || status.st_size < 0) return 0;
  return static_cast<std::size_t>(status.st_size);
}

std::uint64_t NativeFile::LinkCount() const noexcept {
  struct stat status;
  return fstat(Descriptor(handle_), &status) == 0 ? status.st_nlink : 1;
}

std::error_code NativeFile::Read(std::span<char> into, std::size_t& got) noexcept {
  ssize_t count;
  do {
    count = read(Descriptor(handle_), into.data(), std::min(into.size(), kMostAtOnce));
  } while (count < 0 && errno == EINTR);
  if (count < 0) return LastError();
  got = static_cast<std::size_t>(count);
  return {};
}

std::error_code NativeFile::Write(std::string_view bytes) noexcept {
  while (!bytes.empty()) {
    const ssize_t count =
        write(Descriptor(handle_), bytes.data(), std::min(bytes.size(), kMostAtOnce));
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return LastError();
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return {};
}

std::error_code NativeFile::Rewind() noexcept {
  return lseek(Descriptor(handle_), 0, SEEK_SET) == 0 ? std::error_code() : LastError();
}

std::error_code NativeFile::SetSize(std::uint64_t size) noexcept {
  int result;
  do {
    result = ftruncate(Descriptor(handle_), static_cast<off_t>(size));
  } while (result != 0 && errno == EINTR);
  return result == 0 ? std::error_code() : LastError();
}

std::error_code NativeFile::Flush() noexcept {
  int result;
  do {
    result = fsync(Descriptor(handle_));
  } while (result != 0 && errno == EINTR);
  if (result == 0) return {};
  // Pipes, terminals and some devices have nothing to flush and say so.
  if (errno == EINVAL || errno == ENOTSUP || errno == EROFS) return {};
  return LastError();
}

std::error_code NativeFile::Close() noexcept {
  const int descriptor = Descriptor(std::exchange(handle_, kNone));
  // After EINTR the descriptor is gone all the same; closing it again could hit another file.
  if (close(descriptor) != 0 && errno != EINTR) return LastError();
  return {};
}

std::error_code NativeFile::TakeAccessFrom(const NativeFile& other) noexcept {
  struct stat status;
  if (fstat(Descriptor(other.handle_), &status) != 0) return LastError();
  const int descriptor = Descriptor(handle_);
  std::error_code error;
  // Only a privileged process can give a file away; the group alone may still be possible.
  if (fchown(descriptor, status.st_uid, status.st_gid) != 0) {
    error = LastError();
    static_cast<void>(fchown(descriptor, static_cast<uid_t>(-1), status.st_gid) == 0);
  }
  // Last, since a change of owner takes permissions away.
  static_cast<void>(fchmod(descriptor, status.st_mode & 0777) == 0);
  return error;
}

NativeFile::Lock NativeFile::TryLock() noexcept {
  if (flock(Descriptor(handle_), LOCK_EX | LOCK_NB) == 0) return Lock::Taken;
  return errno == EWOULDBLOCK ? Lock::HeldElsewhere : Lock::Impossible;
}

std::filesystem::path FinalTarget(const std::filesystem::path& path) {
  constexpr int kMostLinks = 40;  // what the system itself follows
  std::filesystem::path target = path;
  for (int i = 0; i < kMostLinks; ++i) {
    std::error_code error;
    const std::filesystem::path next = std::filesystem::read_symlink(target, error);
    if (error) break;
    target = target.parent_path() / next;  // an absolute `next` stands for itself
  }
  return target;
}

std::filesystem::path CanonicalPath(const std::filesystem::path& path) {
  std::error_code error;
  // Complete first: a relative path of which nothing exists would stay as it is.
  std::filesystem::path canonical = std::filesystem::absolute(FinalTarget(path), error);
  if (!error) canonical = std::filesystem::weakly_canonical(canonical, error);
  return error ? path : canonical;
}

std::error_code MoveOver(const std::filesystem::path& source, const std::filesystem::path& target) {
  return std::rename(source.c_str(), target.c_str()) == 0 ? std::error_code() : LastError();
}

void FlushFolderOf(const std::filesystem::path& path) noexcept {
  const std::filesystem::path folder = path.parent_path();
  const int descriptor = open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_CLOEXEC);
  if (descriptor < 0) return;
  fsync(descriptor);
  close(descriptor);
}

void RemoveFile(const std::filesystem::path& path) noexcept {
  unlink(path.c_str());
}

void ReportFileSizeLimitAsFailure() noexcept {
  std::signal(SIGXFSZ, SIG_IGN);
}

}  // namespace mivo
