#ifndef MIVO_EDIT_EDIT_HISTORY_H
#define MIVO_EDIT_EDIT_HISTORY_H

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "comp_edit_elm.h"

namespace mivo {

/// All elements that the component under edit has or had since it was loaded, in the order in which
/// they came, and the number of the current operation.
///
/// Nothing is ever changed in place: an edit marks an element deleted and appends the edited copy,
/// both under the number of the operation. That is all that undo needs, back to the loaded state.
class EditHistory {
 public:
  [[nodiscard]] std::span<const SCompEditElm> Elements() const noexcept { return elements_; }
  [[nodiscard]] SCompEditElm& At(std::size_t position) { return elements_[position]; }

  /// Appends; positions of other elements stay.
  void Append(SCompEditElm element) { elements_.push_back(std::move(element)); }

  /// Number of the current operation; 0 right after loading.
  [[nodiscard]] std::int32_t Operation() const noexcept { return operation_; }
  void RaiseOperation() noexcept { ++operation_; }
  /// Takes the last number back. It must have left no trace; nothing at 0.
  void LowerOperation() noexcept {
    if (operation_ > 0) --operation_;
  }

  /// Reverses the last operation that left a trace and takes back its number and all later ones.
  /// False when there is no such operation. Positions of elements change.
  bool UndoLast();

  void Clear() noexcept;

 private:
  std::vector<SCompEditElm> elements_;
  std::int32_t operation_ = 0;
};

}  // namespace mivo

#endif
