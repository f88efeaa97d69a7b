#ifndef MIVO_PATTERN_PTN_OBJ_CIRCLE_H
#define MIVO_PATTERN_PTN_OBJ_CIRCLE_H

#include "ptn_obj.h"

namespace mivo {

/// An axis-aligned ellipse, given by two opposite corners of its bounding box.
class SPtnObjCircle final : public SPtnObj {
 public:
  SPtnObjCircle() = default;
  SPtnObjCircle(SPoint corner1, SPoint corner2) : corner1_(corner1), corner2_(corner2) {}

  [[nodiscard]] PtnObjType GetType() const override { return PtnObjType::Circle; }
  [[nodiscard]] std::unique_ptr<SPtnObj> Clone() const override;
  /// Whether the corners differ.
  [[nodiscard]] bool IsValid() override;
  void Move(std::int32_t dx, std::int32_t dy) override;
  /// 2: the corners as they were set, not normalised.
  [[nodiscard]] std::int32_t GetNodeCount() const override { return 2; }
  [[nodiscard]] SPoint GetNode(std::int32_t index) const override;
  void SetNode(std::int32_t index, std::int32_t x, std::int32_t y) override;
  /// Nothing: an axis-aligned ellipse is its own mirror image.
  void Mirror() override {}
  void MirrorAt(std::int32_t x) override;
  void Rotate() override;
  void RotateAt(SPoint pivot) override;
  /// The inside of a filled ellipse, the outline give or take two units of a hollow one.
  [[nodiscard]] bool HitTest(SPoint point) override;
  [[nodiscard]] bool IsInRect(const SRect& rect) override;
  [[nodiscard]] SRect GetBoundingRect() override;
  [[nodiscard]] bool Read(SRecordReader& reader) override;
  bool Write(SRecordWriter& writer, SPoint origin = {}) const override;

 private:
  SPoint corner1_{-1, -1};
  SPoint corner2_{-1, -1};
};

}  // namespace mivo

#endif
