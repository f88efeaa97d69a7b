#ifndef MIVO_DIALOGS_PIN_PROP_GRID_TITLE_H
#define MIVO_DIALOGS_PIN_PROP_GRID_TITLE_H

#include <QWidget>

#include "text_table.h"

namespace mivo {

class CPinPropGrid;

/// The headings of a pin grid.
class CPinPropGridTitle final : public QWidget {
 public:
  /// Both must outlive the headings.
  CPinPropGridTitle(const CPinPropGrid& grid, const TextTable& texts, QWidget* parent);

  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const CPinPropGrid& grid_;
  const TextTable& texts_;
};

}  // namespace mivo

#endif
