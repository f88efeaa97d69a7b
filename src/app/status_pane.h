#ifndef MIVO_APP_STATUS_PANE_H
#define MIVO_APP_STATUS_PANE_H

#include <QWidget>
#include <cstdint>
#include <optional>

#include "geometry.h"

class QLabel;
class QProgressBar;

namespace mivo {

class ElidedLabel;
class TextTable;

/// The first pane of the status bar: one line of words, then the pointer's position in cells, the
/// zoom, and the selected name's position among all names.
///
/// The words are one of these, the first that there is: how far a long task has come, what the
/// command under the pointer does, what happened last, what the tool expects next. The numbers have
/// places of their own that keep their width, so nothing moves while the pointer does.
class StatusPane final : public QWidget {
  Q_OBJECT

 public:
  explicit StatusPane(const TextTable& texts, QWidget* parent = nullptr);

  /// What the tool expects next. Another hint than before takes the note away: the user went on.
  void SetHint(const QString& hint);
  /// What happened; empty when there is nothing to tell.
  void ShowNote(const QString& note);
  /// What the command under the pointer does; empty when there is none.
  void ShowTip(const QString& tip);

  /// In component units; nothing while the pointer is elsewhere.
  void SetPlace(std::optional<SPoint> point);
  /// Logical pixels per component unit; nothing without a component.
  void SetZoom(std::optional<std::int32_t> factor);
  /// The selected row, -1 for none, among `count` names.
  void SetNames(int row, int count);

  /// Says what is going on, and how much of it is done: 0 to 1.
  void ShowProgress(const QString& what, double done);
  void HideProgress();

 protected:
  void changeEvent(QEvent* event) override;

 private:
  [[nodiscard]] QLabel* AddField(const char* objectName, const QString& name);
  void ShowWords();
  void KeepWidths();

  QString hint_;
  QString note_;
  QString tip_;
  QString task_;
  int nameCount_ = 0;

  ElidedLabel* words_;
  QProgressBar* progress_;
  QLabel* place_;
  QLabel* zoom_;
  QLabel* names_;
};

}  // namespace mivo

#endif
