#ifndef MIVO_TOOLS_SELECTION_DRAG_H
#define MIVO_TOOLS_SELECTION_DRAG_H

#include <cstdint>

#include "edit_session.h"

namespace mivo {

/// Moves what is selected while the left button is down: one node of an object, a single pin along
/// the outline, or the selected drawing objects.
class SelectionDrag {
 public:
  /// Begins a drag when the press is on a node, or anywhere else in the selection rectangle.
  [[nodiscard]] bool Press(const EditSession& session, const Pointer& pointer);
  void Move(EditSession& session, const Pointer& pointer);
  /// A pin that was dragged to where another one is goes back to where it came from.
  void Release(EditSession& session, const Pointer& pointer);

  /// Lets the drag go on from `pointer` as if the mouse had been there: the view moved, the
  /// selection did not.
  void ContinueFrom(const Pointer& pointer) noexcept;

  [[nodiscard]] bool IsActive() const noexcept { return what_ != What::Nothing; }
  [[nodiscard]] bool IsNodeDrag() const noexcept { return what_ == What::Node; }

 private:
  enum class What : std::int8_t { Nothing, Node, Pin, Objects };

  void MovePin(EditSession& session, SPoint point) const;
  void FinishPin(EditSession& session) const;

  What what_ = What::Nothing;
  SPoint press_;
  SPoint last_;
  SPoint applied_;  ///< displacement that the objects have had
  std::int32_t node_ = 0;
  SPinLocation savedLocation_;
  bool changedBefore_ = false;
};

}  // namespace mivo

#endif
