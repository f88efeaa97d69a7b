#include "qt_surface.h"

#include <QPainter>
#include <QString>
#include <cstdint>

namespace mivo {
namespace {

QString ToQString(std::u16string_view text) {
  return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

QImage WrapImage(RasterImage& image) {
  const PixelSize size = image.Size();
  const bool isColor = image.Depth() == ImageDepth::Color;
  QImage wrapped(image.Bytes(), size.width, size.height, static_cast<qsizetype>(image.Stride()),
                 isColor ? QImage::Format_RGB32 : QImage::Format_Mono);
  if (!isColor) wrapped.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});
  return wrapped;
}

TextExtent QtSurface::MeasureText(std::u16string_view text, const Font& font) {
  const QFontMetrics& metrics = fonts_.Get(font).metrics;
  return {metrics.horizontalAdvance(ToQString(text)), metrics.ascent() + metrics.descent(),
          font.height};
}

void QtSurface::Text(PixelPoint at, std::u16string_view text, const Font& font, Color color) {
  if (text.empty()) return;
  const QtFonts::Entry& entry = fonts_.Get(font);
  const QString string = ToQString(text);
  const std::int64_t length = entry.metrics.horizontalAdvance(string);
  const std::int64_t cell = entry.metrics.ascent() + entry.metrics.descent();
  // Letters may lean out of their cells, but not by more than their height.
  const PixelRect& clip = Canvas().Clip();
  const std::int64_t left = at.x - cell;
  const std::int64_t right = at.x + (font.vertical ? cell : length) + cell;
  const std::int64_t top = at.y - (font.vertical ? length : 0) - cell;
  const std::int64_t bottom = at.y + (font.vertical ? 0 : cell) + cell;
  if (right < clip.left || left > clip.right || bottom < clip.top || top > clip.bottom) return;

  QImage image = WrapImage(Target());
  QPainter painter(&image);
  painter.setFont(Target().Depth() == ImageDepth::Color ? entry.smooth : entry.hardEdged);
  painter.setPen(QColor(color.red, color.green, color.blue));
  painter.translate(Canvas().Column(at.x), Canvas().Row(at.y));
  if (font.vertical) painter.rotate(-90);
  painter.drawText(QPoint(0, entry.metrics.ascent()), string);
}

}  // namespace mivo
