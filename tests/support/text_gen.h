#ifndef MIVO_TESTS_SUPPORT_TEXT_GEN_H
#define MIVO_TESTS_SUPPORT_TEXT_GEN_H

#include <rapidcheck.h>

#include <cstdint>
#include <string>
#include <vector>

namespace mivo {

/// A text as numbers, which RapidCheck can print and shrink.
using TextUnits = std::vector<std::uint16_t>;

[[nodiscard]] inline std::u16string ToText(const TextUnits& units) {
  return {units.begin(), units.end()};
}

/// A code unit other than NUL: often one that the record syntax cares about, sometimes half of a
/// surrogate pair or the end code 0xFFFF.
[[nodiscard]] inline rc::Gen<std::uint16_t> GenUnit() {
  return rc::gen::weightedOneOf<std::uint16_t>(
      {{6, rc::gen::inRange<std::uint16_t>(0x21, 0x7F)},
       {3, rc::gen::element<std::uint16_t>(u' ', u'\t', u'\n', u'\r', u',', u'%', u':', u'+', u'-',
                                           u'\\', 0xFFFF)},
       {2, rc::gen::inRange<std::uint16_t>(0x01, 0x100)},
       {2, rc::gen::inRange<std::uint16_t>(0xD800, 0xE000)},
       {2, rc::gen::inRange<std::uint16_t>(0x100, 0xFFFF)}});
}

/// Any text without a NUL, lone surrogates included.
[[nodiscard]] inline rc::Gen<TextUnits> GenText() {
  return rc::gen::container<TextUnits>(GenUnit());
}

}  // namespace mivo

#endif
