#ifndef MIVO_DIALOGS_PIN_STYLE_PICTURE_H
#define MIVO_DIALOGS_PIN_STYLE_PICTURE_H

#include <QPixmap>
#include <cstdint>
#include <string_view>

#include "common_font.h"
#include "geometry.h"

namespace mivo {

/// A pin of a style (see SCompPin::type) at the edge of a body, as the view draws it. `area` is
/// what is seen, in component units from where the pin meets the body; `pixelsPerUnit` is the size
/// of a component unit in logical pixels.
[[nodiscard]] QPixmap PinStylePicture(std::int32_t style, std::u16string_view name,
                                      const SRect& area, const SCommonFont& font,
                                      double pixelsPerUnit, double devicePixelRatio);

}  // namespace mivo

#endif
