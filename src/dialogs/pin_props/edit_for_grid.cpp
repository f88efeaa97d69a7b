#include "edit_for_grid.h"

#include <QKeyEvent>
#include <algorithm>

#include "qt_text.h"

namespace mivo {

CEditForGrid::CEditForGrid(QWidget* parent) : QLineEdit(parent) {
  setFrame(false);
  setTextMargins(1, 0, 0, 0);  // the text stays where the grid draws it
  hide();
}

void CEditForGrid::Open(std::u16string_view text, int typingLimit, const QRect& cell) {
  const QString shown = ToQString(text);
  setMaxLength(static_cast<int>(std::max<qsizetype>(typingLimit, shown.size())));
  setText(shown);
  setGeometry(cell);
  selectAll();
  show();
  setFocus(Qt::OtherFocusReason);
}

bool CEditForGrid::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    event->accept();
    return true;
  }
  return QLineEdit::event(event);
}

void CEditForGrid::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Up:
      emit UpPressed();
      break;
    case Qt::Key_Down:
    case Qt::Key_Return:
    case Qt::Key_Enter:
      emit DownPressed();
      break;
    case Qt::Key_Escape:
      emit EscapePressed();
      break;
    default:
      QLineEdit::keyPressEvent(event);
      break;
  }
}

void CEditForGrid::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  // The text's own context menu gives the focus back.
  if (event->reason() != Qt::PopupFocusReason) emit FocusLost();
}

}  // namespace mivo
