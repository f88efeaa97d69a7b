#ifndef MIVO_TRANSLATIONS_TRANSLATED_TEXTS_H
#define MIVO_TRANSLATIONS_TRANSLATED_TEXTS_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>

#include "mivo_language.h"
#include "text_table.h"

// What the language libraries of this folder have in common: each is a table in the order of the
// program's numbers, which the compiler checks.

namespace mivo {

struct TranslatedText {
  TextId id;
  const char* text;  ///< UTF-8
};

template <std::size_t kSize>
constexpr bool IsInOrder(const TranslatedText (&texts)[kSize]) {
  return std::adjacent_find(std::begin(texts), std::end(texts),
                            [](const TranslatedText& a, const TranslatedText& b) {
                              return !(a.id < b.id);
                            }) == std::end(texts);
}

/// Null where there is none.
template <std::size_t kSize>
const char* FindText(const TranslatedText (&texts)[kSize], const TextId& id) noexcept {
  const auto* const found = std::lower_bound(
      std::begin(texts), std::end(texts), id,
      [](const TranslatedText& text, const TextId& wanted) { return text.id < wanted; });
  return found != std::end(texts) && found->id == id ? found->text : nullptr;
}

}  // namespace mivo

#endif
