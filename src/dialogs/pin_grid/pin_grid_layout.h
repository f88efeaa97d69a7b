#ifndef MIVO_DIALOGS_PIN_GRID_LAYOUT_H
#define MIVO_DIALOGS_PIN_GRID_LAYOUT_H

namespace mivo {

/// The columns of the pin grid from the left. Column kFirstBlock + k is the k-th block in sight.
namespace pin_grid_column {
inline constexpr int kLocation = 0;
inline constexpr int kName = 1;
inline constexpr int kStyle = 2;
inline constexpr int kHide = 3;
inline constexpr int kFirstBlock = 4;
}  // namespace pin_grid_column

/// Where the cells of the pin grid are, in pixels from its top left corner. Rows are counted from
/// the first one in sight.
class PinGridLayout {
 public:
  /// `scale` is 1 on a display of 96 dots per inch.
  explicit PinGridLayout(int rowHeight, double scale = 1);

  [[nodiscard]] int RowHeight() const noexcept { return rowHeight_; }
  [[nodiscard]] int Left(int column) const noexcept;
  [[nodiscard]] int Width(int column) const noexcept;

  /// What is at a place; both coordinates are 0 or more.
  [[nodiscard]] int ColumnAt(int x) const noexcept;
  [[nodiscard]] int RowAt(int y) const noexcept { return y / rowHeight_; }

  /// How many rows fit wholly into `height`, block columns into `width`.
  [[nodiscard]] int WholeRows(int height) const noexcept { return height / rowHeight_; }
  [[nodiscard]] int WholeBlocks(int width) const noexcept;

 private:
  int rowHeight_;
  int location_;
  int name_;
  int style_;
  int hide_;
  int block_;
};

}  // namespace mivo

#endif
