#ifndef MIVO_TESTS_SUPPORT_CHILD_PROCESS_H
#define MIVO_TESTS_SUPPORT_CHILD_PROCESS_H

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

// What must not happen to the test process itself happens in a child of it.

namespace mivo {

#ifndef _WIN32
/// Runs `action` in a child process and returns what it returns, or "signal N" when a signal ended
/// the child. Expectations inside `action` reach nobody: let it return what is to be checked.
[[nodiscard]] std::string RunInChild(const std::function<std::string()>& action);
#endif

struct ProgramResult {
  int exitCode = -1;  ///< -N when signal N ended the program
  std::string output;
  std::string errors;
};

/// Runs a program in `folder` with no environment but a neutral locale, on Windows with this
/// process's, and waits for its end.
[[nodiscard]] ProgramResult RunProgram(const std::filesystem::path& program,
                                       const std::vector<std::string>& arguments,
                                       const std::filesystem::path& folder,
                                       std::string_view input = {});

}  // namespace mivo

#endif
