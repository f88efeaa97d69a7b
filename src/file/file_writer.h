#ifndef MIVO_FILE_FILE_WRITER_H
#define MIVO_FILE_FILE_WRITER_H

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

#include "byte_stream.h"

namespace mivo {

class FileCalls;
class NativeFile;

/// Replaces a file as a whole or not at all.
///
/// What is written goes to a file beside the target, which Commit flushes to the disk and renames
/// over the target. Until then, and after a failure of any kind, the old file is there byte for
/// byte. Symbolic links are followed and stay; the new file has the owner and the permissions of
/// the old one, or the system's defaults when there was none. A target that may not be written is
/// not replaced either. A target that is no regular file, such as a pipe or a device, cannot be
/// replaced: it is written directly.
///
/// Some files would be torn from what they are by that: those with several names (hard links),
/// those of another owner whom the new file could not be given to, those in a folder where nothing
/// can be created. They can be rewritten in place instead: Commit writes the new content over the
/// old and, when that fails, the old one back. A process killed in the middle leaves half of each,
/// so whoever allows this keeps a copy elsewhere first.
class FileWriter final : public ByteSink {
 public:
  /// The temporary file of NAME is .NAME.mivo-XXXXXX, a long NAME cut off.
  static constexpr std::string_view kTemporaryMark = ".mivo-";

  enum class Durability {
    OnDisk,          ///< Commit returns once the new file is on the disk
    LeftToTheSystem  ///< Commit waits for no disk; for what can be lost without harm
  };

  enum class Rewriting {
    Never,      ///< several names become one, the owner changes; nothing to create, nothing written
    WhenNeeded  ///< the caller asks RewritesInPlace before Commit
  };

  /// Opens everything at once; a failure shows in Write and Commit. Temporary files that killed
  /// processes left of the same target go, unless durability is left to the system.
  explicit FileWriter(const std::filesystem::path& target,
                      Durability durability = Durability::OnDisk,
                      Rewriting rewriting = Rewriting::Never);
  /// The same through other calls of the system, which must outlive the writer.
  FileWriter(const std::filesystem::path& target, Durability durability, Rewriting rewriting,
             FileCalls& calls);
  /// Without a Commit, leaves the target as it was.
  ~FileWriter() override;
  FileWriter(const FileWriter&) = delete;
  FileWriter& operator=(const FileWriter&) = delete;

  /// False from the first failure on.
  [[nodiscard]] bool Write(std::string_view bytes) override;

  /// Ends the writing and puts the file in its place; false, with the temporary file removed, when
  /// that or anything before it failed. Called at most once.
  [[nodiscard]] bool Commit();

  /// Whether Commit will write over the old content instead of replacing the file.
  [[nodiscard]] bool RewritesInPlace() const noexcept { return newContent_.has_value(); }

  /// The system's words for the first failure, without the file's name; empty without a failure.
  [[nodiscard]] std::string ErrorText() const;

 private:
  void Open(const std::filesystem::path& target);
  void CreateTemporary(NativeFile& old);
  void StartRewriting(NativeFile& old);
  void Rewrite();
  [[nodiscard]] std::error_code PutInPlace(std::string_view bytes);
  bool Check(const std::error_code& error);

  FileCalls& calls_;
  Durability durability_;
  Rewriting rewriting_;
  std::unique_ptr<NativeFile> file_;
  std::filesystem::path target_;     // links followed
  std::filesystem::path temporary_;  // empty once it is gone, and for a target written directly
  std::optional<std::string> newContent_;  // collected for a file that is rewritten in place
  std::error_code error_;
};

/// Lets a file that reaches the size limit of the process fail like one that fills the disk. By
/// default that kills the process, which could not even remove its temporary file. For the start of
/// a program.
void ReportFileSizeLimitAsFailure() noexcept;

}  // namespace mivo

#endif
