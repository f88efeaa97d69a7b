#ifndef MIVO_DIALOGS_GRID_SCROLL_H
#define MIVO_DIALOGS_GRID_SCROLL_H

namespace mivo {

/// What a scroll bar can ask for.
enum class ScrollRequest {
  LineBack,
  LineForward,
  PageBack,
  PageForward,
  Thumb,  ///< the place to which the thumb was dragged
  Start,  ///< ignored
  End,
};

/// Which of a number of rows or columns are in sight.
class GridScroll {
 public:
  /// A page is `page` rows or columns.
  explicit GridScroll(int page) : page_(page) {}

  /// The first one in sight: 0 to Last().
  [[nodiscard]] int First() const noexcept { return first_; }
  /// The first one in sight when the last one is wholly in sight.
  [[nodiscard]] int Last() const noexcept;
  /// How many fit in wholly.
  [[nodiscard]] int Visible() const noexcept { return visible_; }

  /// These two keep what is in sight within the limits. Neither is negative.
  void SetCount(int count);
  void SetVisible(int visible);

  /// Scrolls, as far as the limits allow. `thumb` is where the thumb is, for ScrollRequest::Thumb.
  void Scroll(ScrollRequest request, int thumb);
  void ScrollTo(int first);
  /// Scrolls no farther than it takes to bring `index` into sight.
  void Reveal(int index);

 private:
  int page_;
  int first_ = 0;
  int count_ = 0;
  int visible_ = 1;
};

}  // namespace mivo

#endif
