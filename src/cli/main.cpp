#include <cstdlib>
#include <new>
#include <string>
#include <vector>

#include "file_writer.h"
#include "read_file.h"
#include "run_cli.h"
#include "standard_stream.h"

#ifdef _WIN32
// clang-format off
#include <windows.h>
#include <shellapi.h>
// clang-format on

#include "text_encoding.h"
#endif

namespace mivo {
namespace {

#ifdef _WIN32
/// In UTF-8; those that main is given have lost what the code page of the system does not hold.
std::vector<std::string> Arguments(int, char**) {
  std::vector<std::string> arguments;
  int count = 0;
  wchar_t** const words = CommandLineToArgvW(GetCommandLineW(), &count);
  for (int i = 1; i < count; ++i) {
    const std::wstring word(words[i]);
    arguments.push_back(Utf16ToUtf8(std::u16string(word.begin(), word.end())));
  }
  LocalFree(words);
  return arguments;
}
#else
std::vector<std::string> Arguments(int argc, char** argv) {
  return {argv + (argc > 0 ? 1 : 0), argv + argc};
}
#endif

ExitCode Run(int argc, char** argv, const CommandIo& io) {
  try {
    return RunCli(Arguments(argc, argv), io);
  } catch (const std::bad_alloc&) {
    Print(io.errors, "mivo-cli: not enough memory\n");
    return ExitCode::Failure;
  }
}

}  // namespace
}  // namespace mivo

int main(int argc, char** argv) {
  using namespace mivo;
  ReportFileSizeLimitAsFailure();
  StandardStream output = StandardStream::Output();
  StandardStream errors = StandardStream::Error();
  const CommandIo io{ReadStandardInput, output, errors};
  ExitCode code = Run(argc, argv, io);
  if (!output.Flush()) {
    PrintFailure(io, "standard output", output.ErrorText());
    code = ExitCode::Failure;
  }
  static_cast<void>(errors.Flush());  // there is nowhere left to tell it
  return static_cast<int>(code);
}
