#ifndef MIVO_CLI_INPUT_H
#define MIVO_CLI_INPUT_H

#include <optional>
#include <string>

#include "command_io.h"
#include "mivo_doc.h"

namespace mivo {

/// The content of the file that the argument `file` means. Nothing when it cannot be read, which
/// is then printed.
[[nodiscard]] std::optional<std::string> ReadInput(const std::string& file, const CommandIo& io);

enum class LoadOutcome {
  Loaded,
  Partial,     ///< the load failed; what it read up to there is in the library
  Unreadable,  ///< there was nothing to load
};

/// Loads the library or schematic that the argument `file` means. What goes wrong is printed; for a
/// load that failed that is "FILE:LINE: REASON".
[[nodiscard]] LoadOutcome LoadInput(const std::string& file, const CommandIo& io, SMivoDoc& doc);

}  // namespace mivo

#endif
