// The window: its parts, its settings, and which command does what.

#include "main_frame.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QDockWidget>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QShortcut>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>
#include <QUrl>
#include <algorithm>
#include <vector>

#include "command_actions.h"
#include "command_icon.h"
#include "comp_edit_view.h"
#include "key_lock_panes.h"
#include "key_locks.h"
#include "lb_comp_name.h"
#include "manual_window.h"
#include "name_pane.h"
#include "pin_props.h"
#include "program_version.h"
#include "qt_text.h"
#include "schematic_data.h"
#include "start_label.h"
#include "state_folder.h"
#include "status_pane.h"
#include "window_placement.h"

namespace mivo {
namespace {

constexpr std::size_t kMaxFaceName = 32;

/// The file that a drag brings, if it is one local file.
QString DraggedPath(const QMimeData& data) {
  const QList<QUrl> urls = data.urls();
  return urls.size() == 1 ? urls.front().toLocalFile() : QString();
}

}  // namespace

CMainFrame::CMainFrame(SettingsFile& settings, const TextTable& texts)
    : settings_(settings),
      texts_(texts),
      prompts_(std::make_unique<DialogPrompts>(*this, texts)),
      guard_(FindStateFolder()),
      propertyPrompts_(texts, labelFont_, *this),
      actions_(new CommandActions(texts, this)),
      view_(new CCompEditView(propertyPrompts_, this)),
      startLabel_(new StartLabel(texts, *view_->viewport())),
      status_(new StatusPane(texts, this)) {
  setWindowIcon(ProgramIcon());
  setAcceptDrops(true);
  CreateParts();
  ReadSettings();
  ShowTitle();
  HandToView(nullptr);
  UpdateActions();
  UpdateStatus();
}

CMainFrame::~CMainFrame() {
  pinProps_.reset();  // while there is an editor that it can work on
  // The view works on components that the library owns.
  view_->Editor().SetComponent(nullptr);
}

SLBCompName& CMainFrame::Names() const noexcept {
  return pane_->List();
}

QAction* CMainFrame::Action(Command command) const {
  return actions_->Action(command);
}

void CMainFrame::CreateParts() {
  setCentralWidget(view_);
  view_->SetTexts(texts_);
  view_->setAccessibleName(ToQString(texts_.Text(StringId::ViewName)));

  actions_->FillMenuBar(*menuBar());
  menuBar()->setAccessibleName(ToQString(texts_.Text(StringId::MenuBarName)));
  auto* const toolBar = addToolBar(ToQString(texts_.Text(StringId::ToolBarName)));
  toolBar->setObjectName(QStringLiteral("toolBar"));
  toolBar->setMovable(false);
  // Large letters in the menus ask for large pictures below them.
  const int iconSide = std::max(style()->pixelMetric(QStyle::PM_ToolBarIconSize),
                                QFontMetrics(menuBar()->font()).height() * 4 / 3);
  toolBar->setIconSize({iconSide, iconSide});
  actions_->FillToolBar(*toolBar);
  if (auto* const more = toolBar->findChild<QWidget*>(QStringLiteral("qt_toolbar_ext_button"))) {
    more->setAccessibleName(ToQString(texts_.Text(StringId::MoreToolsName)));
  }

  statusBar()->addWidget(status_, 1);
  for (QLabel* const pane : (new KeyLockPanes(texts_, &ReadKeyLocks, this))->Panes()) {
    statusBar()->addPermanentWidget(pane);
  }

  auto* const dock = new QDockWidget(this);
  dock->setObjectName(QStringLiteral("namePane"));
  dock->setFeatures(QDockWidget::NoDockWidgetFeatures);
  dock->setTitleBarWidget(new QWidget(dock));
  pane_ = new NamePane(*actions_, texts_, dock);
  dock->setWidget(pane_);
  addDockWidget(Qt::LeftDockWidgetArea, dock);

  Names().setContextMenuPolicy(Qt::CustomContextMenu);
  connect(&Names(), &QWidget::customContextMenuRequested, this, [this](QPoint at) {
    QMenu menu;
    actions_->FillNameMenu(menu);
    UpdateActions();
    menu.exec(Names().viewport()->mapToGlobal(at));
  });
  connect(&Names(), &SLBCompName::SelectionChanged, this, &CMainFrame::ShowSelectedComponent);
  connect(&Names(), &SLBCompName::PropertyRequested, this,
          [this] { Execute(Command::ComponentProperty); });
  connect(actions_, &CommandActions::Triggered, this, &CMainFrame::Execute);
  connect(view_, &CCompEditView::CommandsChanged, this, [this] {
    UpdateActions();
    UpdateStatus();
  });
  connect(view_, &CCompEditView::OperationCompleted, this, &CMainFrame::RecordChanges);
  connect(view_, &CCompEditView::PinGridToggled, this, &CMainFrame::TogglePinGrid);
  connect(view_, &CCompEditView::ContextMenuRequested, this, [this](QPoint at) {
    QMenu menu;
    actions_->FillViewMenu(menu);
    UpdateActions();
    menu.exec(at);
  });
  connect(view_, &CCompEditView::PlaceChanged, this, &CMainFrame::UpdateStatus);
  connect(new QShortcut(QKeySequence(Qt::Key_F6), this), &QShortcut::activated, this,
          [this] { MoveFocus(+1); });
  connect(new QShortcut(QKeySequence(Qt::SHIFT | Qt::Key_F6), this), &QShortcut::activated, this,
          [this] { MoveFocus(-1); });
  sessionEnd_ = std::make_unique<SessionEnd>(
      *this, [this](bool mayAsk) { return (!busy_ && !mayAsk) || MayEndSession(); });
  connect(&view_->Clipboard(), &QtTextClipboard::Changed, this, &CMainFrame::UpdateActions);
}

void CMainFrame::ReadSettings() {
  labelFont_.height = settings_.GetInt(u"LabelFont", u"Height", labelFont_.height);
  labelFont_.weight = settings_.GetInt(u"LabelFont", u"IsBold", labelFont_.weight);
  labelFont_.italic = settings_.GetInt(u"LabelFont", u"IsItalic", 0) != 0;
  labelFont_.face =
      settings_.GetString(u"LabelFont", u"FaceName", labelFont_.face).substr(0, kMaxFaceName);
  view_->SetCommonFont(labelFont_);

  // Any value but 0 means true, and so does a missing one.
  const bool keepsFarObjects = settings_.GetInt(u"Setting", u"NoCheckPtnRectOnSave", 50) != 0;
  farObjects_ = keepsFarObjects ? SCompEditDoc::FarObjects::Keep : SCompEditDoc::FarObjects::Drop;
  settings_.SetInt(u"Setting", u"NoCheckPtnRectOnSave", keepsFarObjects ? 1 : 0);

  const std::int32_t margin = settings_.GetInt(u"Setting", u"EditWindowMargin", 0);
  if (margin > 0) view_->Editor().SetMargin(margin);
  settings_.SetInt(u"Setting", u"EditWindowMargin", margin);
}

void CMainFrame::SaveWindowPlacement() {
  if (!isVisible()) return;
  const WindowPlacement placement = PlacementOf(*this);
  settings_.SetInt(u"WindowPosition", u"cmdShow", placement.show);
  if (placement.size.isEmpty()) return;
  settings_.SetInt(u"WindowPosition", u"Width", placement.size.width());
  settings_.SetInt(u"WindowPosition", u"Height", placement.size.height());
}

void CMainFrame::TogglePinGrid() {
  if (pinProps_ != nullptr && pinProps_->isVisible()) {
    pinProps_->reject();
    return;
  }
  if (pinProps_ == nullptr) {
    pinProps_ = std::make_unique<CPinProps>(view_->Editor(), view_->CommonFont(), texts_, this);
    connect(pinProps_.get(), &QDialog::finished, this, [this] {
      view_->SetPinGridShown(false);
      UpdateActions();
    });
    connect(view_, &CCompEditView::PinsEdited, pinProps_.get(), &CPinProps::Refresh);
    pinProps_->PlaceBeside(*this);
  }
  view_->SetPinGridShown(true);
  pinProps_->show();
  pinProps_->activateWindow();  // some desktops leave the focus where it was
}

void CMainFrame::EndGridEdit() {
  if (pinProps_ != nullptr) pinProps_->EndEdit();
}

void CMainFrame::Execute(Command command) {
  if (busy_) return;
  EndGridEdit();
  switch (command) {
    case Command::New:
      New();
      break;
    case Command::Open:
      AskOpen();
      break;
    case Command::Save:
      Save();
      break;
    case Command::SaveAs:
      SaveAs();
      break;
    case Command::Exit:
      close();
      break;
    case Command::MoveNameUp:
      MoveSelectedName(-1);
      break;
    case Command::MoveNameDown:
      MoveSelectedName(+1);
      break;
    case Command::CutComponent:
      CutComponent();
      break;
    case Command::CopyComponent:
      CopyComponent();
      break;
    case Command::PasteComponent:
      PasteComponent();
      break;
    case Command::SortByName:
      SortByName();
      break;
    case Command::NewComponent:
      NewComponent();
      break;
    case Command::ComponentProperty:
      EditComponentProperty();
      break;
    case Command::AddAlias:
      AddAlias();
      break;
    case Command::LibraryProperty:
      EditLibraryProperty();
      break;
    case Command::SafetyCopies:
      ShowSafetyCopies();
      break;
    case Command::About:
      prompts_->ShowAbout();
      break;
    case Command::Manual:
      ShowManual();
      break;
    case Command::CreateBitPattern:
      if (prompts_->Confirm(StringId::OverwriteBitPattern)) view_->Editor().Execute(command);
      break;
    default:
      view_->Editor().Execute(command);
      // What goes on in the view wants its keys there: Esc above all.
      if (command == Command::Paste || Action(command)->actionGroup() != nullptr) view_->setFocus();
      break;
  }
  RecordChanges();
  UpdateActions();
}

void CMainFrame::UpdateActions() {
  // The user, or something that happened, has gone on after the session's end was agreed to.
  mayEnd_ = false;
  const CompEditor& editor = view_->Editor();
  const int row = Names().SelectedRow();
  const int count = Names().Names().rowCount();
  for (const auto& [command, action] : actions_->All()) {
    bool enabled = true;
    switch (command) {
      case Command::New:
      case Command::Open:
      case Command::Save:
      case Command::Exit:
      case Command::NewComponent:
      case Command::LibraryProperty:
      case Command::SafetyCopies:
      case Command::About:
      case Command::Manual:
        break;
      case Command::SaveAs:
        enabled = !temporaryFileMode_;
        break;
      case Command::MoveNameUp:
        enabled = row > 0;
        break;
      case Command::MoveNameDown:
        enabled = row >= 0 && row < count - 1;
        break;
      case Command::CutComponent:
      case Command::CopyComponent:
      case Command::ComponentProperty:
      case Command::AddAlias:
        enabled = row >= 0;
        break;
      case Command::PasteComponent:
        enabled = CanPasteComponent(view_->Clipboard().GetText().value_or(u""));
        break;
      case Command::SortByName:
        enabled = count >= 2;
        break;
      default:
        enabled = editor.IsEnabled(command);
        if (action->isCheckable()) action->setChecked(editor.IsChecked(command));
        break;
    }
    action->setEnabled(enabled);
  }
}

void CMainFrame::UpdateStatus() {
  const CompEditor& editor = view_->Editor();
  const std::optional<StringId> hint = editor.Hint();
  const bool hasComponent = editor.Component() != nullptr;
  status_->SetHint(ToQString(texts_.Text(hint.value_or(StringId::StartTitle))));
  status_->SetPlace(hasComponent ? view_->MousePoint() : std::nullopt);
  status_->SetZoom(hasComponent ? std::optional(editor.Coordinates().Scale().factor)
                                : std::nullopt);
  status_->SetNames(Names().SelectedRow(), Names().Names().rowCount());
}

void CMainFrame::ShowManual() {
  auto* manual = findChild<ManualWindow*>();
  if (manual == nullptr) {
    manual = new ManualWindow(texts_, FindManual(QCoreApplication::applicationDirPath()), this);
  }
  manual->show();
  manual->raise();
  manual->activateWindow();
}

void CMainFrame::MoveFocus(int direction) {
  auto* const note = pane_->findChild<QWidget*>(QStringLiteral("noteBox"));
  std::vector<QWidget*> ring = {view_, &Names(), note};
  if (pinProps_ != nullptr && pinProps_->isVisible()) ring.push_back(pinProps_.get());
  const auto focused = std::find_if(ring.begin(), ring.end(),
                                    [](const QWidget* widget) { return widget->hasFocus(); });
  const auto count = static_cast<std::ptrdiff_t>(ring.size());
  const std::ptrdiff_t next =
      focused == ring.end() ? 0 : (focused - ring.begin() + direction + count) % count;
  QWidget* const target = ring[static_cast<std::size_t>(next)];
  target->activateWindow();
  target->setFocus(Qt::ShortcutFocusReason);
}

void CMainFrame::ShowTitle() {
  QString title = ToQString(kProgramName);
  if (doc_.Path() && !doc_.Path()->empty()) {
    title += QStringLiteral(" - ") + QDir::toNativeSeparators(ToQString(*doc_.Path()));
  }
  setWindowTitle(title);
}

void CMainFrame::SetTemporaryFileMode() {
  temporaryFileMode_ = true;
  UpdateActions();
}

bool CMainFrame::event(QEvent* event) {
  if (event->type() != QEvent::StatusTip) return QMainWindow::event(event);
  // The status bar's own way would hide everything else it shows.
  status_->ShowTip(static_cast<const QStatusTipEvent*>(event)->tip());
  return true;
}

bool CMainFrame::MayEndSession() {
  mayEnd_ = MayLeaveLibrary();
  return mayEnd_;
}

void CMainFrame::closeEvent(QCloseEvent* event) {
  closeHeldBack_ = busy_;
  event->setAccepted((mayEnd_ && !busy_) || MayLeaveLibrary());
  if (event->isAccepted()) guard_.Left();
}

void CMainFrame::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  SaveWindowPlacement();
}

void CMainFrame::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::WindowStateChange) SaveWindowPlacement();
}

void CMainFrame::focusInEvent(QFocusEvent*) {
  view_->setFocus();
}

void CMainFrame::dragEnterEvent(QDragEnterEvent* event) {
  if (!DraggedPath(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void CMainFrame::dropEvent(QDropEvent* event) {
  const QString path = DraggedPath(*event->mimeData());
  if (path.isEmpty()) return;
  // Only then: the program that the file comes from waits for this to return, not for an answer of
  // the user.
  const auto open = [this, path] {
    if (QApplication::activeModalWidget() == nullptr && MayLeaveLibrary()) Open(path);
  };
  QMetaObject::invokeMethod(this, open, Qt::QueuedConnection);
}

}  // namespace mivo
