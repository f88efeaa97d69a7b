#include "standard_stream.h"

#include "native_file.h"

namespace mivo {

StandardStream::StandardStream(NativeFile file)
    : file_(std::make_unique<NativeFile>(std::move(file))) {}

StandardStream::~StandardStream() = default;

StandardStream StandardStream::Output() {
  return StandardStream(NativeFile::StandardOutput());
}

StandardStream StandardStream::Error() {
  return StandardStream(NativeFile::StandardError());
}

bool StandardStream::Write(std::string_view bytes) {
  if (error_) return false;
  buffer_.append(bytes);
  return buffer_.size() < kBufferBytes || Flush();
}

bool StandardStream::Flush() {
  if (!error_) error_ = file_->Write(buffer_);
  buffer_.clear();
  return !error_;
}

std::string StandardStream::ErrorText() const {
  return error_ ? SystemMessage(error_) : std::string();
}

}  // namespace mivo
