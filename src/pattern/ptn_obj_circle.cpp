#include "ptn_obj_circle.h"

#include <cmath>
#include <limits>

#include "number_text.h"
#include "ptn_obj_record.h"

namespace mivo {
namespace {

/// How far from the outline, along either axis, a hollow ellipse is still hit.
constexpr double kReach = 2;

}  // namespace

std::unique_ptr<SPtnObj> SPtnObjCircle::Clone() const {
  return std::make_unique<SPtnObjCircle>(*this);
}

bool SPtnObjCircle::IsValid() {
  return corner1_ != corner2_;
}

void SPtnObjCircle::Move(std::int32_t dx, std::int32_t dy) {
  corner1_ += {dx, dy};
  corner2_ += {dx, dy};
}

SPoint SPtnObjCircle::GetNode(std::int32_t index) const {
  return index == 0 ? corner1_ : corner2_;
}

void SPtnObjCircle::SetNode(std::int32_t index, std::int32_t x, std::int32_t y) {
  (index == 0 ? corner1_ : corner2_) = {x, y};
}

void SPtnObjCircle::MirrorAt(std::int32_t x) {
  corner1_ = MirroredAt(corner1_, x);
  corner2_ = MirroredAt(corner2_, x);
}

void SPtnObjCircle::Rotate() {
  RotateAt(GetBoundingRect().Center());
}

void SPtnObjCircle::RotateAt(SPoint pivot) {
  corner1_ = RotatedAt(corner1_, pivot);
  corner2_ = RotatedAt(corner2_, pivot);
}

bool SPtnObjCircle::HitTest(SPoint point) {
  // A box without height or width divides by zero here. The infinities and non-numbers that come
  // of it decide the comparisons below, as IEEE arithmetic says.
  static_assert(std::numeric_limits<double>::is_iec559);
  const double x1 = corner1_.x;
  const double y1 = corner1_.y;
  const double x2 = corner2_.x;
  const double y2 = corner2_.y;
  const double centerX = (x1 + x2) * 0.5;
  const double centerY = (y1 + y2) * 0.5;
  const double aspect = std::abs((x2 - x1) / (y2 - y1));
  const double halfHeight = (y2 - y1) * 0.5;
  const double radius2 = halfHeight * halfHeight;

  // Squared distance from the centre once the ellipse is squeezed into a circle.
  const auto distance2 = [=](double x, double y) {
    const double dx = (x - centerX) / aspect;
    const double dy = y - centerY;
    return dx * dx + dy * dy;
  };
  const auto between = [radius2](double a, double b) {
    return (a < radius2 && b > radius2) || (a > radius2 && b < radius2);
  };

  const double x = point.x;
  const double y = point.y;
  if (fill >= 0) return distance2(x, y) <= radius2;
  return between(distance2(x, y - kReach), distance2(x, y + kReach)) ||
         between(distance2(x - kReach, y), distance2(x + kReach, y));
}

bool SPtnObjCircle::IsInRect(const SRect& rect) {
  return rect.Contains(corner1_) && rect.Contains(corner2_);
}

SRect SPtnObjCircle::GetBoundingRect() {
  return SRect::Spanning(corner1_, corner2_);
}

bool SPtnObjCircle::Read(SRecordReader& reader) {
  PtnObjRecord record(reader, u"+C");
  StrokeFields stroke;
  SPoint corners[2];
  std::size_t pairs = 0;
  while (const auto field = record.Next()) {
    const std::int32_t value = ParseInt(field->value);
    if (field->key == u"X" || field->key == u"Y") {
      // A point too many replaces the second corner.
      if (pairs > 1) record.Report(FindingKind::SurplusValue);
      SPoint& corner = corners[pairs == 0 ? 0 : 1];
      if (field->key == u"X") {
        corner.x = value;
      } else {
        corner.y = value;
        ++pairs;
      }
    } else if (!stroke.TakeWithFill(field->key, value)) {
      record.Report(FindingKind::UnknownKey);
    }
  }
  if (record.End() == RecordEnd::Failed) return false;
  stroke.StoreTo(*this);
  corner1_ = corners[0];
  corner2_ = corners[1];
  return true;
}

bool SPtnObjCircle::Write(SRecordWriter& writer, SPoint origin) const {
  WriteStroke(writer, u"+C", *this);
  writer.WriteInt(u"F", fill);
  WritePoint(writer, corner1_ - origin);
  WritePoint(writer, corner2_ - origin);
  CloseRecord(writer, u"-C");
  return true;
}

}  // namespace mivo
