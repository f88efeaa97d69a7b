#ifndef MIVO_APP_MAIN_FRAME_H
#define MIVO_APP_MAIN_FRAME_H

#include <QMainWindow>
#include <memory>

#include "comp_edit_doc.h"
#include "frame_prompts.h"
#include "library_guard.h"
#include "mivo_doc.h"
#include "property_dialogs.h"
#include "session_end.h"
#include "settings_file.h"
#include "task_progress.h"
#include "text_table.h"

namespace mivo {

class CCompEditView;
class CPinProps;
class CommandActions;
class NamePane;
class SLBCompName;
class StartLabel;
class StatusPane;

/// The program's window. Owns the open library; the list on the left chooses the component that the
/// view edits. The order of the list is the order in which the library is written.
class CMainFrame final : public QMainWindow {
  Q_OBJECT

 public:
  /// The settings and texts must outlive the frame.
  CMainFrame(SettingsFile& settings, const TextTable& texts);
  ~CMainFrame() override;

  /// Replaces the questions to the user, for tests.
  void SetPrompts(std::unique_ptr<FramePrompts> prompts) { prompts_ = std::move(prompts); }

  /// Replaces the clock that tells when a task takes long, for tests.
  void SetClock(TaskProgress::Clock clock) { clock_ = std::move(clock); }

  /// Replaces the open library by the one in the file, without asking about changes. A file that
  /// cannot be read or understood leaves what was read of it without a path, so that it never
  /// becomes the save target by itself; the status bar says why.
  void Open(const QString& path);

  /// The file belongs to another program that waits for it: it can be saved, but not elsewhere.
  void SetTemporaryFileMode();

  /// Asks about changes that a Mivo which is gone had not saved: those of the library at `onlyOf`,
  /// or of any when that is empty. True when one was restored; it is the open library now.
  bool OfferRecovery(const QString& onlyOf = {});

  /// Asks about changes because the desktop session ends; false to keep it from ending. Nothing is
  /// asked again when the window is closed then.
  [[nodiscard]] bool MayEndSession();

  [[nodiscard]] bool IsModified() const noexcept { return modified_; }
  [[nodiscard]] const SMivoDoc& Library() const noexcept { return doc_; }
  [[nodiscard]] CCompEditView& View() const noexcept { return *view_; }
  [[nodiscard]] SLBCompName& Names() const noexcept;
  [[nodiscard]] QAction* Action(Command command) const;

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  // main_frame.cpp: the window
  void CreateParts();
  void ReadSettings();
  void SaveWindowPlacement();
  void Execute(Command command);
  void UpdateActions();
  void UpdateStatus();
  void ShowTitle();
  /// Along view, list, note box and the pin grid where it is shown; `direction` is 1 or -1.
  void MoveFocus(int direction);
  void TogglePinGrid();
  void ShowManual();
  /// Keeps what was typed into a cell of the pin grid.
  void EndGridEdit();

  // main_frame_file.cpp: library and file
  void New();
  void AskOpen();
  bool Save();
  bool SaveAs();
  bool WriteTo(const QString& path);
  [[nodiscard]] bool MayLeaveLibrary();
  void RefillNames();

  // main_frame_task.cpp: what may take long
  struct LoadOutcome {
    QString note;  ///< what there is to tell about the file; usually nothing
    bool isLaterVersion = false;
    ContentIdentity content{};
    LibraryGuard::Losses losses = LibraryGuard::Losses::None;
  };
  /// Fills the empty library.
  LoadOutcome LoadFrom(const QString& path);
  [[nodiscard]] LibraryGuard::SaveResult WriteInto(const QString& path);
  void EndTask();

  // main_frame_safety.cpp: so that nothing gets lost
  [[nodiscard]] LibraryView OpenLibrary() const;
  /// Puts what has changed since the last time into the recovery file.
  void RecordChanges();
  void Restore(FoundRecovery& found);
  [[nodiscard]] QString RecoveryQuestion(const FoundRecovery& found) const;
  void ShowSafetyCopies();

  // main_frame_component.cpp: components and their names
  void CommitEdit();
  void ShowSelectedComponent();
  void HandToView(NameEntry* entry);
  void InsertName(NameEntry* entry);
  void MoveSelectedName(int down);
  void CopyComponent();
  void CutComponent();
  void PasteComponent();
  void NewComponent();
  void EditComponentProperty();
  void AddAlias();
  void SortByName();
  void EditLibraryProperty();

  SettingsFile& settings_;
  const TextTable& texts_;
  std::unique_ptr<FramePrompts> prompts_;
  SMivoDoc doc_;
  LibraryGuard guard_;
  std::uint64_t recordedRevision_ = 0;
  bool modified_ = false;
  bool temporaryFileMode_ = false;
  bool mayEnd_ = false;  ///< nothing has happened since the session's end was agreed to
  SCompEditDoc::FarObjects farObjects_ = SCompEditDoc::FarObjects::Keep;
  TaskProgress::Clock clock_ = &std::chrono::steady_clock::now;
  bool busy_ = false;               ///< the library is being read or written
  bool closeHeldBack_ = false;      ///< the window was to be closed meanwhile
  bool selectionHeldBack_ = false;  ///< another name was selected meanwhile

  SCommonFont labelFont_;
  PropertyDialogs propertyPrompts_;
  CommandActions* actions_;
  CCompEditView* view_;
  NamePane* pane_ = nullptr;
  StartLabel* startLabel_;
  StatusPane* status_;
  std::unique_ptr<SessionEnd> sessionEnd_;
  std::unique_ptr<CPinProps> pinProps_;  ///< null until it was shown for the first time
};

}  // namespace mivo

#endif
