#ifndef MIVO_RECORD_KEYED_FIELD_H
#define MIVO_RECORD_KEYED_FIELD_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string_view>

namespace mivo {

/// The key of a field, which is told from the keys that we know by a number instead of its text.
class FieldKey {
 public:
  constexpr explicit FieldKey(std::u16string_view text) noexcept : text_(text), code_(Code(text)) {}

  [[nodiscard]] constexpr std::u16string_view Text() const noexcept { return text_; }

  /// One of our own keys: one to eight characters of ASCII, which the compiler checks.
  struct Known {
    consteval Known(const char16_t* text) : code(Code(text)) {
      if (code == kUnknown) throw "no such key can be told from others";
    }
    std::uint64_t code;
  };

  friend constexpr bool operator==(const FieldKey& key, Known known) noexcept {
    return key.code_ == known.code;
  }

 private:
  static constexpr std::uint64_t kUnknown = 0;

  static constexpr std::uint64_t Code(std::u16string_view text) noexcept {
    if (text.size() == 1) return text[0] < 0x80 ? text[0] : kUnknown;  // as most are
    std::uint64_t code = 0;
    if (text.size() > sizeof code) return kUnknown;
    bool isKnowable = true;
    for (const char16_t c : text) {
      isKnowable &= c != u'\0' && c < 0x80;
      code = code << 8 | c;
    }
    return isKnowable ? code : kUnknown;
  }

  std::u16string_view text_;
  std::uint64_t code_;
};

/// A field KEY:value. Both point into the field.
struct KeyedField {
  FieldKey key;
  std::u16string_view value;
};

enum class EmptyValue { Allowed, Refused };

/// Splits a field at its first ":"; nothing when there is none, when the key is empty, or when the
/// value is empty and must not be.
[[nodiscard]] constexpr std::optional<KeyedField> SplitKeyedField(std::u16string_view field,
                                                                  EmptyValue emptyValue) noexcept {
  // Keys are so short that a call of anything would take longer than the search itself.
  std::size_t colon = 0;
  while (colon < field.size() && field[colon] != u':') ++colon;
  if (colon == field.size() || colon == 0) return std::nullopt;
  const std::u16string_view value(field.data() + colon + 1, field.size() - colon - 1);
  if (emptyValue == EmptyValue::Refused && value.empty()) return std::nullopt;
  return KeyedField{FieldKey({field.data(), colon}), value};
}

/// Whether `text` is `literal`. Texts are compared with == a character at a time; a literal of a
/// few characters, of which a library has millions, all at once.
template <std::size_t size>
[[nodiscard]] bool IsText(std::u16string_view text, const char16_t (&literal)[size]) noexcept {
  return text.size() == size - 1 &&
         std::memcmp(text.data(), literal, (size - 1) * sizeof *literal) == 0;
}

/// The text up to its first NUL.
[[nodiscard]] constexpr std::u16string_view UpToNul(std::u16string_view text) noexcept {
  return text.substr(0, text.find(u'\0'));
}

}  // namespace mivo

#endif
