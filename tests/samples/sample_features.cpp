#include "sample_features.h"

#include <algorithm>
#include <array>
#include <unordered_map>

#include "ptn_obj_line.h"
#include "ptn_obj_text.h"
#include "text_encoding.h"

namespace mivo {
namespace {

constexpr std::array<std::pair<std::int32_t, const char*>, 6> kShapes = {
    {{0, "plain"}, {1, "S"}, {2, "Z"}, {4, "C"}, {8, "N"}, {12, "NC"}}};
constexpr std::array kSides = {"left", "top", "right", "bottom"};

void CollectPin(const SCompPin& pin, std::set<std::string>& features) {
  for (const auto& [shape, name] : kShapes) {
    if ((pin.type & SCompPin::kShapeMask) == shape) features.insert(std::string("pin ") + name);
  }
  features.insert(std::string("pin ") + kSides.at(static_cast<std::size_t>(pin.location.side)));
  if ((pin.type & SCompPin::kHideNumber) != 0) features.insert("pin number hidden");
  if (pin.Name().empty()) features.insert("pin without name");
  if (pin.GetNumber(0).value_or(u"").empty()) features.insert("pin without number");
  const auto isBarred = [](char16_t c) { return (c & SCompPin::kOverline) != 0; };
  if (std::any_of(pin.Name().begin(), pin.Name().end(), isBarred)) {
    features.insert("pin name overlined");
  }
  if (pin.nameMask == 0) {
    features.insert("pin name hidden");
  } else if (pin.nameMask != SCompPin::kWholeNameShown) {
    features.insert("pin name partly hidden");
  }
}

std::string FillName(std::int32_t fill) {
  return " fill " + std::to_string(fill);
}

void CollectText(const SPtnObjText& text, std::set<std::string>& features) {
  features.insert("text align " + std::to_string(text.Align() & SPtnObjText::kAlongMask) +
                  " along");
  features.insert("text align " + std::to_string(text.Align() & SPtnObjText::kAcrossMask) +
                  " across");
  features.insert(text.IsHorizontal() ? "text horizontal" : "text vertical");
  features.insert(text.FontName().empty() ? "text in the label font" : "text in its own font");
  if (text.IsBold()) features.insert("text bold");
  if (text.IsItalic()) features.insert("text italic");
  if (text.IsUnderline()) features.insert("text underlined");
  if (text.IsStrikeout()) features.insert("text struck out");
}

void CollectObject(const SPtnObj& object, std::set<std::string>& features) {
  if (object.GetType() == PtnObjType::Text) {
    CollectText(dynamic_cast<const SPtnObjText&>(object), features);
    return;
  }
  std::string name;
  switch (object.GetType()) {
    case PtnObjType::Line:
      name = dynamic_cast<const SPtnObjLine&>(object).IsCurve() ? "curve" : "line";
      break;
    case PtnObjType::Circle:
      name = "ellipse";
      features.insert(name + FillName(object.fill));
      break;
    case PtnObjType::Polygon:
      name = "polygon";
      features.insert(name + FillName(object.fill));
      break;
    default:
      name = "arc";
      break;
  }
  features.insert(name);
  const bool dotted = object.style != SPtnObj::kSolid;
  const bool wide = object.width > 1;
  if (dotted) features.insert(wide ? "wide and dotted" : "thin and dotted");
  if (wide && !dotted) features.insert("wide");
}

void CollectComponent(const SComponent& component, std::set<std::string>& features) {
  features.insert("block " + Utf16ToUtf8(BlockTypeName(component.Type())));
  if (component.BlockCount() > 1) features.insert("several blocks");
  if (component.FixedBlock() > 0) features.insert("later fixed block");
  for (const SCompPin& pin : component.Pins()) CollectPin(pin, features);
  if (!component.note.empty()) features.insert("note");
  if (component.note.find(u'\n') != std::u16string::npos) features.insert("note of several lines");
  if (!component.manufacturer.empty()) features.insert("manufacturer");
  if (!component.partNumber.empty()) features.insert("part number");
  if (!component.package.empty()) features.insert("package");
  if (component.prefix != u"U") features.insert("other prefix");
  const SPtn* pattern = component.Pattern();
  features.insert(pattern != nullptr ? "pattern" : "no pattern");
  if (pattern == nullptr) return;
  for (const auto& object : pattern->objects) CollectObject(*object, features);
  if (pattern->bitPattern) features.insert("bit pattern");
}

}  // namespace

void CollectFeatures(const SMivoDoc& library, std::set<std::string>& features) {
  std::unordered_map<const SComponent*, int> names;
  for (const auto& entry : library.Names().Entries()) {
    if (++names[entry->Component()] > 1) features.insert("alias");
  }
  for (const auto& component : library.Components()) CollectComponent(*component, features);
}

const std::set<std::string>& AllFeatures() {
  static const std::set<std::string> features = {
      "alias",
      "block GEN",
      "block SHB",
      "block FXB",
      "later fixed block",
      "several blocks",
      "pin plain",
      "pin S",
      "pin Z",
      "pin C",
      "pin N",
      "pin NC",
      "pin left",
      "pin top",
      "pin right",
      "pin bottom",
      "pin number hidden",
      "pin without name",
      "pin without number",
      "pin name overlined",
      "pin name hidden",
      "pin name partly hidden",
      "note",
      "note of several lines",
      "manufacturer",
      "part number",
      "package",
      "other prefix",
      "pattern",
      "no pattern",
      "bit pattern",
      "line",
      "curve",
      "ellipse",
      "ellipse fill -1",
      "ellipse fill 0",
      "ellipse fill 1",
      "polygon",
      "polygon fill -1",
      "polygon fill 0",
      "polygon fill 1",
      "arc",
      "wide",
      "thin and dotted",
      "wide and dotted",
      "text align 0 along",
      "text align 1 along",
      "text align 2 along",
      "text align 0 across",
      "text align 4 across",
      "text align 8 across",
      "text horizontal",
      "text vertical",
      "text in the label font",
      "text in its own font",
      "text bold",
      "text italic",
      "text underlined",
      "text struck out",
  };
  return features;
}

}  // namespace mivo
