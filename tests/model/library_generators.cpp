#include "library_generators.h"

#include <algorithm>
#include <ostream>

#include "library_description.h"
#include "text_encoding.h"
#include "text_gen.h"

namespace mivo {
namespace {

/// Any number from `min` to `max` - 1, however small the case that RapidCheck asks for; only texts
/// grow with it.
template <typename T>
rc::Gen<T> InRange(T min, T max) {
  return rc::gen::resize(rc::kNominalSize, rc::gen::inRange<T>(min, max));
}

bool Flip() {
  return *rc::gen::arbitrary<bool>();
}

/// Once in `n` times.
bool Rarely(int n) {
  return *InRange(0, n) == 0;
}

/// Mostly something that one sees, now and then any number.
std::int32_t AnyNumber() {
  return *rc::gen::weightedOneOf<std::int32_t>(
      {{9, InRange<std::int32_t>(-20, 300)}, {1, rc::gen::arbitrary<std::int32_t>()}});
}

/// A text that a file can hold: without lone surrogates.
std::u16string AnyText() {
  return Utf8ToUtf16(Utf16ToUtf8(ToText(*GenText())));
}

std::u16string NonEmptyText() {
  std::u16string text = AnyText();
  return text.empty() ? u"?" : text;
}

std::u16string AnyPinName() {
  const auto character =
      rc::gen::pair(rc::gen::arbitrary<bool>(), InRange<std::uint16_t>(1, SCompPin::kOverline));
  std::u16string text;
  for (const auto& [overlined, unit] :
       *rc::gen::container<std::vector<std::pair<bool, std::uint16_t>>>(character)) {
    if (overlined || unit == u'\\') text += u'\\';
    text += static_cast<char16_t>(unit);
  }
  return text;
}

SCompPin AnyPin(std::int32_t blockCount) {
  SCompPin pin(blockCount);
  pin.SetNameFromDisplayText(AnyPinName());
  pin.location = {static_cast<PinSide>(*InRange(0, 4)), *InRange(0, SPinLocation::kMaxOffset + 1)};
  pin.type = *InRange<std::int32_t>(0, 32);
  pin.nameMask = Flip() ? SCompPin::kWholeNameShown : *rc::gen::arbitrary<std::uint32_t>();
  for (std::int32_t block = 0; block < blockCount; ++block) {
    if (!Rarely(5)) pin.SetNumber(block, AnyText());
  }
  return pin;
}

/// Writes the fields of an object's record behind its opening tag, without the closing one.
using WriteFields = void (*)(SRecordWriter&);

void WritePoint(SRecordWriter& writer, SPoint point) {
  writer.WriteInt(u"X", point.x);
  writer.WriteInt(u"Y", point.y);
}

void WriteStroke(SRecordWriter& writer) {
  writer.WriteInt(u"W", AnyNumber());
  writer.WriteInt(u"S", AnyNumber());
}

void WriteLine(SRecordWriter& writer) {
  WriteStroke(writer);
  const bool curve = Flip();
  writer.WriteInt(u"CV", curve ? 1 : 0);
  for (int i = 0; i < (curve ? 4 : 2); ++i) WritePoint(writer, {AnyNumber(), AnyNumber()});
}

void WriteCircle(SRecordWriter& writer) {
  WriteStroke(writer);
  writer.WriteInt(u"F", AnyNumber());
  for (int i = 0; i < 2; ++i) WritePoint(writer, {AnyNumber(), AnyNumber()});
}

void WritePolygon(SRecordWriter& writer) {
  WriteStroke(writer);
  writer.WriteInt(u"F", AnyNumber());
  const auto count = *InRange<std::int32_t>(2, 33);
  writer.WriteInt(u"N", count);
  // No vertex equals its neighbour, nor the last one the first.
  for (std::int32_t i = 0; i < count; ++i) WritePoint(writer, {i, AnyNumber()});
}

void WriteArc(SRecordWriter& writer) {
  WriteStroke(writer);
  WritePoint(writer, {AnyNumber(), AnyNumber()});
  for (const std::u16string_view key : {u"R", u"B", u"E"}) writer.WriteInt(key, AnyNumber());
}

void WriteTextObject(SRecordWriter& writer) {
  WritePoint(writer, {AnyNumber(), AnyNumber()});
  writer.WriteInt(u"A", AnyNumber());
  writer.WriteInt(u"D", Flip() ? 1 : 0);
  writer.WriteText(u"S", NonEmptyText());
  if (Flip()) writer.WriteText(u"FN", NonEmptyText());
  writer.WriteInt(u"FS", *InRange<std::int32_t>(4, 81));
  std::u16string flags;
  for (const char16_t flag : {u'B', u'I', u'U', u'S'}) {
    if (Flip()) flags += flag;
  }
  if (!flags.empty()) writer.WriteText(u"FF", flags);
}

std::unique_ptr<SPtnObj> AnyObject() {
  struct Kind {
    std::u16string_view openingTag;
    std::u16string_view closingTag;
    WriteFields write;
  };
  static constexpr Kind kKinds[] = {{u"+L", u"-L", WriteLine},
                                    {u"+C", u"-C", WriteCircle},
                                    {u"+PG", u"-PG", WritePolygon},
                                    {u"+AR", u"-AR", WriteArc},
                                    {u"+TX", u"-TX", WriteTextObject}};
  const Kind& kind = kKinds[*InRange<std::size_t>(0, std::size(kKinds))];
  std::u16string record;
  SRecordWriter writer;
  writer.AttachString(record);
  kind.write(writer);
  writer.WriteField(kind.closingTag);
  writer.EndLine();

  SRecordReader reader;
  reader.AttachString(record);
  std::unique_ptr<SPtnObj> object = CreatePtnObj(kind.openingTag);
  RC_ASSERT(object->Read(reader));
  return object;
}

SBitPattern AnyBits(SPoint size) {
  SBitPattern bits(size);
  auto seed = *rc::gen::arbitrary<std::uint32_t>();
  const std::int32_t stored = std::min(size.x, SBitPattern::kMaxSide);
  for (std::int32_t y = 0; y < std::min(size.y, SBitPattern::kMaxSide); ++y) {
    const auto row = bits.Row(size.x, y);
    for (std::uint8_t& byte : row) {
      seed = seed * 1664525 + 1013904223;
      byte = static_cast<std::uint8_t>(seed >> 24);
    }
    if (stored % 8 != 0) row.back() &= static_cast<std::uint8_t>(0xFF << (8 - stored % 8));
  }
  return bits;
}

std::shared_ptr<SPtn> AnyPattern() {
  auto pattern = std::make_shared<SPtn>();
  const auto side = [] {
    return Rarely(50) ? 600 : *InRange<std::int32_t>(1, Rarely(10) ? 502 : 60);
  };
  pattern->size = {side(), side()};
  if (Flip()) pattern->bitPattern = AnyBits(pattern->size);
  const int count = *InRange(0, 6);
  for (int i = 0; i < count; ++i) pattern->objects.push_back(AnyObject());
  return pattern;
}

std::unique_ptr<SComponent> AnyComponent() {
  auto component = std::make_unique<SComponent>();
  component->SetBodySize({*InRange(1, 256), Rarely(20) ? 2147483647 : *InRange(1, 256)});
  component->SetBlockCount(Rarely(10) ? *InRange(1, 256) : *InRange(1, 5));
  component->SetFixedBlock(*InRange(0, 256));
  component->SetBlockType(static_cast<BlockType>(*InRange(0, 3)));
  if (component->Type() == BlockType::General) component->SetFixedBlock(0);
  component->prefix = AnyText();
  component->note = AnyText();
  component->manufacturer = AnyText();
  component->partNumber = AnyText();
  component->package = AnyText();
  std::vector<SCompPin> pins;
  const int count = *InRange(0, 4);
  for (int i = 0; i < count; ++i) pins.push_back(AnyPin(component->BlockCount()));
  component->SetPins(std::move(pins));
  if (Flip()) component->SharePattern(AnyPattern());
  return component;
}

std::shared_ptr<SMivoDoc> AnyLibrary() {
  auto library = std::make_shared<SMivoDoc>();
  library->property = AnyText();
  const int count = *InRange(0, 6);
  for (int i = 0; i < count; ++i) {
    const auto& components = library->Components();
    if (!components.empty() && Rarely(3)) {
      library->AddAlias(components[*InRange<std::size_t>(0, components.size())].get(),
                        NonEmptyText());
    } else {
      library->AddComponent(AnyComponent(), NonEmptyText());
    }
  }
  return library;
}

}  // namespace

rc::Gen<std::shared_ptr<SMivoDoc>> GenCanonicalLibrary() {
  return rc::gen::exec([] { return AnyLibrary(); });
}

void showValue(const SMivoDoc& library, std::ostream& out) {
  out << Describe(library);
}

}  // namespace mivo
