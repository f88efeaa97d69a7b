#ifndef MIVO_FILE_FILE_WRITER_H
#define MIVO_FILE_FILE_WRITER_H

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>

#include "byte_stream.h"

namespace mivo {

class NativeFile;

/// Replaces a file as a whole or not at all.
///
/// What is written goes to a file beside the target, which Commit flushes to the disk and renames
/// over the target. Until then, and after a failure of any kind, the old file is there byte for
/// byte. Symbolic links are followed and stay; the new file has the owner and the permissions of
/// the old one, or the system's defaults when there was none. A target that may not be written is
/// not replaced either. A target that is no regular file, such as a pipe or a device, cannot be
/// replaced: it is written directly.
class FileWriter final : public ByteSink {
 public:
  /// The temporary file of NAME is .NAME.mivo-XXXXXX, a long NAME cut off.
  static constexpr std::string_view kTemporaryMark = ".mivo-";

  enum class Durability {
    OnDisk,          ///< Commit returns once the new file is on the disk
    LeftToTheSystem  ///< Commit waits for no disk; for what can be lost without harm
  };

  /// Opens everything at once; a failure shows in Write and Commit.
  explicit FileWriter(const std::filesystem::path& target,
                      Durability durability = Durability::OnDisk);
  /// Without a Commit, leaves the target as it was.
  ~FileWriter() override;
  FileWriter(const FileWriter&) = delete;
  FileWriter& operator=(const FileWriter&) = delete;

  /// False from the first failure on.
  [[nodiscard]] bool Write(std::string_view bytes) override;

  /// Ends the writing and puts the file in its place; false, with the temporary file removed, when
  /// that or anything before it failed. Called at most once.
  [[nodiscard]] bool Commit();

  /// The system's words for the first failure, without the file's name; empty without a failure.
  [[nodiscard]] std::string ErrorText() const;

 private:
  void Open(const std::filesystem::path& target);
  bool Check(const std::error_code& error);

  Durability durability_;
  std::unique_ptr<NativeFile> file_;
  std::filesystem::path target_;     // links followed
  std::filesystem::path temporary_;  // empty once it is gone, and for a target written directly
  std::error_code error_;
};

/// Lets a file that reaches the size limit of the process fail like one that fills the disk. By
/// default that kills the process, which could not even remove its temporary file. For the start of
/// a program.
void ReportFileSizeLimitAsFailure() noexcept;

}  // namespace mivo

#endif
