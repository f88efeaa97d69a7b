#include "next_name.h"

#include <algorithm>

namespace mivo {

std::u16string NextName(std::u16string_view text) {
  std::size_t first = text.size();
  while (first > 0 && u'0' <= text[first - 1] && text[first - 1] <= u'9') --first;
  const std::u16string_view prefix = text.substr(0, first);
  std::u16string_view digits = text.substr(first);
  digits.remove_prefix(std::min(digits.find_first_not_of(u'0'), digits.size()));

  // Counted up on the digits themselves: names hold numbers that no integer type does.
  std::u16string number(digits);
  const std::size_t lastToRaise = number.find_last_not_of(u'9');
  const std::size_t nines = lastToRaise == std::u16string::npos ? 0 : lastToRaise + 1;
  std::fill(number.begin() + static_cast<std::ptrdiff_t>(nines), number.end(), u'0');
  if (nines == 0) {
    number.insert(number.begin(), u'1');
  } else {
    ++number[lastToRaise];
  }
  return std::u16string(prefix) + number;
}

}  // namespace mivo
