#include "file_source.h"

#include "native_file.h"

namespace mivo {

FileSource::FileSource(const std::filesystem::path& path) : file_(std::make_unique<NativeFile>()) {
  error_ = OpenRegularFile(path, *file_);
  if (error_.empty()) sizeHint_ = file_->SizeHint();
}

FileSource::~FileSource() = default;

std::size_t FileSource::Read(std::span<char> into) {
  std::size_t got = 0;
  if (!error_.empty()) return 0;
  if (const auto error = file_->Read(into, got)) {
    error_ = SystemMessage(error);
    return 0;
  }
  return got;
}

}  // namespace mivo
