#ifndef MIVO_DIALOGS_PIN_STYLE_PICTURE_H
#define MIVO_DIALOGS_PIN_STYLE_PICTURE_H

#include <QPixmap>
#include <cstdint>

#include "common_font.h"

namespace mivo {

/// A pin of a style (see SCompPin::type) at the edge of a body, as the view draws it.
/// `pixelsPerUnit` is the size of a component unit in logical pixels.
[[nodiscard]] QPixmap PinStylePicture(std::int32_t style, const SCommonFont& font,
                                      double pixelsPerUnit, double devicePixelRatio);

}  // namespace mivo

#endif
