#ifndef MIVO_FILE_NATIVE_FILE_H
#define MIVO_FILE_NATIVE_FILE_H

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <system_error>

namespace mivo {

/// The words of the system for `error`, in UTF-8.
[[nodiscard]] std::string SystemMessage(const std::error_code& error);

/// An open file of the operating system: the few calls on which the file layer is built, each
/// implemented once per platform. Bytes pass through unchanged. Private to this folder.
class NativeFile {
 public:
  enum class Kind { Regular, Directory, Other };
  /// Who may use a file that is created: whoever the system's defaults let, or its owner alone.
  enum class Access { Default, OwnerOnly };

  NativeFile() = default;
  NativeFile(NativeFile&& other) noexcept;
  NativeFile& operator=(NativeFile&& other) noexcept;
  ~NativeFile();

  /// Never waits, not even for the other end of a pipe.
  [[nodiscard]] static std::error_code OpenToRead(const std::filesystem::path& path,
                                                  NativeFile& file);
  /// Opens what exists, of whatever kind, and leaves its content alone. Writing starts at the
  /// front.
  [[nodiscard]] static std::error_code OpenToWrite(const std::filesystem::path& path,
                                                   NativeFile& file);
  /// Creates a file for writing; fails with std::errc::file_exists when there is anything by that
  /// name.
  [[nodiscard]] static std::error_code Create(const std::filesystem::path& path, Access access,
                                              NativeFile& file);
  // The streams that the process was started with; they are not closed with the object.
  [[nodiscard]] static NativeFile StandardInput() noexcept;
  [[nodiscard]] static NativeFile StandardOutput() noexcept;
  [[nodiscard]] static NativeFile StandardError() noexcept;

  [[nodiscard]] bool IsOpen() const noexcept { return handle_ != kNone; }
  [[nodiscard]] Kind GetKind() const noexcept;
  /// Bytes that the file seems to hold; 0 when that is not known.
  [[nodiscard]] std::size_t SizeHint() const noexcept;
  /// Names that the file has in its file system: 0 once it is removed, 1 when that is not known.
  [[nodiscard]] std::uint64_t LinkCount() const noexcept;

  /// Fills the front of `into`; `got` is 0 at the end of the data.
  [[nodiscard]] std::error_code Read(std::span<char> into, std::size_t& got) noexcept;
  /// Writes all of `bytes`.
  [[nodiscard]] std::error_code Write(std::string_view bytes) noexcept;
  /// The next write goes to the front again.
  [[nodiscard]] std::error_code Rewind() noexcept;
  /// Cuts the file off behind `size` bytes, or fills it up with zeros.
  [[nodiscard]] std::error_code SetSize(std::uint64_t size) noexcept;
  /// Returns once the content is on the disk.
  [[nodiscard]] std::error_code Flush() noexcept;
  [[nodiscard]] std::error_code Close() noexcept;

  /// Gives this file the owner and the permissions of `other`, as far as the system lets us; an
  /// error when owner or group could not be kept.
  [[nodiscard]] std::error_code TakeAccessFrom(const NativeFile& other) noexcept;

  enum class Lock { Taken, HeldElsewhere, Impossible };
  /// Takes the lock that one open file of all processes can have, without waiting; it goes with the
  /// file, however its process ends. Not every file system knows such locks.
  [[nodiscard]] Lock TryLock() noexcept;

 private:
  static constexpr std::intptr_t kNone = -1;

  [[nodiscard]] static NativeFile Borrowed(std::intptr_t handle) noexcept;

  std::intptr_t handle_ = kNone;  // a file descriptor, or a HANDLE on Windows
  bool owned_ = true;
};

/// Opens what ReadFile and FileSource read. Returns why that is refused, or nothing.
[[nodiscard]] std::string OpenRegularFile(const std::filesystem::path& path, NativeFile& file);

/// The file at the end of the chain of symbolic links that starts at `path`; need not exist.
[[nodiscard]] std::filesystem::path FinalTarget(const std::filesystem::path& path);

/// Puts `source` in the place of `target`, whether that exists or not, in one step. Both are in the
/// same folder.
[[nodiscard]] std::error_code MoveOver(const std::filesystem::path& source,
                                       const std::filesystem::path& target);

/// Returns once the disk knows what the folder around `path` holds; a folder that cannot be flushed
/// is passed over.
void FlushFolderOf(const std::filesystem::path& path) noexcept;

void RemoveFile(const std::filesystem::path& path) noexcept;

}  // namespace mivo

#endif
