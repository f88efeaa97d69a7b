#include "raster_surface.h"

#include <gtest/gtest.h>

#include <limits>

#include "block_text_surface.h"
#include "pixel_art.h"

namespace mivo {
namespace {

constexpr Color kBlack{0, 0, 0};
constexpr Color kRed{255, 0, 0};
constexpr Pen kThin{kBlack, 1};
constexpr std::int32_t kSmallest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();

class RasterSurfaceTest : public testing::Test {
 protected:
  std::string Art() const { return PixelArt(image_); }

  RasterImage image_ = WhiteImage({12, 8});
  BlockTextSurface surface_{image_};
};

TEST_F(RasterSurfaceTest, ALineIncludesItsLastPixel) {
  surface_.Line({1, 1}, {5, 1}, kThin);
  surface_.Line({1, 3}, {5, 3}, {kBlack, 0});
  surface_.Line({1, 5}, {5, 5}, {kBlack, -7});
  EXPECT_EQ(Art(), Picture(R"(
      ............
      .#####......
      ............
      .#####......
      ............
      .#####......
      ............
      ............)"));
}

TEST_F(RasterSurfaceTest, ADottedPenIsThinWhateverItsWidth) {
  surface_.Line({0, 1}, {11, 1}, {kBlack, 0, PenStyle::Dotted});
  surface_.Line({0, 4}, {11, 4}, {kBlack, 9, PenStyle::Dotted});
  EXPECT_EQ(Art(), Picture(R"(
      ............
      ###...###...
      ............
      ............
      ###...###...
      ............
      ............
      ............)"));
}

TEST_F(RasterSurfaceTest, ADashedPenHasDashesAndGapsOfTwiceItsWidth) {
  surface_.Line({1, 2}, {10, 2}, {kBlack, 2, PenStyle::Dashed});
  EXPECT_EQ(Art(), Picture(R"(
      ............
      ######..###.
      ######..###.
      ............
      ............
      ............
      ............
      ............)"));
}

TEST_F(RasterSurfaceTest, ARectangleStaysWithinItsBox) {
  surface_.Rectangle({1, 1, 6, 5}, kThin, {});
  surface_.Rectangle({7, 1, 11, 4}, kThin, {kRed});
  surface_.Rectangle({7, 5, 7, 7}, kThin, {kRed});
  EXPECT_EQ(Art(), Picture(R"(
      ............
      .#####.####.
      .#...#.#rr#.
      .#...#.####.
      .#####......
      ............
      ............
      ............)"));
}

TEST_F(RasterSurfaceTest, AnEllipseReachesItsLastColumnAndRow) {
  surface_.Ellipse({1, 1, 8, 6}, kThin, {});
  EXPECT_EQ(Art(), Picture(R"(
      ............
      ...###......
      .##...##....
      .#.....#....
      .##...##....
      ...###......
      ............
      ............)"));
}

TEST_F(RasterSurfaceTest, AnEllipseIsFilledUpToItsOutline) {
  surface_.Ellipse({1, 1, 8, 6}, kThin, {kRed});
  EXPECT_EQ(Art(), Picture(R"(
      ............
      ...###......
      .##rrr##....
      .#rrrrr#....
      .##rrr##....
      ...###......
      ............
      ............)"));
}

TEST_F(RasterSurfaceTest, TheBrushShowsBetweenDots) {
  const Pen dotted{kBlack, 1, PenStyle::Dotted};
  surface_.Ellipse({0, 0, 6, 5}, dotted, {kRed});
  surface_.Rectangle({7, 0, 12, 4}, dotted, {kRed});
  surface_.Polygon(std::array<PixelPoint, 4>{{{7, 5}, {11, 5}, {11, 7}, {7, 7}}}, dotted, {kRed});
  EXPECT_EQ(Art(), Picture(R"(
      .rrr#..###rr
      #rrrr#.#rrrr
      #rrrr#.#rrr#
      #rrrr#.rrr##
      .rrr#.......
      .......###rr
      .......rrrrr
      .......rr###)"));
}

TEST_F(RasterSurfaceTest, AWideEllipseIsCentredOnItsOutline) {
  surface_.Ellipse({2, 2, 9, 7}, {kBlack, 3}, {kRed});
  EXPECT_EQ(Art(), Picture(R"(
      ............
      ...#####....
      ..#######...
      .#########..
      .###rrr###..
      .#########..
      ..#######...
      ...#####....)"));
}

TEST_F(RasterSurfaceTest, AnArcRunsCounterClockwise) {
  surface_.Arc({1, 0, 8, 7}, {500, 3}, {4, -500}, kThin);
  EXPECT_EQ(Art(), Picture(R"(
      ....##......
      ......#.....
      .......#....
      .......#....
      ............
      ............
      ............
      ............)"));
}

TEST_F(RasterSurfaceTest, AWideArcRunsTheSameWay) {
  surface_.Arc({1, 0, 8, 7}, {4, -500}, {-500, 3}, {kBlack, 2});
  EXPECT_EQ(Art(), Picture(R"(
      .####.......
      ###.........
      ##..........
      ##..........
      ............
      ............
      ............
      ............)"));
}

TEST_F(RasterSurfaceTest, APolygonIsClosedAndFilledByTheAlternatingRule) {
  surface_.Polygon(std::array<PixelPoint, 4>{{{1, 1}, {9, 1}, {9, 6}, {1, 6}}}, kThin, {kRed});
  EXPECT_EQ(Art(), Picture(R"(
      ............
      .#########..
      .#rrrrrrr#..
      .#rrrrrrr#..
      .#rrrrrrr#..
      .#rrrrrrr#..
      .#########..
      ............)"));
}

TEST_F(RasterSurfaceTest, ADottedPolygonOfTwoPointsKeepsItsGaps) {
  surface_.Polygon(std::array<PixelPoint, 2>{{{0, 1}, {7, 1}}}, {kBlack, 1, PenStyle::Dotted}, {});
  EXPECT_EQ(Art().substr(13, 12), "###...##....");
}

TEST_F(RasterSurfaceTest, ACurveEndsWhereItShould) {
  surface_.Bezier({{{1, 6}, {1, -2}, {10, -2}, {10, 6}}}, kThin);
  EXPECT_EQ(Art(), Picture(R"(
      ....####....
      ...#....#...
      ..#......#..
      .#........#.
      .#........#.
      .#........#.
      .#........#.
      ............)"));
}

TEST_F(RasterSurfaceTest, TheOriginIsTheTopLeftPixel) {
  surface_.SetOrigin({100, -50});
  EXPECT_EQ(surface_.Bounds(), (PixelRect{100, -50, 112, -42}));
  surface_.FillRect({100, -50, 101, -49}, kBlack);
  surface_.Pixels(-43, std::array<std::int32_t, 3>{99, 111, 112}, kRed);
  EXPECT_EQ(Art(), Picture(R"(
      #...........
      ............
      ............
      ............
      ............
      ............
      ............
      ...........r)"));
}

TEST_F(RasterSurfaceTest, ImagesAreCutOffAtTheEdges) {
  RasterImage image = WhiteImage({5, 5});
  image.SetPixel(0, 0, kRed);
  image.SetPixel(4, 4, kBlack);
  surface_.SetOrigin({-2, -2});
  surface_.Image(image, {-4, -4});
  surface_.Image(image, {7, 3});
  surface_.Image(image, {kLargest, kLargest});
  surface_.Image(image, {kSmallest, kSmallest});
  EXPECT_EQ(Art(), Picture(R"(
      ............
      ............
      ..#.........
      ............
      ............
      .........r..
      ............
      ............)"));
}

// Each call with coordinates from one end of the range to the other: all that it may do is paint.
TEST_F(RasterSurfaceTest, AnyCoordinatesAreHarmless) {
  const RasterImage picture = WhiteImage({5, 5});
  const std::array<std::int32_t, 7> ends = {kSmallest, kSmallest + 1, -1000000, 0,
                                            1000000,   kLargest - 1,  kLargest};
  for (const PixelPoint origin :
       {PixelPoint{0, 0}, PixelPoint{kSmallest, kLargest}, PixelPoint{kLargest, kSmallest}}) {
    surface_.SetOrigin(origin);
    for (const PenStyle style : {PenStyle::Solid, PenStyle::Dotted, PenStyle::Dashed}) {
      for (const std::int32_t width : {0, 2, 7, kLargest, kSmallest}) {
        const Pen pen{kBlack, width, style};
        for (std::size_t i = 0; i < ends.size(); ++i) {
          const PixelPoint a{ends[i], ends[(i * 3 + 1) % 7]};
          const PixelPoint b{ends[(i + 2) % 7], ends[(i * 2 + 5) % 7]};
          const PixelPoint c{ends[(i + 4) % 7], ends[(i + 1) % 7]};
          surface_.Line(a, b, pen);
          surface_.Bezier({a, c, b, a}, pen);
          surface_.Rectangle({a.x, a.y, b.x, b.y}, pen, {kRed});
          surface_.Ellipse(PixelRect::Around(a, b), pen, {kRed});
          surface_.Arc(PixelRect::Around(a, c), b, c, pen);
          surface_.Polygon(std::array<PixelPoint, 3>{a, b, c}, pen, {kRed});
          surface_.Pixels(a.y, std::array<std::int32_t, 2>{a.x, b.x}, kRed);
          surface_.FocusRect({a.x, a.y, b.x, b.y});
          surface_.FillRect({a.x, a.y, b.x, b.y}, kRed);
          surface_.Bits({a.x, a.y, b.x, b.y}, {std::array<std::uint8_t, 2>{0xAA, 0xAA}, 16, 1, 2},
                        kBlack);
          surface_.Image(picture, a);
        }
      }
    }
  }
  surface_.SetOrigin({0, 0});
  surface_.FillRect({0, 0, 12, 8}, {255, 255, 255});
  surface_.Line({1, 1}, {5, 1}, kThin);
  EXPECT_EQ(Art(), Picture(R"(
      ............
      .#####......
      ............
      ............
      ............
      ............
      ............
      ............)"));
}

TEST_F(RasterSurfaceTest, AnEllipseLargerThanItsRingIsCutOffCorrectly) {
  surface_.Ellipse({3, -100000, 200003, 100001}, kThin, {});
  EXPECT_EQ(Art().substr(0, 13), "...#........\n");
  surface_.Arc({8, -100000, 200008, 100001}, {0, 0}, {0, 100001}, {kRed, 1});
  EXPECT_EQ(Art().substr(0, 13), "...#....r...\n");
}

}  // namespace
}  // namespace mivo
