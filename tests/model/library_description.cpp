#include "library_description.h"

#include <algorithm>
#include <sstream>

#include "ptn_obj_arc.h"
#include "ptn_obj_line.h"
#include "ptn_obj_text.h"
#include "text_encoding.h"

namespace mivo {
namespace {

/// Units that are not printable ASCII as hexadecimal numbers.
std::string Quoted(std::u16string_view text) {
  std::ostringstream out;
  out << '"';
  for (const char16_t c : text) {
    if (c >= u' ' && c < 0x7F) {
      out << static_cast<char>(c);
    } else {
      out << '<' << std::hex << static_cast<unsigned>(c) << std::dec << '>';
    }
  }
  out << '"';
  return out.str();
}

void DescribeArc(std::ostream& out, const SPtnObjArc& arc) {
  out << " arc " << arc.Center().x << ',' << arc.Center().y << " r" << arc.Radius() << ' '
      << arc.Begin() << ".." << arc.End();
}

void DescribeText(std::ostream& out, const SPtnObjText& text) {
  out << " text " << Quoted(text.Text()) << " font " << Quoted(text.FontName()) << ' '
      << text.FontSize() << (text.IsBold() ? " bold" : "") << (text.IsItalic() ? " italic" : "")
      << (text.IsUnderline() ? " underline" : "") << (text.IsStrikeout() ? " strikeout" : "")
      << (text.IsHorizontal() ? "" : " vertical") << " align " << text.Align();
}

void DescribeObject(std::ostream& out, const SPtnObj& object) {
  out << "    type " << static_cast<int>(object.GetType()) << " style " << object.style << " width "
      << object.width << " fill " << object.fill;
  if (object.GetType() == PtnObjType::Arc) {
    DescribeArc(out, static_cast<const SPtnObjArc&>(object));
  } else {
    for (std::int32_t i = 0; i < object.GetNodeCount(); ++i) {
      const SPoint node = object.GetNode(i);
      out << ' ' << node.x << ',' << node.y;
    }
  }
  if (object.GetType() == PtnObjType::Text) {
    DescribeText(out, static_cast<const SPtnObjText&>(object));
  }
  out << '\n';
}

void DescribeBits(std::ostream& out, const SPtn& pattern) {
  out << "    bits " << pattern.bitPattern->Size().x << " x " << pattern.bitPattern->Size().y;
  std::uint64_t hash = 14695981039346656037u;  // FNV-1a
  for (const std::uint8_t byte : pattern.bitPattern->Bytes()) hash = (hash ^ byte) * 1099511628211u;
  out << " hash " << hash << '\n';
}

void DescribePin(std::ostream& out, const SCompPin& pin) {
  out << "  pin " << Quoted(pin.Name()) << ' ' << "LTRB"[static_cast<int>(pin.location.side)]
      << pin.location.offset << " type " << pin.type << " mask " << pin.nameMask;
  for (std::int32_t block = 0; block < pin.NumberCount(); ++block) {
    out << ' ' << Quoted(pin.GetNumber(block).value_or(u""));
  }
  out << '\n';
}

void DescribeComponent(std::ostream& out, const SComponent& component) {
  out << "component " << component.Size().x << " x " << component.Size().y << " blocks "
      << component.BlockCount() << ' ' << Quoted(BlockTypeName(component.Type())) << ' '
      << component.FixedBlock() << ' ' << Quoted(component.prefix) << ' ' << Quoted(component.note)
      << ' ' << Quoted(component.manufacturer) << ' ' << Quoted(component.partNumber) << ' '
      << Quoted(component.package) << '\n';
  for (const SCompPin& pin : component.Pins()) DescribePin(out, pin);
  if (component.Pattern() == nullptr) return;
  out << "  pattern " << component.PatternSize().x << " x " << component.PatternSize().y << '\n';
  if (component.Pattern()->bitPattern) DescribeBits(out, *component.Pattern());
  for (const auto& object : component.Pattern()->objects) DescribeObject(out, *object);
}

}  // namespace

std::string Describe(const SMivoDoc& library) {
  std::ostringstream out;
  out << "property " << Quoted(library.property) << '\n';
  const auto& components = library.Components();
  for (const auto& component : components) DescribeComponent(out, *component);
  for (const auto& entry : library.Names().Entries()) {
    const auto listed = std::find_if(components.begin(), components.end(), [&](const auto& other) {
      return other.get() == entry->Component();
    });
    out << "name " << Quoted(entry->Name()) << " of " << listed - components.begin() << '\n';
  }
  return out.str();
}

}  // namespace mivo
