#ifndef MIVO_DIALOGS_EDIT_FOR_GRID_H
#define MIVO_DIALOGS_EDIT_FOR_GRID_H

#include <QLineEdit>
#include <string_view>

namespace mivo {

/// Edits the text of a cell in its place. The keys that leave the cell go to the grid; all others
/// are for the text, also those that mean a command elsewhere.
class CEditForGrid final : public QLineEdit {
  Q_OBJECT

 public:
  explicit CEditForGrid(QWidget* parent);

  /// Shows a text of any length, all of it selected, in `cell` of the parent. Typing makes it no
  /// longer than `typingLimit`, or than it was.
  void Open(std::u16string_view text, int typingLimit, const QRect& cell);

 signals:
  void UpPressed();
  /// Down or Enter.
  void DownPressed();
  void EscapePressed();
  /// Another control or window has the focus now.
  void FocusLost();

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
};

}  // namespace mivo

#endif
