#ifndef MIVO_CLI_CONVERT_COMMAND_H
#define MIVO_CLI_CONVERT_COMMAND_H

#include <string>

#include "command_io.h"

namespace mivo {

struct ConvertOptions {
  std::string in;
  std::string out;
  bool keepPartial = false;  ///< write what was read before a load failed
};

/// Loads a library or schematic and saves it as a library; the two may be the same file. Nothing is
/// written when the load fails, unless the partial result is wanted.
[[nodiscard]] ExitCode RunConvert(const ConvertOptions& options, const CommandIo& io);

}  // namespace mivo

#endif
