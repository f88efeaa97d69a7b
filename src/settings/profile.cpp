#include "profile.h"

#include <algorithm>

#include "number_text.h"
#include "text_encoding.h"

namespace mivo {
namespace {

constexpr std::string_view kUtf16Mark = "\xFF\xFE";
constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::u16string_view kBlanks = u" \t\r";

char16_t Lower(char16_t c) {
  return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c - u'A' + u'a') : c;
}

bool EqualWithoutCase(std::u16string_view a, std::u16string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char16_t x, char16_t y) { return Lower(x) == Lower(y); });
}

std::u16string_view Trimmed(std::u16string_view text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::u16string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

bool IsUtf8(std::string_view bytes) {
  return Utf16ToUtf8(Utf8ToUtf16(bytes)) == bytes;
}

std::u16string Widened(std::string_view bytes) {
  std::u16string units(bytes.size(), u'\0');
  std::transform(bytes.begin(), bytes.end(), units.begin(),
                 [](char byte) { return char16_t{static_cast<unsigned char>(byte)}; });
  return units;
}

}  // namespace

Profile::Profile(std::string_view bytes) : hasMark_(false) {
  if (bytes.starts_with(kUtf16Mark)) {
    hasMark_ = true;
    bytes.remove_prefix(kUtf16Mark.size());
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
      units_.push_back(static_cast<char16_t>(static_cast<unsigned char>(bytes[i]) |
                                             static_cast<unsigned char>(bytes[i + 1]) << 8));
    }
    oddByte_ = bytes.size() % 2 != 0;
    if (oddByte_) lastByte_ = bytes.back();
    return;
  }
  hasMark_ = bytes.starts_with(kUtf8Mark);
  if (hasMark_) bytes.remove_prefix(kUtf8Mark.size());
  encoding_ = hasMark_ || IsUtf8(bytes) ? Encoding::Utf8 : Encoding::EightBit;
  units_ = Widened(bytes);
}

Profile::Place Profile::Find(std::u16string_view section, std::u16string_view key) const {
  Place place;
  bool inside = false;
  const std::u16string_view units = units_;
  for (std::size_t begin = 0; begin < units.size();) {
    const std::size_t end = std::min(units.find(u'\n', begin), units.size());
    const std::u16string_view whole = units.substr(begin, end - begin);
    const std::u16string_view line = Trimmed(whole);
    if (line.starts_with(u'[')) {
      if (inside) break;
      const std::u16string_view name = line.substr(1, line.find(u']') - 1);
      inside = EqualWithoutCase(Trimmed(name), section);
    } else if (inside && !line.starts_with(u';')) {
      const std::size_t equals = line.find(u'=');
      if (equals != std::u16string_view::npos &&
          EqualWithoutCase(Trimmed(line.substr(0, equals)), key)) {
        const std::u16string_view value = Trimmed(line.substr(equals + 1));
        const std::size_t start =
            value.empty() ? static_cast<std::size_t>(line.data() - units.data()) + equals + 1
                          : static_cast<std::size_t>(value.data() - units.data());
        place.value = Value{start, start + value.size()};
        break;
      }
    }
    if (inside && !line.empty()) place.sectionEnd = std::min(end + 1, units.size());
    begin = end + 1;
  }
  return place;
}

std::optional<std::u16string> Profile::Text(std::u16string_view section,
                                            std::u16string_view key) const {
  const std::optional<Value> value = Find(section, key).value;
  if (!value) return std::nullopt;
  std::u16string text = units_.substr(value->begin, value->end - value->begin);
  if (encoding_ == Encoding::Utf16) return text;
  std::string bytes;
  for (const char16_t unit : text) bytes.push_back(static_cast<char>(unit));
  return encoding_ == Encoding::Utf8 ? Utf8ToUtf16(bytes) : DecodeSystemCodePage(bytes);
}

std::int32_t Profile::GetInt(std::u16string_view section, std::u16string_view key,
                             std::int32_t fallback) const {
  const std::optional<std::u16string> text = Text(section, key);
  return text ? ParseInt(*text) : fallback;
}

std::u16string Profile::GetString(std::u16string_view section, std::u16string_view key,
                                  std::u16string_view fallback) const {
  std::optional<std::u16string> text = Text(section, key);
  if (!text) return std::u16string(fallback);
  const bool quoted = text->size() >= 2 && text->front() == text->back() &&
                      (text->front() == u'"' || text->front() == u'\'');
  return quoted ? text->substr(1, text->size() - 2) : *std::move(text);
}

bool Profile::SetInt(std::u16string_view section, std::u16string_view key, std::int32_t value) {
  const IntText text(value);
  const Place place = Find(section, key);
  if (place.value) {
    const std::u16string_view old = std::u16string_view(units_).substr(
        place.value->begin, place.value->end - place.value->begin);
    if (old == std::u16string_view(text)) return false;
    units_.replace(place.value->begin, old.size(), text);
    return true;
  }
  std::u16string added;
  std::size_t at = units_.size();
  if (place.sectionEnd) {
    at = *place.sectionEnd;
  } else {
    added.append(u"[").append(section).append(u"]\r\n");
  }
  if (at > 0 && units_[at - 1] != u'\n') added.insert(0, u"\r\n");
  added.append(key).append(u"=").append(text).append(u"\r\n");
  units_.insert(at, added);
  return true;
}

std::string Profile::Bytes() const {
  std::string bytes;
  if (hasMark_) bytes = encoding_ == Encoding::Utf16 ? kUtf16Mark : kUtf8Mark;
  for (const char16_t unit : units_) {
    bytes.push_back(static_cast<char>(unit & 0xFF));
    if (encoding_ == Encoding::Utf16) bytes.push_back(static_cast<char>(unit >> 8));
  }
  if (oddByte_) bytes.push_back(lastByte_);
  return bytes;
}

}  // namespace mivo
