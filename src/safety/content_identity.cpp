#include "content_identity.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

namespace mivo {
namespace {

constexpr std::size_t kStep = 8;

/// The bytes as a number, the first one lowest on every machine.
std::uint64_t Word(const char* bytes, std::size_t count) noexcept {
  std::uint64_t word = 0;
  for (std::size_t i = 0; i < count; ++i) {
    word |= std::uint64_t{static_cast<unsigned char>(bytes[i])} << (8 * i);
  }
  return word;
}

std::uint64_t Mix(std::uint64_t hash, std::uint64_t word) noexcept {
  hash = (hash ^ word) * 0x9E3779B97F4A7C15u;
  return hash ^ (hash >> 32);
}

}  // namespace

void ContentHash::Add(std::string_view bytes) noexcept {
  while (!bytes.empty()) {
    const std::size_t filled = size_ % kStep;
    const std::size_t count = std::min(kStep - filled, bytes.size());
    if (count == kStep) {
      hash_ = Mix(hash_, Word(bytes.data(), kStep));
    } else {
      word_ |= Word(bytes.data(), count) << (8 * filled);
      if (filled + count == kStep) hash_ = Mix(hash_, std::exchange(word_, 0));
    }
    size_ += count;
    bytes.remove_prefix(count);
  }
}

ContentIdentity ContentHash::Identity() const noexcept {
  return {size_, Mix(Mix(hash_, word_), size_)};
}

ContentIdentity IdentityOf(std::string_view bytes) noexcept {
  ContentHash hash;
  hash.Add(bytes);
  return hash.Identity();
}

std::size_t IdentifyingSource::Read(std::span<char> into) {
  const std::size_t count = source_.Read(into);
  hash_.Add({into.data(), count});
  return count;
}

ContentIdentity IdentifyingSource::IdentityOfAll() {
  std::array<char, 1 << 16> rest;
  while (Read(rest) > 0) {
  }
  return hash_.Identity();
}

}  // namespace mivo
