// What may take long: reading and writing files. The window repaints meanwhile, and whatever would
// change the library or end the program is refused or waits.

#include <QFileInfo>
#include <QScopeGuard>
#include <utility>

#include "file_source.h"
#include "lb_comp_name.h"
#include "load_note.h"
#include "main_frame.h"
#include "path_text.h"
#include "qt_text.h"

namespace mivo {
namespace {

QString TaskText(const TextTable& texts, StringId what, const QString& path) {
  return ToQString(texts.Text(what)).replace(QStringLiteral("%s"), QFileInfo(path).fileName());
}

}  // namespace

CMainFrame::LoadOutcome CMainFrame::LoadFrom(const QString& path) {
  busy_ = true;
  const auto end = qScopeGuard([this] { EndTask(); });
  TaskProgress progress(*status_, TaskText(texts_, StringId::Opening, path), clock_);

  const std::u16string pathText = ToText(path);
  FileSource file(PathFromText(pathText));
  IdentifyingSource content(file);
  LoadNote note;
  // What was read before a fault in the content stays, without a path.
  static_cast<void>(doc_.Load(content, file.SizeHint(), pathText, &note, &progress));
  const ContentIdentity identity = content.IdentityOfAll();
  if (!file.Error().empty()) {
    doc_.Clear();
    return {QFileInfo(path).fileName() + QStringLiteral(": ") +
            QString::fromStdString(file.Error())};
  }
  return {note.Text(texts_), note.IsLaterVersion(), identity,
          note.HasLosses() ? LibraryGuard::Losses::Some : LibraryGuard::Losses::None};
}

LibraryGuard::SaveResult CMainFrame::WriteInto(const QString& path) {
  busy_ = true;
  const auto end = qScopeGuard([this] { EndTask(); });
  TaskProgress progress(*status_, TaskText(texts_, StringId::Saving, path), clock_);
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
