#include "task_progress.h"

#include <QGuiApplication>
#include <algorithm>
#include <utility>

#include "status_pane.h"

namespace mivo {

TaskProgress::TaskProgress(StatusPane& pane, QString what, Clock clock)
    : pane_(pane),
      what_(std::move(what)),
      clock_(std::move(clock)),
      nextPicture_(clock_() + kPatience) {}

TaskProgress::~TaskProgress() {
  if (!shown_) return;
  pane_.HideProgress();
  QGuiApplication::restoreOverrideCursor();
}

void TaskProgress::Advance(std::uint64_t done, std::uint64_t total) {
  const auto now = clock_();
  if (now < nextPicture_) return;
  nextPicture_ = now + kInterval;
  if (!shown_) QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  shown_ = true;
  const double part =
      total > 0 ? std::min(1.0, static_cast<double>(done) / static_cast<double>(total)) : 0;
  pane_.ShowProgress(what_, part);
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace mivo
