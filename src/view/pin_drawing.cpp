#include "pin_drawing.h"

#include <array>
#include <utility>

#include "colors.h"
#include "integer.h"
#include "pin_geometry.h"
#include "pin_text.h"
#include "ptn_obj_text.h"

namespace mivo {
namespace {

// Component units, relative to the pin point, as seen from the side that the pin is on.
constexpr std::int32_t kLength = 10;
constexpr std::int32_t kBubble = 6;   // diameter of the negation mark
constexpr std::int32_t kChevron = 4;  // depth and half width of the clock mark
constexpr std::int32_t kSquare = 2;   // half side of the Z mark

// Unit vector from the body outward along a pin.
constexpr SPoint Outward(PinSide side) noexcept {
  constexpr std::array<SPoint, 4> kOutward = {{{-1, 0}, {0, -1}, {1, 0}, {0, 1}}};
  return kOutward[static_cast<std::size_t>(side)];
}

constexpr PinSide Opposite(PinSide side) noexcept {
  return static_cast<PinSide>(static_cast<int>(side) ^ 2);
}

constexpr bool IsUpright(PinSide side) noexcept {
  return side == PinSide::Top || side == PinSide::Bottom;
}

class ShapePainter {
 public:
  ShapePainter(DrawingSurface& surface, const PinPicture& pin, Color color, const ViewScale& scale)
      : surface_(surface),
        point_(pin.point),
        out_(Outward(pin.side)),
        upright_(IsUpright(pin.side)),
        pen_{color, scale.UnitWidth()},
        scale_(scale) {}

  void Line(std::int32_t innerEnd) {
    surface_.Line(Map(Along(kLength)), Map(Along(innerEnd)), pen_);
  }

  void Square() { surface_.Rectangle(Box({-kSquare, -kSquare}, {kSquare, kSquare}), pen_, {}); }

  void Bubble() {
    constexpr std::int32_t kRadius = kBubble / 2;
    const SPoint across = upright_ ? SPoint{kRadius, 0} : SPoint{0, kRadius};
    surface_.Ellipse(Box(SPoint{} - across, Along(kBubble) + across), pen_, {});
  }

  void Chevron() {
    const SPoint first = upright_ ? SPoint{-kChevron, 0} : SPoint{0, kChevron};
    const std::array<PixelPoint, 3> points = {Map(first), Map(Along(-kChevron)),
                                              Map(SPoint{} - first)};
    surface_.Polyline(points, pen_);
  }

 private:
  [[nodiscard]] SPoint Along(std::int32_t distance) const noexcept {
    return {out_.x * distance, out_.y * distance};
  }
  [[nodiscard]] PixelPoint Map(SPoint relative) const noexcept {
    return scale_.Map(point_ + relative);
  }
  [[nodiscard]] PixelRect Box(SPoint corner1, SPoint corner2) const noexcept {
    return PixelRect::Around(Map(corner1), Map(corner2));
  }

  DrawingSurface& surface_;
  SPoint point_;
  SPoint out_;
  bool upright_;
  Pen pen_;
  ViewScale scale_;
};

void DrawShape(DrawingSurface& surface, const PinPicture& pin, Color color,
               const ViewScale& scale) {
  ShapePainter painter(surface, pin, color, scale);
  if ((pin.type & SCompPin::kShapeZ) != 0) {
    painter.Square();
  } else if ((pin.type & SCompPin::kNegation) != 0) {
    painter.Line(kBubble);
    painter.Bubble();
  } else {
    painter.Line(0);
  }
  if ((pin.type & SCompPin::kClock) != 0) painter.Chevron();
}

// Component units; the right and bottom edges do not belong to it.
struct UnitBox {
  SPoint corner;  // top left
  SPoint size;

