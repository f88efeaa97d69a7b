#include "pin_style_picture.h"

#include <QImage>
#include <optional>

#include "colors.h"
#include "pin_drawing.h"
#include "qt_surface.h"
#include "raster_image.h"

namespace mivo {
namespace {

// Component units, counted from where the pin meets the body.
constexpr SRect kArea{-26, -13, 40, 9};

ViewScale ScaleOf(double pixelsPerUnit) {
  constexpr std::int32_t kDivisor = 16;  // fine enough for any size of font
  return {.multiplier = std::max(TruncateToInt(pixelsPerUnit * kDivisor + 0.5), kDivisor),
          .divisor = kDivisor,
          .factor = 1,
          .markPixels = 1};
}

}  // namespace

QPixmap PinStylePicture(std::int32_t style, const SCommonFont& font, double pixelsPerUnit,
                        double devicePixelRatio) {
  const ViewScale scale = ScaleOf(pixelsPerUnit * devicePixelRatio);
  const PixelPoint first = scale.Map(kArea.TopLeft());
  const PixelPoint last = scale.Map(kArea.BottomRight());
  std::optional<RasterImage> image =
      RasterImage::Create({last.x - first.x, last.y - first.y}, ImageDepth::Color);
  if (!image) return {};

  QtFonts fonts;
  QtSurface surface(*image, fonts);
  surface.SetOrigin(first);
  surface.FillRect({first.x, first.y, last.x, last.y}, colors::kBackground);
  surface.Line({0, first.y}, {0, last.y}, {.color = colors::kBody, .width = scale.UnitWidth()});
  const PinPicture pin{.point = {}, .type = style, .name = u"NAME", .number = u"1"};
  DrawPin(surface, pin, kDrawNormal, scale, font, nullptr);

  QPixmap picture = QPixmap::fromImage(WrapImage(*image).copy());
  picture.setDevicePixelRatio(devicePixelRatio);
  return picture;
}

}  // namespace mivo
