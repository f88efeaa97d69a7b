#ifndef MIVO_APP_START_LABEL_H
#define MIVO_APP_START_LABEL_H

#include <QWidget>

namespace mivo {

class TextTable;

/// Tells over the empty view what to do next. The mouse goes through it, so that the view under it
/// stays what it is.
class StartLabel final : public QWidget {
  Q_OBJECT

 public:
  /// Fills `area`, whose background is white under every theme, and writes in its middle.
  StartLabel(const TextTable& texts, QWidget& area);
};

}  // namespace mivo

#endif
