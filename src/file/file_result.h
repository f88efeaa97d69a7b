#ifndef MIVO_FILE_FILE_RESULT_H
#define MIVO_FILE_FILE_RESULT_H

#include <string>
#include <utility>
#include <variant>

namespace mivo {

/// Why a file operation failed: the system's own words, in UTF-8, without the name of the file.
struct FileError {
  std::string message;
};

/// What a file operation yields, or why it yields nothing.
template <typename T>
class FileResult {
 public:
  FileResult(T value) : content_(std::move(value)) {}
  FileResult(FileError error) : content_(std::move(error)) {}

  [[nodiscard]] bool Ok() const noexcept { return std::holds_alternative<T>(content_); }

  /// Only of a result that is Ok.
  [[nodiscard]] const T& Value() const& { return std::get<T>(content_); }
  [[nodiscard]] T&& Value() && { return std::get<T>(std::move(content_)); }

  /// Only of a result that is not Ok.
  [[nodiscard]] const std::string& Error() const { return std::get<FileError>(content_).message; }

 private:
  std::variant<T, FileError> content_;
};

}  // namespace mivo

#endif
