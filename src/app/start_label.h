#ifndef MIVO_APP_START_LABEL_H
#define MIVO_APP_START_LABEL_H

#include <QLabel>

namespace mivo {

class TextTable;

/// Tells over the empty view what to do next. The mouse goes through it, so that the view under it
/// stays what it is. It lays its texts out when it is painted: a start with a file never does.
class StartLabel final : public QLabel {
  Q_OBJECT

 public:
  /// Fills `area`, whose background is white under every theme, and writes in its middle.
  StartLabel(const TextTable& texts, QWidget& area);

  [[nodiscard]] QSize sizeHint() const override { return {}; }
  [[nodiscard]] QSize minimumSizeHint() const override { return {}; }

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace mivo

#endif
