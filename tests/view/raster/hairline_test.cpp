#include "hairline.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <array>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <vector>

#include "pixel_art.h"

namespace mivo {
namespace {

constexpr Color kBlack{0, 0, 0};
constexpr std::int32_t kSmallest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();

std::string Drawn(PixelSize size, PixelPoint origin, const std::vector<PixelPoint>& points,
                  bool closed, bool dotted) {
  RasterImage image = WhiteImage(size);
  RasterCanvas canvas(image, origin);
  Hairline(canvas, kBlack, dotted).Polyline(points, closed);
  return PixelArt(image);
}

TEST(Hairline, CoversBothEnds) {
  EXPECT_EQ(Drawn({6, 3}, {}, {{1, 1}, {4, 1}}, false, false), Picture(R"(
      ......
      .####.
      ......)"));
}

TEST(Hairline, CoversThePixelNearestToTheLine) {
  EXPECT_EQ(Drawn({8, 4}, {}, {{0, 0}, {7, 3}}, false, false), Picture(R"(
      ##......
      ..##....
      ....##..
      ......##)"));
}

TEST(Hairline, APointIsOnePixel) {
  EXPECT_EQ(Drawn({3, 3}, {}, {{1, 1}}, false, false), Picture(R"(
      ...
      .#.
      ...)"));
  EXPECT_EQ(Drawn({3, 3}, {}, {{1, 1}, {1, 1}}, true, true), Picture(R"(
      ...
      .#.
      ...)"));
}

TEST(Hairline, OneStepPerPixelOfTheLongerAxis) {
  for (std::int32_t dx = -9; dx <= 9; ++dx) {
    for (std::int32_t dy = -9; dy <= 9; ++dy) {
      const std::string art = Drawn({19, 19}, {-9, -9}, {{0, 0}, {dx, dy}}, false, false);
      EXPECT_EQ(std::count(art.begin(), art.end(), '#'), std::max(std::abs(dx), std::abs(dy)) + 1);
      EXPECT_EQ(art, Drawn({19, 19}, {-9, -9}, {{dx, dy}, {0, 0}}, false, false))
          << dx << ", " << dy;
    }
  }
}

TEST(Hairline, DotsAreThreeOnThreeOff) {
  EXPECT_EQ(Drawn({16, 1}, {}, {{0, 0}, {15, 0}}, false, true), Picture("###...###...###."));
  EXPECT_EQ(Drawn({16, 1}, {}, {{15, 0}, {0, 0}}, false, true), Picture(".###...###...###"));
}

TEST(Hairline, DotsOfASlopingLineCountItsPixels) {
  EXPECT_EQ(Drawn({7, 7}, {}, {{0, 0}, {6, 6}}, false, true), Picture(R"(
      #......
      .#.....
      ..#....
      .......
      .......
      .......
      ......#)"));
}

TEST(Hairline, DotsGoOnAroundCornersWithoutCountingThemTwice) {
  EXPECT_EQ(Drawn({5, 5}, {}, {{0, 0}, {4, 0}, {4, 4}}, false, true), Picture(R"(
      ###..
      .....
      ....#
      ....#
      ....#)"));
}

TEST(Hairline, AClosedPathReturnsToItsStart) {
  EXPECT_EQ(Drawn({5, 4}, {}, {{0, 0}, {4, 0}, {4, 3}, {0, 3}}, true, false), Picture(R"(
      #####
      #...#
      #...#
      #####)"));
  // 14 pixels around: the last two of them are dots again.
  EXPECT_EQ(Drawn({5, 4}, {}, {{0, 0}, {4, 0}, {4, 3}, {0, 3}}, true, true), Picture(R"(
      ###..
      #....
      #...#
      ...##)"));
}

TEST(Hairline, PathPixelsAreDottedInOrder) {
  RasterImage image = WhiteImage({8, 1});
  RasterCanvas canvas(image, {});
  std::vector<PixelPoint> path;
  for (std::int32_t x = 7; x >= 0; --x) path.push_back({x, 0});
  Hairline(canvas, kBlack, true).Pixels(path);
  EXPECT_EQ(PixelArt(image), Picture("##...###"));
}

PixelPoint AnyPoint() {
  return {*rc::gen::inRange(-60, 60), *rc::gen::inRange(-60, 60)};
}

RC_GTEST_PROP(HairlineProperty, AClippedPathIsACutOutOfTheWhole, ()) {
  const std::vector<PixelPoint> points{AnyPoint(), AnyPoint(), AnyPoint()};
  const bool closed = *rc::gen::arbitrary<bool>();
  const bool dotted = *rc::gen::arbitrary<bool>();
  RasterImage whole = WhiteImage({120, 120});
  RasterCanvas wholeCanvas(whole, {-60, -60});
  Hairline(wholeCanvas, kBlack, dotted).Polyline(points, closed);

  const PixelSize size{*rc::gen::inRange(1, 40), *rc::gen::inRange(1, 40)};
  const PixelPoint origin{*rc::gen::inRange(-60, 60 - size.width),
                          *rc::gen::inRange(-60, 60 - size.height)};
  RasterImage part = WhiteImage(size);
  RasterCanvas partCanvas(part, origin);
  Hairline(partCanvas, kBlack, dotted).Polyline(points, closed);
  for (std::int32_t y = 0; y < size.height; ++y) {
    for (std::int32_t x = 0; x < size.width; ++x) {
      RC_ASSERT(part.PixelAt(x, y) == whole.PixelAt(x + origin.x + 60, y + origin.y + 60));
    }
  }
}

struct FarCase {
  PixelPoint from;
  PixelPoint to;
  const char* picture;
};

class FarHairline : public testing::TestWithParam<FarCase> {};

TEST_P(FarHairline, PassesWhereItShould) {
  EXPECT_EQ(Drawn({5, 3}, {-2, -1}, {GetParam().from, GetParam().to}, false, false),
            Picture(GetParam().picture));
}

INSTANTIATE_TEST_SUITE_P(
    Lines, FarHairline,
    testing::Values(FarCase{{kSmallest, 0}, {kLargest, 0}, ".....\n#####\n....."},
                    FarCase{{0, kLargest}, {0, kSmallest}, "..#..\n..#..\n..#.."},
                    FarCase{{kSmallest, kSmallest}, {kLargest, kLargest}, ".#...\n..#..\n...#."},
                    FarCase{{-kLargest, kLargest}, {kLargest, -kLargest}, "...#.\n..#..\n.#..."},
                    FarCase{{kSmallest, -1}, {kLargest, 1}, ".....\n#####\n....."},
                    FarCase{{kSmallest, kSmallest}, {kLargest, kSmallest}, ".....\n.....\n....."},
                    FarCase{{3, kSmallest}, {3, kLargest}, ".....\n.....\n....."}));

TEST(Hairline, DotsOfAFarLineAreCountedFromItsStart) {
  // The pixel at 0 is number 2³¹ of the line, and 2³¹ leaves 2 when it is divided by 6.
  EXPECT_EQ(Drawn({9, 1}, {-2, 0}, {{kSmallest, 0}, {kLargest, 0}}, false, true),
            Picture("###...###"));
}

}  // namespace
}  // namespace mivo
