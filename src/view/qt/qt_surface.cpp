#include "qt_surface.h"

#include <QPainter>
#include <QString>
#include <algorithm>
#include <cstdint>

#include "qt_text.h"

namespace mivo {
namespace {

struct WrittenText {
  QString string;
  QFont font;
  std::int32_t ascent;
};

// `cell` is the top left corner of the text's cell.
void Write(QImage& image, QPoint cell, const WrittenText& text, QColor color) {
  QPainter painter(&image);
  painter.setFont(text.font);
  painter.setPen(color);
  painter.drawText(QPoint(cell.x(), cell.y() + text.ascent), text.string);
}

// Pixels in one direction: `first` up to but without `end`.
struct Stretch {
  std::int64_t first;
  std::int64_t end;
  [[nodiscard]] bool IsEmpty() const noexcept { return first >= end; }
  [[nodiscard]] int Length() const noexcept { return static_cast<int>(end - first); }
};

Stretch Overlap(Stretch a, Stretch b) noexcept {
  return {std::max(a.first, b.first), std::min(a.end, b.end)};
}

Color Blended(Color under, Color over, int alpha) noexcept {
  const auto mixed = [alpha](int from, int to) {
    return static_cast<std::uint8_t>((from * (255 - alpha) + to * alpha + 127) / 255);
  };
  return {mixed(under.red, over.red), mixed(under.green, over.green), mixed(under.blue, over.blue)};
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
  const bool isColor = Target().Depth() == ImageDepth::Color;
  const WrittenText written{ToQString(text), isColor ? entry.smooth : entry.hardEdged,
                            entry.metrics.ascent()};

  // What can be seen, along and across the text from the corner of its cell. Letters may lean out
  // of the cell, but not by more than its height.
  const std::int64_t cell = entry.metrics.ascent() + entry.metrics.descent();
  const std::int64_t length = entry.metrics.horizontalAdvance(written.string);
  const PixelRect& clip = Canvas().Clip();
  const std::int64_t x = at.x;
  const std::int64_t y = at.y;
  const Stretch along =
      Overlap({-cell, length + cell}, font.vertical ? Stretch{y - clip.bottom, y - clip.top}
                                                    : Stretch{clip.left - x, clip.right - x});
  const Stretch across =
      Overlap({-cell, 2 * cell}, font.vertical ? Stretch{clip.left - x, clip.right - x}
                                               : Stretch{clip.top - y, clip.bottom - y});
  if (along.IsEmpty() || across.IsEmpty()) return;

  if (!font.vertical) {
    QImage image = WrapImage(Target());
    Write(image, {Canvas().Column(x), Canvas().Row(y)}, written,
          QColor(color.red, color.green, color.blue));
    return;
  }
  // Turned pixel by pixel, so that small letters are as clear upright as lying. A painter that
  // turns them itself can no longer fit them to the pixels.
  QImage coverage(along.Length(), across.Length(), QImage::Format_RGB32);
  coverage.fill(Qt::black);
  Write(coverage, {static_cast<int>(-along.first), static_cast<int>(-across.first)}, written,
        Qt::white);
  for (int row = 0; row < coverage.height(); ++row) {
    const auto* const line = reinterpret_cast<const QRgb*>(coverage.constScanLine(row));
    const std::int32_t targetX = Canvas().Column(x + across.first + row);
    for (int column = 0; column < coverage.width(); ++column) {
      const int alpha = qGreen(line[column]);
      if (alpha == 0) continue;
      const std::int32_t targetY = Canvas().Row(y - 1 - along.first - column);
      Target().SetPixel(targetX, targetY,
                        Blended(Target().PixelAt(targetX, targetY), color, alpha));
    }
  }
}

}  // namespace mivo
