#include "ptn_obj_polygon.h"

#include <algorithm>
#include <array>
#include <limits>

#include "number_text.h"
#include "ptn_obj_line.h"
#include "ptn_obj_record.h"

namespace mivo {
namespace {

/// Parities of the edges that a ray from `p` toward smaller y crosses, one for each side of it. An
/// edge that ends on the ray counts on the side of its other end only; but one that lies above `p`
/// altogether always counts in full, and in this order the rules decide which points are hit.
class RayParity {
 public:
  explicit RayParity(SPoint p) : p_(p) {}

  void Cross(SPoint a, SPoint b) {
    if (a.x == b.x || (a.x < p_.x && b.x < p_.x) || (a.x > p_.x && b.x > p_.x)) return;
    if (a.y > p_.y && b.y > p_.y) return;
    if (a.y < p_.y && b.y < p_.y) {
      state_ ^= kBoth;
    } else if (a.x == p_.x && a.y < p_.y) {
      state_ ^= b.x > p_.x ? kRight : kLeft;
    } else if (b.x == p_.x && b.y < p_.y) {
      state_ ^= a.x > p_.x ? kRight : kLeft;
    } else if (EdgeY(a, b) < p_.y) {
      state_ ^= kBoth;
    }
  }

  [[nodiscard]] bool IsInside() const { return state_ == kBoth; }

 private:
  static constexpr unsigned kRight = 1;
  static constexpr unsigned kLeft = 2;
  static constexpr unsigned kBoth = kRight | kLeft;

  /// y of the edge at the ray's x; the caller has excluded vertical edges.
  [[nodiscard]] std::int32_t EdgeY(SPoint a, SPoint b) const {
    const SPoint d = b - a;
    return WrapAdd(a.y, WrapScale(WrapSub(p_.x, a.x), d.y, d.x));
  }

  SPoint p_;
  unsigned state_ = 0;
};

/// The vertices of a polygon record. Repeated ones are dropped while they arrive.
class VertexBuffer {
 public:
  /// How many vertices the record declares: kMinVertices..kMaxVertices.
  void Declare(std::int32_t count) { declared_ = count; }
  [[nodiscard]] bool IsDeclared() const { return declared_ != 0; }
  [[nodiscard]] bool HasRoom() const { return read_ < declared_; }

  /// Takes the next vertex, for which there is room; whether it was kept.
  bool Take(SPoint vertex) {
    const bool first = read_ == 0;
    const bool last = ++read_ == declared_;
    if (!first && vertex == previous_) return false;
    previous_ = vertex;
    if (last && vertex == points_[0]) return false;
    points_[kept_++] = vertex;
    return true;
  }

  [[nodiscard]] std::vector<SPoint> Kept() const {
    return {points_.begin(), points_.begin() + static_cast<std::ptrdiff_t>(kept_)};
  }

