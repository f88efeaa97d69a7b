#include "ptn_obj_line.h"

#include <algorithm>

#include "number_text.h"
#include "ptn_obj_record.h"

namespace mivo {
namespace {

enum Node : std::size_t { kStart, kEnd, kControl1, kControl2 };

/// Below this extent in both directions a new curve gets control points beyond its opposite ends,
/// so that it is visibly a loop and its handles do not lie on top of the end points.
constexpr std::int32_t kShort = 21;

/// Distance of the control points of a new curve whose ends coincide.
constexpr std::int32_t kLoopReach = 10;

constexpr bool IsShort(std::int32_t distance) {
  return -kShort < distance && distance < kShort;
}

/// Steps of the fixed-point walk along a curve; also the factor of its coordinates.
constexpr std::int32_t kCurveSteps = 32;

constexpr std::int32_t Interpolate(std::int32_t a, std::int32_t b, std::int32_t step) {
  return WrapAdd(a, WrapScale(WrapSub(b, a), step, kCurveSteps));
}

constexpr SPoint Interpolate(SPoint a, SPoint b, std::int32_t step) {
  return {Interpolate(a.x, b.x, step), Interpolate(a.y, b.y, step)};
}

/// De Casteljau's construction over points in 1/kCurveSteps units; the result is in whole units.
SPoint CurvePoint(SPoint start, SPoint control1, SPoint control2, SPoint end, std::int32_t step) {
  const SPoint a = Interpolate(start, control1, step);
  const SPoint b = Interpolate(control1, control2, step);
  const SPoint c = Interpolate(control2, end, step);
  const SPoint p = Interpolate(Interpolate(a, b, step), Interpolate(b, c, step), step);
  return {p.x / kCurveSteps, p.y / kCurveSteps};
}

}  // namespace

std::unique_ptr<SPtnObj> SPtnObjLine::Clone() const {
  return std::make_unique<SPtnObjLine>(*this);
}

void SPtnObjLine::Move(std::int32_t dx, std::int32_t dy) {
  for (SPoint& point : points_) point += {dx, dy};
  boundsValid_ = false;
}

std::int32_t SPtnObjLine::GetNodeCount() const {
  return curve_ ? 4 : 2;
}

SPoint SPtnObjLine::GetNode(std::int32_t index) const {
  const auto node = static_cast<std::uint32_t>(index);
  return points_[std::min<std::size_t>(node, kControl2)];
}

void SPtnObjLine::SetNode(std::int32_t index, std::int32_t x, std::int32_t y) {
  const std::size_t node = std::min<std::size_t>(static_cast<std::uint32_t>(index), kControl2);
  const SPoint old = points_[node];
  points_[node] = {x, y};
  if (node == kStart) points_[kControl1] += points_[node] - old;
  if (node == kEnd) points_[kControl2] += points_[node] - old;
  boundsValid_ = false;
}

void SPtnObjLine::Mirror() {
  MirrorAt(SRect::Spanning(points_[kStart], points_[kEnd]).Center().x);
}

void SPtnObjLine::MirrorAt(std::int32_t x) {
  for (SPoint& point : points_) point = MirroredAt(point, x);
  boundsValid_ = false;
}

void SPtnObjLine::Rotate() {
  RotateAt(SRect::Spanning(points_[kStart], points_[kEnd]).Center());
}

void SPtnObjLine::RotateAt(SPoint pivot) {
  for (SPoint& point : points_) point = RotatedAt(point, pivot);
  boundsValid_ = false;
}

bool SPtnObjLine::HitTest(SPoint point) {
  return SegmentHitTest(points_[kStart], points_[kEnd], point);
}

bool SPtnObjLine::IsInRect(const SRect& rect) {
  return rect.Touches(GetBoundingRect());
}

SRect SPtnObjLine::GetBoundingRect() {
  if (boundsValid_) return bounds_;
  bounds_ = SRect::Spanning(points_[kStart], points_[kEnd]);
  if (curve_) {
    std::array<SPoint, 4> fine = points_;
    for (SPoint& p : fine) p = {WrapMul(p.x, kCurveSteps), WrapMul(p.y, kCurveSteps)};
    for (std::int32_t step = 1; step < kCurveSteps; ++step) {
      bounds_.Include(CurvePoint(fine[kStart], fine[kControl1], fine[kControl2], fine[kEnd], step));
    }
  }
  boundsValid_ = true;
  return bounds_;
}

bool SPtnObjLine::Read(SRecordReader& reader) {
  PtnObjRecord record(reader, u"+L");
  StrokeFields stroke;
  bool curve = false;
  std::size_t point = kStart;
  boundsValid_ = false;
  while (const auto field = record.Next()) {
    const std::int32_t value = ParseInt(field->value);
    if (field->key == u"X" || field->key == u"Y") {
      // A point too many replaces the last one.
      if (point > kControl2) record.Report(FindingKind::SurplusValue);
      SPoint& target = points_[std::min<std::size_t>(point, kControl2)];
      if (field->key == u"X") {
        target.x = value;
      } else {
        target.y = value;
        ++point;
      }
    } else if (field->key == u"CV") {
      curve = value != 0;
    } else if (!stroke.Take(field->key, value)) {
      record.Report(FindingKind::UnknownKey);
    }
  }
  if (record.End() == RecordEnd::Failed) return false;
  stroke.StoreTo(*this);
  curve_ = curve;
  return true;
}

bool SPtnObjLine::Write(SRecordWriter& writer, SPoint origin) const {
  WriteStroke(writer, u"+L", *this);
  writer.WriteInt(u"CV", curve_ ? 1 : 0);
  const std::size_t count = curve_ ? 4 : 2;
  for (std::size_t i = 0; i < count; ++i) WritePoint(writer, points_[i] - origin);
  CloseRecord(writer, u"-L");
  return true;
}

void SPtnObjLine::SetStart(SPoint point) {
  points_[kStart] = point;
  boundsValid_ = false;
}

void SPtnObjLine::SetEnd(SPoint point) {
  points_[kEnd] = point;
  boundsValid_ = false;
}

void SPtnObjLine::SetCurve(bool on) {
  if (on && !curve_) {
    const SPoint start = points_[kStart];
    const SPoint end = points_[kEnd];
    const SPoint d = end - start;
    if (start == end) {
      points_[kControl1] = end + SPoint{kLoopReach, 0};
      points_[kControl2] = end - SPoint{kLoopReach, 0};
    } else {
      const SPoint reach = IsShort(d.x) && IsShort(d.y)
                               ? SPoint{WrapScale(d.x, 3, 2), WrapScale(d.y, 3, 2)}
                               : SPoint{d.x / 3, d.y / 3};
      points_[kControl1] = start + reach;
      points_[kControl2] = end - reach;
    }
  }
  curve_ = on;
  boundsValid_ = false;
}

bool SegmentHitTest(SPoint start, SPoint end, SPoint point) {
  const SRect tolerance{WrapSub(point.x, 1), WrapSub(point.y, 1), WrapAdd(point.x, 1),
                        WrapAdd(point.y, 1)};
  if (!tolerance.Touches(SRect::Spanning(start, end))) return false;

  // A vertical segment has no slope; near enough to its rectangle is near enough to it.
  if (start.x == end.x) return true;

  const double px = point.x;
  const double py = point.y;
  const double slope =
      (static_cast<double>(end.y) - start.y) / (static_cast<double>(end.x) - start.x);
  const double intercept = start.y - start.x * slope;
  const double left = (px - 1) * slope + intercept;
  const double right = (px + 1) * slope + intercept;
  const bool above = left < py - 1 && right < py - 1;
  const bool below = left > py + 1 && right > py + 1;
  return !above && !below;
}

}  // namespace mivo
