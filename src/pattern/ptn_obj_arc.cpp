#include "ptn_obj_arc.h"

#include <cmath>
#include <limits>
#include <numbers>

#include "number_text.h"
#include "ptn_obj_record.h"

namespace mivo {
namespace {

constexpr double kPi = std::numbers::pi;
constexpr std::int32_t kHalfTurn = SPtnObjArc::kFullTurn / 2;
constexpr std::int32_t kQuarterTurn = SPtnObjArc::kFullTurn / 4;

double Distance(SPoint a, SPoint b) {
  const double dx = static_cast<double>(b.x) - a.x;
  const double dy = static_cast<double>(b.y) - a.y;
  return std::sqrt(dx * dx + dy * dy);
}

/// Direction of `p` seen from `center`; the smallest integer when they coincide.
std::int32_t AngleOfPoint(SPoint center, SPoint p) {
  static_assert(std::numeric_limits<double>::is_iec559);  // 0 ÷ 0 is no number, and no accident
  const double dx = static_cast<double>(p.x) - center.x;
  double angle = std::acos(dx / Distance(center, p));
  if (p.y > center.y) angle = 2 * kPi - angle;
  return TruncateToInt(angle * kHalfTurn / kPi + 0.5);
}

/// Reduced `angle` seen in a mirror.
constexpr std::int32_t MirroredAngle(std::int32_t angle) {
  return angle <= kHalfTurn ? kHalfTurn - angle : kHalfTurn + SPtnObjArc::kFullTurn - angle;
}

/// Whether the way from `begin` to `end` passes `angle` in its first or its second turn.
constexpr bool Passes(std::int32_t begin, std::int32_t end, std::int32_t angle) {
  const std::int32_t again = angle + SPtnObjArc::kFullTurn;
  return (begin <= angle && angle <= end) || (begin <= again && again <= end);
}

}  // namespace

SPoint PointAtAngle(SPoint center, std::int32_t distance, std::int32_t angle) {
  const double radians = angle * kPi / kHalfTurn;
  return {WrapAdd(center.x, TruncateToInt(distance * std::cos(radians))),
          WrapSub(center.y, TruncateToInt(distance * std::sin(radians)))};
}

std::unique_ptr<SPtnObj> SPtnObjArc::Clone() const {
  return std::make_unique<SPtnObjArc>(*this);
}

void SPtnObjArc::Move(std::int32_t dx, std::int32_t dy) {
  center_ += {dx, dy};
}

SPoint SPtnObjArc::GetNode(std::int32_t index) const {
  switch (index) {
    case 0:
      return PointAtAngle(center_, radius_, begin_);
    case 1:
      return PointAtAngle(center_, radius_, end_);
    case 2:
      return center_;
    case 3:
      return center_ + SPoint{radius_, 0};
    case 4:
      return center_ - SPoint{0, radius_};
    case 5:
      return center_ - SPoint{radius_, 0};
    default:
      return center_ + SPoint{0, radius_};
  }
}

void SPtnObjArc::SetNode(std::int32_t index, std::int32_t x, std::int32_t y) {
  switch (index) {
    case 0:
      SetBeginFromPoint(x, y);
      break;
    case 1:
      SetEndFromPoint(x, y);
      break;
    case 2:
      center_ = {x, y};
      break;
    case 3:
    case 5:
      radius_ = WrapAbs(WrapSub(center_.x, x));
      break;
    default:
      radius_ = WrapAbs(WrapSub(center_.y, y));
      break;
  }
}

void SPtnObjArc::Mirror() {
  MirrorAt(GetBoundingRect().Center().x);
}

void SPtnObjArc::MirrorAt(std::int32_t x) {
  const std::int32_t begin = begin_ % kFullTurn;
  const std::int32_t end = end_ % kFullTurn;
  center_ = MirroredAt(center_, x);
  // A mirror image runs the other way round.
  begin_ = MirroredAngle(end);
  end_ = MirroredAngle(begin);
}

void SPtnObjArc::Rotate() {
  RotateAt(GetBoundingRect().Center());
}

void SPtnObjArc::RotateAt(SPoint pivot) {
  constexpr std::int32_t kThreeQuarters = 3 * kQuarterTurn;
  center_ = RotatedAt(center_, pivot);
  begin_ = WrapAdd(begin_, kThreeQuarters) % kFullTurn;
  end_ = WrapAdd(end_, kThreeQuarters) % kFullTurn;
}

bool SPtnObjArc::HitTest(SPoint point) {
  if (std::abs(Distance(center_, point) - radius_) > 1.0) return false;
  begin_ %= kFullTurn;
  end_ %= kFullTurn;
  // Nothing is between the angles of an arc that passes angle 0, which therefore is never hit.
  const std::int32_t angle = AngleOfPoint(center_, point);
  return begin_ <= angle && angle <= end_;
}

bool SPtnObjArc::IsInRect(const SRect& rect) {
  return rect.Contains(GetBoundingRect());
}

SRect SPtnObjArc::GetBoundingRect() {
  begin_ %= kFullTurn;
  end_ %= kFullTurn;
  const SPoint low = center_ - SPoint{radius_, radius_};
  const SPoint high = center_ + SPoint{radius_, radius_};
  if (begin_ == end_) return SRect::Spanning(low, high);

  SRect bounds =
      SRect::Spanning(PointAtAngle(center_, radius_, begin_), PointAtAngle(center_, radius_, end_));
  std::int32_t end = end_;
  if (begin_ > end_) {
    bounds.right = high.x;
    end += kFullTurn;
  }
  if (Passes(begin_, end, kQuarterTurn)) bounds.top = low.y;
  if (Passes(begin_, end, kHalfTurn)) bounds.left = low.x;
  if (Passes(begin_, end, kHalfTurn + kQuarterTurn)) bounds.bottom = high.y;
  // A negative radius, or one beyond the range of coordinates, exchanges edges.
  return SRect::Spanning(bounds.TopLeft(), bounds.BottomRight());
}

bool SPtnObjArc::Read(SRecordReader& reader) {
  PtnObjRecord record(reader, u"+AR");
  StrokeFields stroke;
  SPoint center{10, 10};
  std::int32_t radius = 10;
  std::int32_t begin = 0;
  std::int32_t end = 0;
  while (const auto field = record.Next()) {
    const std::int32_t value = ParseInt(field->value);
    if (field->key == u"X") {
      center.x = value;
    } else if (field->key == u"Y") {
      center.y = value;
    } else if (field->key == u"R") {
      radius = value;
    } else if (field->key == u"B") {
      begin = value;
    } else if (field->key == u"E") {
      end = value;
    } else if (!stroke.Take(field->key, value)) {
      record.Report(FindingKind::UnknownKey);
    }
  }
  if (record.End() == RecordEnd::Failed) return false;
  stroke.StoreTo(*this);
  center_ = center;
  radius_ = radius;
  begin_ = begin;
  end_ = end;
  return true;
}

bool SPtnObjArc::Write(SRecordWriter& writer, SPoint origin) const {
  WriteStroke(writer, u"+AR", *this);
  WritePoint(writer, center_ - origin);
  writer.WriteInt(u"R", radius_);
  writer.WriteInt(u"B", begin_);
  writer.WriteInt(u"E", end_);
  CloseRecord(writer, u"-AR");
  return true;
}

void SPtnObjArc::SetBeginFromPoint(std::int32_t x, std::int32_t y) {
  begin_ = AngleOfPoint(center_, {x, y});
}

void SPtnObjArc::SetEndFromPoint(std::int32_t x, std::int32_t y) {
  end_ = AngleOfPoint(center_, {x, y});
}

}  // namespace mivo
