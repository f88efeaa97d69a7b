#ifndef MIVO_SAFETY_SAFETY_COPIES_H
#define MIVO_SAFETY_SAFETY_COPIES_H

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace mivo {

/// Previous versions of saved libraries, in a folder for each library that tells its path.
///
/// A copy is a library like any other, named 0001-NAME, 0002-NAME and so on in the order in which
/// they were kept. What a file held before anything that was not understood got lost is named
/// original-0001-NAME and makes no room for later copies.
class SafetyCopies {
 public:
  /// So many of either kind stay; older ones go.
  static constexpr std::size_t kKept = 5;

  /// `folder` is created when there is something to keep; an empty one keeps nothing.
  explicit SafetyCopies(std::filesystem::path folder) : folder_(std::move(folder)) {}

  [[nodiscard]] const std::filesystem::path& Folder() const noexcept { return folder_; }
  /// Where the copies of `file` are, once there are any.
  [[nodiscard]] std::filesystem::path FolderOf(const std::filesystem::path& file) const;

  enum class Kind { Previous, Original };
  enum class Durability { OnDisk, LeftToTheSystem };
  /// Keeps `content` of `file`, unless the last copy holds just that. False when it could not be
  /// kept.
  [[nodiscard]] bool Keep(const std::filesystem::path& file, std::string_view content, Kind kind,
                          Durability durability) const;

 private:
  std::filesystem::path folder_;
};

}  // namespace mivo

#endif
