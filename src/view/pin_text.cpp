#include "pin_text.h"

#include <algorithm>
#include <string>

#include "anchored_text.h"
#include "comp_pin.h"
#include "integer.h"

namespace mivo {
namespace {

constexpr std::u16string_view::size_type kNone = std::u16string_view::npos;

// A pin name's character without its overline bit; a blank for what is no printable ASCII.
char16_t DrawnCharacter(char16_t c) noexcept {
  constexpr char16_t kSevenBits = 0x7F;
  const char16_t drawn = (c & SCompPin::kOverline) != 0 ? static_cast<char16_t>(c & kSevenBits) : c;
  return drawn < 32 || drawn > 126 ? u' ' : drawn;
}

// A text and where it is drawn; positions are counted in characters.
class PlacedText {
 public:
  PlacedText(DrawingSurface& surface, std::u16string text, const PinTextPlace& place,
             const ViewScale& scale, const SCommonFont& commonFont)
      : surface_(surface),
        text_(std::move(text)),
        font_(ScaledFont(commonFont, place.vertical, scale.multiplier, scale.divisor)),
        extent_(surface.MeasureText(text_, font_)),
        start_(TextStart(scale.Map(place.anchor), extent_, place.vertical, place.align,
                         AcrossShifts::OfEm(extent_))) {}

  [[nodiscard]] const TextExtent& Extent() const noexcept { return extent_; }

  void Draw(std::size_t first, std::size_t end, Color color) {
    if (first == end) return;
    const std::int32_t before = WidthUpTo(first);
    const PixelPoint at = font_.vertical ? PixelPoint{start_.x, WrapSub(start_.y, before)}
                                         : PixelPoint{WrapAdd(start_.x, before), start_.y};
    surface_.Text(at, std::u16string_view(text_).substr(first, end - first), font_, color);
  }

  // A bar along the top edge that covers exactly the columns of the characters: the round ends of a
  // wide pen stay within them.
  void DrawBar(std::size_t first, std::size_t end, std::int32_t penWidth, Color color) {
    const std::int32_t from = WidthUpTo(first);
    const std::int32_t to = WidthUpTo(end);
    if (from >= to) return;
    const std::int32_t width = std::max(penWidth, 1);
    std::int32_t low = (font_.vertical ? -to : from) + width / 2;
    std::int32_t high = (font_.vertical ? -from : to) - 1 - (width - 1) / 2;
    if (low > high) low = high = (low + high) / 2;  // characters narrower than the pen
    const Pen pen{color, width};
    if (font_.vertical) {
      surface_.Line({start_.x, WrapAdd(start_.y, high)}, {start_.x, WrapAdd(start_.y, low)}, pen);
    } else {
      surface_.Line({WrapAdd(start_.x, low), start_.y}, {WrapAdd(start_.x, high), start_.y}, pen);
    }
  }

 private:
  [[nodiscard]] std::int32_t WidthUpTo(std::size_t end) {
    if (end == 0) return 0;
    if (end == text_.size()) return extent_.width;
    return surface_.MeasureText(std::u16string_view(text_).substr(0, end), font_).width;
  }

  DrawingSurface& surface_;
  std::u16string text_;
  Font font_;
  TextExtent extent_;
  PixelPoint start_;
};

// The parts of a name between its slashes; every part but the first begins with its slash. An
// overlined slash is a character like any other. What follows the last maskable part counts as one
// more.
class NameParts {
 public:
  NameParts(std::u16string_view name, std::uint32_t mask) : name_(name), mask_(mask) {}

  // Calls `visit(first, end, isShown)` for each part in order.
  template <typename Visit>
  void ForEach(Visit visit) const {
    std::size_t first = 0;
    for (std::uint32_t part = 0; first != kNone; ++part) {
      const std::size_t next =
          part < kMaskBits ? name_.find(u'/', part == 0 ? 0 : first + 1) : kNone;
      visit(first, std::min(next, name_.size()), IsShown(part));
      first = next;
    }
  }

 private:
  static constexpr std::uint32_t kMaskBits = 32;
  [[nodiscard]] bool IsShown(std::uint32_t part) const noexcept {
    return part >= kMaskBits || (mask_ >> part & 1u) != 0;
  }

  std::u16string_view name_;
  std::uint32_t mask_;
};

bool IsOverlined(char16_t c) noexcept {
  return (c & SCompPin::kOverline) != 0;
}

}  // namespace

TextExtent DrawPinName(DrawingSurface& surface, const PinTextPlace& place, std::u16string_view name,
                       std::int32_t maxLength, const PinNameColors& colors, std::uint32_t mask,
                       const ViewScale& scale, const SCommonFont& commonFont) {
  const bool hasLimit = maxLength >= 0 && static_cast<std::size_t>(maxLength) <= kMaxDrawnText;
  name = name.substr(0, hasLimit ? static_cast<std::size_t>(maxLength) : kMaxDrawnText);
  std::u16string drawn(name);
  std::transform(drawn.begin(), drawn.end(), drawn.begin(), DrawnCharacter);
  PlacedText text(surface, std::move(drawn), place, scale, commonFont);

  const NameParts parts(name, mask);
  if (mask == SCompPin::kWholeNameShown) {
    text.Draw(0, name.size(), colors.shown);
  } else {
    parts.ForEach([&](std::size_t first, std::size_t end, bool isShown) {
      text.Draw(first, end, isShown ? colors.shown : colors.hidden);
    });
  }
  parts.ForEach([&](std::size_t first, std::size_t end, bool isShown) {
    const Color color = isShown ? colors.shown : colors.hidden;
    for (std::size_t run = first; run < end;) {
      const auto at = name.begin();
      const auto partEnd = at + static_cast<std::ptrdiff_t>(end);
      const auto barFirst =
          std::find_if(at + static_cast<std::ptrdiff_t>(run), partEnd, IsOverlined);
      const auto barEnd = std::find_if_not(barFirst, partEnd, IsOverlined);
      if (barFirst != barEnd) {
        text.DrawBar(static_cast<std::size_t>(barFirst - at), static_cast<std::size_t>(barEnd - at),
                     scale.UnitWidth(), color);
      }
      run = static_cast<std::size_t>(barEnd - at);
    }
  });
  return text.Extent();
}

void DrawPinNumber(DrawingSurface& surface, const PinTextPlace& place, std::u16string_view number,
                   Color color, const ViewScale& scale, const SCommonFont& commonFont) {
  std::u16string drawn(number.substr(0, kMaxDrawnText));
  std::replace_if(
      drawn.begin(), drawn.end(), [](char16_t c) { return c < 32 || c > 126; }, u' ');
  const std::size_t length = drawn.size();
  PlacedText(surface, std::move(drawn), place, scale, commonFont).Draw(0, length, color);
}

}  // namespace mivo
