#ifndef MIVO_TESTS_VIEW_QT_SHEET_H
#define MIVO_TESTS_VIEW_QT_SHEET_H

#include <cstdint>
#include <functional>

#include "colors.h"
#include "pixel_art.h"
#include "qt_surface.h"
#include "view_scale.h"

namespace mivo {

/// A white picture divided into equal tiles, in each of which component point (0, 0) is somewhere
/// of its own.
class Sheet {
 public:
  /// `tile` in component units.
  Sheet(std::int32_t columns, std::int32_t rows, SPoint tile, std::int32_t zoom)
      : tile_(tile),
        zoom_(zoom),
        image_(WhiteImage({columns * tile.x * zoom, rows * tile.y * zoom})),
        surface_(image_, fonts_) {}

  /// Lets `draw` draw in a tile with component point (0, 0) at `zero` from the tile's corner.
  void Draw(std::int32_t column, std::int32_t row, SPoint zero,
            const std::function<void(DrawingSurface&, const ViewScale&)>& draw) {
    surface_.SetOrigin({-(column * tile_.x + zero.x) * zoom_, -(row * tile_.y + zero.y) * zoom_});
    draw(surface_, {zoom_, 1, zoom_, 1});
  }

  [[nodiscard]] RasterImage& Image() { return image_; }

 private:
  SPoint tile_;
  std::int32_t zoom_;
  QtFonts fonts_;
  RasterImage image_;
  QtSurface surface_;
};

}  // namespace mivo

#endif
