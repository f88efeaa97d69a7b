#ifndef MIVO_DIALOGS_STYLE_CHOOSER_H
#define MIVO_DIALOGS_STYLE_CHOOSER_H

#include <QComboBox>

namespace mivo {

/// The list of styles that drops down from a cell. It closes when a style is chosen or when the
/// user turns away from it.
class StyleChooser final : public QComboBox {
  Q_OBJECT

 public:
  explicit StyleChooser(QWidget* parent);

  /// Adds an entry; `name` is for those who cannot see its picture.
  void AddStyle(const QString& name);
  void SetPicture(int entry, const QPixmap& picture);

  /// Drops down in `cell` of the parent with `entry` marked.
  void Open(int entry, const QRect& cell);

  bool eventFilter(QObject* watched, QEvent* event) override;

 signals:
  /// The list has gone, after a choice or without one.
  void Dismissed();
};

}  // namespace mivo

#endif
