#ifndef MIVO_DIALOGS_FORM_DIALOG_H
#define MIVO_DIALOGS_FORM_DIALOG_H

#include <QDialog>
#include <QList>
#include <QString>
#include <cstddef>
#include <limits>
#include <string_view>

#include "text_table.h"

class QAbstractButton;
class QLabel;
class QLayout;
class QLineEdit;

namespace mivo {

/// What the property dialogs have in common: controls above "OK" and "Cancel", a way to refuse a
/// value, and texts from the table. A dialog holds values only: it is made with them, shown, and
/// asked for them after it was accepted.
///
/// Controls are created in the order in which Tab visits them. The object names tell what a control
/// is for.
class FormDialog : public QDialog {
 protected:
  static constexpr int kUnlimited = std::numeric_limits<int>::max();

  /// `texts` must outlive the dialog.
  FormDialog(const TextTable& texts, TextId title, QWidget* parent);

  [[nodiscard]] QString Text(TextId id) const;
  [[nodiscard]] QString Text(StringId id) const;
  /// Without the mark of the mnemonic: for people who hear what they cannot see.
  [[nodiscard]] QString SpokenText(TextId id) const;

  /// Names a control for tests and, by the text that stands beside it, for people.
  template <typename Control>
  Control* Named(Control* control, const char* objectName, TextId text) const {
    control->setObjectName(QLatin1String(objectName));
    control->setAccessibleName(SpokenText(text));
    return control;
  }

  /// Makes a button of any kind that shows `text`.
  template <typename Button>
  Button* MakeButton(const char* objectName, TextId text) {
    return Named(new Button(Text(text), this), objectName, text);
  }

  /// Makes a field of at least `visibleCharacters` width. It shows a text of any length, but typing
  /// makes it no longer than `typingLimit`, or than it was.
  QLineEdit* MakeLineEdit(const char* objectName, TextId text, std::u16string_view content,
                          int visibleCharacters, int typingLimit = kUnlimited);
  static void ShowText(QLineEdit& edit, std::u16string_view content, int typingLimit = kUnlimited);

  /// Makes the label of a control; its mnemonic leads there.
  QLabel* MakeLabel(TextId text, QWidget& control);

  /// Makes Tab go to the checked one of the buttons, of which one at most is checked at a time. The
  /// toolkit sees to that only after the first visit.
  static void LetTabReachChecked(const QList<QAbstractButton*>& buttons);

  enum class Buttons { OkCancel, Ok };
  /// Puts the controls into the dialog and the buttons below them.
  void Finish(QLayout* controls, Buttons which = Buttons::OkCancel);
  /// Puts the focus on a control as Tab would: the text of a field is selected.
  static void FocusOn(QWidget& control);

  /// Shows why a value is not accepted and puts the cursor into its field.
  void Refuse(StringId message, QWidget& field);
  /// The same for a text of more than `limit` characters.
  void RefuseTooLong(std::size_t limit, QWidget& field);

 private:
  void ShowRefusal(const QString& message, QWidget& field);

  const TextTable& texts_;
};

}  // namespace mivo

#endif
