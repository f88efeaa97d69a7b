#ifndef MIVO_TESTS_CLI_CAPTURED_IO_H
#define MIVO_TESTS_CLI_CAPTURED_IO_H

#include <string>

#include "byte_stream.h"
#include "command_io.h"

namespace mivo {

/// The streams of a command in memory.
struct CapturedIo {
  std::string input;
  std::string output;
  std::string errors;

  StringByteSink outputSink{output};
  StringByteSink errorSink{errors};
  CommandIo io{[this] { return FileResult<std::string>(input); }, outputSink, errorSink};
};

/// Takes nothing.
class FullSink final : public ByteSink {
 public:
  [[nodiscard]] bool Write(std::string_view) override { return false; }
};

}  // namespace mivo

#endif
