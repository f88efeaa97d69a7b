#ifndef MIVO_FILE_FILE_SOURCE_H
#define MIVO_FILE_FILE_SOURCE_H

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

#include "byte_stream.h"

namespace mivo {

class NativeFile;

/// Reads a file piece by piece, for what need not be in memory as a whole. A file that cannot be
/// read to its end looks shorter than it is, so ask for Error before you trust what was read.
class FileSource final : public ByteSource {
 public:
  /// Opens at once. What is not a regular file is refused, as ReadFile does.
  explicit FileSource(const std::filesystem::path& path);
  ~FileSource() override;

  [[nodiscard]] std::size_t Read(std::span<char> into) override;

  /// Bytes that the file seems to hold; 0 when that is not known.
  [[nodiscard]] std::uint64_t SizeHint() const noexcept { return sizeHint_; }

  /// Why the file could not be opened or read on, in the words of ReadFile; empty if it could.
  [[nodiscard]] const std::string& Error() const noexcept { return error_; }

 private:
  std::unique_ptr<NativeFile> file_;
  std::uint64_t sizeHint_ = 0;
  std::string error_;
};

}  // namespace mivo

#endif
