#ifndef MIVO_MODEL_PACKED_TEXTS_H
#define MIVO_MODEL_PACKED_TEXTS_H

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string_view>

#include "compact_text.h"

namespace mivo {

/// A fixed number of slots, each with a text or absent, in one string.
///
/// Made for the numbers of a pin: nearly always one short text, but up to 255 slots, most of them
/// absent. A short text needs no allocation, and slots behind the last text cost nothing.
class PackedTexts {
 public:
  static constexpr std::int32_t kMaxCount = 0xFFFF;

  PackedTexts() = default;
  /// `count` slots, at most kMaxCount; all are absent.
  explicit PackedTexts(std::int32_t count) : count_(Limited(count)) {}

  [[nodiscard]] std::int32_t Count() const noexcept { return count_; }

  /// The text of slot `index`; nothing when it is absent or there is no such slot. The view is
  /// valid until the next change.
  [[nodiscard]] std::optional<std::u16string_view> Get(std::int32_t index) const noexcept;

  /// Replaces slot `index`; does nothing when there is no such slot. Setting the slots in ascending
  /// order takes constant time each.
  void Set(std::int32_t index, std::optional<std::u16string_view> text);

  /// Keeps the first `count` slots; new ones are absent.
  void Resize(std::int32_t count);

  bool operator==(const PackedTexts& other) const = default;

 private:
  static std::uint16_t Limited(std::int32_t count) noexcept {
    return static_cast<std::uint16_t>(std::clamp(count, 0, kMaxCount));
  }

  // Takes what `slots` slots hold. Keeps equal contents equal in representation: nothing absent is
  // stored at the end.
  void Store(std::u16string_view packed, std::int32_t slots);

  // Per slot up to the last present one: two units with the text's length + 1 (0 when absent), then
  // the text.
  CompactText packed_;
  std::uint16_t count_ = 0;
  std::uint16_t stored_ = 0;  // slots that packed_ holds
};

}  // namespace mivo

#endif
