#ifndef MIVO_DIALOGS_NAME_PARTS_H
#define MIVO_DIALOGS_NAME_PARTS_H

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

// The parts of a pin's name that can be shown and hidden one by one, see SCompPin::nameMask. The
// name is in its typed form, with "\" in front of overlined characters.

namespace mivo {

/// Only so many parts have a bit in the mask; further ones are always shown.
inline constexpr std::size_t kMaskableNameParts = 32;

/// Cuts `name` at every "/" that is not overlined; empty parts count. The parts are views of
/// `name`, and there is at least one.
[[nodiscard]] std::vector<std::u16string_view> SplitPinName(std::u16string_view name);

[[nodiscard]] bool IsNamePartShown(std::uint32_t mask, std::size_t part) noexcept;

/// The mask that hides exactly the maskable parts which are false in `shown`.
[[nodiscard]] std::uint32_t NameMaskOf(const std::vector<bool>& shown) noexcept;

}  // namespace mivo

#endif
