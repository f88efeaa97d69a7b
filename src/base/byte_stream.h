#ifndef MIVO_BASE_BYTE_STREAM_H
#define MIVO_BASE_BYTE_STREAM_H

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <span>
#include <string>
#include <string_view>

namespace mivo {

/// Where a reader's bytes come from: an open file, memory.
class ByteSource {
 public:
  virtual ~ByteSource() = default;

  /// Fills the front of `into` and returns how many bytes it wrote: 0 only at the end of the data
  /// or on failure, and then on every further call.
  [[nodiscard]] virtual std::size_t Read(std::span<char> into) = 0;
};

/// Where a writer's bytes go. The core produces text through it; what a file needs to be replaced
/// safely is the file layer's business.
class ByteSink {
 public:
  virtual ~ByteSink() = default;

  /// Takes all of `bytes`, or returns false. After a failure the sink's content is worthless.
  [[nodiscard]] virtual bool Write(std::string_view bytes) = 0;
};

/// Reads bytes that stay owned by the caller.
class MemoryByteSource final : public ByteSource {
 public:
  explicit MemoryByteSource(std::string_view bytes) : rest_(bytes) {}

  [[nodiscard]] std::size_t Read(std::span<char> into) override {
    const std::size_t count = std::min(into.size(), rest_.size());
    if (count > 0) std::memcpy(into.data(), rest_.data(), count);
    rest_.remove_prefix(count);
    return count;
  }

 private:
  std::string_view rest_;
};

/// Appends to a string that stays owned by the caller.
class StringByteSink final : public ByteSink {
 public:
  explicit StringByteSink(std::string& target) : target_(target) {}

  [[nodiscard]] bool Write(std::string_view bytes) override {
    target_.append(bytes);
    return true;
  }

 private:
  std::string& target_;
};

}  // namespace mivo

#endif
