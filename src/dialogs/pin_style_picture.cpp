#include "pin_style_picture.h"

#include <QImage>
#include <optional>

#include "colors.h"
#include "pin_drawing.h"
#include "qt_surface.h"
#include "raster_image.h"

namespace mivo {
namespace {

ViewScale ScaleOf(double pixelsPerUnit) {
  constexpr std::int32_t kDivisor = 16;  // fine enough for any size of font
  return {.multiplier = std::max(TruncateToInt(pixelsPerUnit * kDivisor + 0.5), kDivisor),
          .divisor = kDivisor,
          .factor = 1,
          .markPixels = 1};
}

}  // namespace

QPixmap PinStylePicture(std::int32_t style, std::u16string_view name, const SRect& area,
                        const SCommonFont& font, double pixelsPerUnit, double devicePixelRatio) {
  const ViewScale scale = ScaleOf(pixelsPerUnit * devicePixelRatio);
  const PixelPoint first = scale.Map(area.TopLeft());
  const PixelPoint last = scale.Map(area.BottomRight());
  std::optional<RasterImage> image =
      RasterImage::Create({last.x - first.x, last.y - first.y}, ImageDepth::Color);
  if (!image) return {};

  QtFonts fonts;
  QtSurface surface(*image, fonts);
  surface.SetOrigin(first);
  surface.FillRect({first.x, first.y, last.x, last.y}, colors::kBackground);
  surface.Line({0, first.y}, {0, last.y}, {.color = colors::kBody, .width = scale.UnitWidth()});
  const PinPicture pin{.point = {}, .type = style, .name = name, .number = u"1"};
  DrawPin(surface, pin, kDrawNormal, scale, font, nullptr);

  QPixmap picture = QPixmap::fromImage(WrapImage(*image).copy());
  picture.setDevicePixelRatio(devicePixelRatio);
  return picture;
}

}  // namespace mivo
