#include "content_identity.h"

#include <cstddef>

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

ContentIdentity IdentityOf(std::string_view bytes) noexcept {
  std::uint64_t hash = bytes.size();
  std::string_view rest = bytes;
  for (; rest.size() >= kStep; rest.remove_prefix(kStep))
    hash = Mix(hash, Word(rest.data(), kStep));
  return {bytes.size(), Mix(hash, Word(rest.data(), rest.size()))};
}

}  // namespace mivo
