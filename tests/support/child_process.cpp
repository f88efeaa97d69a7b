#include "child_process.h"

#include <fcntl.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <exception>
#include <memory>
#include <stdexcept>

namespace mivo {
namespace {

/// A file without a name, so that no amount of output makes anybody wait for anybody.
using Spool = std::unique_ptr<std::FILE, decltype(&std::fclose)>;

Spool MakeSpool(std::string_view content = {}) {
  Spool spool(std::tmpfile(), &std::fclose);
  if (!spool || std::fwrite(content.data(), 1, content.size(), spool.get()) != content.size()) {
    throw std::runtime_error("no temporary file");
  }
  std::rewind(spool.get());
  return spool;
}

std::string ContentOf(const Spool& spool) {
  std::rewind(spool.get());
  std::string content;
  for (int c = std::fgetc(spool.get()); c != EOF; c = std::fgetc(spool.get())) {
    content.push_back(static_cast<char>(c));
  }
  return content;
}

/// Starts a child that runs `action` and never returns from it; returns its wait status.
int Fork(const std::function<void()>& action) {
  std::fflush(nullptr);
  const pid_t child = fork();
  if (child < 0) throw std::runtime_error("cannot fork");
  if (child == 0) {
    action();
    _exit(127);
  }
  int status = 0;
  if (waitpid(child, &status, 0) != child) throw std::runtime_error("cannot wait");
  return status;
}

}  // namespace

std::string RunInChild(const std::function<std::string()>& action) {
  const Spool result = MakeSpool();
  const int status = Fork([&] {
    std::string text;
    try {
      text = action();
    } catch (const std::exception& exception) {
      text = std::string("exception: ") + exception.what();
    }
    // By the descriptor: the limits that a test sets may hold for the stream's buffer as well.
    _exit(write(fileno(result.get()), text.data(), text.size()) >= 0 ? 0 : 1);
  });
  if (WIFSIGNALED(status)) return "signal " + std::to_string(WTERMSIG(status));
  return ContentOf(result);
}

ProgramResult RunProgram(const std::filesystem::path& program,
                         const std::vector<std::string>& arguments,
                         const std::filesystem::path& folder, std::string_view input) {
  const Spool in = MakeSpool(input);
  const Spool out = MakeSpool();
  const Spool errors = MakeSpool();
  std::vector<std::string> words = arguments;
  words.insert(words.begin(), program.string());
  std::vector<char*> argv;
  for (std::string& word : words) argv.push_back(word.data());
  argv.push_back(nullptr);
  std::string locale = "LC_ALL=C";
  char* environment[] = {locale.data(), nullptr};

  const int status = Fork([&] {
    if (dup2(fileno(in.get()), STDIN_FILENO) < 0 || dup2(fileno(out.get()), STDOUT_FILENO) < 0 ||
        dup2(fileno(errors.get()), STDERR_FILENO) < 0 || chdir(folder.c_str()) != 0) {
      return;
    }
    execve(argv[0], argv.data(), environment);
  });
  ProgramResult result;
  result.exitCode = WIFSIGNALED(status) ? -WTERMSIG(status) : WEXITSTATUS(status);
  result.output = ContentOf(out);
  result.errors = ContentOf(errors);
  return result;
}

}  // namespace mivo
