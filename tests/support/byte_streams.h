#ifndef MIVO_TESTS_SUPPORT_BYTE_STREAMS_H
#define MIVO_TESTS_SUPPORT_BYTE_STREAMS_H

#include <algorithm>
#include <cstddef>
#include <limits>
#include <span>
#include <string_view>

#include "byte_stream.h"

// Files as they misbehave: delivered in small pieces, failing in the middle of a save.

namespace mivo {

/// Delivers bytes that the test keeps alive, at most `pieceBytes` a call.
class PieceSource final : public ByteSource {
 public:
  static constexpr std::size_t kWhole = std::numeric_limits<std::size_t>::max();

  PieceSource(std::string_view bytes, std::size_t pieceBytes)
      : bytes_(bytes), pieceBytes_(pieceBytes) {}

  [[nodiscard]] std::size_t Read(std::span<char> into) override {
    const std::size_t count = bytes_.Read(into.first(std::min(into.size(), pieceBytes_)));
    if (count == 0) ++callsAtEnd_;
    return count;
  }

  /// Calls that had nothing to deliver any more.
  [[nodiscard]] int CallsAtEnd() const noexcept { return callsAtEnd_; }

 private:
  MemoryByteSource bytes_;
  std::size_t pieceBytes_;
  int callsAtEnd_ = 0;
};

/// Takes some pieces and fails from then on.
class FailingSink final : public ByteSink {
 public:
  explicit FailingSink(int piecesTaken) : left_(piecesTaken) {}

  [[nodiscard]] bool Write(std::string_view /*bytes*/) override {
    ++calls_;
    return left_-- > 0;
  }

  [[nodiscard]] int Calls() const noexcept { return calls_; }

 private:
  int left_;
  int calls_ = 0;
};

}  // namespace mivo

#endif
