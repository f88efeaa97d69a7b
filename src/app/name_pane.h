#ifndef MIVO_APP_NAME_PANE_H
#define MIVO_APP_NAME_PANE_H

#include <QWidget>
#include <string_view>

class QToolButton;

namespace mivo {

class CommandActions;
class NoteEdit;
class SLBCompName;
class TextTable;

/// The left pane: two buttons that move the selected name up or down, the name list, and the note
/// of the selected component.
class NamePane final : public QWidget {
  Q_OBJECT

 public:
  NamePane(const CommandActions& actions, const TextTable& texts, QWidget* parent = nullptr);

  [[nodiscard]] SLBCompName& List() const noexcept { return *list_; }
  void ShowNote(std::u16string_view note);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  [[nodiscard]] QToolButton* CreateButton(QAction* action);

  QToolButton* moveUp_;
  QToolButton* moveDown_;
  SLBCompName* list_;
  NoteEdit* note_;
};

}  // namespace mivo

#endif
