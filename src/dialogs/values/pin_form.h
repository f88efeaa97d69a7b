#ifndef MIVO_DIALOGS_PIN_FORM_H
#define MIVO_DIALOGS_PIN_FORM_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "comp_pin.h"
#include "property_values.h"

namespace mivo {

/// What the pin property dialog keeps and decides while it is open: one number field serves all
/// blocks, and hidden parts of the name belong to the name for which they were chosen.
class PinForm {
 public:
  /// In the order of the pictures, see SCompPin::type.
  static constexpr std::array<std::int32_t, 6> kStyles = {0,
                                                          SCompPin::kClock,
                                                          SCompPin::kNegation,
                                                          SCompPin::kNegation | SCompPin::kClock,
                                                          SCompPin::kShapeS,
                                                          SCompPin::kShapeZ};

  /// Place of a style among the pictures; nothing for a style without one.
  [[nodiscard]] static std::optional<std::size_t> StyleIndex(std::int32_t style) noexcept;
  /// The style of the picture that is chosen; without a choice it is the last one.
  [[nodiscard]] static std::int32_t StyleAt(std::optional<std::size_t> index) noexcept;

  explicit PinForm(PinValues values);

  [[nodiscard]] std::int32_t BlockCount() const noexcept;
  /// The block, counted from 0, that the text of the block field means: the nearest one there is,
  /// the first one for a text that is no number.
  [[nodiscard]] std::int32_t BlockFromText(std::u16string_view text) const noexcept;

  [[nodiscard]] std::int32_t CurrentBlock() const noexcept { return currentBlock_; }
  /// The current block's number; empty when there are no blocks.
  [[nodiscard]] std::u16string_view Number() const noexcept;
  void SetNumber(std::u16string_view number);
  void SetCurrentBlock(std::int32_t block) noexcept { currentBlock_ = block; }

  /// A name other than the one for which parts were hidden is shown whole.
  void SetName(std::u16string_view name);
  void SetNameMask(std::uint32_t mask) noexcept { values_.nameMask = mask; }
  void SetHideNumber(bool hide) noexcept { values_.hideNumber = hide; }
  void SetStyle(std::int32_t style) noexcept { values_.shape = style; }

  [[nodiscard]] const PinValues& Values() const noexcept { return values_; }

 private:
  PinValues values_;
  std::int32_t currentBlock_ = 0;
};

}  // namespace mivo

#endif
