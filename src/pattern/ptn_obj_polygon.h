#ifndef MIVO_PATTERN_PTN_OBJ_POLYGON_H
#define MIVO_PATTERN_PTN_OBJ_POLYGON_H

#include <vector>

#include "ptn_obj.h"

namespace mivo {

/// A closed polygon; the last vertex joins the first. Records and drawing take 2 to 32 vertices.
class SPtnObjPolygon final : public SPtnObj {
 public:
  static constexpr std::int32_t kMinVertices = 2;
  static constexpr std::int32_t kMaxVertices = 32;

  SPtnObjPolygon() = default;
  explicit SPtnObjPolygon(std::vector<SPoint> points) : points_(std::move(points)) {}

  [[nodiscard]] PtnObjType GetType() const override { return PtnObjType::Polygon; }
  [[nodiscard]] std::unique_ptr<SPtnObj> Clone() const override;
  /// Normalises; valid when vertices are left.
  [[nodiscard]] bool IsValid() override;
  void Move(std::int32_t dx, std::int32_t dy) override;
  [[nodiscard]] std::int32_t GetNodeCount() const override {
    return static_cast<std::int32_t>(points_.size());
  }
  [[nodiscard]] SPoint GetNode(std::int32_t index) const override;
  void SetNode(std::int32_t index, std::int32_t x, std::int32_t y) override;
  void Mirror() override;
  void MirrorAt(std::int32_t x) override;
  void Rotate() override;
  void RotateAt(SPoint pivot) override;
  /// Normalises first. The edges give or take one unit, and the inside of a filled polygon.
  [[nodiscard]] bool HitTest(SPoint point) override;
  [[nodiscard]] bool IsInRect(const SRect& rect) override;
  [[nodiscard]] SRect GetBoundingRect() override;
  [[nodiscard]] bool Read(SRecordReader& reader) override;
  /// Writes nothing and returns false for less than 2 or more than 32 vertices.
  bool Write(SRecordWriter& writer, SPoint origin = {}) const override;

  /// Inserts a vertex behind vertex `index`; nothing when there is no such vertex. The caller keeps
  /// the count within kMaxVertices.
  void InsertNode(std::int32_t index, std::int32_t x, std::int32_t y);
  /// Drops every vertex that equals its successor (the first is the successor of the last); a
  /// polygon of which a single vertex would be left becomes empty.
  void Normalize();

  [[nodiscard]] const std::vector<SPoint>& Points() const noexcept { return points_; }

 private:
  std::vector<SPoint> points_;
};

}  // namespace mivo

#endif