  [[nodiscard]] SPoint End() const noexcept { return corner + size; }
  [[nodiscard]] bool Meets(const SRect* clip) const noexcept {
    if (clip == nullptr) return true;
    const SPoint last = End() - SPoint{1, 1};
    return clip->Touches({corner.x, corner.y, last.x, last.y});
  }
};

// What the clip test takes for the pin line and its marks.
UnitBox ShapeBox(const PinPicture& pin) noexcept {
  constexpr std::int32_t kInside = 6;
  constexpr std::int32_t kAcross = 4;
  constexpr SPoint kLyingSize{kLength + kInside, 2 * kAcross + 1};
  constexpr SPoint kUprightSize{kLyingSize.y, kLyingSize.x};
  switch (pin.side) {
    case PinSide::Left:
      return {pin.point + SPoint{-kLength, -kAcross}, kLyingSize};
    case PinSide::Top:
      return {pin.point + SPoint{-kAcross, -kLength}, kUprightSize};
    case PinSide::Right:
      return {pin.point + SPoint{-kInside, -kAcross}, kLyingSize};
    case PinSide::Bottom:
      break;
  }
  return {pin.point + SPoint{-kAcross, -kInside}, kUprightSize};
}

// One of the two texts of a pin: which box it is in, and how it stands there.
struct TextBox {
  UnitBox box;
  PinTextPlace place;
};

// The text starts or ends at the corner of its box that is nearest to the pin point; `side` tells
// which corner and direction that is.
TextBox PlacedInBox(const UnitBox& box, PinSide side) noexcept {
  const bool endsAtAnchor = side == PinSide::Top || side == PinSide::Right;
  const SPoint anchor{side == PinSide::Left ? box.corner.x : box.End().x,
                      side == PinSide::Top ? box.corner.y : box.End().y};
  return {box, {anchor, IsUpright(side), endsAtAnchor ? SPtnObjText::kRight : SPtnObjText::kLeft}};
}

constexpr std::int32_t kCharacter = 8;  // component units that a character counts for

std::int32_t BoxLength(std::u16string_view text) noexcept {
  return WrapMul(kCharacter, static_cast<std::int32_t>(text.size()));
}

TextBox NameBox(const PinPicture& pin, std::u16string_view text) noexcept {
  constexpr std::int32_t kGap = 5;
  constexpr std::int32_t kAbove = 7;
  constexpr std::int32_t kHeight = 10;
  const std::int32_t length = BoxLength(text);
  const SPoint size = IsUpright(pin.side) ? SPoint{kHeight, length} : SPoint{length, kHeight};
  SPoint corner;
  switch (pin.side) {
    case PinSide::Left:
      corner = {kGap, -kAbove};
      break;
    case PinSide::Top:
      corner = {-kAbove, kGap};
      break;
    case PinSide::Right:
      corner = {WrapSub(-kGap, length), -kAbove};
      break;
    case PinSide::Bottom:
      corner = {-kAbove, WrapSub(-kGap, length)};
      break;
  }
  return PlacedInBox({pin.point + corner, size}, pin.side);
}

TextBox NumberBox(const PinPicture& pin, std::u16string_view text) noexcept {
  constexpr std::int32_t kShortGap = 2;  // the S and Z shapes leave room above the pin line
  constexpr std::int32_t kGap = 9;
  constexpr std::int32_t kAbove = 10;
  constexpr std::int32_t kHeight = 8;
  const bool isShort = (pin.type & (SCompPin::kShapeS | SCompPin::kShapeZ)) != 0;
  const std::int32_t gap = isShort ? kShortGap : kGap;
  const std::int32_t length = BoxLength(text);
  const SPoint size = IsUpright(pin.side) ? SPoint{kHeight, length} : SPoint{length, kHeight};
  SPoint corner;
  switch (pin.side) {
    case PinSide::Left:
      corner = {WrapSub(-gap, length), -kAbove};
      break;
    case PinSide::Top:
      corner = {-kAbove, WrapSub(-gap, length)};
      break;
    case PinSide::Right:
      corner = {gap, -kAbove};
      break;
    case PinSide::Bottom:
      corner = {-kAbove, gap};
      break;
  }
  return PlacedInBox({pin.point + corner, size}, Opposite(pin.side));
}

struct TextColors {
  PinNameColors name;
  Color number;
};

TextColors ColorsOf(const PinPicture& pin, DrawFlags flags) noexcept {
  if ((flags & kDrawGrey) != 0) {
    return {{colors::kHidden, colors::kHidden}, colors::kHidden};
  }
  if ((flags & kDrawSelected) != 0) {
    return {{colors::kSelected, colors::kSelectedHidden}, colors::kSelected};
  }
  if ((flags & kDrawMonochrome) != 0) {
    return {{colors::kBlack, colors::kBlack}, colors::kBlack};
  }
  TextColors result{{colors::kPinName, colors::kHidden}, colors::kPinNumber};
  // Each place keeps its colour.
  if ((flags & kDrawSwapped) != 0) std::swap(result.name.shown, result.number);
  if ((pin.type & SCompPin::kHideNumber) != 0) result.number = colors::kHidden;
  return result;
}

void DrawTexts(DrawingSurface& surface, const PinPicture& pin, DrawFlags flags,
               const ViewScale& scale, const SCommonFont& commonFont, const SRect* clip) {
  const bool swapped = (flags & kDrawSwapped) != 0;
  const TextBox name = swapped ? NumberBox(pin, pin.name) : NameBox(pin, pin.name);
  const TextBox number = swapped ? NameBox(pin, pin.number) : NumberBox(pin, pin.number);
  const TextColors textColors = ColorsOf(pin, flags);
  if (!pin.name.empty() && name.box.Meets(clip)) {
    DrawPinName(surface, name.place, pin.name, -1, textColors.name, pin.nameMask, scale,
                commonFont);
  }
  if (!pin.number.empty() && number.box.Meets(clip)) {
    DrawPinNumber(surface, number.place, pin.number, textColors.number, scale, commonFont);
  }
}

}  // namespace

PinPicture PinPicture::Of(const SCompPin& pin, SPoint bodySize, std::int32_t block) {
  return {PinPoint(pin.location, bodySize),
          pin.location.side,
          pin.type,
          pin.Name(),
          pin.nameMask,
          pin.GetNumber(block).value_or(std::u16string_view())};
}

void DrawPin(DrawingSurface& surface, const PinPicture& pin, DrawFlags flags,
             const ViewScale& scale, const SCommonFont& commonFont, const SRect* clip) {
  if (ShapeBox(pin).Meets(clip)) {
    if ((flags & kDrawGrey) != 0) {
      DrawShape(surface, pin, colors::kHidden, scale);
    } else if ((flags & kDrawNormal) != 0) {
      DrawShape(surface, pin, colors::kPin, scale);
    } else if ((flags & kDrawMonochrome) != 0) {
      DrawShape(surface, pin, colors::kBlack, scale);
    } else if ((flags & kDrawSelected) != 0) {
      DrawShape(surface, pin, colors::kSelected, scale);
    }
  }
  if ((flags & kDrawNoTexts) == 0 && scale.multiplier >= scale.divisor) {
    DrawTexts(surface, pin, flags, scale, commonFont, clip);
  }
}

}  // namespace mivo
