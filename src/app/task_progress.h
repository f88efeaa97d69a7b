#ifndef MIVO_APP_TASK_PROGRESS_H
#define MIVO_APP_TASK_PROGRESS_H

#include <QString>
#include <chrono>
#include <functional>

#include "progress.h"

namespace mivo {

class StatusPane;

/// Shows how far a task has come, once it takes longer than a second, and lets the windows repaint
/// meanwhile. Keys and clicks wait until the task is over. Whatever else may come in between, such
/// as a wish of the desktop to close the window, is its receiver's business.
class TaskProgress final : public ProgressSink {
 public:
  using Clock = std::function<std::chrono::steady_clock::time_point()>;

  static constexpr std::chrono::milliseconds kPatience{1000};
  /// Between two pictures of the progress.
  static constexpr std::chrono::milliseconds kInterval{50};

  /// The task begins. `pane` must outlive this.
  TaskProgress(StatusPane& pane, QString what, Clock clock);
  /// The task is over.
  ~TaskProgress() override;
  TaskProgress(const TaskProgress&) = delete;
  TaskProgress& operator=(const TaskProgress&) = delete;

  void Advance(std::uint64_t done, std::uint64_t total) override;

 private:
  StatusPane& pane_;
  QString what_;
  Clock clock_;
  std::chrono::steady_clock::time_point nextPicture_;
  bool shown_ = false;
};

}  // namespace mivo

#endif
