#include "packed_texts.h"

#include <array>

namespace mivo {
namespace {

constexpr std::size_t kHeader = 2;

std::size_t HeaderValue(std::u16string_view packed, std::size_t at) {
  return static_cast<std::size_t>(packed[at]) << 16 | packed[at + 1];
}

/// Length of the whole entry at `at`.
std::size_t EntrySize(std::u16string_view packed, std::size_t at) {
  const std::size_t value = HeaderValue(packed, at);
  return kHeader + (value == 0 ? 0 : value - 1);
}

std::size_t FindEntry(std::u16string_view packed, std::int32_t index) {
  std::size_t at = 0;
  for (; index > 0; --index) at += EntrySize(packed, at);
  return at;
}

std::array<char16_t, kHeader> Header(std::optional<std::u16string_view> text) {
  const std::size_t value = text ? text->size() + 1 : 0;
  return {static_cast<char16_t>(value >> 16), static_cast<char16_t>(value & 0xFFFF)};
}

void AppendEntry(CompactText& packed, std::optional<std::u16string_view> text) {
  const auto header = Header(text);
  packed.Append({header.data(), header.size()});
  if (text) packed.Append(*text);
}

}  // namespace

std::optional<std::u16string_view> PackedTexts::Get(std::int32_t index) const noexcept {
  if (index < 0 || index >= stored_) return std::nullopt;
  const std::u16string_view packed = packed_.View();
  const std::size_t at = FindEntry(packed, index);
  const std::size_t value = HeaderValue(packed, at);
  if (value == 0) return std::nullopt;
  return packed.substr(at + kHeader, value - 1);
}

void PackedTexts::Set(std::int32_t index, std::optional<std::u16string_view> text) {
  if (index < 0 || index >= count_) return;
  if (index < stored_) {
    const std::u16string_view old = packed_.View();
    const std::size_t at = FindEntry(old, index);
    CompactText packed(old.substr(0, at));
    AppendEntry(packed, text);
    packed.Append(old.substr(at + EntrySize(old, at)));
    Store(packed.View(), stored_);
  } else if (text) {
    for (; stored_ < index; ++stored_) AppendEntry(packed_, std::nullopt);
    AppendEntry(packed_, text);
    ++stored_;
  }
}

void PackedTexts::Resize(std::int32_t count) {
  count_ = Limited(count);
  if (count_ >= stored_) return;
  const std::u16string_view packed = packed_.View();
  Store(packed.substr(0, FindEntry(packed, count_)), count_);
}

void PackedTexts::Store(std::u16string_view packed, std::int32_t slots) {
  while (slots > 0 && HeaderValue(packed, FindEntry(packed, slots - 1)) == 0) {
    packed.remove_suffix(kHeader);
    --slots;
  }
  packed_ = CompactText(packed);
  stored_ = Limited(slots);
}

}  // namespace mivo
