#ifndef MIVO_APP_COMMAND_ICON_H
#define MIVO_APP_COMMAND_ICON_H

#include <QIcon>

#include "command.h"

namespace mivo {

/// The icon of a command: strokes in the text colour of the palette in use, so that it can be read
/// on light and dark toolbars alike, at any size. Null for a command without an icon.
[[nodiscard]] QIcon CommandIcon(Command command);

/// The program's own icon.
[[nodiscard]] QIcon ProgramIcon();

}  // namespace mivo

#endif
