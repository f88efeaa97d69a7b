#ifndef MIVO_DIALOGS_PIN_STYLE_PICTURES_H
#define MIVO_DIALOGS_PIN_STYLE_PICTURES_H

#include <QPixmap>
#include <cstdint>
#include <map>

#include "common_font.h"

namespace mivo {

/// The pictures of pin styles for the pin grid, each drawn once.
class PinStylePictures {
 public:
  /// Pictures that fill rows of `height` logical pixels. The font must outlive them; it may change.
  PinStylePictures(const SCommonFont& font, int height) : font_(font), height_(height) {}

  /// The picture of a style (see SCompPin::type) for a display. Good until the next call.
  [[nodiscard]] const QPixmap& Get(std::int32_t style, double devicePixelRatio);

 private:
  const SCommonFont& font_;
  int height_;
  SCommonFont drawnFont_;
  double drawnRatio_ = 0;
  std::map<std::int32_t, QPixmap> pictures_;
};

}  // namespace mivo

#endif
