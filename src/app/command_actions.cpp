#include "command_actions.h"

#include <QAction>
#include <QActionGroup>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <array>
#include <optional>

#include "command_icon.h"
#include "qt_text.h"

namespace mivo {
namespace {

using Item = std::optional<Command>;
constexpr Item kSeparator = std::nullopt;

constexpr std::array<Item, 6> kFileMenu = {Command::New,    Command::Open, Command::Save,
                                           Command::SaveAs, kSeparator,    Command::Exit};
constexpr std::array<Item, 14> kEditMenu = {
    Command::Undo,     kSeparator, Command::Cut,         Command::Copy,         Command::Paste,
    Command::Delete,   kSeparator, Command::Mirror,      Command::Rotate,       kSeparator,
    Command::Property, kSeparator, Command::NextPinName, Command::NextPinNumber};
constexpr std::array<Item, 11> kComponentMenu = {Command::CutComponent,
                                                 Command::CopyComponent,
                                                 Command::PasteComponent,
                                                 kSeparator,
                                                 Command::NewComponent,
                                                 Command::ComponentProperty,
                                                 kSeparator,
                                                 Command::AddAlias,
                                                 Command::SortByName,
                                                 kSeparator,
                                                 Command::LibraryProperty};
constexpr std::array<Item, 5> kViewMenu = {Command::ZoomIn, Command::ZoomOut, kSeparator,
                                           Command::PinProperty, Command::SwapPinNameAndNumber};
constexpr std::array<Item, 7> kTools = {
    Command::Selector,    Command::PinTool, Command::LineTool, Command::CircleTool,
    Command::PolygonTool, Command::ArcTool, Command::TextTool};
constexpr std::array<Item, 4> kToolMenuEnd = {kSeparator, Command::EditNodeMode, kSeparator,
                                              Command::CreateBitPattern};
constexpr std::array<Item, 4> kHelpMenu = {Command::Manual, Command::SafetyCopies, kSeparator,
                                           Command::About};
constexpr std::array<Item, 18> kToolBar = {
    Command::New,    Command::Open,         Command::Save,  kSeparator,      Command::Undo,
    Command::Cut,    Command::Copy,         Command::Paste, Command::Delete, kSeparator,
    Command::Mirror, Command::Rotate,       kSeparator,     Command::ZoomIn, Command::ZoomOut,
    kSeparator,      Command::EditNodeMode, kSeparator};
constexpr std::array<Item, 8> kNameMenu = {Command::CutComponent,
                                           Command::CopyComponent,
                                           Command::PasteComponent,
                                           kSeparator,
                                           Command::NewComponent,
                                           Command::ComponentProperty,
                                           kSeparator,
                                           Command::AddAlias};
constexpr std::array<Item, 8> kFloatingMenu = {Command::Cut,     Command::Copy,    Command::Paste,
                                               Command::AddNode, kSeparator,       Command::Mirror,
                                               Command::Rotate,  Command::Property};

/// The keys that work everywhere in the window. Single letters, Page Up, Page Down and Del belong
/// to the view alone: elsewhere they move in lists and edit texts.
QList<QKeySequence> KeysOf(Command command) {
  switch (command) {
    case Command::New:
      return {Qt::CTRL | Qt::Key_N};
    case Command::Open:
      return {Qt::CTRL | Qt::Key_O};
    case Command::Save:
      return {Qt::CTRL | Qt::Key_S};
    case Command::Undo:
      return {Qt::CTRL | Qt::Key_Z, Qt::ALT | Qt::Key_Backspace};
    case Command::Cut:
      return {Qt::CTRL | Qt::Key_X, Qt::SHIFT | Qt::Key_Delete};
    case Command::Copy:
      return {Qt::CTRL | Qt::Key_C, Qt::CTRL | Qt::Key_Insert};
    case Command::Paste:
      return {Qt::CTRL | Qt::Key_V, Qt::SHIFT | Qt::Key_Insert};
    case Command::Mirror:
      return {Qt::CTRL | Qt::Key_M};
    case Command::Rotate:
      return {Qt::CTRL | Qt::Key_R};
    case Command::EditNodeMode:
      return {Qt::CTRL | Qt::Key_D};
    case Command::NextPinName:
      return {Qt::Key_F11};
    case Command::NextPinNumber:
      return {Qt::Key_F12};
    case Command::Manual:
      return {Qt::Key_F1};
    default:
      return {};
  }
}

bool IsTool(Command command) {
  return std::find(kTools.begin(), kTools.end(), Item(command)) != kTools.end();
}

bool IsSwitch(Command command) {
  return command == Command::EditNodeMode || command == Command::PinProperty ||
         command == Command::SwapPinNameAndNumber;
}

}  // namespace

CommandActions::CommandActions(const TextTable& texts, QObject* parent)
    : QObject(parent), texts_(texts) {
  auto* const tools = new QActionGroup(this);
  for (const TextId id : AllTextIds()) {
    if (id.kind != TextKind::Command) continue;
    const auto command = static_cast<Command>(id.number);
    auto* const action = new QAction(CommandIcon(command), ToQString(texts.Text(id)), this);
    action->setObjectName(QStringLiteral("command%1").arg(id.number));
    action->setShortcuts(KeysOf(command));
    const QString hint = ToQString(texts.Hint(command));
    action->setToolTip(hint);
    action->setStatusTip(hint);
    action->setCheckable(IsTool(command) || IsSwitch(command));
    if (IsTool(command)) tools->addAction(action);
    connect(action, &QAction::triggered, this, [this, command] { emit Triggered(command); });
    actions_.emplace(command, action);
  }
}

void CommandActions::Fill(QWidget& target, std::span<const Item> commands) const {
  for (const Item& command : commands) {
    if (command) {
      target.addAction(Action(*command));
    } else {
      auto* const separator = new QAction(&target);
      separator->setSeparator(true);
      target.addAction(separator);
    }
  }
}

void CommandActions::FillMenuBar(QMenuBar& menuBar) const {
  const auto addMenu = [&](MenuId id) -> QMenu& {
    return *menuBar.addMenu(ToQString(texts_.Text(id)));
  };
  Fill(addMenu(MenuId::File), kFileMenu);
  Fill(addMenu(MenuId::Edit), kEditMenu);
  Fill(addMenu(MenuId::Component), kComponentMenu);
  Fill(addMenu(MenuId::View), kViewMenu);
  QMenu& tool = addMenu(MenuId::Tool);
  Fill(tool, kTools);
  Fill(tool, kToolMenuEnd);
  Fill(addMenu(MenuId::Help), kHelpMenu);
}

void CommandActions::FillToolBar(QToolBar& toolBar) const {
  Fill(toolBar, kToolBar);
  Fill(toolBar, kTools);
}

void CommandActions::FillNameMenu(QMenu& menu) const {
  Fill(menu, kNameMenu);
}

void CommandActions::FillViewMenu(QMenu& menu) const {
  Fill(*menu.addMenu(ToQString(texts_.Text(MenuId::Tool))), kTools);
  menu.addSeparator();
  Fill(menu, kFloatingMenu);
}

}  // namespace mivo
