#include "grid_scroll.h"

#include <algorithm>

namespace mivo {

int GridScroll::Last() const noexcept {
  return std::max(0, count_ - visible_);
}

void GridScroll::SetCount(int count) {
  count_ = count;
  ScrollTo(first_);
}

void GridScroll::SetVisible(int visible) {
  visible_ = visible;
  ScrollTo(first_);
}

void GridScroll::Scroll(ScrollRequest request, int thumb) {
  constexpr int kBeyondTheEnd = 10000;
  switch (request) {
    case ScrollRequest::LineBack:
      ScrollTo(first_ - 1);
      break;
    case ScrollRequest::LineForward:
      ScrollTo(first_ + 1);
      break;
    case ScrollRequest::PageBack:
      ScrollTo(first_ - page_);
      break;
    case ScrollRequest::PageForward:
      ScrollTo(first_ + page_);
      break;
    case ScrollRequest::Thumb:
      ScrollTo(thumb);
      break;
    case ScrollRequest::Start:
      break;
    case ScrollRequest::End:
      ScrollTo(kBeyondTheEnd);
      break;
  }
}

void GridScroll::ScrollTo(int first) {
  first_ = std::clamp(first, 0, Last());
}

void GridScroll::Reveal(int index) {
  if (index < first_) {
    ScrollTo(index);
  } else if (index - first_ >= visible_) {
    ScrollTo(index - std::max(visible_, 1) + 1);
  }
}

}  // namespace mivo
