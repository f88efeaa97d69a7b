#ifndef MIVO_PATTERN_PTN_OBJ_LINE_H
#define MIVO_PATTERN_PTN_OBJ_LINE_H

#include <array>

#include "ptn_obj.h"

namespace mivo {

/// A straight line, or a cubic Bézier curve with the control polygon start, control1, control2,
/// end. The control points are kept while the line is straight, but not written then.
class SPtnObjLine final : public SPtnObj {
 public:
  [[nodiscard]] PtnObjType GetType() const override { return PtnObjType::Line; }
  [[nodiscard]] std::unique_ptr<SPtnObj> Clone() const override;
  void Move(std::int32_t dx, std::int32_t dy) override;
  /// 2, or 4 for a curve: start, end, control1, control2.
  [[nodiscard]] std::int32_t GetNodeCount() const override;
  [[nodiscard]] SPoint GetNode(std::int32_t index) const override;
  /// An end point takes its control point along.
  void SetNode(std::int32_t index, std::int32_t x, std::int32_t y) override;
  void Mirror() override;
  void MirrorAt(std::int32_t x) override;
  void Rotate() override;
  void RotateAt(SPoint pivot) override;
  /// Tests the straight segment between the ends, also for a curve.
  [[nodiscard]] bool HitTest(SPoint point) override;
  /// Unlike the other objects, a line counts as inside a rectangle that merely touches its bounds.
  [[nodiscard]] bool IsInRect(const SRect& rect) override;
  [[nodiscard]] SRect GetBoundingRect() override;
  [[nodiscard]] bool Read(SRecordReader& reader) override;
  bool Write(SRecordWriter& writer, SPoint origin = {}) const override;

  /// Sets one end point only; its control point stays.
  void SetStart(SPoint point);
  void SetEnd(SPoint point);
  /// A straight line gets default control points when it becomes a curve.
  void SetCurve(bool on);
  [[nodiscard]] bool IsCurve() const noexcept { return curve_; }

 private:
  // Node order: start, end, control1, control2.
  std::array<SPoint, 4> points_ = {{{-1, -1}, {-1, -1}, {-1, -1}, {-1, -1}}};
  SRect bounds_;
  bool boundsValid_ = false;
  bool curve_ = false;
};

/// Whether `point`, give or take one unit, touches the straight segment from `start` to `end`.
[[nodiscard]] bool SegmentHitTest(SPoint start, SPoint end, SPoint point);

}  // namespace mivo

#endif
