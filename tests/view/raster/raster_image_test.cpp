#include "raster_image.h"

#include <gtest/gtest.h>

#include <limits>

namespace mivo {
namespace {

constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();

class NoImage : public testing::TestWithParam<PixelSize> {};

TEST_P(NoImage, OfASizeThatCannotBe) {
  EXPECT_FALSE(RasterImage::Create(GetParam(), ImageDepth::Color));
  EXPECT_FALSE(RasterImage::Create(GetParam(), ImageDepth::OneBit));
}

INSTANTIATE_TEST_SUITE_P(Sizes, NoImage,
                         testing::Values(PixelSize{0, 5}, PixelSize{5, 0}, PixelSize{-1, 5},
                                         PixelSize{kLargest, kLargest}));

TEST(RasterImage, StartsBlack) {
  const auto color = RasterImage::Create({3, 2}, ImageDepth::Color);
  const auto oneBit = RasterImage::Create({3, 2}, ImageDepth::OneBit);
  EXPECT_EQ(color->PixelAt(2, 1), (Color{0, 0, 0}));
  EXPECT_EQ(oneBit->PixelAt(2, 1), (Color{0, 0, 0}));
}

TEST(RasterImage, ColorPixelsAreWordsWithoutTransparency) {
  auto image = *RasterImage::Create({2, 2}, ImageDepth::Color);
  image.SetPixel(1, 1, {0x12, 0x34, 0x56});
  const auto* const words = reinterpret_cast<const std::uint32_t*>(image.Bytes());
  EXPECT_EQ(words[3], 0xFF123456u);
  EXPECT_EQ(words[0], 0xFF000000u);
  EXPECT_EQ(image.PixelAt(1, 1), (Color{0x12, 0x34, 0x56}));
}

TEST(RasterImage, OneBitRowsStartAtMultiplesOfFourBytes) {
  EXPECT_EQ(RasterImage::Create({17, 1}, ImageDepth::OneBit)->Row(0).size(), 4u);
  EXPECT_EQ(RasterImage::Create({32, 1}, ImageDepth::OneBit)->Row(0).size(), 4u);
  EXPECT_EQ(RasterImage::Create({33, 1}, ImageDepth::OneBit)->Row(0).size(), 8u);
}

struct SpanCase {
  std::int32_t first;
  std::int32_t end;
  std::uint32_t bits;  // of the row, leftmost in the most significant bit
};

class OneBitSpan : public testing::TestWithParam<SpanCase> {};

TEST_P(OneBitSpan, SetsAndClearsExactlyItsBits) {
  const SpanCase& c = GetParam();
  auto image = *RasterImage::Create({32, 2}, ImageDepth::OneBit);
  const auto bits = [&] {
    const auto row = image.Row(1);
    return static_cast<std::uint32_t>(row[0]) << 24 | static_cast<std::uint32_t>(row[1]) << 16 |
           static_cast<std::uint32_t>(row[2]) << 8 | row[3];
  };
  image.FillSpan(1, c.first, c.end, {255, 255, 255});
  EXPECT_EQ(bits(), c.bits);
  image.FillSpan(1, 0, 32, {255, 255, 255});
  image.FillSpan(1, c.first, c.end, {0, 0, 0});
  EXPECT_EQ(bits(), ~c.bits);
  EXPECT_EQ(image.Row(0)[0], 0);
}

INSTANTIATE_TEST_SUITE_P(Spans, OneBitSpan,
                         testing::Values(SpanCase{0, 1, 0x80000000}, SpanCase{7, 8, 0x01000000},
                                         SpanCase{2, 6, 0x3C000000}, SpanCase{0, 8, 0xFF000000},
                                         SpanCase{6, 10, 0x03C00000}, SpanCase{4, 28, 0x0FFFFFF0},
                                         SpanCase{0, 32, 0xFFFFFFFF}));

TEST(RasterImage, OneBitShowsLightColorsAsWhite) {
  auto image = *RasterImage::Create({2, 1}, ImageDepth::OneBit);
  image.SetPixel(0, 0, {220, 220, 220});
  image.SetPixel(1, 0, {255, 0, 0});
  EXPECT_EQ(image.PixelAt(0, 0), (Color{255, 255, 255}));
  EXPECT_EQ(image.PixelAt(1, 0), (Color{0, 0, 0}));
}

TEST(RasterImage, InvertingTwiceGivesTheColorBack) {
  for (const ImageDepth depth : {ImageDepth::Color, ImageDepth::OneBit}) {
    auto image = *RasterImage::Create({9, 1}, depth);
    image.InvertPixel(8, 0);
    EXPECT_EQ(image.PixelAt(8, 0), (Color{255, 255, 255}));
    EXPECT_EQ(image.PixelAt(7, 0), (Color{0, 0, 0}));
    image.InvertPixel(8, 0);
    EXPECT_EQ(image.PixelAt(8, 0), (Color{0, 0, 0}));
  }
}

TEST(RasterImage, CopiesAnArea) {
  auto source = *RasterImage::Create({3, 3}, ImageDepth::Color);
  source.SetPixel(1, 1, {255, 0, 0});
  source.SetPixel(2, 2, {0, 255, 0});
  auto target = *RasterImage::Create({4, 4}, ImageDepth::Color);
  target.CopyFrom(source, {1, 1, 3, 3}, {0, 2});
  EXPECT_EQ(target.PixelAt(0, 2), (Color{255, 0, 0}));
  EXPECT_EQ(target.PixelAt(1, 3), (Color{0, 255, 0}));
  EXPECT_EQ(target.PixelAt(2, 2), (Color{0, 0, 0}));
}

TEST(RasterImage, CopiesNothingBetweenDepths) {
  auto source = *RasterImage::Create({1, 1}, ImageDepth::Color);
  source.SetPixel(0, 0, {255, 255, 255});
  auto target = *RasterImage::Create({1, 1}, ImageDepth::OneBit);
  target.CopyFrom(source, {0, 0, 1, 1}, {0, 0});
  EXPECT_EQ(target.PixelAt(0, 0), (Color{0, 0, 0}));
}

}  // namespace
}  // namespace mivo
