#ifndef MIVO_PATTERN_PTN_OBJ_H
#define MIVO_PATTERN_PTN_OBJ_H

#include <cstdint>
#include <memory>
#include <string_view>

#include "geometry.h"
#include "record_reader.h"
#include "record_writer.h"

namespace mivo {

/// What `SPtnObj::GetType` answers.
enum class PtnObjType { None = 0, Line = 1, Circle = 2, Polygon = 3, Arc = 4, Text = 5 };

/// A drawing primitive of a component's pattern.
///
/// All coordinates are component units and may be anything a file holds; arithmetic on them wraps
/// at 32 bits. An object has exactly one owner: a pattern, an element of the editing document, or
/// whoever is about to hand it over. Hit tests and bounding rectangles may bring the object into a
/// normal form (angles reduced, repeated vertices dropped), which is why they are not const.
class SPtnObj {
 public:
  static constexpr std::int32_t kSolid = 0;       ///< style; any other value is dotted
  static constexpr std::int32_t kNotFilled = -1;  ///< fill
  static constexpr std::int32_t kFilled = 1;      ///< fill with the drawing colour; any other value
                                                  ///< than these two fills with the contrasting one

  virtual ~SPtnObj() = default;

  [[nodiscard]] virtual PtnObjType GetType() const { return PtnObjType::None; }
  [[nodiscard]] virtual std::unique_ptr<SPtnObj> Clone() const = 0;

  /// Whether the object is worth keeping; a degenerate one is not.
  [[nodiscard]] virtual bool IsValid() { return true; }

  virtual void Move(std::int32_t dx, std::int32_t dy) = 0;

  [[nodiscard]] virtual std::int32_t GetNodeCount() const = 0;
  [[nodiscard]] virtual SPoint GetNode(std::int32_t index) const = 0;
  virtual void SetNode(std::int32_t index, std::int32_t x, std::int32_t y) = 0;

  /// Mirrors left-right about the object's own centre.
  virtual void Mirror() = 0;
  /// Mirrors left-right about the vertical axis at `x`.
  virtual void MirrorAt(std::int32_t x) = 0;
  /// Turns a quarter, clockwise on the screen, about the object's own centre.
  virtual void Rotate() = 0;
  /// Turns a quarter, clockwise on the screen, about `pivot`.
  virtual void RotateAt(SPoint pivot) = 0;

  /// Whether `point` touches the object.
  [[nodiscard]] virtual bool HitTest(SPoint /*point*/) { return false; }
  /// Whether the object counts as inside a selection rectangle.
  [[nodiscard]] virtual bool IsInRect(const SRect& /*rect*/) { return false; }
  /// The normalised bounding rectangle.
  [[nodiscard]] virtual SRect GetBoundingRect() = 0;

  /// Reads the rest of the object's record; the reader stands behind the opening tag. On false the
  /// caller drops the object and reads on.
  [[nodiscard]] virtual bool Read(SRecordReader& reader) = 0;

  /// Writes the whole record with every point less `origin`. False, with nothing written, only for
  /// an object that no record can hold.
  virtual bool Write(SRecordWriter& writer, SPoint origin = {}) const = 0;

  std::int32_t style = kSolid;
  std::int32_t width = 1;  ///< component units, unlimited
  std::int32_t fill = kNotFilled;

 protected:
  SPtnObj() = default;
  SPtnObj(const SPtnObj&) = default;
  SPtnObj& operator=(const SPtnObj&) = default;
};

/// Makes the object of an opening tag ("+L", "+C", "+PG", "+AR", "+TX") in its initial state; null
/// for any other tag. The caller then lets it Read.
[[nodiscard]] std::unique_ptr<SPtnObj> CreatePtnObj(std::u16string_view tag);

}  // namespace mivo

#endif
