#include "edit_history.h"

#include <algorithm>

namespace mivo {

bool EditHistory::UndoLast() {
  // Numbers without a trace (a pick that was let go unchanged) can be many: the number to undo is
  // found first, so that skipping them costs nothing.
  std::int32_t last = 0;
  for (const SCompEditElm& element : elements_) {
    for (const std::int32_t number : {element.CreatedBy(), element.DeletedBy()}) {
      if (number <= operation_) last = std::max(last, number);
    }
  }
  if (last == 0) {
    operation_ = 0;
    return false;
  }
  for (SCompEditElm& element : elements_) {
    if (element.DeletedBy() == last) element.Revive();
  }
  std::erase_if(elements_, [last](const SCompEditElm& e) { return e.CreatedBy() == last; });
  operation_ = last - 1;
  return true;
}

void EditHistory::Clear() noexcept {
  elements_.clear();
  operation_ = 0;
}

}  // namespace mivo
