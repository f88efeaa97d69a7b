#include "name_parts.h"

#include <algorithm>

#include "comp_pin.h"

namespace mivo {

std::vector<std::u16string_view> SplitPinName(std::u16string_view name) {
  std::vector<std::u16string_view> parts;
  std::size_t first = 0;
  for (std::size_t i = 0; i < name.size(); ++i) {
    if (name[i] == u'\\') {
      ++i;
    } else if (name[i] == u'/') {
      parts.push_back(name.substr(first, i - first));
      first = i + 1;
    }
  }
  parts.push_back(name.substr(first));
  return parts;
}

bool IsNamePartShown(std::uint32_t mask, std::size_t part) noexcept {
  return part >= kMaskableNameParts || (mask >> part & 1u) != 0;
}

std::uint32_t NameMaskOf(const std::vector<bool>& shown) noexcept {
  std::uint32_t mask = SCompPin::kWholeNameShown;
  for (std::size_t part = 0; part < std::min(shown.size(), kMaskableNameParts); ++part) {
    if (!shown[part]) mask &= ~(1u << part);
  }
  return mask;
}

}  // namespace mivo
