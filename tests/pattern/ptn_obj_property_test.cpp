#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "geometry_printing.h"
#include "ptn_obj_arc.h"
#include "ptn_obj_circle.h"
#include "ptn_obj_line.h"
#include "ptn_obj_polygon.h"
#include "ptn_obj_reading.h"
#include "ptn_obj_text.h"

// What holds for every drawing object, whatever its coordinates.

namespace mivo {
namespace {

constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();

/// Coordinates as drawings have them, and the ends of the range.
std::int32_t AnyNumber() {
  return *rc::gen::oneOf(
      rc::gen::inRange<std::int32_t>(-300, 300), rc::gen::inRange<std::int32_t>(-10, 10),
      rc::gen::inRange<std::int32_t>(kMin, kMax),
      rc::gen::elementOf(std::vector<std::int32_t>{kMin, kMin + 1, kMax - 1, kMax}));
}

SPoint AnyPoint() {
  const std::int32_t x = AnyNumber();
  return {x, AnyNumber()};
}

SPtnObjLine AnyLine() {
  SPtnObjLine line;
  line.SetStart(AnyPoint());
  line.SetEnd(AnyPoint());
  if (*rc::gen::arbitrary<bool>()) {
    line.SetCurve(true);
    for (std::int32_t node = 2; node < 4; ++node) {
      const SPoint p = AnyPoint();
      line.SetNode(node, p.x, p.y);
    }
  }
  return line;
}

SPtnObjCircle AnyCircle() {
  const SPoint corner = AnyPoint();
  return {corner, AnyPoint()};
}

/// A polygon that a record can hold.
SPtnObjPolygon AnyPolygon() {
  const auto count = *rc::gen::inRange<std::size_t>(3, 33);
  std::vector<SPoint> points = {{0, 0}, {1, 1}};
  while (points.size() < count) points.push_back(AnyPoint());
  SPtnObjPolygon polygon(points);
  polygon.Normalize();
  return polygon;
}

/// An arc with reduced angles and a positive radius.
SPtnObjArc AnyArc() {
  SPtnObjArc arc;
  arc.SetCenter(AnyPoint());
  arc.SetRadius(*rc::gen::oneOf(rc::gen::inRange<std::int32_t>(1, 300),
                                rc::gen::inRange<std::int32_t>(1, kMax)));
  const SPoint center = arc.Center();
  const auto direction = [&center] {
    const SPoint p = center + SPoint{*rc::gen::inRange(-100, 100), *rc::gen::inRange(-100, 100)};
    return p == center ? p + SPoint{1, 0} : p;
  };
  const SPoint begin = direction();
  arc.SetBeginFromPoint(begin.x, begin.y);
  const SPoint end = direction();
  arc.SetEndFromPoint(end.x, end.y);
  static_cast<void>(arc.GetBoundingRect());
  return arc;
}

std::u16string AnyText() {
  const auto units = *rc::gen::container<std::vector<std::uint16_t>>(rc::gen::oneOf(
      rc::gen::inRange<std::uint16_t>(1, 128), rc::gen::inRange<std::uint16_t>(1, 0xFFFF)));
  return {units.begin(), units.end()};
}

SPtnObjText AnyTextObject() {
  SPtnObjText text;
  const std::vector<std::u16string> flags = {u"+TX,FF:U,-TX\n", u"+TX,FF:S,-TX\n", u""};
  static_cast<void>(ReadInto(text, *rc::gen::elementOf(flags)));
  text.SetText(u"T" + AnyText());
  text.SetFontName(AnyText());
  text.SetPosition(AnyPoint());
  text.SetHorizontal(*rc::gen::arbitrary<bool>());
  text.SetAlign(AnyNumber());
  text.SetFontSize(AnyNumber());
  text.SetBold(*rc::gen::arbitrary<bool>());
  text.SetItalic(*rc::gen::arbitrary<bool>());
  return text;
}

/// An object of any class that a record can hold.
std::unique_ptr<SPtnObj> AnyObject() {
  std::unique_ptr<SPtnObj> object;
  switch (*rc::gen::inRange(0, 5)) {
    case 0:
      object = AnyLine().Clone();
      break;
    case 1:
      object = AnyCircle().Clone();
      object->fill = AnyNumber();
      break;
    case 2:
      object = AnyPolygon().Clone();
      object->fill = AnyNumber();
      break;
    case 3:
      object = AnyArc().Clone();
      break;
    default:
      return AnyTextObject().Clone();
  }
  object->width = AnyNumber();
  object->style = AnyNumber();
  return object;
}

constexpr std::u16string_view kTags[] = {u"", u"+L", u"+C", u"+PG", u"+AR", u"+TX"};

std::unique_ptr<SPtnObj> NewOfSameClass(const SPtnObj& object) {
  return CreatePtnObj(kTags[static_cast<std::size_t>(object.GetType())]);
}

RC_GTEST_PROP(AnyObject, ReadsBackAsItWasWritten, ()) {
  const auto object = AnyObject();
  const std::u16string text = Written(*object);
  const auto back = NewOfSameClass(*object);
  const ReadRecord read = ReadInto(*back, text);
  RC_ASSERT(read.ok);
  RC_ASSERT(read.findings.empty());
  RC_ASSERT(Written(*back) == text);
  RC_ASSERT(Nodes(*back) == Nodes(*object));
  RC_ASSERT(back->GetBoundingRect() == object->GetBoundingRect());
}

RC_GTEST_PROP(AnyObject, IsWrittenRelativeToAnOriginAsIfItWereMoved, ()) {
  const auto object = AnyObject();
  const std::u16string before = Written(*object);
  const SPoint origin = AnyPoint();
  const auto moved = object->Clone();
  moved->Move(WrapNeg(origin.x), WrapNeg(origin.y));
  RC_ASSERT(Written(*object, origin) == Written(*moved));
  RC_ASSERT(Written(*object) == before);
}

RC_GTEST_PROP(AnyObject, ComesBackAfterAMoveThereAndBack, ()) {
  const auto object = AnyObject();
  const std::u16string before = Written(*object);
  const SPoint d = AnyPoint();
  object->Move(d.x, d.y);
  object->Move(WrapNeg(d.x), WrapNeg(d.y));
  RC_ASSERT(Written(*object) == before);
}

RC_GTEST_PROP(AnyObject, ComesBackAfterFourQuarterTurns, ()) {
  const auto object = AnyObject();
  const std::u16string before = Written(*object);
  const SPoint pivot = AnyPoint();
  for (int turn = 0; turn < 4; ++turn) object->RotateAt(pivot);
  RC_ASSERT(Written(*object) == before);
}

RC_GTEST_PROP(AnyObject, IsItselfWhenMirroredTwice, ()) {
  const auto object = AnyObject();
  const std::u16string before = Written(*object);
  const std::int32_t axis = AnyNumber();
  object->MirrorAt(axis);
  object->MirrorAt(axis);
  RC_ASSERT(Written(*object) == before);
}

RC_GTEST_PROP(AnyObject, LiesInItsOwnNormalisedBounds, ()) {
  const auto object = AnyObject();
  const SRect bounds = object->GetBoundingRect();
  RC_ASSERT(bounds.left <= bounds.right);
  RC_ASSERT(bounds.top <= bounds.bottom);
  RC_ASSERT(object->IsInRect(bounds));
}

RC_GTEST_PROP(AnyObject, IsACloneOfItsOwn, ()) {
  const auto object = AnyObject();
  const auto clone = object->Clone();
  const std::u16string before = Written(*object);
  RC_ASSERT(clone->GetType() == object->GetType());
  RC_ASSERT(Written(*clone) == before);
  clone->Move(1, 1);
  clone->width = WrapAdd(clone->width, 1);
  RC_ASSERT(Written(*object) == before);
}

/// Applies an operation chosen at random, with numbers chosen at random.
void ApplyAnyOperation(SPtnObj& object) {
  const SPoint p = AnyPoint();
  const SPoint q = AnyPoint();
  switch (*rc::gen::inRange(0, 9)) {
    case 0:
      object.Move(p.x, p.y);
      break;
    case 1:
      object.SetNode(*rc::gen::inRange(-1, 8), p.x, p.y);
      break;
    case 2:
      object.Mirror();
      break;
    case 3:
      object.MirrorAt(p.x);
      break;
    case 4:
      object.Rotate();
      break;
    case 5:
      object.RotateAt(p);
      break;
    case 6:
      static_cast<void>(object.HitTest(p));
      break;
    case 7:
      static_cast<void>(object.IsInRect({p.x, p.y, q.x, q.y}));
      break;
    default:
      static_cast<void>(object.IsValid());
      break;
  }
}

RC_GTEST_PROP(AnyObject, StaysUsableWhateverIsDoneToIt, ()) {
  const auto object = AnyObject();
  const auto steps = *rc::gen::inRange(1, 12);
  for (int step = 0; step < steps; ++step) ApplyAnyOperation(*object);
  for (const std::int32_t index : {kMin, -1, 0, 1, 31, 32, 33, kMax}) {
    static_cast<void>(object->GetNode(index));
  }
  const SRect bounds = object->GetBoundingRect();
  RC_ASSERT(bounds.left <= bounds.right);
  // A point of the object still takes a hit test, and its record still reads.
  static_cast<void>(object->HitTest(object->GetNode(0)));
  const std::u16string text = Written(*object);
  const auto back = NewOfSameClass(*object);
  const bool read = ReadInto(*back, text).ok;
  const bool degenerate = object->GetType() == PtnObjType::Polygon && !object->Clone()->IsValid();
  RC_ASSERT(read || degenerate);
}

RC_GTEST_PROP(AnyLine, IsHitAtItsEnds, ()) {
  SPtnObjLine line;
  const auto near = [] {
    return SPoint{*rc::gen::inRange(-1000, 1000), *rc::gen::inRange(-1000, 1000)};
  };
  line.SetStart(near());
  line.SetEnd(near());
  RC_ASSERT(line.HitTest(line.GetNode(0)));
  RC_ASSERT(line.HitTest(line.GetNode(1)));
}

RC_GTEST_PROP(AnyPolygon, IsHitAtItsVerticesOnceNormalised, ()) {
  std::vector<SPoint> points;
  const auto count = *rc::gen::inRange<std::size_t>(2, 12);
  while (points.size() < count) {
    points.push_back({*rc::gen::inRange(-20, 20), *rc::gen::inRange(-20, 20)});
  }
  SPtnObjPolygon polygon(points);
  RC_PRE(polygon.IsValid());
  for (const SPoint vertex : polygon.Points()) RC_ASSERT(polygon.HitTest(vertex));
}

RC_GTEST_PROP(AnyPolygon, IsReadWithoutRepeatedVerticesOrSaysSo, ()) {
  const std::vector<std::u16string> counts = {u"4", u"6", u"32"};
  const std::vector<std::u16string> vertices = {u",X:0,Y:0", u",X:1,Y:0", u",X:1,Y:1"};
  std::u16string record = u"+PG,N:" + *rc::gen::elementOf(counts);
  const auto count = *rc::gen::inRange(2, 10);
  for (int i = 0; i < count; ++i) {
    record += *rc::gen::elementOf(vertices);
  }
  SPtnObjPolygon polygon;
  const ReadRecord read = ReadInto(polygon, record + u",-PG\n");
  if (!read.ok) return;
  SPtnObjPolygon back;
  RC_ASSERT(ReadInto(back, Written(polygon)).ok);
  const std::vector<FindingKind> kinds = read.Kinds();
  const bool stable =
      std::find(kinds.begin(), kinds.end(), FindingKind::NotCanonical) == kinds.end();
  RC_ASSERT((back.Points() == polygon.Points()) == stable);
  // The second read always is the last one to change anything.
  SPtnObjPolygon third;
  RC_ASSERT(ReadInto(third, Written(back)).findings.empty());
}

}  // namespace
}  // namespace mivo
