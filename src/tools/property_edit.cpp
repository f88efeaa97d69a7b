#include "property_edit.h"

#include "integer.h"

namespace mivo {
namespace {

constexpr std::int32_t kBoldWeight = 700;
constexpr std::int32_t kNormalWeight = 400;
constexpr std::int32_t kDotted = 1;

/// A file may hold any non-zero style; it stays unless the user switches dots off and on.
void ApplyDot(bool dot, SPtnObj& object) {
  if (!dot) {
    object.style = SPtnObj::kSolid;
  } else if (object.style == SPtnObj::kSolid) {
    object.style = kDotted;
  }
}

}  // namespace

PinValues ValuesOf(const SCompPin& pin) {
  PinValues values;
  values.name = pin.DisplayName();
  values.nameMask = pin.nameMask;
  for (std::int32_t block = 0; block < pin.NumberCount(); ++block) {
    values.numbers.emplace_back(pin.GetNumber(block).value_or(std::u16string_view()));
  }
  values.hideNumber = (pin.type & SCompPin::kHideNumber) != 0;
  values.shape = pin.type & SCompPin::kShapeMask;
  return values;
}

LineValues ValuesOf(const SPtnObjLine& line) {
  return {.width = line.width, .curve = line.IsCurve(), .dot = line.style != SPtnObj::kSolid};
}

TextValues ValuesOf(const SPtnObjText& text) {
  return {.text = text.Text(),
          .align = text.Align(),
          .face = text.FontName(),
          .height = text.FontSize(),
          .weight = text.IsBold() ? kBoldWeight : kNormalWeight,
          .italic = text.IsItalic()};
}

ShapeValues ShapeValuesOf(const SPtnObj& shape) {
  return {.width = shape.width,
          .dot = shape.style != SPtnObj::kSolid,
          .fill = shape.fill >= 0,
          .fillAllowed = shape.GetType() != PtnObjType::Arc};
}

void Apply(const PinValues& values, SCompPin& pin) {
  pin.SetNameFromDisplayText(values.name);
  pin.nameMask = values.nameMask;
  for (std::size_t i = 0; i < values.numbers.size(); ++i) {
    const auto block = static_cast<std::int32_t>(i);
    const std::u16string& number = values.numbers[i];
    // An empty field is what an absent number looks like; leaving it alone must not make one.
    if (number.empty() && !pin.GetNumber(block)) continue;
    pin.SetNumber(block, number);
  }
  pin.type = (values.hideNumber ? SCompPin::kHideNumber : 0) | values.shape;
}

void Apply(const LineValues& values, SPtnObjLine& line) {
  line.width = values.width;
  ApplyDot(values.dot, line);
  line.SetCurve(values.curve);
}

void Apply(const TextValues& values, SPtnObjText& text) {
  text.SetText(values.text);
  text.SetAlign(values.align);
  text.SetFontName(values.face);
  text.SetFontSize(WrapAbs(values.height));
  text.SetBold(values.weight >= kBoldWeight);
  text.SetItalic(values.italic);
}

void ApplyShape(const ShapeValues& values, SPtnObj& shape) {
  shape.width = values.width;
  ApplyDot(values.dot, shape);
  if (shape.GetType() == PtnObjType::Arc) return;
  if (!values.fill) {
    shape.fill = SPtnObj::kNotFilled;
  } else if (shape.fill < 0) {
    shape.fill = SPtnObj::kFilled;
  }
}

bool EditProperties(SCompPin& pin, PropertyPrompts& prompts) {
  const std::optional<PinValues> values = prompts.AskPin(ValuesOf(pin));
  if (values) Apply(*values, pin);
  return values.has_value();
}

bool EditProperties(SPtnObj& object, PropertyPrompts& prompts) {
  if (auto* const text = dynamic_cast<SPtnObjText*>(&object)) {
    const std::optional<TextValues> values = prompts.AskText(ValuesOf(*text));
    if (values) Apply(*values, *text);
    return values.has_value();
  }
  if (auto* const line = dynamic_cast<SPtnObjLine*>(&object)) {
    const std::optional<LineValues> values = prompts.AskLine(ValuesOf(*line));
    if (values) Apply(*values, *line);
    return values.has_value();
  }
  const std::optional<ShapeValues> values = prompts.AskShape(ShapeValuesOf(object));
  if (values) ApplyShape(*values, object);
  return values.has_value();
}

}  // namespace mivo
