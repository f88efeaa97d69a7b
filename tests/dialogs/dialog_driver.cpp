#include "dialog_driver.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QDialog>
#include <QLineEdit>

namespace mivo {

std::string ControlNames(const QWidget& parent) {
  std::string names;
  for (const QWidget* const child : parent.findChildren<QWidget*>()) {
    if (!child->objectName().isEmpty()) names += ' ' + child->objectName().toStdString();
  }
  return names;
}

void Show(QDialog& dialog) {
  dialog.show();
  dialog.activateWindow();
  if (!QTest::qWaitForWindowActive(&dialog)) throw std::runtime_error("the dialog does not show");
}

void Type(QLineEdit& edit, std::string_view text) {
  edit.setFocus();
  edit.selectAll();
  if (text.empty()) QTest::keyClick(&edit, Qt::Key_Delete);
  for (const char c : text) QTest::keyClick(&edit, c);
}

void Type(const QWidget& dialog, const char* objectName, std::string_view text) {
  Type(Find<QLineEdit>(dialog, objectName), text);
}

std::u16string TextOf(const QWidget& dialog, const char* objectName) {
  return Find<QLineEdit>(dialog, objectName).text().toStdU16String();
}

void Click(QWidget& control) {
  // Boxes and radio buttons react at their sign, which is at the left.
  QTest::mouseClick(&control, Qt::LeftButton, {}, {10, control.height() / 2});
}

void Click(const QWidget& dialog, const char* objectName) {
  Click(Find<QAbstractButton>(dialog, objectName));
}

std::string FocusName(const QWidget& dialog) {
  const QWidget* const focus = dialog.focusWidget();
  return focus == nullptr ? std::string() : focus->objectName().toStdString();
}

std::vector<std::string> TabOrder(QDialog& dialog) {
  std::vector<std::string> names;
  const QWidget* const first = dialog.focusWidget();
  do {
    names.push_back(FocusName(dialog));
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
  } while (dialog.focusWidget() != first && names.size() < 100);
  return names;
}

std::optional<std::u16string> MessageOf(const std::function<void()>& action) {
  std::optional<std::u16string> message;
  Answer<QMessageBox>(action, [&](QMessageBox& box) {
    message = box.text().toStdU16String();
    if (box.buttons().size() != 1) throw std::runtime_error("not a plain message");
    Click(*box.buttons().first());
  });
  return message;
}

}  // namespace mivo
