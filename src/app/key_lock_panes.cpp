#include "key_lock_panes.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>

#include "qt_text.h"
#include "text_table.h"

namespace mivo {
namespace {

QLabel* CreatePane(const QString& text, const char* objectName, QWidget* parent) {
  auto* const pane = new QLabel(text, parent);
  pane->setObjectName(QLatin1String(objectName));
  // Nothing moves when a lock goes on or off.
  QSizePolicy policy = pane->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  pane->setSizePolicy(policy);
  pane->hide();
  return pane;
}

bool MayChangeLocks(const QEvent& event) {
  switch (event.type()) {
    case QEvent::ApplicationStateChange:
      return true;
    case QEvent::KeyPress:
    case QEvent::KeyRelease: {
      const int key = static_cast<const QKeyEvent&>(event).key();
      return key == Qt::Key_CapsLock || key == Qt::Key_NumLock || key == Qt::Key_ScrollLock;
    }
    default:
      return false;
  }
}

}  // namespace

KeyLockPanes::KeyLockPanes(const TextTable& texts, Reader read, QWidget* parent)
    : QObject(parent),
      read_(std::move(read)),
      panes_{CreatePane(ToQString(texts.Text(StringId::CapsLock)), "capsLock", parent),
             CreatePane(ToQString(texts.Text(StringId::NumLock)), "numLock", parent),
             CreatePane(ToQString(texts.Text(StringId::ScrollLock)), "scrollLock", parent)} {
  // Whichever window has the focus.
  QCoreApplication::instance()->installEventFilter(this);
  // A program that starts is told when it becomes the active one, which is soon enough.
  if (QGuiApplication::applicationState() == Qt::ApplicationActive) Update();
}

bool KeyLockPanes::eventFilter(QObject* watched, QEvent* event) {
  if (MayChangeLocks(*event)) Update();
  return QObject::eventFilter(watched, event);
}

void KeyLockPanes::Update() {
  const KeyLocks locks = read_().value_or(KeyLocks());
  panes_[0]->setVisible(locks.caps);
  panes_[1]->setVisible(locks.num);
  panes_[2]->setVisible(locks.scroll);
}

}  // namespace mivo
