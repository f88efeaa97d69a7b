#include "compact_text.h"

#include <algorithm>
#include <cstring>

namespace mivo {
namespace {

/// What stands in front of a text elsewhere.
struct Header {
  std::uint32_t length;
  std::uint32_t room;
};
constexpr std::size_t kHeaderUnits = sizeof(Header) / sizeof(char16_t);

Header HeaderOf(const char16_t* memory) {
  Header header;
  std::memcpy(&header, memory, sizeof header);
  return header;
}

}  // namespace

static_assert(sizeof(CompactText) == 16);

char16_t* CompactText::Elsewhere() const noexcept {
  char16_t* memory;
  std::memcpy(&memory, &units_[1], sizeof memory);
  return memory;
}

std::u16string_view CompactText::ViewElsewhere() const noexcept {
  const char16_t* const memory = Elsewhere();
  return {memory + kHeaderUnits, HeaderOf(memory).length};
}

void CompactText::AppendElsewhere(std::u16string_view text) {
  const std::u16string_view old = View();
  const std::size_t length = old.size() + text.size();
  const bool wasElsewhere = IsElsewhere();
  char16_t* memory = wasElsewhere ? Elsewhere() : nullptr;
  Header header{static_cast<std::uint32_t>(length), static_cast<std::uint32_t>(length)};
  if (wasElsewhere && length <= HeaderOf(memory).room) {
    header.room = HeaderOf(memory).room;
  } else {
    // A text that grows for the first time may be all there is; one that grows again will once
    // more.
    if (wasElsewhere) header.room += header.room / 2;
    char16_t* const larger = new char16_t[kHeaderUnits + header.room];
    std::copy(old.begin(), old.end(), larger + kHeaderUnits);
    if (wasElsewhere) delete[] memory;
    memory = larger;
    std::memcpy(&units_[1], &memory, sizeof memory);
    units_[0] = kElsewhere;
  }
  std::copy(text.begin(), text.end(), memory + kHeaderUnits + old.size());
  std::memcpy(memory, &header, sizeof header);
}

}  // namespace mivo
