#ifndef MIVO_DIALOGS_NOTE_EDIT_H
#define MIVO_DIALOGS_NOTE_EDIT_H

#include <QPlainTextEdit>
#include <string>
#include <string_view>

namespace mivo {

/// A field of several lines. It shows any text and gives it back unchanged while nobody edits it;
/// an edited text has CR LF for its line breaks. Tab leaves the field, Ctrl+Enter is the Enter of
/// the dialog.
class NoteEdit final : public QPlainTextEdit {
 public:
  /// With room for at least that many characters and lines.
  NoteEdit(int visibleCharacters, int visibleLines, QWidget* parent);

  void SetContent(std::u16string_view content);
  [[nodiscard]] std::u16string Content() const;
  /// Whether the text differs from the one that was set.
  [[nodiscard]] bool IsEdited() const;

  [[nodiscard]] QSize sizeHint() const override { return minimumSizeHint(); }
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void insertFromMimeData(const QMimeData* source) override;

 private:
  void PrepareFor(qsizetype length);

  QSize visibleCharacters_;
  std::u16string content_;
  QString shown_;  ///< what the control made of it
};

}  // namespace mivo

#endif
