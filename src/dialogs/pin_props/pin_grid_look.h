#ifndef MIVO_DIALOGS_PIN_GRID_LOOK_H
#define MIVO_DIALOGS_PIN_GRID_LOOK_H

#include <QFont>

class QPainter;
class QPalette;
class QPixmap;
class QRect;
class QWidget;

// What the parts of the pin grid have in common.

namespace mivo {

/// Device-independent pixels per pixel of a display of 96 dots per inch.
[[nodiscard]] double PinGridScale(const QWidget& widget);

[[nodiscard]] QFont PinGridFont(const QWidget& widget);

/// Draws the picture of a style in the middle of a cell.
void DrawStylePicture(QPainter& painter, const QRect& cell, const QPixmap& picture);

/// Marks cells, which were drawn before, as selected.
void MarkSelected(QPainter& painter, const QRect& cells, const QPalette& palette, bool hasFocus);

}  // namespace mivo

#endif
