// The library and its file: new, open, save, and the question before changes are lost.

#include <QDir>
#include <QFileInfo>

#include "comp_edit_view.h"
#include "lb_comp_name.h"
#include "main_frame.h"
#include "name_pane.h"
#include "qt_text.h"
#include "status_pane.h"

namespace mivo {
namespace {

bool HasExtension(const QString& path, const char* extension) {
  return QFileInfo(path).suffix().compare(QLatin1String(extension), Qt::CaseInsensitive) == 0;
}

/// The file name to propose for a library: the same name with the extension of libraries.
QString ProposedName(const QString& path) {
  if (HasExtension(path, "zlb")) return path;
  const QFileInfo info(path);
  return info.dir().filePath(info.completeBaseName() + QStringLiteral(".ZLB"));
}

QString PathOf(const SMivoDoc& doc) {
  return doc.Path() ? ToQString(*doc.Path()) : QString();
}

}  // namespace

void CMainFrame::New() {
  if (!MayLeaveLibrary()) return;
  HandToView(nullptr);
  Names().Names().SetEntries({});
  doc_.Clear();
  modified_ = false;
  guard_.OpenedWithoutFile(OpenLibrary());
  status_->ShowNote(QString());
  ShowTitle();
  UpdateActions();
  UpdateStatus();
}

void CMainFrame::AskOpen() {
  if (!MayLeaveLibrary()) return;
  const QString path = prompts_->AskOpenPath();
  if (!path.isEmpty()) Open(path);
}

void CMainFrame::Open(const QString& path) {
  if (busy_) return;
  HandToView(nullptr);
  Names().Names().SetEntries({});
  doc_.Clear();
  modified_ = false;

  const LoadOutcome loaded = LoadFrom(path);
  if (loaded.isLaterVersion) prompts_->Warn(StringId::LaterVersion);
  ShowTitle();
  RefillNames();
  if (doc_.Path()) {
    guard_.Opened(OpenLibrary(), loaded.content, loaded.losses);
  } else {
    guard_.OpenedWithoutFile(OpenLibrary());
  }
  if (guard_.IsOpenElsewhere()) prompts_->Warn(StringId::OpenElsewhere);
  UpdateStatus();
  status_->ShowNote(loaded.note);
}

void CMainFrame::RefillNames() {
  std::vector<NameEntry*> entries;
  entries.reserve(doc_.Names().Entries().size());
  for (const auto& entry : doc_.Names().Entries()) entries.push_back(entry.get());
  Names().Names().SetEntries(std::move(entries));
  Names().SelectRow(0);
  // An empty list has nothing to select, and so nothing to tell.
  if (Names().SelectedRow() < 0) ShowSelectedComponent();
}

bool CMainFrame::Save() {
  const QString path = PathOf(doc_);
  // A schematic holds more than its components, so it is never overwritten.
  return path.isEmpty() || HasExtension(path, "zsc") ? SaveAs() : WriteTo(path);
}

bool CMainFrame::SaveAs() {
  if (temporaryFileMode_) return false;
  const QString current = PathOf(doc_);
  const QString path = prompts_->AskSavePath(
      current.isEmpty() ? ToQString(texts_.Text(StringId::Untitled)) : ProposedName(current));
  if (path.isEmpty()) return false;
  if (HasExtension(path, "zsc")) {
    prompts_->Warn(StringId::SaveFailed);
    return false;
  }
  return WriteTo(path);
}

bool CMainFrame::WriteTo(const QString& path) {
  CommitEdit();
  const std::u16string pathText = ToText(path);
  if (guard_.HasChangedOnDisk(pathText) && !prompts_->Confirm(StringId::ChangedOnDisk)) {
    return false;
  }
  const LibraryGuard::SaveResult result = WriteInto(path);
  QString note = QString::fromStdString(result.errorMessage);
  if (!result.copyKept && note.isEmpty()) note = ToQString(texts_.Text(StringId::NoSafetyCopy));
  status_->ShowNote(note);
  if (!result.saved) {
    prompts_->Warn(StringId::SaveFailed);
    return false;
  }
  doc_.SetPath(pathText);
  modified_ = false;
  ShowTitle();
  UpdateActions();
  return true;
}

bool CMainFrame::MayLeaveLibrary() {
  if (busy_) return false;
  CommitEdit();
  if (!modified_) return true;
  switch (prompts_->AskSaveChanges()) {
    case SaveAnswer::Save:
      return Save();
    case SaveAnswer::Discard:
      return true;
    case SaveAnswer::Cancel:
      return false;
  }
  return false;
}

}  // namespace mivo
