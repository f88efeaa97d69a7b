#ifndef MIVO_APP_MANUAL_WINDOW_H
#define MIVO_APP_MANUAL_WINDOW_H

#include <QDialog>
#include <QString>

namespace mivo {

class TextTable;

/// The manual's file for a program in this folder: that of an installed program, of one that was
/// unpacked somewhere, or of the source tree in which it was built. Empty when there is none.
[[nodiscard]] QString FindManual(const QString& programFolder);

/// Shows the manual in a window of the program, so that it opens on every system. Stays open beside
/// the work.
class ManualWindow final : public QDialog {
  Q_OBJECT

 public:
  ManualWindow(const TextTable& texts, const QString& file, QWidget* parent);
};

}  // namespace mivo

#endif
