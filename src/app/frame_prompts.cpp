#include "frame_prompts.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileDialog>
#include <QPushButton>
#include <QTimer>
#include <QUrl>
#include <QWindow>
#include <array>
#include <chrono>
#include <utility>

#include "about_dlg.h"
#include "add_alias.h"
#include "comp_property.h"
#include "dialog_texts.h"
#include "program_version.h"
#include "prop_lib.h"
#include "qt_text.h"

namespace mivo {
namespace {

// Windows gives a new file the first extension.
const QString kLibraryFiles = QStringLiteral(" (*.ZLB *.zlb)");
const QString kSchematicFiles = QStringLiteral(" (*.ZSC *.zsc)");

constexpr std::array<std::pair<QMessageBox::StandardButton, TextId>, 4> kButtonTexts = {{
    {QMessageBox::Ok, dialog_text::kOk},
    {QMessageBox::Cancel, dialog_text::kCancel},
    {QMessageBox::Yes, dialog_text::kYes},
    {QMessageBox::No, dialog_text::kNo},
}};

/// Asks with a box in the middle of the frame. At the start the window system may not have told yet
/// where the frame is.
int AskOver(const QWidget& frame, QMessageBox& box) {
  using namespace std::chrono_literals;
  QTimer patience;
  patience.setSingleShot(true);
  patience.start(3s);
  const auto isAwaited = [&frame] {
    return frame.isVisible() && !frame.isMinimized() && !frame.windowHandle()->isExposed();
  };
  while (isAwaited() && patience.isActive()) {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents |
                                    QEventLoop::WaitForMoreEvents);
  }
  return box.exec();
}

/// What the user chooses; empty when that is nothing. A name without an extension is a library's.
QString PathFrom(QFileDialog& dialog) {
  dialog.setOption(QFileDialog::HideNameFilterDetails);  // the texts name the files themselves
  dialog.setDefaultSuffix(QStringLiteral("ZLB"));
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

}  // namespace

QString DialogPrompts::AskOpenPath() {
  const QString schematics = ToQString(texts_.Text(StringId::SchematicFilter)) + kSchematicFiles;
  QFileDialog dialog(&frame_, QString(), QString(),
                     LibraryFilter() + QStringLiteral(";;") + schematics);
  dialog.setFileMode(QFileDialog::ExistingFile);
  return PathFrom(dialog);
}

QString DialogPrompts::AskSavePath(const QString& proposed) {
  QFileDialog dialog(&frame_, QString(), QString(), LibraryFilter());
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.selectFile(proposed);
  return PathFrom(dialog);
}

QString DialogPrompts::LibraryFilter() const {
  return ToQString(texts_.Text(StringId::LibraryFilter)) + kLibraryFiles;
}

SaveAnswer DialogPrompts::AskSaveChanges() {
  switch (Ask(QMessageBox::Question, StringId::SaveChanges,
              QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel)) {
    case QMessageBox::Yes:
      return SaveAnswer::Save;
    case QMessageBox::No:
      return SaveAnswer::Discard;
    default:
      return SaveAnswer::Cancel;
  }
}

bool DialogPrompts::Confirm(StringId question) {
  return Ask(QMessageBox::Question, question, QMessageBox::Ok | QMessageBox::Cancel) ==
         QMessageBox::Ok;
}

void DialogPrompts::Warn(StringId message) {
  Ask(QMessageBox::Warning, message, QMessageBox::Ok);
}

int DialogPrompts::Ask(QMessageBox::Icon icon, StringId message,
                       QMessageBox::StandardButtons buttons) {
  QMessageBox box(icon, ToQString(kProgramName), ToQString(texts_.Text(message)), buttons, &frame_);
  for (const auto& [button, text] : kButtonTexts) {
    if (box.button(button) != nullptr) box.button(button)->setText(ToQString(texts_.Text(text)));
  }
  return AskOver(frame_, box);
}

std::optional<CompPropertyValues> DialogPrompts::AskComponent(const CompPropertyValues& values) {
  return CCompProperty::Ask(texts_, values, &frame_);
}

std::optional<std::u16string> DialogPrompts::AskAlias(std::u16string_view name) {
  return CAddAlias::Ask(texts_, name, &frame_);
}

std::optional<std::u16string> DialogPrompts::AskLibraryText(std::u16string_view text) {
  return CPropLib::Ask(texts_, text, &frame_);
}

void DialogPrompts::ShowAbout() {
  CAboutDlg(texts_, &frame_).exec();
}

RecoveryAnswer DialogPrompts::AskRecovery(const QString& question) {
  QMessageBox box(QMessageBox::Question, ToQString(kProgramName), question, QMessageBox::NoButton,
                  &frame_);
  box.setTextFormat(Qt::PlainText);  // names are no mark-up
  const auto add = [&](StringId text, QMessageBox::ButtonRole role) {
    return box.addButton(ToQString(texts_.Text(text)), role);
  };
  const QAbstractButton* const restore = add(StringId::RecoveryRestore, QMessageBox::AcceptRole);
  const QAbstractButton* const remove = add(StringId::RecoveryRemove, QMessageBox::DestructiveRole);
  QPushButton* const later = add(StringId::RecoveryLater, QMessageBox::RejectRole);
  box.setEscapeButton(later);
  AskOver(frame_, box);
  if (box.clickedButton() == restore) return RecoveryAnswer::Restore;
  return box.clickedButton() == remove ? RecoveryAnswer::Remove : RecoveryAnswer::Later;
}

void DialogPrompts::ShowSafetyCopies(const QString& folder) {
  const QString text =
      ToQString(texts_.Text(StringId::SafetyCopiesPlace)).replace(QStringLiteral("%s"), folder);
  QMessageBox box(QMessageBox::Information, ToQString(kProgramName), text, QMessageBox::Ok,
                  &frame_);
  box.setTextFormat(Qt::PlainText);
  box.button(QMessageBox::Ok)->setText(ToQString(texts_.Text(dialog_text::kOk)));
  const QAbstractButton* const open =
      box.addButton(ToQString(texts_.Text(StringId::OpenFolder)), QMessageBox::ActionRole);
  box.setEscapeButton(QMessageBox::Ok);
  box.exec();
  if (box.clickedButton() == open) QDesktopServices::openUrl(QUrl::fromLocalFile(folder));
}

}  // namespace mivo
