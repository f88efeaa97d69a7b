#ifndef MIVO_APP_ELIDED_LABEL_H
#define MIVO_APP_ELIDED_LABEL_H

#include <QLabel>

namespace mivo {

/// One line of text that gives way: what does not fit is cut off with an ellipsis and stands in the
/// tool tip, and a long text never pushes its neighbours or the window.
class ElidedLabel final : public QLabel {
  Q_OBJECT

 public:
  explicit ElidedLabel(QWidget* parent = nullptr);

  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;

 private:
  [[nodiscard]] QString Shown() const;
};

}  // namespace mivo

#endif
