#ifndef MIVO_DIALOGS_PIN_PROPS_H
#define MIVO_DIALOGS_PIN_PROPS_H

#include <QDialog>

#include "common_font.h"
#include "comp_editor.h"
#include "text_table.h"

class QScrollBar;

namespace mivo {

class CPinPropGrid;
class CPinPropGridTitle;

/// The window that shows all pins of the component under edit as a table, beside the drawing.
/// QDialog::finished tells that it was closed.
class CPinProps final : public QDialog {
 public:
  /// All must outlive the window. Pin pictures are lettered with `labelFont`.
  CPinProps(CompEditor& editor, const SCommonFont& labelFont, const TextTable& texts,
            QWidget* parent);
  ~CPinProps() override;

  /// Has to be called for every ViewHost::PinsChanged.
  void Refresh();
  /// Keeps what was typed into a cell.
  void EndEdit();

  /// Leaves as much of `window` uncovered as the screen has room for.
  void PlaceBeside(const QWidget& window);

  void done(int result) override;

 protected:
  void wheelEvent(QWheelEvent* event) override;

 private:
  QScrollBar* CreateBar(Qt::Orientation orientation, const char* objectName, const QString& spoken);
  void ShowScrolling();

  CPinPropGrid* grid_;
  CPinPropGridTitle* title_;
  QScrollBar* rowBar_;
  QScrollBar* blockBar_;
};

}  // namespace mivo

#endif
