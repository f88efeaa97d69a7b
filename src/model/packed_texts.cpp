#include "packed_texts.h"

#include <algorithm>

namespace mivo {
namespace {

constexpr std::size_t kHeader = 2;

std::size_t HeaderValue(const std::u16string& packed, std::size_t at) {
  return static_cast<std::size_t>(packed[at]) << 16 | packed[at + 1];
}

/// Length of the whole entry at `at`.
std::size_t EntrySize(const std::u16string& packed, std::size_t at) {
  const std::size_t value = HeaderValue(packed, at);
  return kHeader + (value == 0 ? 0 : value - 1);
}

std::size_t FindEntry(const std::u16string& packed, std::int32_t index) {
  std::size_t at = 0;
  for (; index > 0; --index) at += EntrySize(packed, at);
  return at;
}

void AppendHeader(std::u16string& packed, std::size_t value) {
  packed.push_back(static_cast<char16_t>(value >> 16));
  packed.push_back(static_cast<char16_t>(value & 0xFFFF));
}

std::u16string Entry(std::optional<std::u16string_view> text) {
  std::u16string entry;
  AppendHeader(entry, text ? text->size() + 1 : 0);
  if (text) entry.append(*text);
  return entry;
}

}  // namespace

std::optional<std::u16string_view> PackedTexts::Get(std::int32_t index) const noexcept {
  if (index < 0 || index >= stored_) return std::nullopt;
  const std::size_t at = FindEntry(packed_, index);
  const std::size_t value = HeaderValue(packed_, at);
  if (value == 0) return std::nullopt;
  return std::u16string_view(packed_).substr(at + kHeader, value - 1);
}

void PackedTexts::Set(std::int32_t index, std::optional<std::u16string_view> text) {
  if (index < 0 || index >= count_) return;
  if (index < stored_) {
    const std::size_t at = FindEntry(packed_, index);
    packed_.replace(at, EntrySize(packed_, at), Entry(text));
  } else if (text) {
    packed_.append(kHeader * static_cast<std::size_t>(index - stored_), u'\0');
    AppendHeader(packed_, text->size() + 1);
    packed_.append(*text);
    stored_ = index + 1;
  }
  if (!text) DropAbsentTail();
}

void PackedTexts::Resize(std::int32_t count) {
  count_ = std::max(count, 0);
  if (count_ >= stored_) return;
  packed_.resize(FindEntry(packed_, count_));
  stored_ = count_;
  DropAbsentTail();
}

void PackedTexts::DropAbsentTail() {
  while (stored_ > 0 && !Get(stored_ - 1)) {
    packed_.resize(packed_.size() - kHeader);
    --stored_;
  }
}

}  // namespace mivo
