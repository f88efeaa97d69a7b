#include "pin_style_pictures.h"

#include "pin_style_picture.h"

namespace mivo {
namespace {

// A pin with a number of one digit; there is no room for a name.
constexpr SRect kArea{-17, -11, 10, 5};

}  // namespace

const QPixmap& PinStylePictures::Get(std::int32_t style, double devicePixelRatio) {
  if (devicePixelRatio != drawnRatio_ || font_ != drawnFont_) {
    pictures_.clear();
    drawnRatio_ = devicePixelRatio;
    drawnFont_ = font_;
  }
  const auto found = pictures_.find(style);
  if (found != pictures_.end()) return found->second;
  const double pixelsPerUnit = static_cast<double>(height_) / (kArea.bottom - kArea.top);
  return pictures_[style] =
             PinStylePicture(style, {}, kArea, font_, pixelsPerUnit, devicePixelRatio);
}

}  // namespace mivo
