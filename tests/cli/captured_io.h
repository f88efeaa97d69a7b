#ifndef MIVO_TESTS_CLI_CAPTURED_IO_H
#define MIVO_TESTS_CLI_CAPTURED_IO_H

#include <string>
#include <string_view>
#include <utility>

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

/// Refuses what comes first and takes the rest.
class FailingOnceSink final : public ByteSink {
 public:
  [[nodiscard]] bool Write(std::string_view) override { return std::exchange(failed_, true); }

 private:
  bool failed_ = false;
};

}  // namespace mivo

#endif
