#ifndef MIVO_BENCH_FIRST_PAINT_H
#define MIVO_BENCH_FIRST_PAINT_H

#include <QObject>
#include <functional>

class QWidget;

namespace mivo::bench {

/// Calls `then` once, as soon as `window` has been painted and the X server has drawn all of it.
class FirstPaint final : public QObject {
 public:
  FirstPaint(QWidget& window, std::function<void()> then);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget& window_;
  std::function<void()> then_;
};

}  // namespace mivo::bench

#endif
