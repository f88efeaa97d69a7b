#ifndef MIVO_TESTS_SUPPORT_TEMP_FOLDER_H
#define MIVO_TESTS_SUPPORT_TEMP_FOLDER_H

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace mivo {

/// A fresh folder in the test program's PrivateFolder that goes with its object, with all that is
/// in it.
class TempFolder {
 public:
  TempFolder();
  ~TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  [[nodiscard]] const std::filesystem::path& Path() const { return path_; }
  [[nodiscard]] std::filesystem::path operator/(std::string_view name) const {
    return path_ / name;
  }

  /// Creates or replaces a file and returns its path.
  std::filesystem::path Put(std::string_view name, std::string_view bytes) const;

  /// The names of all that is in the folder, hidden files included, in alphabetical order.
  [[nodiscard]] std::vector<std::string> Names() const;

 private:
  std::filesystem::path path_;
};

/// The content of a file; empty when it cannot be read.
[[nodiscard]] std::string BytesOf(const std::filesystem::path& path);

}  // namespace mivo

#endif
