#ifndef MIVO_RECORD_KEYED_FIELD_H
#define MIVO_RECORD_KEYED_FIELD_H

#include <optional>
#include <string_view>

namespace mivo {

/// A field KEY:value. Both views point into the field.
struct KeyedField {
  std::u16string_view key;
  std::u16string_view value;
};

enum class EmptyValue { Allowed, Refused };

/// Splits a field at its first ":"; nothing when there is none, when the key is empty, or when the
/// value is empty and must not be.
[[nodiscard]] constexpr std::optional<KeyedField> SplitKeyedField(std::u16string_view field,
                                                                  EmptyValue emptyValue) noexcept {
  const std::size_t colon = field.find(u':');
  if (colon == std::u16string_view::npos || colon == 0) return std::nullopt;
  if (emptyValue == EmptyValue::Refused && colon + 1 == field.size()) return std::nullopt;
  return KeyedField{field.substr(0, colon), field.substr(colon + 1)};
}

/// The text up to its first NUL.
[[nodiscard]] constexpr std::u16string_view UpToNul(std::u16string_view text) noexcept {
  return text.substr(0, text.find(u'\0'));
}

}  // namespace mivo

#endif
