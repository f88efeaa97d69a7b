#include "generated_library.h"

#include <array>
#include <string>

#include "number_text.h"
#include "record_writer.h"

namespace mivo::bench {
namespace {

constexpr std::array<std::u16string_view, 8> kPinNames = {
    u"VCC", u"GND", u"\\R\\E\\S\\E\\T", u"PA0/TIM2_CH1", u"D7", u"CLK", u"\\O\\E", u"MISO"};

std::u16string Numbered(std::u16string_view text, std::int32_t number) {
  std::u16string result(text);
  result.append(IntText(number));
  return result;
}

void WritePin(SRecordWriter& writer, std::int32_t index) {
  writer.WriteField(u"+PIN");
  writer.WriteText(u"N", kPinNames[static_cast<std::size_t>(index) % kPinNames.size()]);
  writer.WriteHex(u"DF", 0xFFFFFFFF);
  writer.WriteText(u"L", Numbered(index % 2 == 0 ? u"L" : u"R", index / 2 + 1));
  writer.WriteText(u"T", index % 5 == 0 ? u"N" : u"");
  writer.WriteText(u"M", IntText(index + 1));
  writer.WriteField(u"-PIN");
  writer.EndLine();
}

void WriteLine(SRecordWriter& writer, std::int32_t index) {
  writer.WriteField(u"+L");
  writer.WriteInt(u"W", 1);
  writer.WriteInt(u"S", 0);
  writer.WriteInt(u"CV", 0);
  writer.WriteInt(u"X", index * 7 % 80);
  writer.WriteInt(u"Y", 10);
  writer.WriteInt(u"X", 80);
  writer.WriteInt(u"Y", index * 11 % 90);
  writer.WriteField(u"-L");
  writer.EndLine();
}

void WritePattern(SRecordWriter& writer, std::u16string_view name) {
  writer.WriteField(u"+PTN");
  writer.WriteText(u"N", name);
  writer.WriteInt(u"X", 81);
  writer.WriteInt(u"Y", 91);
  writer.EndLine();
  for (std::int32_t i = 0; i < 8; ++i) WriteLine(writer, i);
  writer.WriteField(u"-PTN");
  writer.EndLine();
}

}  // namespace

bool WriteGeneratedLibrary(ByteSink& sink, std::int32_t components, Names names) {
  SRecordWriter writer;
  writer.AttachFile(sink);
  writer.WriteField(u"+TARSL_LIB_V.1.0");
  writer.EndLine();
  writer.WriteInt(u"VER", 82);
  writer.EndLine();
  writer.WriteText(u"PROP", u"generated");
  writer.EndLine();
  for (std::int32_t i = 0; i < components; ++i) {
    const std::u16string name =
        names == Names::Distinct ? Numbered(u"PART-", i) : std::u16string(u"PART");
    const bool drawn = i % 3 == 0;
    if (drawn) WritePattern(writer, name);
    writer.WriteField(u"+COMP");
    writer.WriteText(u"N", name);
    writer.EndLine();
    writer.WriteInt(u"X", 8);
    writer.WriteInt(u"Y", 9);
    writer.WriteInt(u"B", 1);
    writer.EndLine();
    writer.WriteText(u"TYPE", u"GEN");
    writer.WriteInt(u"FB", 0);
    writer.EndLine();
    writer.WriteText(u"R", u"U");
    writer.EndLine();
    if (drawn) {
      writer.WriteText(u"P", name);
      writer.EndLine();
    }
    for (std::int32_t pin = 0; pin < 16; ++pin) WritePin(writer, pin);
    writer.WriteText(u"NOTE", u"8-bit shift register, 3-state outputs, 25 °C");
    writer.WriteText(u"MFR", u"Example Semiconductor");
    writer.WriteText(u"MFRPN", name);
    writer.WriteText(u"PKG", u"SOIC-16");
    writer.WriteField(u"-COMP");
    writer.EndLine();
  }
  writer.WriteField(u"-TARSL_LIB_V.1.0");
  writer.EndLine();
  return writer.Flush() == FieldStatus::Ok;
}

}  // namespace mivo::bench
