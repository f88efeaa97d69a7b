#ifndef MIVO_CLI_RUN_CLI_H
#define MIVO_CLI_RUN_CLI_H

#include <string>
#include <vector>

#include "command_io.h"

namespace mivo {

/// Runs the command that `arguments`, which come without the program's name, ask for.
[[nodiscard]] ExitCode RunCli(const std::vector<std::string>& arguments, const CommandIo& io);

}  // namespace mivo

#endif
