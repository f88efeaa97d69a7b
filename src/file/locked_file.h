#ifndef MIVO_FILE_LOCKED_FILE_H
#define MIVO_FILE_LOCKED_FILE_H

#include <filesystem>
#include <memory>
#include <string_view>

namespace mivo {

class NativeFile;

/// A file that one process has to itself as long as that runs: the system frees the lock with the
/// process, however it ends. Where the file system knows no locks, everybody counts as having it.
class LockedFile {
 public:
  enum class Outcome { Locked, HeldElsewhere, Failed };

  LockedFile();
  LockedFile(LockedFile&& other) noexcept;
  LockedFile& operator=(LockedFile&& other) noexcept;
  /// Leaves the file there.
  ~LockedFile();

  /// Locks the file at `path`, creating it, for its owner alone, where there is none.
  [[nodiscard]] Outcome Acquire(const std::filesystem::path& path);
  /// The same for a file that exists.
  [[nodiscard]] Outcome AcquireExisting(const std::filesystem::path& path);

  [[nodiscard]] bool IsHeld() const noexcept { return file_ != nullptr; }
  /// Empty when nothing is held.
  [[nodiscard]] const std::filesystem::path& Path() const noexcept { return path_; }

  /// Writes behind what this object wrote before, and does not wait for the disk. False when not
  /// all of it could be written, and when nothing is held.
  [[nodiscard]] bool Write(std::string_view bytes);

  /// Returns once what was written is on the disk; false when it may not be.
  [[nodiscard]] bool Flush();

  /// Lets go of the file and leaves it there.
  void Release() noexcept;
  /// Lets go of the file and removes it.
  void Remove() noexcept;

 private:
  std::unique_ptr<NativeFile> file_;  // null when nothing is held
  std::filesystem::path path_;
};

}  // namespace mivo

#endif
