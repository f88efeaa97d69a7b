// So that nothing gets lost: the recovery file, and where the safety copies are.

#include "canonical_path.h"
#include "comp_edit_view.h"
#include "lb_comp_name.h"
#include "main_frame.h"
#include "path_text.h"
#include "qt_text.h"
#include "state_folder.h"
#include "status_pane.h"

namespace mivo {
namespace {

/// As many names as a message box can show without filling the screen.
QString Listed(const std::vector<std::u16string>& names) {
  constexpr std::size_t kMost = 20;
  QStringList list;
  for (const std::u16string& name : names) {
    if (static_cast<std::size_t>(list.size()) == kMost) {
      list += QStringLiteral("\u2026");
      break;
    }
    list += ToQString(name);
  }
  return list.join(QStringLiteral(", "));
}

}  // namespace

LibraryView CMainFrame::OpenLibrary() const {
  const std::vector<NameEntry*>& entries = Names().Names().Entries();
  return {doc_, entries};
}

void CMainFrame::RecordChanges() {
  guard_.RecordNames(OpenLibrary());
  const CompEditor& editor = view_->Editor();
  const SCompEditDoc& document = editor.Document();
  if (editor.Component() == nullptr) return;
  // What is not committed is in no other place, should the recovery file have started over.
  const bool isCommitted = !document.IsDirty() && !document.SelectionChanged();
  if (isCommitted && document.Revision() == recordedRevision_) return;
  recordedRevision_ = document.Revision();
  SComponent now = *editor.Component();
  document.CopyTo(now);
  guard_.RecordComponent(OpenLibrary(), *editor.Component(), now);
}

bool CMainFrame::OfferRecovery(const QString& onlyOf) {
  std::filesystem::path only;
  if (!onlyOf.isEmpty()) only = CanonicalPath(PathFromText(ToText(onlyOf)));
  for (FoundRecovery& found : guard_.FindRecoveries()) {
    const std::optional<std::u16string>& path = found.library.file.path;
    if (!only.empty() && (!path || CanonicalPath(PathFromText(*path)) != only)) continue;
    switch (prompts_->AskRecovery(RecoveryQuestion(found))) {
      case RecoveryAnswer::Restore:
        Restore(found);
        return true;
      case RecoveryAnswer::Remove:
        found.recoveryFile.Remove();
        break;
      case RecoveryAnswer::Later:
        break;
    }
  }
  return false;
}

void CMainFrame::Restore(FoundRecovery& found) {
  HandToView(nullptr);
  Names().Names().SetEntries({});
  doc_ = std::move(found.library.doc);
  RefillNames();
  modified_ = true;
  // Until this program has a recovery file of its own, the old one is the only one there is.
  if (guard_.Restored(OpenLibrary(), found.library.file)) found.recoveryFile.Remove();
  if (guard_.IsOpenElsewhere()) prompts_->Warn(StringId::OpenElsewhere);
  ShowTitle();
  UpdateActions();
  UpdateStatus();
}

QString CMainFrame::RecoveryQuestion(const FoundRecovery& found) const {
  const std::optional<std::u16string>& path = found.library.file.path;
  QStringList lines{path ? ToQString(*path) : ToQString(texts_.Text(StringId::Untitled))};
  const RecoveryDifferences& differences = found.differences;
  for (const auto& [text, names] : {std::pair(StringId::RecoveryChanged, &differences.changed),
                                    std::pair(StringId::RecoveryAdded, &differences.added),
                                    std::pair(StringId::RecoveryRemoved, &differences.removed)}) {
    if (names->empty()) continue;
    lines += ToQString(texts_.Text(text)).replace(QStringLiteral("%s"), Listed(*names));
  }
  if (lines.size() == 1) lines += ToQString(texts_.Text(StringId::RecoveryArrangement));
  return ToQString(texts_.Text(StringId::RecoveryQuestion))
      .replace(QStringLiteral("%s"), lines.join(QLatin1Char('\n')));
}

void CMainFrame::ShowSafetyCopies() {
  const std::filesystem::path folder = guard_.CopiesFolder();
  CreatePrivateFolder(folder);  // so that there is something to open
  prompts_->ShowSafetyCopies(ToQString(TextFromPath(folder)));
}

}  // namespace mivo
