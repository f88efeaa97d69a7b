#include "grid_drawing.h"

#include <gtest/gtest.h>

#include <string>

#include "block_text_surface.h"
#include "colors.h"
#include "pixel_art.h"
#include "recording_surface.h"

namespace mivo {
namespace {

std::string Grid(PixelSize size, PixelPoint origin, const ViewScale& scale) {
  RasterImage image = WhiteImage(size);
  BlockTextSurface surface(image);
  surface.SetOrigin(origin);
  DrawGrid(surface, scale);
  return PixelArt(image);
}

// Every pixel of an image against the rule; returns the first that is wrong.
std::string FirstFault(const ViewScale& scale, PixelPoint origin) {
  const PixelSize size{130, 90};
  RasterImage image = WhiteImage(size);
  BlockTextSurface surface(image);
  surface.SetOrigin(origin);
  DrawGrid(surface, scale);
  for (std::int32_t row = 0; row < size.height; ++row) {
    for (std::int32_t column = 0; column < size.width; ++column) {
      const std::int32_t x = column + origin.x;
      const std::int32_t y = row + origin.y;
      const std::int32_t m = scale.multiplier;
      Color expected = colors::kWhite;
      if (x % m == 0 && y % m == 0) {
        const bool onLineX = x / m % 10 == 0;
        const bool onLineY = y / m % 10 == 0;
        if (onLineX && onLineY) {
          expected = colors::kGridCell;
        } else if (scale.factor >= 5) {
          expected = onLineX || onLineY ? colors::kGridCell : colors::kGridUnit;
        }
      }
      if (image.PixelAt(column, row) != expected) {
        return std::to_string(x) + "," + std::to_string(y);
      }
    }
  }
  return "none";
}

TEST(Grid, AtZoomFactor1OnlyEveryTenthPoint) {
  EXPECT_EQ(FirstFault({1, 1, 1, 1}, {-33, -27}), "none");
}

TEST(Grid, AtZoomFactor2OnlyEveryTenthPoint) {
  EXPECT_EQ(FirstFault({2, 1, 2, 1}, {-33, -27}), "none");
}

TEST(Grid, AtZoomFactor5EveryPoint) {
  EXPECT_EQ(FirstFault({5, 1, 5, 1}, {-33, -27}), "none");
}

TEST(Grid, AtZoomFactor10EveryPoint) {
  EXPECT_EQ(FirstFault({10, 1, 10, 1}, {-33, -27}), "none");
}

TEST(Grid, TheZoomTableDecidesOnFineDisplaysToo) {
  EXPECT_EQ(FirstFault({6, 1, 2, 1}, {-33, -27}), "none");
}

TEST(Grid, CoversAWindowFarFromTheBody) {
  EXPECT_EQ(FirstFault({5, 1, 5, 1}, {7003, 9999}), "none");
}

TEST(Grid, PointsGrowWithTheDisplay) {
  EXPECT_EQ(Grid({25, 23}, {-1, -1}, {2, 1, 1, 2}).substr(0, 4 * 26), Picture(R"(
      .........................
      .bb..................bb..
      .bb..................bb..
      .........................)"));
}

TEST(Grid, IsWrittenInRows) {
  RecordingSurface surface({40, 12});
  DrawGrid(surface, {5, 1, 5, 1});
  EXPECT_EQ(surface.TakeRecord(),
            "pixels y=0 x=0 #0000ff\n"
            "pixels y=0 x=-5,5,10,15,20,25,30,35,40,45 #0000ff\n"
            "pixels y=5 x=0 #0000ff\n"
            "pixels y=5 x=-5,5,10,15,20,25,30,35,40,45 #c0c0c0\n"
            "pixels y=10 x=0 #0000ff\n"
            "pixels y=10 x=-5,5,10,15,20,25,30,35,40,45 #c0c0c0\n");
}

TEST(VisibleUnits, EncloseTheSurface) {
  EXPECT_EQ(VisibleUnits({-7, -12, 23, 31}, {10, 1, 10, 1}), (SRect{-1, -2, 3, 4}));
}

}  // namespace
}  // namespace mivo
