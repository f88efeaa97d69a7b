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

}  // namespace mivo
