#include "edit_generators.h"

#include <ostream>
#include <utility>

namespace mivo {
namespace {

std::unique_ptr<SPtnObj> MakeRawObject(const ObjectRecipe& recipe) {
  const auto& [a, b, c] = recipe.points;
  switch (recipe.type) {
    case PtnObjType::Circle:
      return MakeCircle(a, b);
    case PtnObjType::Polygon:
      return MakePolygon({a, b, c});
    case PtnObjType::Arc:
      return MakeArc(a, WrapSub(b.x, a.x), b, c);
    case PtnObjType::Text: {
      auto text = MakeText(a, b.x % 4 == 0 ? u"" : u"50%, ok");
      text->SetAlign(b.y & 15);
      text->SetHorizontal(c.x % 2 == 0);
      return text;
    }
    default: {
      auto line = MakeLine(a, b);
      line->SetCurve(c.x % 2 != 0);
      line->width = c.y;
      return line;
    }
  }
}

std::ostream& operator<<(std::ostream& out, SPinLocation location) {
  return out << "LTRB"[static_cast<int>(location.side)] << location.offset;
}

std::ostream& operator<<(std::ostream& out, const ObjectRecipe& recipe) {
  out << "object of type " << static_cast<int>(recipe.type) << " at";
  for (const SPoint point : recipe.points) out << " (" << point.x << ", " << point.y << ")";
  return out;
}

}  // namespace

std::unique_ptr<SPtnObj> MakeObject(const ObjectRecipe& recipe) {
  std::unique_ptr<SPtnObj> object = MakeRawObject(recipe);
  static_cast<void>(object->IsValid());          // drops repeated vertices
  static_cast<void>(object->GetBoundingRect());  // reduces angles
  return object;
}

SComponent MakeComponent(const ComponentRecipe& recipe) {
  std::vector<SCompPin> pins;
  for (const SPinLocation location : recipe.pins) {
    pins.push_back(MakePin(location.side, location.offset, u"\\A9"));
  }
  Objects objects;
  for (const ObjectRecipe& object : recipe.objects) objects.push_back(MakeObject(object));
  return MakeComponent(kGeneratedSize, 2, std::move(pins), recipe.drawn ? Drawn::Yes : Drawn::No,
                       std::move(objects));
}

std::ostream& operator<<(std::ostream& out, const ComponentRecipe& recipe) {
  out << (recipe.drawn ? "drawn" : "not drawn");
  for (const SPinLocation location : recipe.pins) out << ", pin " << location;
  for (const ObjectRecipe& object : recipe.objects) out << ", " << object;
  return out;
}

std::ostream& operator<<(std::ostream& out, const EditStep& step) {
  static constexpr std::array<const char*, EditStep::kActions> kNames = {
      "PickPinAt",   "PickPinByLocation",
      "PickElement", "Band",
      "Move",        "Mirror",
      "Rotate",      "AddPin",
      "AddObject",   "Delete",
      "Release",     "EditNode",
      "AddNode",     "MovePin",
      "RenamePin",   "Copy",
      "Paste",       "WriteBack",
      "Undo"};
  return out << kNames[static_cast<std::size_t>(step.action)] << " " << step.location << " "
             << step.object << " #" << step.index;
}

}  // namespace mivo

namespace rc {

using mivo::ComponentRecipe;
using mivo::EditStep;
using mivo::ObjectRecipe;
using mivo::PinSide;
using mivo::PtnObjType;
using mivo::SPinLocation;
using mivo::SPoint;

Gen<SPoint> Arbitrary<SPoint>::arbitrary() {
  // Around the body of the generated components, and now and then anywhere.
  const auto near = gen::inRange<std::int32_t>(-30, 90);
  const auto coordinate =
      gen::weightedOneOf<std::int32_t>({{30, near}, {1, gen::arbitrary<std::int32_t>()}});
  return gen::build<SPoint>(gen::set(&SPoint::x, coordinate), gen::set(&SPoint::y, coordinate));
}

Gen<SPinLocation> Arbitrary<SPinLocation>::arbitrary() {
  return gen::build<SPinLocation>(
      gen::set(&SPinLocation::side,
               gen::element(PinSide::Left, PinSide::Top, PinSide::Right, PinSide::Bottom)),
      gen::set(&SPinLocation::offset, gen::inRange(0, 7)));
}

Gen<ObjectRecipe> Arbitrary<ObjectRecipe>::arbitrary() {
  return gen::build<ObjectRecipe>(
      gen::set(&ObjectRecipe::type,
               gen::element(PtnObjType::Line, PtnObjType::Circle, PtnObjType::Polygon,
                            PtnObjType::Arc, PtnObjType::Text)),
      gen::set(&ObjectRecipe::points));
}

Gen<ComponentRecipe> Arbitrary<ComponentRecipe>::arbitrary() {
  return gen::build<ComponentRecipe>(
      gen::set(&ComponentRecipe::pins), gen::set(&ComponentRecipe::objects),
      gen::set(&ComponentRecipe::drawn, gen::weightedElement<bool>({{9, true}, {1, false}})));
}

Gen<EditStep> Arbitrary<EditStep>::arbitrary() {
  return gen::build<EditStep>(
      gen::set(&EditStep::action,
               gen::map(gen::inRange(0, EditStep::kActions),
                        [](int action) { return static_cast<EditStep::Action>(action); })),
      gen::set(&EditStep::location), gen::set(&EditStep::object), gen::set(&EditStep::index));
}

}  // namespace rc
