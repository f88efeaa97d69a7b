#ifndef MIVO_SAFETY_RECOVERED_LIBRARY_H
#define MIVO_SAFETY_RECOVERED_LIBRARY_H

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "locked_file.h"
#include "mivo_doc.h"
#include "recovery_records.h"

namespace mivo {

/// What a recovery file holds.
struct RecoveredLibrary {
  RecoveryStart file;  ///< of the library, as it was when the changes began
  SMivoDoc doc;        ///< with the changes; its path is that of the file
};

/// Reads a recovery file as far as it is whole. Nothing when not even the beginning is.
[[nodiscard]] std::optional<RecoveredLibrary> ReadRecovery(std::string_view bytes);

/// How a recovered library differs from what is on the disk now.
struct RecoveryDifferences {
  // Names, in list order.
  std::vector<std::u16string> changed;
  std::vector<std::u16string> added;
  std::vector<std::u16string> removed;
  bool arrangement =
      false;  ///< the order of the names, what is an alias of what, the library's text

  [[nodiscard]] bool Any() const noexcept {
    return arrangement || !changed.empty() || !added.empty() || !removed.empty();
  }
};

/// `onDisk` is null for a library without a file, or one that is not there or cannot be read.
[[nodiscard]] RecoveryDifferences CompareWithDisk(const SMivoDoc& recovered,
                                                  const SMivoDoc* onDisk);

/// A recovery file whose program is gone. This process has it for itself from now on.
struct FoundRecovery {
  LockedFile recoveryFile;  ///< removed by whoever needs it no longer, and else kept
  RecoveredLibrary library;
  RecoveryDifferences differences;  ///< there are some
};

/// The recovery files in `folder`, those last written to first. The ones of running programs are
/// left alone; those that hold nothing that differs from the disk are removed, and those that
/// cannot be read are put aside.
[[nodiscard]] std::vector<FoundRecovery> FindRecoveries(const std::filesystem::path& folder);

}  // namespace mivo

#endif
