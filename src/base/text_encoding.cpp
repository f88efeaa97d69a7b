#include "text_encoding.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

#ifdef _WIN32
#include <windows.h>
#endif

namespace mivo {
namespace {

constexpr char16_t kReplacement = u'\uFFFD';

/// What may follow a lead byte: how many continuation bytes, and the range of the first of them.
struct LeadByte {
  std::uint8_t continuations;
  std::uint8_t lowest;
  std::uint8_t highest;
};

LeadByte Classify(std::uint8_t byte) {
  if (byte >= 0xC2 && byte <= 0xDF) return {1, 0x80, 0xBF};
  if (byte == 0xE0) return {2, 0xA0, 0xBF};
  if (byte == 0xED) return {2, 0x80, 0x9F};
  if (byte >= 0xE1 && byte <= 0xEF) return {2, 0x80, 0xBF};
  if (byte == 0xF0) return {3, 0x90, 0xBF};
  if (byte >= 0xF1 && byte <= 0xF3) return {3, 0x80, 0xBF};
  if (byte == 0xF4) return {3, 0x80, 0x8F};
  return {0, 0, 0};
}

/// Copies the leading run of ASCII, a block at a time; returns its length.
std::size_t CopyAscii(const char* in, std::size_t count, char16_t* out) noexcept {
  constexpr std::size_t kBlock = 32;
  std::size_t i = 0;
  for (; i + kBlock <= count; i += kBlock) {
    std::array<std::uint64_t, kBlock / sizeof(std::uint64_t)> words;
    std::memcpy(words.data(), in + i, kBlock);
    std::uint64_t any = 0;
    for (const std::uint64_t word : words) any |= word;
    if ((any & 0x8080808080808080u) != 0) break;
    for (std::size_t k = 0; k < kBlock; ++k) out[i + k] = static_cast<unsigned char>(in[i + k]);
  }
  for (; i < count && static_cast<unsigned char>(in[i]) < 0x80; ++i) {
    out[i] = static_cast<unsigned char>(in[i]);
  }
  return i;
}

}  // namespace

DecodeProgress DecodeUtf8(std::string_view bytes, std::span<char16_t> out, bool last) noexcept {
  std::size_t in = 0;
  std::size_t written = 0;
  for (;;) {
    const std::size_t ascii = CopyAscii(
        bytes.data() + in, std::min(bytes.size() - in, out.size() - written), out.data() + written);
    in += ascii;
    written += ascii;
    if (in == bytes.size() || written == out.size()) break;

    const auto lead = static_cast<std::uint8_t>(bytes[in]);
    const LeadByte rule = Classify(lead);
    std::size_t length = 1;
    char32_t code = lead & (0x3Fu >> rule.continuations);
    bool wellFormed = rule.continuations > 0;
    while (wellFormed && length <= rule.continuations) {
      if (in + length == bytes.size()) {
        if (!last) return {in, written};
        wellFormed = false;
        break;
      }
      const auto next = static_cast<std::uint8_t>(bytes[in + length]);
      const bool inRange =
          length == 1 ? next >= rule.lowest && next <= rule.highest : (next & 0xC0) == 0x80;
      if (!inRange) {
        wellFormed = false;
        break;
      }
      code = code << 6 | (next & 0x3Fu);
      ++length;
    }
    if (!wellFormed) {
      out[written++] = kReplacement;
    } else if (code < 0x10000) {
      out[written++] = static_cast<char16_t>(code);
    } else {
      if (out.size() - written < 2) break;
      out[written++] = static_cast<char16_t>(0xD800 + ((code - 0x10000) >> 10));
      out[written++] = static_cast<char16_t>(0xDC00 + ((code - 0x10000) & 0x3FF));
    }
    in += length;
  }
  return {in, written};
}

std::u16string Utf8ToUtf16(std::string_view bytes) {
  // No UTF-8 sequence has more UTF-16 units than bytes, so one call takes everything.
  std::u16string text(std::max<std::size_t>(bytes.size(), 2), u'\0');
  text.resize(DecodeUtf8(bytes, text, true).unitsWritten);
  return text;
}

void AppendUtf8(std::string& out, std::u16string_view text) {
  const auto continuation = [&out](char32_t bits) {
    out.push_back(static_cast<char>(0x80 | (bits & 0x3F)));
  };
  std::size_t i = 0;
  while (i < text.size()) {
    const std::size_t start = i;
    while (i < text.size() && text[i] < 0x80) ++i;
    const std::size_t run = i - start;
    const std::size_t old = out.size();
    out.resize(old + run);
    for (std::size_t k = 0; k < run; ++k) out[old + k] = static_cast<char>(text[start + k]);
    if (i == text.size()) break;

    char32_t code = text[i++];
    if (code >= 0xD800 && code <= 0xDFFF) {
      const bool paired = code < 0xDC00 && i < text.size() && (text[i] & 0xFC00) == 0xDC00;
      code = paired ? 0x10000 + ((code - 0xD800) << 10) + (text[i++] - 0xDC00u) : kReplacement;
    }
    if (code < 0x800) {
      out.push_back(static_cast<char>(0xC0 | code >> 6));
    } else if (code < 0x10000) {
      out.push_back(static_cast<char>(0xE0 | code >> 12));
      continuation(code >> 6);
    } else {
      out.push_back(static_cast<char>(0xF0 | code >> 18));
      continuation(code >> 12);
      continuation(code >> 6);
    }
    continuation(code);
  }
}

std::string Utf16ToUtf8(std::u16string_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  AppendUtf8(bytes, text);
  return bytes;
}

#ifdef _WIN32

std::u16string DecodeSystemCodePage(std::string_view bytes) {
  // The system converts at most 2^31 - 1 bytes at once; a piece must not end inside a two-byte
  // character, so pieces end after a line feed where there is one.
  constexpr std::size_t kPiece = std::size_t{1} << 28;
  std::u16string text;
  while (!bytes.empty()) {
    std::size_t count = std::min(bytes.size(), kPiece);
    if (count < bytes.size()) {
      const std::size_t line = bytes.rfind('\n', count - 1);
      if (line != std::string_view::npos) count = line + 1;
    }
    const int units =
        MultiByteToWideChar(CP_ACP, 0, bytes.data(), static_cast<int>(count), nullptr, 0);
    const std::size_t old = text.size();
    text.resize(old + static_cast<std::size_t>(units));
    MultiByteToWideChar(CP_ACP, 0, bytes.data(), static_cast<int>(count),
                        reinterpret_cast<wchar_t*>(text.data() + old), units);
    bytes.remove_prefix(count);
  }
  return text;
}

#else

std::u16string DecodeSystemCodePage(std::string_view bytes) {
  // Windows-1252 is Latin-1 except for these 32 bytes.
  static constexpr std::array<char16_t, 32> kFrom80 = {
      0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
      0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
      0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
  std::u16string text(bytes.size(), u'\0');
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const auto byte = static_cast<unsigned char>(bytes[i]);
    text[i] = byte >= 0x80 && byte < 0xA0 ? kFrom80[byte - 0x80u] : char16_t{byte};
  }
  return text;
}

#endif

}  // namespace mivo
