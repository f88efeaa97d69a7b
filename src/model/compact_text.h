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
  CompactText(CompactText&& other) noexcept
      : length_(std::exchange(other.length_, 0)), units_(other.units_) {}
  CompactText& operator=(CompactText other) noexcept {
    std::swap(length_, other.length_);
    std::swap(units_, other.units_);
    return *this;
  }
  ~CompactText() {
    if (length_ == kElsewhere) delete[] Elsewhere();
  }

  /// Appends `text`, which is no part of this one, in time with its length on the average.
  void Append(std::u16string_view text) {
    if (length_ == kElsewhere || text.size() > kRoom - length_) return AppendElsewhere(text);
    for (const char16_t c : text) units_[length_++] = c;
  }

  /// Valid until the text is assigned to, moved or destroyed.
  [[nodiscard]] std::u16string_view View() const noexcept {
    return length_ == kElsewhere ? ViewElsewhere() : std::u16string_view(units_.data(), length_);
  }

  bool operator==(const CompactText& other) const noexcept { return View() == other.View(); }

 private:
  static constexpr std::uint16_t kElsewhere = 0xFFFF;

  [[nodiscard]] char16_t* Elsewhere() const noexcept;
  [[nodiscard]] std::u16string_view ViewElsewhere() const noexcept;
  void AppendElsewhere(std::u16string_view text);

  std::uint16_t length_ = 0;
  // The characters; or, of a text elsewhere, the bytes of the pointer to it.
  std::array<char16_t, kRoom> units_{};
};

}  // namespace mivo

#endif
