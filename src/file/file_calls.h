#ifndef MIVO_FILE_FILE_CALLS_H
#define MIVO_FILE_FILE_CALLS_H

#include <cstdint>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "native_file.h"

namespace mivo {

/// The calls of the system that change something while FileWriter replaces a file. These are the
/// system's own; tests derive from them to let each one fail. Private to this folder.
class FileCalls {
 public:
  virtual ~FileCalls() = default;

  [[nodiscard]] virtual std::error_code OpenToWrite(const std::filesystem::path& path,
                                                    NativeFile& file);
  /// The new file is locked, which tells it from one whose process was killed.
  [[nodiscard]] virtual std::error_code Create(const std::filesystem::path& path,
                                               NativeFile::Access access, NativeFile& file);
  [[nodiscard]] virtual std::error_code TakeAccess(NativeFile& file, const NativeFile& from);
  [[nodiscard]] virtual std::error_code Write(NativeFile& file, std::string_view bytes);
  [[nodiscard]] virtual std::error_code SetSize(NativeFile& file, std::uint64_t size);
  [[nodiscard]] virtual std::error_code Flush(NativeFile& file);
  [[nodiscard]] virtual std::error_code Close(NativeFile& file);
  [[nodiscard]] virtual std::error_code MoveOver(const std::filesystem::path& source,
                                                 const std::filesystem::path& target);
  virtual void FlushFolderOf(const std::filesystem::path& path);
  virtual void Remove(const std::filesystem::path& path);

  /// Those of the system.
  [[nodiscard]] static FileCalls& OfTheSystem();
};

}  // namespace mivo

#endif
