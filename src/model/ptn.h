#ifndef MIVO_MODEL_PTN_H
#define MIVO_MODEL_PTN_H

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "bit_pattern.h"
#include "geometry.h"
#include "ptn_obj.h"

namespace mivo {

/// The drawn pattern of a component: drawing objects in drawing order and, optionally, a monochrome
/// picture of the same size. One pixel is one component unit; for a body of w × h cells the area is
/// 10·w + 1 by 10·h + 1 pixels.
class SPtn {
 public:
  SPtn() = default;
  SPtn(const SPtn& other);
  SPtn& operator=(const SPtn& other);
  SPtn(SPtn&&) noexcept = default;
  SPtn& operator=(SPtn&&) noexcept = default;
  ~SPtn() = default;

  /// Reads the fields behind "+PTN". Drawing objects that cannot be read are dropped; false when
  /// the pattern itself is malformed or its bit pattern does not fit into `budget`.
  [[nodiscard]] bool Read(SRecordReader& reader, BitPatternBudget& budget);

  /// Writes the record under `name`.
  void Write(SRecordWriter& writer, std::u16string_view name) const;

  /// Changes the size. With `clear` the bit pattern goes and the size is taken as it is; otherwise
  /// the size is limited to SBitPattern::kMaxSide each way and there is a bit pattern afterwards,
  /// with the overlap of an old one.
  void SetBitPatternArea(SPoint newSize, bool clear);

  std::u16string name;
  SPoint size;  ///< pixels
  std::vector<std::unique_ptr<SPtnObj>> objects;
  std::optional<SBitPattern> bitPattern;
};

}  // namespace mivo

#endif
