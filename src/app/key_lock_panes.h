#ifndef MIVO_APP_KEY_LOCK_PANES_H
#define MIVO_APP_KEY_LOCK_PANES_H

#include <QObject>
#include <array>
#include <functional>
#include <optional>

#include "key_locks.h"

class QLabel;
class QWidget;

namespace mivo {

class TextTable;

/// The panes of the status bar that tell which locks of the keyboard are on: a word each, or as
/// much empty space. They follow the keys, and look again when the user comes back from another
/// program.
class KeyLockPanes final : public QObject {
  Q_OBJECT

 public:
  using Reader = std::function<std::optional<KeyLocks>()>;

  /// The panes are children of `parent`.
  KeyLockPanes(const TextTable& texts, Reader read, QWidget* parent);

  /// Caps, Num and Scroll Lock.
  [[nodiscard]] const std::array<QLabel*, 3>& Panes() const noexcept { return panes_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Update();

  Reader read_;
  std::array<QLabel*, 3> panes_;
};

}  // namespace mivo

#endif
