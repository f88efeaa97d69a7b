#ifndef MIVO_CLI_COMMAND_IO_H
#define MIVO_CLI_COMMAND_IO_H

#include <functional>
#include <string>
#include <string_view>

#include "byte_stream.h"
#include "file_result.h"

namespace mivo {

/// What the process of a command ends with.
enum class ExitCode {
  Fine = 0,
  Findings = 1,  ///< also a load that failed
  Failure = 2,   ///< wrong usage, or a file that cannot be read or written
};

/// The argument that stands for the standard input or output.
inline constexpr std::string_view kStandardStream = "-";

/// The process's own streams as a command sees them. Whoever made the sinks finds out whether they
/// took everything.
struct CommandIo {
  std::function<FileResult<std::string>()> readInput;
  ByteSink& output;
  ByteSink& errors;
};

/// Writes `text`; a failure is left for the owner of the sink to find.
void Print(ByteSink& sink, std::string_view text);

/// Prints "mivo-cli: SUBJECT: REASON" to the errors, both on one line.
void PrintFailure(const CommandIo& io, std::string_view subject, std::string_view reason);

}  // namespace mivo

#endif
