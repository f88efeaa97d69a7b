#include "area_fill.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <vector>

#include "ellipse_ring.h"
#include "hairline.h"
#include "pixel_art.h"

namespace mivo {
namespace {

constexpr Color kBlack{0, 0, 0};
constexpr Color kRed{255, 0, 0};
constexpr std::int32_t kSmallest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();

class AreaFill : public testing::Test {
 protected:
  std::string Art() const { return PixelArt(image_); }

  RasterImage image_ = WhiteImage({9, 7});
  RasterCanvas canvas_{image_, {}};
};

TEST_F(AreaFill, ABoxHasNoRightAndBottomEdge) {
  FillBox(canvas_, {1, 1, 4, 3}, kBlack);
  EXPECT_EQ(Art(), Picture(R"(
      .........
      .###.....
      .###.....
      .........
      .........
      .........
      .........)"));
}

TEST_F(AreaFill, ABoxIsCutOffAtTheImage) {
  FillBox(canvas_, {7, kSmallest, kLargest, 1}, kBlack);
  FillBox(canvas_, {4, 4, 4, 9}, kBlack);
  EXPECT_EQ(Art(), Picture(R"(
      .......##
      .........
      .........
      .........
      .........
      .........
      .........)"));
}

TEST_F(AreaFill, AnEllipseFillsUpToItsOutline) {
  for (std::int32_t width = 1; width <= 30; ++width) {
    for (std::int32_t height = 1; height <= 30; ++height) {
      const PixelRect box{1, 1, 1 + width, 1 + height};
      RasterImage image = WhiteImage({32, 32});
      RasterCanvas canvas(image, {});
      FillEllipse(canvas, box, kBlack);
      Hairline(canvas, kRed, false).Pixels(EllipseRing(box));
      for (std::int32_t y = 0; y < 32; ++y) {
        // From the first outline pixel of a row to the last one there is no hole, and nothing else.
        std::string row = PixelArt(image).substr(static_cast<std::size_t>(y) * 33, 32);
        const std::size_t first = row.find('r');
        const std::size_t last = row.rfind('r');
        for (std::size_t x = 0; x < row.size(); ++x) {
          const bool inside = first != std::string::npos && first <= x && x <= last;
          ASSERT_EQ(row[x] != '.', inside) << width << " x " << height << " at " << x << ", " << y;
        }
      }
    }
  }
}

TEST_F(AreaFill, AHugeEllipseFillsWhatCanBeSeen) {
  FillEllipse(canvas_, {4, kSmallest, kLargest, kLargest}, kBlack);
  EXPECT_EQ(Art().substr(0, 10), "....#####\n");
}

TEST_F(AreaFill, APolygonFillsByTheAlternatingRule) {
  // A path that goes around the middle twice.
  const std::array<PixelPoint, 11> points = {
      {{0, 0}, {8, 0}, {8, 6}, {0, 6}, {0, 0}, {2, 2}, {6, 2}, {6, 4}, {2, 4}, {2, 2}, {0, 0}}};
  FillPolygon(canvas_, points, kBlack);
  EXPECT_EQ(Art().substr(3 * 10, 9), "###...###");
}

TEST_F(AreaFill, ATriangle) {
  const std::array<PixelPoint, 3> points = {{{4, 0}, {8, 4}, {0, 4}}};
  FillPolygon(canvas_, points, kBlack);
  Hairline(canvas_, kRed, false).Polyline(points, true);
  EXPECT_EQ(Art(), Picture(R"(
      ....r....
      ...r#r...
      ..r###r..
      .r#####r.
      rrrrrrrrr
      .........
      .........)"));
}

TEST_F(AreaFill, AFarPolygonFillsWhatCanBeSeen) {
  const std::array<PixelPoint, 4> points = {
      {{kSmallest, kSmallest}, {kLargest, kSmallest}, {kLargest, kLargest}, {kSmallest, kLargest}}};
  FillPolygon(canvas_, points, kBlack);
  EXPECT_EQ(Art().find('.'), std::string::npos);
}

TEST_F(AreaFill, BitsAreStretched) {
  const std::array<std::uint8_t, 4> bytes = {0xA0, 0, 0x40, 0};
  FillBits(canvas_, {1, 1, 7, 5}, {bytes, 3, 2, 2}, kBlack);
  EXPECT_EQ(Art(), Picture(R"(
      .........
      .##..##..
      .##..##..
      ...##....
      ...##....
      .........
      .........)"));
}

TEST_F(AreaFill, ShrunkenBitsKeepWhatIsSet) {
  const std::array<std::uint8_t, 4> bytes = {0x08, 0, 0x01, 0};
  FillBits(canvas_, {2, 2, 6, 3}, {bytes, 8, 2, 2}, kBlack);
  EXPECT_EQ(Art(), Picture(R"(
      .........
      .........
      ....##...
      .........
      .........
      .........
      .........)"));
}

TEST_F(AreaFill, BitsAreCutOffAtTheImageWithoutShifting) {
  const std::array<std::uint8_t, 2> bytes = {0xAA, 0};
  FillBits(canvas_, {-6, -1, 10, 1}, {bytes, 8, 1, 2}, kBlack);
  EXPECT_EQ(Art().substr(0, 20), "..##..##.\n.........\n");
}

TEST(BitImageView, HasNoBitsOutside) {
  const std::array<std::uint8_t, 3> bytes = {0xFF, 0xFF, 0xFF};
  const BitImageView view{bytes, 10, 2, 2};
  EXPECT_TRUE(view.At(9, 0));
  EXPECT_TRUE(view.At(7, 1));
  EXPECT_FALSE(view.At(8, 1)) << "behind the end of the bytes";
  EXPECT_FALSE(view.At(10, 0));
  EXPECT_FALSE(view.At(-1, 0));
  EXPECT_FALSE(view.At(0, 2));
  EXPECT_FALSE(view.At(0, -1));
}

TEST_F(AreaFill, ADottedFrameInvertsEveryOtherPixel) {
  FillBox(canvas_, {0, 0, 9, 2}, kBlack);
  InvertDottedFrame(canvas_, {1, 1, 8, 6});
  EXPECT_EQ(Art(), Picture(R"(
      #########
      #.#.#.#.#
      .........
      .#.....#.
      .........
      .#.#.#.#.
      .........)"));
}

TEST_F(AreaFill, ADottedFrameTwiceIsNone) {
  const std::string before = Art();
  InvertDottedFrame(canvas_, {kSmallest, 2, kLargest, 5});
  EXPECT_NE(Art(), before);
  InvertDottedFrame(canvas_, {kSmallest, 2, kLargest, 5});
  EXPECT_EQ(Art(), before);
}

TEST_F(AreaFill, ThinAndEmptyDottedFrames) {
  InvertDottedFrame(canvas_, {0, 0, 5, 1});
  InvertDottedFrame(canvas_, {8, 0, 9, 5});
  InvertDottedFrame(canvas_, {2, 4, 2, 6});
  EXPECT_EQ(Art(), Picture(R"(
      #.#.#...#
      .........
      ........#
      .........
      ........#
      .........
      .........)"));
}

}  // namespace
}  // namespace mivo
