// Takes any text for a number, a pin's name, a pin's numbers and a name to count up, and compares
// what comes of it with what these texts mean, worked out the long way round.
//
// The first byte is the number of blocks, less one. Behind it stands the text, in UTF-8; a line of
// it is the number of a block.

#include <algorithm>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "comp_pin.h"
#include "fuzz_target.h"
#include "next_name.h"
#include "number_text.h"
#include "pin_names.h"
#include "text_encoding.h"

namespace mivo {
namespace {

bool IsDigit(char16_t c) {
  return u'0' <= c && c <= u'9';
}

void RequireNumbers(std::u16string_view text) {
  const std::int32_t number = ParseInt(text);
  Require(ParseInt(IntText(number)) == number, "a decimal number reads as it was written");
  const std::uint32_t bits = ParseHex(text);
  Require(ParseHex(HexText(bits)) == bits, "a hexadecimal number reads as it was written");

  const bool digitsOnly = std::all_of(text.begin(), text.end(), IsDigit);
  if (!digitsOnly) return;
  std::int64_t expected = 0;
  for (const char16_t digit : text) {
    expected = std::min<std::int64_t>(10 * expected + (digit - u'0'),
                                      std::numeric_limits<std::int32_t>::max());
  }
  Require(number == expected, "digits mean their number");
}

void RequirePinName(std::u16string_view text) {
  SCompPin pin;
  pin.SetNameFromDisplayText(text);
  Require(pin.Name().size() <= SCompPin::kMaxNameLength, "a pin's name keeps the limit");
  const std::u16string shown = pin.DisplayName();
  SCompPin again;
  again.SetNameFromDisplayText(shown);
  Require(HasPlainBackslash(pin.Name()) || again.DisplayName() == shown,
          "a pin's name as it is shown means the same name");
  Require(std::all_of(shown.begin(), shown.end(),
                      [](char16_t c) { return 0 < c && c < SCompPin::kOverline; }),
          "a pin's name is shown in seven bits");
}

/// Set one after the other and from the last to the first, which has to make no difference.
void RequirePinNumbers(std::u16string_view text, std::int32_t blocks) {
  std::vector<std::optional<std::u16string_view>> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(u'\n'), text.size());
    lines.emplace_back(end > 0 ? std::optional(text.substr(0, end)) : std::nullopt);
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  const auto count = static_cast<std::int32_t>(lines.size());
  SCompPin forwards(blocks);
  SCompPin backwards(blocks);
  for (std::int32_t i = 0; i < count; ++i) {
    forwards.SetNumber(i, lines[static_cast<std::size_t>(i)]);
    backwards.SetNumber(count - 1 - i, lines[static_cast<std::size_t>(count - 1 - i)]);
  }
  Require(forwards == backwards, "the order in which numbers are set makes no difference");
  for (std::int32_t i = 0; i < count; ++i) {
    Require(
        forwards.GetNumber(i) == (i < blocks ? lines[static_cast<std::size_t>(i)] : std::nullopt),
        "a number is the one that was set");
  }
  forwards.ResizeNumbers(blocks / 2);
  forwards.ResizeNumbers(blocks);
  for (std::int32_t i = 0; i < std::min(count, blocks); ++i) {
    Require(forwards.GetNumber(i) ==
                (i < blocks / 2 ? lines[static_cast<std::size_t>(i)] : std::nullopt),
            "a number of a block that went is gone, and no other");
  }
}

void RequireNextName(std::u16string_view text) {
  const std::u16string next = NextName(text);
  Require(!next.empty() && IsDigit(next.back()), "a counted name ends with a number");
  Require(next != text, "a counted name is another one");
  // What stands in front of the number stays.
  const auto isNoDigit = [](char16_t c) { return !IsDigit(c); };
  const auto lastOther = std::find_if(text.rbegin(), text.rend(), isNoDigit);
  Require(next.starts_with(text.substr(0, static_cast<std::size_t>(text.rend() - lastOther))),
          "counting changes the number only");
}

}  // namespace
}  // namespace mivo

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::u16string text = mivo::Utf8ToUtf16(mivo::InputBytes(data + 1, size - 1));
  mivo::RequireNumbers(text);
  mivo::RequirePinName(text);
  mivo::RequirePinNumbers(text, data[0] + 1);
  mivo::RequireNextName(text);
  return 0;
}
