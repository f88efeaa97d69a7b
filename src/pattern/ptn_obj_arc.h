#ifndef MIVO_PATTERN_PTN_OBJ_ARC_H
#define MIVO_PATTERN_PTN_OBJ_ARC_H

#include "ptn_obj.h"

namespace mivo {

/// A circular arc, drawn counter-clockwise on the screen from its begin to its end angle. Equal
/// angles make a whole circle.
///
/// Angles are sixteenths of a degree, kFullTurn a full turn: 0 points right, kFullTurn ÷ 4 up. They
/// are stored as set; GetBoundingRect, MirrorAt and (once it gets that far) HitTest reduce them.
class SPtnObjArc final : public SPtnObj {
 public:
  static constexpr std::int32_t kFullTurn = 5760;

  [[nodiscard]] PtnObjType GetType() const override { return PtnObjType::Arc; }
  [[nodiscard]] std::unique_ptr<SPtnObj> Clone() const override;
  /// Whether the radius is positive.
  [[nodiscard]] bool IsValid() override { return radius_ > 0; }
  void Move(std::int32_t dx, std::int32_t dy) override;
  /// 7: begin point, end point, centre, right, top, left and bottom handle.
  [[nodiscard]] std::int32_t GetNodeCount() const override { return 7; }
  [[nodiscard]] SPoint GetNode(std::int32_t index) const override;
  void SetNode(std::int32_t index, std::int32_t x, std::int32_t y) override;
  void Mirror() override;
  void MirrorAt(std::int32_t x) override;
  void Rotate() override;
  void RotateAt(SPoint pivot) override;
  /// An arc that passes angle 0 is never hit, a whole circle only where its angles are; both can
  /// still be picked with a selection rectangle.
  [[nodiscard]] bool HitTest(SPoint point) override;
  [[nodiscard]] bool IsInRect(const SRect& rect) override;
  [[nodiscard]] SRect GetBoundingRect() override;
  [[nodiscard]] bool Read(SRecordReader& reader) override;
  bool Write(SRecordWriter& writer, SPoint origin = {}) const override;

  void SetCenter(SPoint center) { center_ = center; }
  void SetRadius(std::int32_t radius) { radius_ = radius; }
  /// Sets an angle to that of (x, y) seen from the centre; the radius stays.
  void SetBeginFromPoint(std::int32_t x, std::int32_t y);
  void SetEndFromPoint(std::int32_t x, std::int32_t y);

  [[nodiscard]] SPoint Center() const noexcept { return center_; }
  [[nodiscard]] std::int32_t Radius() const noexcept { return radius_; }
  [[nodiscard]] std::int32_t Begin() const noexcept { return begin_; }
  [[nodiscard]] std::int32_t End() const noexcept { return end_; }

 private:
  SPoint center_{10, 10};
  std::int32_t radius_ = 10;
  std::int32_t begin_ = 0;
  std::int32_t end_ = kFullTurn;
};

/// The point at `distance` from `center` in direction `angle`; each displacement is truncated
/// toward zero, and becomes the smallest integer when it does not fit.
[[nodiscard]] SPoint PointAtAngle(SPoint center, std::int32_t distance, std::int32_t angle);

}  // namespace mivo

#endif
