#ifndef MIVO_APP_COMMAND_ACTIONS_H
#define MIVO_APP_COMMAND_ACTIONS_H

#include <QObject>
#include <map>
#include <span>

#include "command.h"
#include "text_table.h"

class QAction;
class QMenu;
class QMenuBar;
class QToolBar;

namespace mivo {

/// The program's commands as actions with their texts, keys and icons, and the menus and the
/// toolbar made of them.
class CommandActions final : public QObject {
  Q_OBJECT

 public:
  explicit CommandActions(const TextTable& texts, QObject* parent = nullptr);

  [[nodiscard]] QAction* Action(Command command) const { return actions_.at(command); }
  [[nodiscard]] const std::map<Command, QAction*>& All() const noexcept { return actions_; }

  void FillMenuBar(QMenuBar& menuBar) const;
  void FillToolBar(QToolBar& toolBar) const;
  /// The menu of the name list.
  void FillNameMenu(QMenu& menu) const;
  /// The floating menu of the view.
  void FillViewMenu(QMenu& menu) const;

 signals:
  void Triggered(Command command);

 private:
  /// Adds the actions in order, a separator for every empty place.
  void Fill(QWidget& target, std::span<const std::optional<Command>> commands) const;

  const TextTable& texts_;
  std::map<Command, QAction*> actions_;
};

}  // namespace mivo

#endif