 private:
  std::int32_t declared_ = 0;
  std::int32_t read_ = 0;
  std::size_t kept_ = 0;
  SPoint previous_;
  std::array<SPoint, SPtnObjPolygon::kMaxVertices> points_;
};

}  // namespace

std::unique_ptr<SPtnObj> SPtnObjPolygon::Clone() const {
  return std::make_unique<SPtnObjPolygon>(*this);
}

bool SPtnObjPolygon::IsValid() {
  Normalize();
  return !points_.empty();
}

void SPtnObjPolygon::Move(std::int32_t dx, std::int32_t dy) {
  for (SPoint& point : points_) point += {dx, dy};
}

SPoint SPtnObjPolygon::GetNode(std::int32_t index) const {
  if (points_.empty() || index >= GetNodeCount()) return {};
  return points_[static_cast<std::size_t>(std::max(index, 0))];
}

void SPtnObjPolygon::SetNode(std::int32_t index, std::int32_t x, std::int32_t y) {
  if (points_.empty() || index >= GetNodeCount()) return;
  points_[static_cast<std::size_t>(std::max(index, 0))] = {x, y};
}

void SPtnObjPolygon::Mirror() {
  MirrorAt(GetBoundingRect().Center().x);
}

void SPtnObjPolygon::MirrorAt(std::int32_t x) {
  for (SPoint& point : points_) point = MirroredAt(point, x);
}

void SPtnObjPolygon::Rotate() {
  RotateAt(GetBoundingRect().Center());
}

void SPtnObjPolygon::RotateAt(SPoint pivot) {
  for (SPoint& point : points_) point = RotatedAt(point, pivot);
}

bool SPtnObjPolygon::HitTest(SPoint point) {
  Normalize();
  if (points_.size() < 2) return false;
  if (points_.size() == 2) return SegmentHitTest(points_[0], points_[1], point);
  if (!GetBoundingRect().Contains(point)) return false;
  RayParity parity(point);
  for (std::size_t i = 0; i < points_.size(); ++i) {
    const SPoint a = points_[i];
    const SPoint b = points_[i + 1 < points_.size() ? i + 1 : 0];
    if (SegmentHitTest(a, b, point)) return true;
    if (fill >= 0) parity.Cross(a, b);
  }
  return parity.IsInside();
}

bool SPtnObjPolygon::IsInRect(const SRect& rect) {
  return rect.Contains(GetBoundingRect());
}

SRect SPtnObjPolygon::GetBoundingRect() {
  if (points_.empty()) {
    constexpr std::int32_t kNowhere = std::numeric_limits<std::int32_t>::max();
    return {kNowhere, kNowhere, kNowhere, kNowhere};
  }
  SRect bounds;
  for (const SPoint point : points_) bounds.Include(point);
  return bounds;
}

bool SPtnObjPolygon::Read(SRecordReader& reader) {
  points_.clear();
  PtnObjRecord record(reader, u"+PG");
  StrokeFields stroke;
  VertexBuffer vertices;
  std::int32_t x = 0;
  while (const auto field = record.Next()) {
    const std::int32_t value = ParseInt(field->value);
    const bool isCoordinate = field->key == u"X" || field->key == u"Y";
    const bool isCount = field->key == u"N";
    if ((isCount && (value < kMinVertices || value > kMaxVertices)) ||
        (isCoordinate && !vertices.IsDeclared())) {
      record.Report(FindingKind::ObjectValueInvalid);
      reader.SkipToField(u"-PG");
      return false;
    }
    if (isCount) {
      vertices.Declare(value);
    } else if (isCoordinate && !vertices.HasRoom()) {
      record.Report(FindingKind::SurplusValue);
    } else if (field->key == u"X") {
      x = value;
    } else if (field->key == u"Y") {
      if (!vertices.Take({x, value})) record.Report(FindingKind::VertexDropped);
    } else if (!stroke.TakeWithFill(field->key, value)) {
      record.Report(FindingKind::UnknownKey);
    }
  }
  if (record.End() == RecordEnd::Failed) return false;

  std::vector<SPoint> kept = vertices.Kept();
  if (kept.size() < static_cast<std::size_t>(kMinVertices)) {
    reader.Report(FindingKind::ObjectIncomplete, u"+PG");
    return false;
  }
  // The closing copy of the first vertex is dropped only where it is the last one declared, and a
  // saved polygon declares what it has.
  if (kept.back() == kept.front()) reader.Report(FindingKind::NotCanonical, u"+PG");
  stroke.StoreTo(*this);
  points_ = std::move(kept);
  return true;
}

bool SPtnObjPolygon::Write(SRecordWriter& writer, SPoint origin) const {
  if (GetNodeCount() < kMinVertices || GetNodeCount() > kMaxVertices) return false;
  WriteStroke(writer, u"+PG", *this);
  writer.WriteInt(u"F", fill);
  writer.WriteInt(u"N", GetNodeCount());
  for (const SPoint point : points_) WritePoint(writer, point - origin);
  CloseRecord(writer, u"-PG");
  return true;
}

void SPtnObjPolygon::InsertNode(std::int32_t index, std::int32_t x, std::int32_t y) {
  if (index < 0 || index >= GetNodeCount()) return;
  points_.insert(points_.begin() + index + 1, SPoint{x, y});
}

void SPtnObjPolygon::Normalize() {
  std::vector<SPoint> kept;
  kept.reserve(points_.size());
  for (std::size_t i = 0; i < points_.size(); ++i) {
    const SPoint next = points_[i + 1 < points_.size() ? i + 1 : 0];
    if (points_[i] != next) kept.push_back(points_[i]);
  }
  if (kept.size() == points_.size()) return;
  if (kept.size() <= 1) kept.clear();
  points_ = std::move(kept);
}

}  // namespace mivo
