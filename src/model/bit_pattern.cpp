#include "bit_pattern.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

namespace mivo {
namespace {

/// Bytes of a row that hold pixels.
std::int32_t RowBytes(std::int32_t width) {
  return (std::clamp(width, 0, SBitPattern::kMaxSide) + 7) / 8;
}

/// Clears the bits of a row's last pixel byte that lie beyond the width; returns whether any was
/// set.
bool ClearBeyondWidth(std::span<std::uint8_t> row, std::int32_t width) {
  const std::int32_t used = std::clamp(width, 0, SBitPattern::kMaxSide) % 8;
  if (used == 0 || row.size() < static_cast<std::size_t>(RowBytes(width))) return false;
  std::uint8_t& last = row[static_cast<std::size_t>(RowBytes(width)) - 1];
  const auto kept = static_cast<std::uint8_t>(last & (0xFF << (8 - used)));
  const bool changed = kept != last;
  last = kept;
  return changed;
}

/// Fills the front of a row, two characters a byte, each of them "@" plus a nibble; a byte with
/// another character is 0. Returns whether all of the field could be used.
bool TakeRow(std::u16string_view field, std::span<std::uint8_t> row) {
  const std::size_t count = std::min(row.size(), field.size() / 2);
  bool usable = field.size() == 2 * count;
  for (std::size_t i = 0; i < count; ++i) {
    const auto high = static_cast<std::uint16_t>(field[2 * i] - u'@');
    const auto low = static_cast<std::uint16_t>(field[2 * i + 1] - u'@');
    const bool nibbles = high <= 15 && low <= 15;
    row[i] = nibbles ? static_cast<std::uint8_t>(16 * high + low) : std::uint8_t{0};
    usable = usable && nibbles;
  }
  return usable;
}

}  // namespace

SBitPattern::SBitPattern(SPoint size) : size_(size) {
  const std::int32_t rows = std::clamp(size.y, 0, kMaxSide);
  bytes_.resize(static_cast<std::size_t>(Stride(size.x)) * static_cast<std::size_t>(rows));
}

std::int32_t SBitPattern::Stride(std::int32_t width) noexcept {
  return (std::clamp(width, 0, kMaxSide) + 15) / 16 * 2;
}

std::int64_t SBitPattern::ByteCountOf(SPoint size) noexcept {
  if (size.x <= 0 || size.y <= 0) return 0;
  return (std::int64_t{size.x} + 15) / 16 * 2 * size.y;
}

std::span<const std::uint8_t> SBitPattern::Row(std::int32_t width, std::int32_t y) const noexcept {
  const std::size_t stride = static_cast<std::size_t>(Stride(width));
  const std::size_t offset = stride * static_cast<std::size_t>(std::max(y, 0));
  if (y < 0 || offset >= bytes_.size()) return {};
  const std::size_t count = static_cast<std::size_t>(RowBytes(width));
  return std::span(bytes_).subspan(offset, std::min(count, bytes_.size() - offset));
}

std::span<std::uint8_t> SBitPattern::Row(std::int32_t width, std::int32_t y) noexcept {
  const std::span<const std::uint8_t> row = std::as_const(*this).Row(width, y);
  if (row.empty()) return {};
  return std::span(bytes_).subspan(static_cast<std::size_t>(row.data() - bytes_.data()),
                                   row.size());
}

SBitPattern SBitPattern::Resized(SPoint oldSize, SPoint newSize) const {
  SBitPattern resized(newSize);
  const std::int32_t width = std::min(oldSize.x, newSize.x);
  const std::int32_t height = std::min({oldSize.y, newSize.y, kMaxSide});
  for (std::int32_t y = 0; y < height; ++y) {
    const std::span<const std::uint8_t> from = Row(oldSize.x, y);
    const std::span<std::uint8_t> to = resized.Row(newSize.x, y);
    const std::size_t count =
        std::min({from.size(), to.size(), static_cast<std::size_t>(RowBytes(width))});
    std::copy_n(from.begin(), count, to.begin());
    ClearBeyondWidth(to.first(count), width);
  }
  return resized;
}

std::optional<SBitPattern> SBitPattern::Read(SRecordReader& reader, SPoint size) {
  const SRecordReader::RecordScope scope(reader, u"+BMP");
  SBitPattern pattern(size);
  std::int32_t y = 0;
  std::u16string_view field;
  while (reader.ReadField(field) == FieldStatus::Ok) {
    if (field == u"-BMP") return pattern;
    if (field.starts_with(u'-')) {
      reader.Report(FindingKind::MalformedBitPattern, field);
      return std::nullopt;
    }
    if (field.starts_with(u'+')) {
      if (!reader.SkipUnknownRecord(field)) return std::nullopt;
      continue;
    }
    if (y >= size.y) {
      reader.Report(FindingKind::SurplusValue, field);
      continue;
    }
    // Rows beyond kMaxSide are no surplus, since a taller pattern writes them, but are not stored.
    if (y < kMaxSide) {
      const std::span<std::uint8_t> row = pattern.Row(size.x, y);
      if (!TakeRow(field, row)) reader.Report(FindingKind::ValueIgnored, field);
      if (ClearBeyondWidth(row, size.x)) reader.Report(FindingKind::BitsBeyondWidth, field);
    }
    ++y;
  }
  reader.Report(FindingKind::UnclosedRecord, u"+BMP");
  return std::nullopt;
}

void SBitPattern::Write(SRecordWriter& writer, SPoint size) const {
  writer.WriteField(u"+BMP");
  writer.EndLine();
  const std::int64_t rowBytes = RowBytes(size.x);
  const std::int64_t stride = Stride(size.x);
  // Rows behind the declared bytes would be empty lines, which no reader sees, up to 2³¹ of them.
  std::int64_t left = ByteCountOf(size_);
  std::u16string text;
  for (std::int32_t y = 0; y < size.y && rowBytes > 0 && left > 0; ++y, left -= stride) {
    text.clear();
    for (const std::uint8_t byte : Row(size.x, y)) {
      text.push_back(static_cast<char16_t>(u'@' + (byte >> 4)));
      text.push_back(static_cast<char16_t>(u'@' + (byte & 15)));
    }
    // What is declared but not stored has no set bits.
    text.resize(static_cast<std::size_t>(2 * std::min(rowBytes, left)), u'@');
    writer.WriteField(text);
    writer.EndLine();
  }
  writer.WriteField(u"-BMP");
  writer.EndLine();
}

}  // namespace mivo
