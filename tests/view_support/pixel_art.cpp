#include "pixel_art.h"

#include <algorithm>
#include <cstddef>

namespace mivo {
namespace {

char SignOf(Color c) {
  if (c == Color{255, 255, 255}) return '.';
  if (c == Color{0, 0, 0}) return '#';
  if (c.red > c.green && c.red > c.blue) return 'r';
  if (c.green > c.red && c.green > c.blue) return 'g';
  if (c.blue > c.red && c.blue > c.green) return 'b';
  return '+';
}

}  // namespace

RasterImage WhiteImage(PixelSize size) {
  RasterImage image = RasterImage::Create(size, ImageDepth::Color).value();
  for (std::int32_t y = 0; y < size.height; ++y) {
    image.FillSpan(y, 0, size.width, {255, 255, 255});
  }
  return image;
}

std::string PixelArt(const RasterImage& image) {
  std::string art;
  for (std::int32_t y = 0; y < image.Size().height; ++y) {
    for (std::int32_t x = 0; x < image.Size().width; ++x) {
      art.push_back(SignOf(image.PixelAt(x, y)));
    }
    art.push_back('\n');
  }
  return art;
}

std::string Picture(std::string_view rows) {
  std::string picture;
  while (!rows.empty()) {
    const std::size_t end = rows.find('\n');
    std::string_view row = rows.substr(0, end);
    row.remove_prefix(std::min(row.find_first_not_of(' '), row.size()));
    if (!row.empty()) picture.append(row).push_back('\n');
    rows.remove_prefix(end == std::string_view::npos ? rows.size() : end + 1);
  }
  return picture;
}

}  // namespace mivo
