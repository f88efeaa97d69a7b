#include "wide_stroke.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "pixel_art.h"

namespace mivo {
namespace {

constexpr Color kBlack{0, 0, 0};
using Stroke = void (*)(RasterCanvas&, std::span<const PathPoint>, std::int32_t, Color);

std::string Drawn(PixelSize size, const std::vector<PathPoint>& path, std::int32_t width,
                  Stroke stroke = StrokeWide) {
  RasterImage image = WhiteImage(size);
  RasterCanvas canvas(image, {});
  stroke(canvas, path, width, kBlack);
  return PixelArt(image);
}

TEST(StrokeWide, AnEvenWidthLiesUpAndLeftOfThePath) {
  EXPECT_EQ(Drawn({9, 4}, {{2, 2}, {6, 2}}, 2), Picture(R"(
      .........
      .######..
      .######..
      .........)"));
}

TEST(StrokeWide, AnOddWidthLiesAroundThePath) {
  EXPECT_EQ(Drawn({9, 5}, {{2, 2}, {6, 2}}, 3), Picture(R"(
      .........
      .#######.
      .#######.
      .#######.
      .........)"));
}

TEST(StrokeWide, EndsAreRound) {
  EXPECT_EQ(Drawn({11, 7}, {{3, 3}, {7, 3}}, 5), Picture(R"(
      ...........
      ..#######..
      .#########.
      .#########.
      .#########.
      ..#######..
      ...........)"));
}

TEST(StrokeWide, APointIsADiscOfTheWidth) {
  const char* const disc = R"(
      .......
      ..###..
      .#####.
      .#####.
      .#####.
      ..###..
      .......)";
  EXPECT_EQ(Drawn({7, 7}, {{3, 3}}, 5), Picture(disc));
  EXPECT_EQ(Drawn({7, 7}, {{3, 3}, {3, 3}}, 5), Picture(disc));
}

TEST(StrokeWide, CornersAreRound) {
  EXPECT_EQ(Drawn({9, 9}, {{6, 2}, {2, 2}, {2, 6}}, 5), Picture(R"(
      .#######.
      #########
      #########
      #########
      ########.
      #####....
      #####....
      #####....
      .###.....)"));
}

TEST(StrokeWide, APenThatMissesCornersOnlyGoesOn) {
  EXPECT_EQ(Drawn({9, 9}, {{4, 4}, {0, 0}, {8, 8}}, 11), Picture(R"(
      ########.
      #########
      #########
      #########
      #########
      #########
      #########
      #########
      .########)"));
}

// The definition, worked out for each pixel: its centre is nearer than half the width.
bool IsCovered(const std::vector<PathPoint>& path, std::int32_t width, PixelPoint pixel) {
  const double shift = width % 2 == 0 ? -0.5 : 0;
  for (std::size_t i = 1; i < path.size(); ++i) {
    const PathPoint a{path[i - 1].x + shift, path[i - 1].y + shift};
    const PathPoint b{path[i].x + shift, path[i].y + shift};
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    const double square = dx * dx + dy * dy;
    const double along = square > 0 ? ((pixel.x - a.x) * dx + (pixel.y - a.y) * dy) / square : 0;
    const double t = std::clamp(along, 0.0, 1.0);
    const double distance = std::hypot(pixel.x - a.x - t * dx, pixel.y - a.y - t * dy);
    if (std::abs(distance - width / 2.0) < 1e-9) return true;  // on the edge: see the caller
    if (distance < width / 2.0) return true;
  }
  return false;
}

bool IsOnEdge(const std::vector<PathPoint>& path, std::int32_t width, PixelPoint pixel) {
  return IsCovered(path, width, pixel) && !IsCovered(path, width - 1, pixel);
}

RC_GTEST_PROP(StrokeWideProperty, CoversWhatIsNearerThanHalfTheWidth, ()) {
  const auto point = [] {
    return PathPoint{static_cast<double>(*rc::gen::inRange(-10, 50)),
                     static_cast<double>(*rc::gen::inRange(-10, 50))};
  };
  const std::vector<PathPoint> path{point(), point(), point()};
  const std::int32_t width = *rc::gen::inRange(2, 15);
  RasterImage image = WhiteImage({40, 40});
  RasterCanvas canvas(image, {});
  StrokeWide(canvas, path, width, kBlack);
  for (std::int32_t y = 0; y < 40; ++y) {
    for (std::int32_t x = 0; x < 40; ++x) {
      const bool drawn = image.PixelAt(x, y) == kBlack;
      if (drawn) RC_ASSERT(IsCovered(path, width, {x, y}));
      if (!drawn) RC_ASSERT(!IsCovered(path, width, {x, y}) || IsOnEdge(path, width, {x, y}));
    }
  }
}

TEST(StrokeWide, ReachesAcrossTheWholeRangeOfCoordinates) {
  constexpr double kFar = 2147483647;
  EXPECT_EQ(Drawn({4, 4}, {{-kFar, 1}, {kFar, 1}}, 2), Picture(R"(
      ####
      ####
      ....
      ....)"));
  EXPECT_EQ(Drawn({2, 2}, {{-kFar, -kFar}, {kFar, -kFar}}, 2147483647), Picture(R"(
      ..
      ..)"));
  EXPECT_EQ(Drawn({2, 2}, {{-kFar, 0}, {kFar, 0}}, 2147483647), Picture(R"(
      ##
      ##)"));
}

TEST(StrokeWideDashed, DashesAndGapsAreTwiceTheWidthBeforeTheRoundEnds) {
  // Dashes run from 4 to 8 and from 12 to 16; their ends reach one pixel farther.
  EXPECT_EQ(Drawn({20, 4}, {{4, 2}, {16, 2}}, 2, StrokeWideDashed), Picture(R"(
      ....................
      ...######..######...
      ...######..######...
      ....................)"));
}

TEST(StrokeWideDashed, DashesGoOnAroundCorners) {
  EXPECT_EQ(Drawn({10, 10}, {{2, 2}, {8, 2}, {8, 9}}, 2, StrokeWideDashed), Picture(R"(
      ..........
      .######...
      .######...
      .......##.
      .......##.
      .......##.
      .......##.
      .......##.
      .......##.
      ..........)"));
}

TEST(StrokeWideDashed, DashesDoNotDependOnWhatIsSeen) {
  const std::vector<PathPoint> path{{-1000, -7}, {300, 60}};
  RasterImage whole = WhiteImage({200, 80});
  RasterCanvas wholeCanvas(whole, {});
  StrokeWideDashed(wholeCanvas, path, 4, kBlack);
  RasterImage part = WhiteImage({50, 80});
  RasterCanvas partCanvas(part, {90, 0});
  StrokeWideDashed(partCanvas, path, 4, kBlack);
  for (std::int32_t y = 0; y < 80; ++y) {
    for (std::int32_t x = 0; x < 50; ++x) {
      ASSERT_EQ(part.PixelAt(x, y), whole.PixelAt(x + 90, y)) << x << ", " << y;
    }
  }
}

TEST(StrokeWideDashed, AFarLineCostsNoMoreDashesThanCanBeSeen) {
  constexpr double kFar = 2147483648.0;  // a multiple of the period of 8
  EXPECT_EQ(Drawn({20, 3}, {{-kFar, 1}, {kFar - 1, 1}}, 2, StrokeWideDashed), Picture(R"(
      #####..######..#####
      #####..######..#####
      ....................)"));
}

}  // namespace
}  // namespace mivo
