#include "pin_form.h"

#include <algorithm>
#include <utility>

#include "integer.h"
#include "number_text.h"

namespace mivo {

std::optional<std::size_t> PinForm::StyleIndex(std::int32_t style) noexcept {
  const auto found = std::find(kStyles.begin(), kStyles.end(), style);
  if (found == kStyles.end()) return std::nullopt;
  return static_cast<std::size_t>(found - kStyles.begin());
}

std::int32_t PinForm::StyleAt(std::optional<std::size_t> index) noexcept {
  return index ? kStyles[*index] : kStyles.back();
}

PinForm::PinForm(PinValues values) : values_(std::move(values)) {}

std::int32_t PinForm::BlockCount() const noexcept {
  return static_cast<std::int32_t>(values_.numbers.size());
}

std::int32_t PinForm::BlockFromText(std::u16string_view text) const noexcept {
  return std::clamp(WrapSub(std::max(ParseInt(text), 1), 1), 0, std::max(BlockCount() - 1, 0));
}

std::u16string_view PinForm::Number() const noexcept {
  if (values_.numbers.empty()) return {};
  return values_.numbers[static_cast<std::size_t>(currentBlock_)];
}

void PinForm::SetNumber(std::u16string_view number) {
  if (!values_.numbers.empty()) values_.numbers[static_cast<std::size_t>(currentBlock_)] = number;
}

void PinForm::SetName(std::u16string_view name) {
  if (name == values_.name) return;
  values_.name = name;
  values_.nameMask = SCompPin::kWholeNameShown;
}

}  // namespace mivo
