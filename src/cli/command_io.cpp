#include "command_io.h"

#include "printable_text.h"

namespace mivo {

void Print(ByteSink& sink, std::string_view text) {
  static_cast<void>(sink.Write(text));
}

void PrintFailure(const CommandIo& io, std::string_view subject, std::string_view reason) {
  std::string line = "mivo-cli: ";
  AppendMessage(line, subject);
  line += ": ";
  AppendMessage(line, reason);
  line += '\n';
  Print(io.errors, line);
}

}  // namespace mivo
