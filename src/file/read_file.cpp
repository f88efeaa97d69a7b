#include "read_file.h"

#include <algorithm>
#include <cstddef>
#include <new>
#include <span>
#include <stdexcept>
#include <system_error>
#include <utility>

#include "native_file.h"

namespace mivo {
namespace {

constexpr std::size_t kLeastRoom = std::size_t{1} << 16;

/// Reads until the end of the data; `expected` bytes are hoped for, more or fewer may come.
std::error_code ReadAll(NativeFile& file, std::size_t expected, std::string& bytes) {
  std::size_t count = 0;
  // One byte more than expected, so that the end of an unchanged file shows without another round.
  bytes.resize(std::max(expected + 1, kLeastRoom));
  for (;;) {
    std::size_t got = 0;
    if (const auto error = file.Read(std::span(bytes).subspan(count), got)) return error;
    if (got == 0) break;
    count += got;
    if (count == bytes.size()) bytes.resize(bytes.size() * 2);
  }
  bytes.resize(count);
  return {};
}

FileResult<std::string> Read(NativeFile& file, std::size_t expected) {
  std::error_code error;
  std::string bytes;
  try {
    error = ReadAll(file, expected, bytes);
  } catch (const std::bad_alloc&) {
    error = std::make_error_code(std::errc::not_enough_memory);
  } catch (const std::length_error&) {
    error = std::make_error_code(std::errc::file_too_large);
  }
  if (error) return FileError{SystemMessage(error)};
  return bytes;
}

}  // namespace

FileResult<std::string> ReadFile(const std::filesystem::path& path) {
  NativeFile file;
  if (std::string error = OpenRegularFile(path, file); !error.empty()) {
    return FileError{std::move(error)};
  }
  return Read(file, file.SizeHint());
}

FileResult<std::string> ReadStandardInput() {
  NativeFile input = NativeFile::StandardInput();
  return Read(input, 0);
}

}  // namespace mivo
