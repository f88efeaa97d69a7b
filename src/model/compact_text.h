#ifndef MIVO_MODEL_COMPACT_TEXT_H
#define MIVO_MODEL_COMPACT_TEXT_H

#include <array>
#include <cstdint>
#include <string_view>
#include <utility>

namespace mivo {

/// A text in 16 bytes, for what a library has a million of. Up to kRoom characters stand in these
/// bytes themselves; a longer text has memory of its own. Never longer than 2³² - 1 characters.
class CompactText {
 public:
  static constexpr std::size_t kRoom = 7;

  CompactText() noexcept = default;
  explicit CompactText(std::u16string_view text) { Append(text); }
  CompactText(const CompactText& other) : CompactText(other.View()) {}
  CompactText(CompactText&& other) noexcept : units_(other.units_) { other.units_[0] = 0; }
  CompactText& operator=(CompactText other) noexcept {
    std::swap(units_, other.units_);
    return *this;
  }
  ~CompactText() {
    if (IsElsewhere()) delete[] Elsewhere();
  }

  /// Appends `text`, which is no part of this one, in time with its length on the average.
  void Append(std::u16string_view text) {
    if (IsElsewhere() || text.size() > kRoom - units_[0]) return AppendElsewhere(text);
    char16_t* end = &units_[1] + units_[0];
    for (const char16_t c : text) *end++ = c;
    units_[0] = static_cast<char16_t>(units_[0] + text.size());
  }

  /// Valid until the text is assigned to, appended to, moved or destroyed.
  [[nodiscard]] std::u16string_view View() const noexcept {
    return IsElsewhere() ? ViewElsewhere() : std::u16string_view(&units_[1], units_[0]);
  }

  bool operator==(const CompactText& other) const noexcept { return View() == other.View(); }

 private:
  static constexpr char16_t kElsewhere = 0xFFFF;

  [[nodiscard]] bool IsElsewhere() const noexcept { return units_[0] == kElsewhere; }
  [[nodiscard]] char16_t* Elsewhere() const noexcept;
  [[nodiscard]] std::u16string_view ViewElsewhere() const noexcept;
  void AppendElsewhere(std::u16string_view text);

  // The length and the characters; or kElsewhere and the bytes of a pointer.
  std::array<char16_t, 1 + kRoom> units_{};
};

}  // namespace mivo

#endif
