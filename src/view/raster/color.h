#ifndef MIVO_VIEW_RASTER_COLOR_H
#define MIVO_VIEW_RASTER_COLOR_H

#include <cstdint>

namespace mivo {

struct Color {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  bool operator==(const Color&) const = default;
};

}  // namespace mivo

#endif
