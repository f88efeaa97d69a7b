#ifndef MIVO_CLI_LIST_COMMAND_H
#define MIVO_CLI_LIST_COMMAND_H

#include <string>

#include "command_io.h"

namespace mivo {

struct ListOptions {
  std::string file;
  bool json = false;
};

/// Prints what a library or schematic holds, one line per name; nothing when the load fails.
[[nodiscard]] ExitCode RunList(const ListOptions& options, const CommandIo& io);

}  // namespace mivo

#endif
