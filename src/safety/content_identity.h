#ifndef MIVO_SAFETY_CONTENT_IDENTITY_H
#define MIVO_SAFETY_CONTENT_IDENTITY_H

#include <cstdint>
#include <string_view>

namespace mivo {

/// Tells contents apart. Times and file numbers are no part of it, since they lie both ways: a
/// checkout that brings the same bytes back changes them, and a file system whose clock ticks every
/// two seconds keeps them over a change.
struct ContentIdentity {
  std::uint64_t size = 0;
  std::uint64_t hash = 0;
  bool operator==(const ContentIdentity&) const = default;
};

/// Fast, and no protection against anybody who wants two contents to look alike.
[[nodiscard]] ContentIdentity IdentityOf(std::string_view bytes) noexcept;

}  // namespace mivo

#endif
