#include "form_dialog.h"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QFontMetrics>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "dialog_texts.h"
#include "entered_text.h"
#include "program_version.h"
#include "qt_text.h"

namespace mivo {
namespace {

// Styles leave room around controls for one size of font; here the room grows with it.

int LeastSpacing(const QWidget& dialog) {
  return dialog.fontMetrics().height() / 2;
}

/// What a title needs not to be cut off, with what the desktop puts around it.
int TitleWidth(const QWidget& dialog) {
  constexpr int kAround = 7;  // in heights of the font: an icon, buttons, and air
  const QFontMetrics metrics = dialog.fontMetrics();
  return metrics.horizontalAdvance(dialog.windowTitle()) + kAround * metrics.height();
}

void SpaceControls(const QWidget& dialog) {
  for (QLayout* const layout : dialog.findChildren<QLayout*>()) {
    layout->setSpacing(std::max(layout->spacing(), LeastSpacing(dialog)));
  }
  for (QPushButton* const button : dialog.findChildren<QPushButton*>()) {
    const int textWidth = button->fontMetrics().horizontalAdvance(button->text());
    button->setMinimumWidth(textWidth + 3 * LeastSpacing(dialog));
  }
}

}  // namespace

FormDialog::FormDialog(const TextTable& texts, TextId title, QWidget* parent)
    : QDialog(parent), texts_(texts) {
  setWindowTitle(Text(title));
}

QString FormDialog::Text(TextId id) const {
  return ToQString(texts_.Text(id));
}

QString FormDialog::Text(StringId id) const {
  return ToQString(texts_.Text(id));
}

QString FormDialog::SpokenText(TextId id) const {
  QString text = Text(id);
  for (qsizetype mark = text.indexOf(u'&'); mark >= 0; mark = text.indexOf(u'&', mark + 1)) {
    text.remove(mark, 1);  // "&&" stands for the character itself, which stays
  }
  return text;
}

QLineEdit* FormDialog::MakeLineEdit(const char* objectName, TextId text,
                                    std::u16string_view content, int visibleCharacters,
                                    int typingLimit) {
  auto* const edit = Named(new QLineEdit(this), objectName, text);
  edit->ensurePolished();
  // The style's own width is for seventeen times the letter x.
  constexpr int kStyleCharacters = 17;
  const QFontMetrics metrics = edit->fontMetrics();
  const int frame = edit->sizeHint().width() - kStyleCharacters * metrics.horizontalAdvance(u'x');
  edit->setMinimumWidth(frame + visibleCharacters * metrics.averageCharWidth());
  ShowText(*edit, content, typingLimit);
  return edit;
}

void FormDialog::ShowText(QLineEdit& edit, std::u16string_view content, int typingLimit) {
  const QString text = ToQString(content);
  edit.setMaxLength(static_cast<int>(std::max<qsizetype>(typingLimit, text.size())));
  edit.setText(text);
  edit.setCursorPosition(0);  // of a long text the beginning shows
}

QLabel* FormDialog::MakeLabel(TextId text, QWidget& control) {
  auto* const label = new QLabel(Text(text), this);
  label->setTextFormat(Qt::PlainText);
  label->setBuddy(&control);
  // The line under the mnemonic parts letters that stand closer together without it, which the
  // label's width leaves out.
  label->setMinimumWidth(label->sizeHint().width() + label->fontMetrics().height() / 4);
  return label;
}

void FormDialog::LetTabReachChecked(const QList<QAbstractButton*>& buttons) {
  const auto isChecked = [](const QAbstractButton* button) { return button->isChecked(); };
  if (std::none_of(buttons.begin(), buttons.end(), isChecked)) return;
  for (QAbstractButton* const button : buttons) {
    if (!button->isChecked()) button->setFocusPolicy(Qt::ClickFocus);
  }
}

void FormDialog::Finish(QLayout* controls, Buttons which) {
  auto* const buttons = new QDialogButtonBox(this);
  QPushButton* const ok = buttons->addButton(Text(dialog_text::kOk), QDialogButtonBox::AcceptRole);
  Named(ok, "okButton", dialog_text::kOk);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  if (which == Buttons::OkCancel) {
    Named(buttons->addButton(Text(dialog_text::kCancel), QDialogButtonBox::RejectRole),
          "cancelButton", dialog_text::kCancel);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  }
  auto* const outer = new QVBoxLayout(this);
  outer->addStrut(TitleWidth(*this));
  outer->addLayout(controls, 1);
  outer->addSpacing(LeastSpacing(*this));
  outer->addWidget(buttons);
  SpaceControls(*this);
}

void FormDialog::FocusOn(QWidget& control) {
  control.setFocus(Qt::OtherFocusReason);
  if (auto* const edit = qobject_cast<QLineEdit*>(&control)) edit->selectAll();
}

void FormDialog::Refuse(StringId message, QWidget& field) {
  ShowRefusal(Text(message), field);
}

void FormDialog::RefuseTooLong(std::size_t limit, QWidget& field) {
  ShowRefusal(ToQString(TooLongMessage(texts_.Text(StringId::TextTooLong), limit)), field);
}

void FormDialog::ShowRefusal(const QString& message, QWidget& field) {
  QMessageBox box(this);
  box.setIcon(QMessageBox::Warning);
  box.setWindowTitle(ToQString(kProgramName));
  box.setText(message);
  box.addButton(Text(dialog_text::kOk), QMessageBox::AcceptRole);
  box.exec();
  FocusOn(field);
}

}  // namespace mivo
