#include "name_hash.h"

#define XXH_INLINE_ALL
#include <xxhash.h>

#include <chrono>
#include <cstdint>
#include <exception>
#include <random>

namespace mivo {
namespace {

std::uint64_t NewKey() noexcept {
  try {
    std::random_device random;
    return std::uint64_t{random()} << 32 | random();
  } catch (const std::exception&) {  // the system has no source of random numbers
    return static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
  }
}

}  // namespace

std::size_t NameHash::operator()(std::u16string_view name) const noexcept {
  static const std::uint64_t key = NewKey();
  return XXH3_64bits_withSeed(name.data(), name.size() * sizeof(char16_t), key);
}

}  // namespace mivo
