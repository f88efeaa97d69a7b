#include "name_pane.h"

#include <QAction>
#include <QToolButton>

#include "command_actions.h"
#include "lb_comp_name.h"
#include "note_edit.h"
#include "qt_text.h"

namespace mivo {
namespace {

constexpr int kGap = 5;
constexpr int kButtonSide = 28;
constexpr int kNoteHeight = 100;

}  // namespace

NamePane::NamePane(const CommandActions& actions, const TextTable& texts, QWidget* parent)
    : QWidget(parent),
      moveUp_(CreateButton(actions.Action(Command::MoveNameUp))),
      moveDown_(CreateButton(actions.Action(Command::MoveNameDown))),
      list_(new SLBCompName(this)),
      note_(new NoteEdit(0, 0, this)) {
  list_->setAccessibleName(ToQString(texts.Text(StringId::NameListName)));
  note_->setObjectName(QStringLiteral("noteBox"));
  note_->setAccessibleName(ToQString(texts.Text(StringId::NoteName)));
  note_->setReadOnly(true);
  note_->setAcceptDrops(false);  // a file dropped there is meant for the window
  note_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  // The note box covers the list's lower edge: its last row must stay in sight all the same.
  list_->SetCoveredBelow(kGap);
  note_->raise();
  setTabOrder(list_, note_);
}

QToolButton* NamePane::CreateButton(QAction* action) {
  auto* const button = new QToolButton(this);
  button->setDefaultAction(action);
  button->setToolButtonStyle(Qt::ToolButtonIconOnly);
  button->setAutoRaise(true);
  button->setAccessibleName(action->text());
  return button;
}

void NamePane::ShowNote(std::u16string_view note) {
  note_->SetContent(note);
}

QSize NamePane::sizeHint() const {
  return {200, 400};
}

QSize NamePane::minimumSizeHint() const {
  return {120, 180};
}

void NamePane::resizeEvent(QResizeEvent*) {
  moveUp_->setGeometry(kGap, kGap, kButtonSide, kButtonSide);
  moveDown_->setGeometry(2 * kGap + kButtonSide, kGap, kButtonSide, kButtonSide);
  const int contentWidth = width() - 2 * kGap;
  const int noteTop = height() - kGap - kNoteHeight;
  note_->setGeometry(kGap, noteTop, contentWidth, kNoteHeight);
  const int listTop = kGap + kButtonSide + kGap;
  list_->setGeometry(kGap, listTop, contentWidth, noteTop + kGap - listTop);
}

}  // namespace mivo
