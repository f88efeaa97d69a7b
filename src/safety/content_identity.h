#ifndef MIVO_SAFETY_CONTENT_IDENTITY_H
#define MIVO_SAFETY_CONTENT_IDENTITY_H

#include <cstdint>
#include <span>
#include <string_view>

#include "byte_stream.h"

namespace mivo {

/// Tells contents apart. Times and file numbers are no part of it, since they lie both ways: a
/// checkout that brings the same bytes back changes them, and a file system whose clock ticks every
/// two seconds keeps them over a change.
struct ContentIdentity {
  std::uint64_t size = 0;
  std::uint64_t hash = 0;
  bool operator==(const ContentIdentity&) const = default;
};

/// Works out the identity of a content that comes piece by piece, however it is cut.
class ContentHash {
 public:
  void Add(std::string_view bytes) noexcept;
  [[nodiscard]] ContentIdentity Identity() const noexcept;

 private:
  std::uint64_t size_ = 0;
  std::uint64_t hash_ = 0;
  std::uint64_t word_ = 0;  // what has come of the next word
};

/// Fast, and no protection against anybody who wants two contents to look alike.
[[nodiscard]] ContentIdentity IdentityOf(std::string_view bytes) noexcept;

/// Passes on what a source gives, which stays owned by the caller, and tells what it was.
class IdentifyingSource final : public ByteSource {
 public:
  explicit IdentifyingSource(ByteSource& source) noexcept : source_(source) {}

  [[nodiscard]] std::size_t Read(std::span<char> into) override;

  /// The identity of all that the source has, which is read to its end for that.
  [[nodiscard]] ContentIdentity IdentityOfAll();

 private:
  ByteSource& source_;
  ContentHash hash_;
};

}  // namespace mivo

#endif
