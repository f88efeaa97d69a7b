#include "frame_prompts.h"

#include <QFileDialog>
#include <QMessageBox>

#include "about_dlg.h"
#include "add_alias.h"
#include "comp_property.h"
#include "prop_lib.h"
#include "qt_text.h"

namespace mivo {
namespace {

const QString kTitle = QStringLiteral("Mivo");
const QString kLibraryFilter = QStringLiteral("Tarsel library file(*.zlb) (*.zlb *.ZLB)");
const QString kSchematicFilter = QStringLiteral("Tarsel schematic(*.zsc) (*.zsc *.ZSC)");

}  // namespace

QString DialogPrompts::AskOpenPath() {
  return QFileDialog::getOpenFileName(&frame_, QString(), QString(),
                                      kLibraryFilter + QStringLiteral(";;") + kSchematicFilter);
}

QString DialogPrompts::AskSavePath(const QString& proposed) {
  QFileDialog dialog(&frame_, QString(), QString(), kLibraryFilter);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(QStringLiteral("ZLB"));
  dialog.selectFile(proposed);
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

SaveAnswer DialogPrompts::AskSaveChanges() {
  const auto answer = QMessageBox::question(
      &frame_, kTitle, ToQString(texts_.Text(StringId::SaveChanges)),
      QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes);
  if (answer == QMessageBox::Yes) return SaveAnswer::Save;
  return answer == QMessageBox::No ? SaveAnswer::Discard : SaveAnswer::Cancel;
}

bool DialogPrompts::Confirm(StringId question) {
  return QMessageBox::question(&frame_, kTitle, ToQString(texts_.Text(question)),
                               QMessageBox::Ok | QMessageBox::Cancel) == QMessageBox::Ok;
}

void DialogPrompts::Warn(StringId message) {
  QMessageBox::warning(&frame_, kTitle, ToQString(texts_.Text(message)));
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

}  // namespace mivo
