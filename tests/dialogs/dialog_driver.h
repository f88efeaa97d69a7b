#ifndef MIVO_TESTS_DIALOG_DRIVER_H
#define MIVO_TESTS_DIALOG_DRIVER_H

#include <QApplication>
#include <QMessageBox>
#include <QString>
#include <QTest>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

class QDialog;
class QLineEdit;

// What a user does with a dialog: finds controls, types, clicks, reads messages.

namespace mivo {

/// The names of all named controls in `parent`, for the message about a missing one.
[[nodiscard]] std::string ControlNames(const QWidget& parent);

/// The control of that object name; throws when there is none.
template <typename Control>
[[nodiscard]] Control& Find(const QWidget& parent, const char* objectName) {
  auto* const control = parent.findChild<Control*>(QLatin1String(objectName));
  if (control == nullptr) {
    throw std::runtime_error(std::string("no ") + objectName + " among" + ControlNames(parent));
  }
  return *control;
}

/// Shows a dialog and waits until it takes keys.
void Show(QDialog& dialog);

/// Replaces the text of a field by key presses (ASCII only).
void Type(QLineEdit& edit, std::string_view text);
void Type(const QWidget& dialog, const char* objectName, std::string_view text);
[[nodiscard]] std::u16string TextOf(const QWidget& dialog, const char* objectName);

void Click(QWidget& control);
void Click(const QWidget& dialog, const char* objectName);

/// The object name of the control that has the focus.
[[nodiscard]] std::string FocusName(const QWidget& dialog);
/// The names of the controls that Tab visits, from the one that has the focus on.
[[nodiscard]] std::vector<std::string> TabOrder(QDialog& dialog);

/// Runs `action`, in which a modal window of type `Window` has to open, and lets `answer` deal with
/// it; `answer` closes it. False when none opened.
template <typename Window>
bool Answer(const std::function<void()>& action, const std::function<void(Window&)>& answer) {
  bool isAnswered = false;
  QTimer poll;
  QObject::connect(&poll, &QTimer::timeout, [&] {
    auto* const window = dynamic_cast<Window*>(QApplication::activeModalWidget());
    if (window == nullptr || !window->isVisible() || isAnswered) return;
    isAnswered = true;
    poll.stop();
    answer(*window);
  });
  poll.start(0);
  action();
  return isAnswered;
}

/// The text of the message box that `action` shows, answered with its only button; nothing when it
/// shows none.
[[nodiscard]] std::optional<std::u16string> MessageOf(const std::function<void()>& action);

}  // namespace mivo

#endif
