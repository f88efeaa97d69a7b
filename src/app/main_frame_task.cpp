// What may take long: reading and writing files. The window repaints meanwhile, and whatever would
// change the library or end the program is refused or waits.

#include <QFileInfo>
#include <QScopeGuard>
#include <system_error>
#include <utility>

#include "lb_comp_name.h"
#include "load_note.h"
#include "main_frame.h"
#include "path_text.h"
#include "qt_text.h"
#include "read_file.h"

namespace mivo {
namespace {

constexpr int kLoadSteps = 2;  // fetching the bytes, understanding them

QString TaskText(const TextTable& texts, StringId what, const QString& path) {
  return ToQString(texts.Text(what)).replace(QStringLiteral("%s"), QFileInfo(path).fileName());
}

}  // namespace

CMainFrame::LoadOutcome CMainFrame::LoadFrom(const QString& path) {
  busy_ = true;
  const auto end = qScopeGuard([this] { EndTask(); });
  TaskProgress progress(*status_, TaskText(texts_, StringId::Opening, path), kLoadSteps, clock_);

  const std::u16string pathText = ToText(path);
  const FileResult<std::string> content = ReadFile(PathFromText(pathText), &progress);
  if (!content.Ok()) {
    return {QFileInfo(path).fileName() + QStringLiteral(": ") +
            QString::fromStdString(content.Error())};
  }
  progress.NextStep();
  LoadNote note;
  // What was read before a fault stays, without a path.
  static_cast<void>(doc_.Load(content.Value(), pathText, &note, &progress));
  return {note.Text(texts_), note.IsLaterVersion(), IdentityOf(content.Value()),
          note.HasLosses() ? LibraryGuard::Losses::Some : LibraryGuard::Losses::None};
}

LibraryGuard::SaveResult CMainFrame::WriteInto(const QString& path) {
  busy_ = true;
  const auto end = qScopeGuard([this] { EndTask(); });
  TaskProgress progress(*status_, TaskText(texts_, StringId::Saving, path), 1, clock_);
  return guard_.Save(OpenLibrary(), ToText(path), &progress);
}

void CMainFrame::EndTask() {
  busy_ = false;
  if (std::exchange(closeHeldBack_, false)) {
    QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
  }
  if (std::exchange(selectionHeldBack_, false)) {
    QMetaObject::invokeMethod(this, &CMainFrame::ShowSelectedComponent, Qt::QueuedConnection);
  }
}

}  // namespace mivo
