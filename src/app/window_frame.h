#ifndef MIVO_APP_WINDOW_FRAME_H
#define MIVO_APP_WINDOW_FRAME_H

#include <QMargins>

class QWidget;

namespace mivo {

/// What the window's kept size counts besides its contents, in logical pixels: on Windows the frame
/// that the system draws around it, elsewhere nothing, since window managers differ there.
[[nodiscard]] QMargins CountedFrame(const QWidget& window);

}  // namespace mivo

#endif
