#include "native_file.h"

#include <utility>

namespace mivo {

NativeFile::NativeFile(NativeFile&& other) noexcept
    : handle_(std::exchange(other.handle_, kNone)), owned_(std::exchange(other.owned_, true)) {}

NativeFile& NativeFile::operator=(NativeFile&& other) noexcept {
  std::swap(handle_, other.handle_);
  std::swap(owned_, other.owned_);
  return *this;
}

NativeFile NativeFile::Borrowed(std::intptr_t handle) noexcept {
  NativeFile file;
  file.handle_ = handle;
  file.owned_ = false;
  return file;
}

std::string OpenRegularFile(const std::filesystem::path& path, NativeFile& file) {
  if (const auto error = NativeFile::OpenToRead(path, file)) return SystemMessage(error);
  switch (file.GetKind()) {
    case NativeFile::Kind::Regular:
      return {};
    case NativeFile::Kind::Directory:
      return SystemMessage(std::make_error_code(std::errc::is_a_directory));
    case NativeFile::Kind::Other:
      break;
  }
  return "Not a regular file";
}

}  // namespace mivo
