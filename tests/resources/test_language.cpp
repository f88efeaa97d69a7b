// A language library with one text of every good and bad sort.

#include <array>

#include "mivo_language.h"
#include "text_table.h"

#ifndef MIVO_TEST_WITHOUT_FUNCTION

#ifndef MIVO_TEST_VERSION
#define MIVO_TEST_VERSION "0.84.00"
#endif

namespace mivo {
namespace {

template <std::size_t kSize>
std::array<char, kSize> Filled(std::size_t length) {
  std::array<char, kSize> text{};
  for (std::size_t i = 0; i < length; ++i) text[i] = 'x';
  return text;
}

const std::array<char, MIVO_LANGUAGE_MAX_BYTES + 1> kTooLong =
    Filled<MIVO_LANGUAGE_MAX_BYTES + 1>(MIVO_LANGUAGE_MAX_BYTES);
const std::array<char, MIVO_LANGUAGE_MAX_BYTES> kLongest =
    Filled<MIVO_LANGUAGE_MAX_BYTES>(MIVO_LANGUAGE_MAX_BYTES - 1);

}  // namespace
}  // namespace mivo

const char* MIVO_LANGUAGE_CALL MivoLanguageText(std::int32_t kind, std::int32_t number,
                                                std::int32_t control) {
  using namespace mivo;
  const TextId id{static_cast<TextKind>(kind), number, control};
  if (id == IdOf(StringId::Version)) return MIVO_TEST_VERSION;
  if (id == IdOf(StringId::SaveChanges)) return "\xC3\x84nderungen speichern?\n\xF0\x9F\x93\x9A";
  if (id == IdOf(StringId::SaveFailed)) return "broken \xC3";
  if (id == IdOf(StringId::SizeRange)) return "";
  if (id == IdOf(StringId::BlocksRange)) return kTooLong.data();
  if (id == IdOf(StringId::FixedBlockRange)) return kLongest.data();
  if (id == IdOf(Command::Open)) return "command";
  if (id == HintIdOf(Command::Open)) return "hint";
  if (id == TextId{static_cast<TextKind>(4), 144, 1015}) return "control";
  return nullptr;
}

#endif
