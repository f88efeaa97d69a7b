#ifndef MIVO_DIALOGS_PIN_PROP_GRID_H
#define MIVO_DIALOGS_PIN_PROP_GRID_H

#include <QWidget>

#include "common_font.h"
#include "pin_grid.h"
#include "pin_grid_layout.h"
#include "pin_style_pictures.h"
#include "text_table.h"

namespace mivo {

class CEditForGrid;
class StyleChooser;

/// The table of pins: draws the rows that are in sight, and shows the controls that edit a cell.
/// What a click or key means is decided by the PinGrid.
class CPinPropGrid final : public QWidget {
  Q_OBJECT

 public:
  /// All must outlive the grid. The style pictures are lettered with `labelFont`.
  CPinPropGrid(CompEditor& editor, const SCommonFont& labelFont, const TextTable& texts,
               QWidget* parent);

  /// Has to be called for every ViewHost::PinsChanged.
  void Refresh();
  /// Keeps what was typed into a cell.
  void EndEdit();

  [[nodiscard]] const PinGrid& Grid() const noexcept { return grid_; }
  [[nodiscard]] const PinGridLayout& Cells() const noexcept { return cells_; }
  [[nodiscard]] const TextTable& Texts() const noexcept { return texts_; }
  /// Where a cell is, in sight or not. Rows are counted from the first pin, columns as in
  /// pin_grid_column.
  [[nodiscard]] QRect CellRect(int row, int column) const;
  /// What a click on a cell does.
  void Click(int row, int column);
  void ScrollRows(ScrollRequest request, int thumb);
  void ScrollBlocks(ScrollRequest request, int thumb);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 signals:
  /// Other rows or blocks may be in sight, or there are more or fewer of them.
  void Scrolled();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  // pin_prop_grid.cpp
  void CreateEditors();
  void OpenTextEdit(const QRect& cell);
  void OpenStyleChooser(const QRect& cell);
  void HideEditors();
  void ShowChange();
  [[nodiscard]] int LastColumnInSight() const;

  // pin_prop_grid_painting.cpp
  void DrawRow(QPainter& painter, int row);
  void DrawLocation(QPainter& painter, const QRect& cell, SPinLocation location) const;
  void DrawText(QPainter& painter, const QRect& cell, std::u16string_view text) const;
  void DrawCheckMark(QPainter& painter, const QRect& cell) const;
  void DrawLines(QPainter& painter, int row) const;

  const TextTable& texts_;
  PinGrid grid_;
  PinGridLayout cells_;
  PinStylePictures pictures_;
  CEditForGrid* edit_ = nullptr;
  StyleChooser* chooser_ = nullptr;
};

}  // namespace mivo

#endif
