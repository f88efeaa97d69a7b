// What child_process.h offers on Windows: programs are run, but there is no fork.

#define NOMINMAX
#include <windows.h>

#include <stdexcept>

#include "child_process.h"

namespace mivo {
namespace {

/// A file that goes with its handle, so that no amount of output makes anybody wait for anybody.
class Spool {
 public:
  explicit Spool(std::string_view content = {}) {
    wchar_t folder[MAX_PATH + 1];
    wchar_t name[MAX_PATH + 1];
    if (GetTempPathW(MAX_PATH, folder) == 0 || GetTempFileNameW(folder, L"out", 0, name) == 0) {
      throw std::runtime_error("no temporary file");
    }
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    handle_ = CreateFileW(name, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                          &inherited, CREATE_ALWAYS, FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    if (handle_ == INVALID_HANDLE_VALUE) throw std::runtime_error("no temporary file");
    DWORD count = 0;
    WriteFile(handle_, content.data(), static_cast<DWORD>(content.size()), &count, nullptr);
    Rewind();
  }
  ~Spool() { CloseHandle(handle_); }
  Spool(const Spool&) = delete;
  Spool& operator=(const Spool&) = delete;

  [[nodiscard]] HANDLE Handle() const { return handle_; }
  [[nodiscard]] std::string Content() const {
    Rewind();
    std::string content;
    char piece[4096];
    DWORD count = 0;
    while (ReadFile(handle_, piece, sizeof piece, &count, nullptr) && count > 0) {
      content.append(piece, count);
    }
    return content;
  }

 private:
  void Rewind() const { SetFilePointer(handle_, 0, nullptr, FILE_BEGIN); }

  HANDLE handle_ = INVALID_HANDLE_VALUE;
};

std::wstring Widened(std::string_view utf8) {
  const auto size = static_cast<int>(utf8.size());
  const int units = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, nullptr, 0);
  std::wstring text(static_cast<std::size_t>(units), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, text.data(), units);
  return text;
}

/// One word of a command line, as the C runtime of the started program takes it apart.
std::wstring Quoted(const std::wstring& word) {
  std::wstring quoted = L"\"";
  std::size_t backslashes = 0;
  for (const wchar_t c : word) {
    if (c == L'"') quoted.append(backslashes + 1, L'\\');
    backslashes = c == L'\\' ? backslashes + 1 : 0;
    quoted.push_back(c);
  }
  return quoted.append(backslashes, L'\\') + L'"';
}

}  // namespace

ProgramResult RunProgram(const std::filesystem::path& program,
                         const std::vector<std::string>& arguments,
                         const std::filesystem::path& folder, std::string_view input) {
  const Spool in(input);
  const Spool out;
  const Spool errors;
  std::wstring line = Quoted(program.native());
  for (const std::string& argument : arguments) line += L' ' + Quoted(Widened(argument));

  STARTUPINFOW start{};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESTDHANDLES;
  start.hStdInput = in.Handle();
  start.hStdOutput = out.Handle();
  start.hStdError = errors.Handle();
  PROCESS_INFORMATION process{};
  if (!CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, TRUE, 0, nullptr,
                      folder.c_str(), &start, &process)) {
    throw std::runtime_error("cannot start " + program.string());
  }
  WaitForSingleObject(process.hProcess, INFINITE);
  DWORD code = 0;
  GetExitCodeProcess(process.hProcess, &code);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return {static_cast<int>(code), out.Content(), errors.Content()};
}

}  // namespace mivo
