#include "drawn_component.h"

#include <algorithm>
#include <memory>
#include <vector>

#include "ptn_obj_arc.h"
#include "ptn_obj_circle.h"
#include "ptn_obj_line.h"
#include "ptn_obj_polygon.h"
#include "ptn_obj_text.h"

namespace mivo::bench {
namespace {

std::unique_ptr<SPtnObj> MakeObject(std::int32_t index, SPoint at) {
  switch (index % 5) {
    case 0: {
      auto line = std::make_unique<SPtnObjLine>();
      line->SetStart(at);
      line->SetEnd({at.x + 30, at.y + 17});
      line->width = 1 + index % 2;
      return line;
    }
    case 1:
      return std::make_unique<SPtnObjCircle>(at, SPoint{at.x + 24, at.y + 16});
    case 2: {
      auto polygon = std::make_unique<SPtnObjPolygon>(std::vector<SPoint>{
          at, {at.x + 20, at.y + 4}, {at.x + 14, at.y + 22}, {at.x - 6, at.y + 12}});
      polygon->fill = index % 2 == 0 ? SPtnObj::kFilled : SPtnObj::kNotFilled;
      return polygon;
    }
    case 3: {
      auto arc = std::make_unique<SPtnObjArc>();
      arc->SetCenter(at);
      arc->SetRadius(12);
      return arc;
    }
    default: {
      auto text = std::make_unique<SPtnObjText>();
      text->SetPosition(at);
      text->SetText(u"Label");
      return text;
    }
  }
}

}  // namespace

SComponent MakeDrawnComponent(SPoint cells, std::int32_t pins, std::int32_t objects) {
  SComponent component;
  component.SetSize(cells, true, true);
  std::vector<SCompPin> list;
  for (std::int32_t i = 0; i < pins; ++i) {
    SCompPin pin(1);
    pin.SetNameFromDisplayText(u"PA1/\\RX");
    pin.SetNumber(0, u"101");
    pin.location = {i % 2 == 0 ? PinSide::Left : PinSide::Right, i / 2 + 1};
    list.push_back(std::move(pin));
  }
  component.SetPins(std::move(list));
  const std::int32_t columns = std::max(1, cells.x / 4);
  for (std::int32_t i = 0; i < objects; ++i) {
    const SPoint at = {20 + i % columns * 38, 20 + i / columns * 30 % (cells.y * 10 - 40)};
    component.MutablePattern()->objects.push_back(MakeObject(i, at));
  }
  return component;
}

}  // namespace mivo::bench
