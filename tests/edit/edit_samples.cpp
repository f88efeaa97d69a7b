#include "edit_samples.h"

#include <span>
#include <utility>

#include "text_encoding.h"

namespace mivo {
namespace {

void WritePins(SRecordWriter& writer, std::span<const SCompEditElm> elements) {
  for (const SCompEditElm& element : elements) {
    if (!element.IsAlive() || element.Pin() == nullptr) continue;
    element.Pin()->Write(writer);
    writer.EndLine();
  }
}

void WriteObjects(SRecordWriter& writer, std::span<const SCompEditElm> elements) {
  for (const SCompEditElm& element : elements) {
    if (element.IsAlive() && element.Object() != nullptr) element.Object()->Write(writer);
  }
}

}  // namespace

SCompPin MakePin(PinSide side, std::int32_t offset, std::u16string_view name,
                 std::u16string_view number) {
  SCompPin pin(1);
  pin.location = {side, offset};
  pin.SetNameFromDisplayText(name);
  pin.SetNumber(0, number);
  return pin;
}

std::unique_ptr<SPtnObjLine> MakeLine(SPoint start, SPoint end) {
  auto line = std::make_unique<SPtnObjLine>();
  line->SetStart(start);
  line->SetEnd(end);
  return line;
}

std::unique_ptr<SPtnObjCircle> MakeCircle(SPoint corner1, SPoint corner2) {
  return std::make_unique<SPtnObjCircle>(corner1, corner2);
}

std::unique_ptr<SPtnObjPolygon> MakePolygon(std::vector<SPoint> points) {
  return std::make_unique<SPtnObjPolygon>(std::move(points));
}

std::unique_ptr<SPtnObjArc> MakeArc(SPoint center, std::int32_t radius, SPoint begin, SPoint end) {
  auto arc = std::make_unique<SPtnObjArc>();
  arc->SetCenter(center);
  arc->SetRadius(radius);
  arc->SetBeginFromPoint(begin.x, begin.y);
  arc->SetEndFromPoint(end.x, end.y);
  return arc;
}

std::unique_ptr<SPtnObjText> MakeText(SPoint position, std::u16string_view text) {
  auto object = std::make_unique<SPtnObjText>();
  object->SetPosition(position);
  object->SetText(text);
  return object;
}

Objects OneOfEach() {
  Objects objects;
  objects.push_back(MakeLine({2, 3}, {17, 9}));
  objects.push_back(MakeCircle({5, 5}, {15, 25}));
  objects.push_back(MakePolygon({{0, 0}, {20, 0}, {10, 15}}));
  objects.push_back(MakeArc({10, 10}, 8, {20, 10}, {10, 0}));
  objects.push_back(MakeText({4, 28}, u"50%, ok"));
  return objects;
}

SComponent MakeComponent(SPoint size, std::int32_t blocks, std::vector<SCompPin> pins, Drawn drawn,
                         Objects objects) {
  SComponent component;
  component.SetSize(size, drawn == Drawn::Yes, true);
  component.SetBlockCount(blocks);
  component.SetPins(std::move(pins));
  if (drawn == Drawn::Yes) component.MutablePattern()->objects = std::move(objects);
  return component;
}

std::string Shown(const SCompEditDoc& doc) {
  std::u16string text;
  SRecordWriter writer;
  writer.AttachString(text);
  writer.WriteInt(u"X", doc.BodySize().x);
  writer.WriteInt(u"Y", doc.BodySize().y);
  writer.WriteInt(u"B", doc.Blocks());
  writer.EndLine();
  WritePins(writer, doc.Elements());
  WriteObjects(writer, doc.Elements());
  return Utf16ToUtf8(text);
}

std::string Selected(const SCompEditDoc& doc) {
  std::u16string text;
  SRecordWriter writer;
  writer.AttachString(text);
  WritePins(writer, doc.Selection());
  WriteObjects(writer, doc.Selection());
  return Utf16ToUtf8(text);
}

std::string RecordOf(const SPtnObj& object) {
  std::u16string text;
  SRecordWriter writer;
  writer.AttachString(text);
  object.Write(writer);
  return Utf16ToUtf8(text);
}

std::string RecordOf(const SComponent& component) {
  std::u16string text;
  SRecordWriter writer;
  writer.AttachString(text);
  component.Write(writer, u"TEST");
  return Utf16ToUtf8(text);
}

}  // namespace mivo
