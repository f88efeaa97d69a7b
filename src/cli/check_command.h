#ifndef MIVO_CLI_CHECK_COMMAND_H
#define MIVO_CLI_CHECK_COMMAND_H

#include <string>
#include <vector>

#include "command_io.h"

namespace mivo {

struct CheckOptions {
  std::vector<std::string> files;
  bool strict = false;  ///< saving must not change a byte of a file
};

/// Prints every finding in the files as "FILE:LINE: error|warning: TEXT"; nothing about good files.
[[nodiscard]] ExitCode RunCheck(const CheckOptions& options, const CommandIo& io);

}  // namespace mivo

#endif
