#include "note_edit.h"

#include <QDialog>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QTextDocument>

#include "entered_text.h"
#include "qt_text.h"

namespace mivo {

NoteEdit::NoteEdit(int visibleCharacters, int visibleLines, QWidget* parent)
    : QPlainTextEdit(parent), visibleCharacters_(visibleCharacters, visibleLines) {
  setTabChangesFocus(true);
}

void NoteEdit::SetContent(std::u16string_view content) {
  if (content == content_ && !IsEdited()) return;
  content_ = content;
  clear();  // the earlier text is not laid out in the way of the new one
  PrepareFor(static_cast<qsizetype>(content.size()));
  setPlainText(ToQString(content));
  shown_ = document()->toRawText();
}

std::u16string NoteEdit::Content() const {
  return IsEdited() ? WithStoredLineBreaks(ToText(document()->toRawText())) : content_;
}

bool NoteEdit::IsEdited() const {
  return document()->toRawText() != shown_;
}

QSize NoteEdit::minimumSizeHint() const {
  const QFontMetrics metrics = fontMetrics();
  const int around = 2 * (frameWidth() + static_cast<int>(document()->documentMargin()));
  return {visibleCharacters_.width() * metrics.averageCharWidth() +
              verticalScrollBar()->sizeHint().width() + around,
          visibleCharacters_.height() * metrics.lineSpacing() + around};
}

bool NoteEdit::event(QEvent* event) {
  // The window around it may have a shortcut of the same keys, which would copy something else.
  if (event->type() == QEvent::ShortcutOverride &&
      static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy)) {
    event->accept();
    return true;
  }
  return QPlainTextEdit::event(event);
}

void NoteEdit::keyPressEvent(QKeyEvent* event) {
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  auto* const dialog = qobject_cast<QDialog*>(window());
  if (isEnter && (event->modifiers() & Qt::ControlModifier) != 0 && dialog != nullptr) {
    dialog->accept();
    return;
  }
  QPlainTextEdit::keyPressEvent(event);
}

void NoteEdit::insertFromMimeData(const QMimeData* source) {
  PrepareFor(document()->characterCount() + source->text().size());
  QPlainTextEdit::insertFromMimeData(source);
}

/// Wrapping between words takes a time that grows with the square of a word's length: seconds for a
/// hundred thousand letters in one piece.
void NoteEdit::PrepareFor(qsizetype length) {
  constexpr qsizetype kLongText = 10'000;
  setWordWrapMode(length > kLongText ? QTextOption::WrapAnywhere
                                     : QTextOption::WrapAtWordBoundaryOrAnywhere);
}

}  // namespace mivo
