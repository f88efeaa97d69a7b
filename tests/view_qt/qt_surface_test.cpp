#include "qt_surface.h"

#include <gtest/gtest.h>

#include <limits>
#include <optional>
#include <string>

#include "bit_pattern_creation.h"
#include "image_golden.h"
#include "pixel_art.h"
#include "ptn_obj_text.h"

namespace mivo {
namespace {

constexpr Color kBlack{0, 0, 0};
constexpr Color kWhite{255, 255, 255};
constexpr std::int32_t kSmallest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();

Font DejaVu(std::int32_t height, bool vertical = false) {
  return {u"DejaVu Sans", height, 400, false, vertical};
}

// The smallest box around everything that is not white.
std::optional<PixelRect> Ink(const RasterImage& image) {
  std::optional<PixelRect> box;
  for (std::int32_t y = 0; y < image.Size().height; ++y) {
    for (std::int32_t x = 0; x < image.Size().width; ++x) {
      if (image.PixelAt(x, y) == kWhite) continue;
      if (!box) box = PixelRect{x, y, x + 1, y + 1};
      *box = {std::min(box->left, x), std::min(box->top, y), std::max(box->right, x + 1),
              std::max(box->bottom, y + 1)};
    }
  }
  return box;
}

class QtSurfaceTest : public testing::Test {
 protected:
  QtFonts fonts_;
  RasterImage image_ = WhiteImage({400, 400});
  QtSurface surface_{image_, fonts_};
};

TEST_F(QtSurfaceTest, ATextAndItsPartsMeasureTheSame) {
  for (const std::int32_t height : {9, 10, 13, 18, 45, 90}) {
    const std::u16string text = u"AVATAR fi To. 1234/W\u00B5";
    std::int32_t sum = 0;
    for (const char16_t c : text) sum += surface_.MeasureText({&c, 1}, DejaVu(height)).width;
    EXPECT_EQ(surface_.MeasureText(text, DejaVu(height)).width, sum) << height;
  }
}

TEST_F(QtSurfaceTest, TheEmIsTheFontHeightAndTheCellIsHigher) {
  for (const std::int32_t height : {9, 45, 90}) {
    const TextExtent extent = surface_.MeasureText(u"A", DejaVu(height));
    EXPECT_EQ(extent.emHeight, height);
    EXPECT_GT(extent.cellHeight, height);
    EXPECT_LT(extent.cellHeight, height * 3 / 2);
  }
}

TEST_F(QtSurfaceTest, TextStaysInItsCell) {
  for (const bool vertical : {false, true}) {
    for (const std::int32_t height : {9, 18, 45, 90}) {
      for (const char16_t* text : {u"HELO", u"gjpq", u"|()"}) {
        image_ = WhiteImage({400, 400});
        const Font font = DejaVu(height, vertical);
        const TextExtent extent = surface_.MeasureText(text, font);
        surface_.Text({60, 330}, text, font, kBlack);
        const PixelRect cell = vertical
                                   ? PixelRect{60, 330 - extent.width, 60 + extent.cellHeight, 330}
                                   : PixelRect{60, 330, 60 + extent.width, 400};
        const PixelRect ink = Ink(image_).value();
        EXPECT_GE(ink.left, cell.left - 1);
        EXPECT_GE(ink.top, cell.top - 1);
        EXPECT_LE(ink.right, cell.right + 1);
        EXPECT_LE(ink.bottom, cell.bottom + 1);
        // And it is there, not at its edge.
        EXPECT_GT((vertical ? ink.Height() : ink.Width()) * 10, extent.width * 8);
      }
    }
  }
}

TEST_F(QtSurfaceTest, CapitalsStandOnTheBottomOfTheEm) {
  // What the alignment of pin texts relies on: below the em there are only descenders.
  const TextExtent extent = surface_.MeasureText(u"H", DejaVu(90));
  surface_.Text({100, 100}, u"H", DejaVu(90), kBlack);
  const PixelRect ink = Ink(image_).value();
  EXPECT_LE(ink.bottom, 100 + extent.emHeight);
  EXPECT_GE(ink.bottom, 100 + extent.emHeight * 9 / 10);
}

TEST_F(QtSurfaceTest, UprightTextIsLyingTextTurned) {
  for (const std::int32_t height : {9, 18, 45}) {
    RasterImage lying = WhiteImage({400, 400});
    RasterImage upright = WhiteImage({400, 400});
    QtSurface(lying, fonts_).Text({20, 100}, u"Fig. 7", DejaVu(height), kBlack);
    QtSurface(upright, fonts_).Text({100, 380}, u"Fig. 7", DejaVu(height, true), kBlack);
    for (std::int32_t y = 0; y < 400; ++y) {
      for (std::int32_t x = 0; x < 400; ++x) {
        ASSERT_EQ(upright.PixelAt(y, 399 - x), lying.PixelAt(x, y)) << height;
      }
    }
    EXPECT_TRUE(Ink(lying));
  }
}

TEST_F(QtSurfaceTest, UprightTextIsBlendedWithWhatIsThere) {
  surface_.FillRect({0, 0, 400, 400}, {255, 255, 0});
  surface_.Text({100, 300}, u"S", DejaVu(45, true), {0, 0, 255});
  int between = 0;
  for (std::int32_t y = 0; y < 400; ++y) {
    for (std::int32_t x = 0; x < 400; ++x) {
      const Color color = image_.PixelAt(x, y);
      EXPECT_EQ(color.red, color.green);
      EXPECT_NEAR(color.red + color.blue, 255, 1);
      if (color.red != 0 && color.red != 255) ++between;
    }
  }
  EXPECT_GT(between, 0);
}

TEST_F(QtSurfaceTest, UprightTextIsCutOffAtTheEdges) {
  RasterImage part = WhiteImage({30, 40});
  QtSurface surface(part, fonts_);
  surface.SetOrigin({90, 250});
  surface.Text({100, 300}, u"Text", DejaVu(45, true), kBlack);
  surface_.Text({100, 300}, u"Text", DejaVu(45, true), kBlack);
  for (std::int32_t y = 0; y < 40; ++y) {
    for (std::int32_t x = 0; x < 30; ++x) {
      ASSERT_EQ(part.PixelAt(x, y), image_.PixelAt(x + 90, y + 250));
    }
  }
}

TEST_F(QtSurfaceTest, TextIsSmoothInColorImagesWithoutFringes) {
  surface_.Text({10, 10}, u"SOS", DejaVu(30), kBlack);
  bool isSmooth = false;
  for (std::int32_t y = 0; y < 100; ++y) {
    for (std::int32_t x = 0; x < 150; ++x) {
      const Color color = image_.PixelAt(x, y);
      isSmooth = isSmooth || (color != kBlack && color != kWhite);
      EXPECT_TRUE(color.red == color.green && color.green == color.blue);
    }
  }
  EXPECT_TRUE(isSmooth);
}

TEST_F(QtSurfaceTest, TextIsHardEdgedInOneBitImages) {
  RasterImage oneBit = *RasterImage::Create({150, 60}, ImageDepth::OneBit);
  QtSurface surface(oneBit, fonts_);
  surface.FillRect(surface.Bounds(), kWhite);
  surface.Text({10, 10}, u"SOS g", DejaVu(30), kBlack);
  surface.Text({100, 50}, u"up", DejaVu(20, true), kBlack);
  EXPECT_TRUE(MatchesImageGolden("one_bit_text", oneBit));
}

TEST_F(QtSurfaceTest, TextFollowsTheOrigin) {
  surface_.SetOrigin({1000, -2000});
  surface_.Text({1050, -1950}, u"H", DejaVu(20), kBlack);
  const PixelRect ink = Ink(image_).value();
  EXPECT_GE(ink.left, 50);
  EXPECT_LE(ink.right, 70);
  EXPECT_GE(ink.top, 50);
}

TEST_F(QtSurfaceTest, TextIsCutOffAtTheEdges) {
  surface_.Text({-100, -10}, u"HHHHHHHHHHHH", DejaVu(20), kBlack);
  EXPECT_TRUE(Ink(image_));
}

TEST_F(QtSurfaceTest, TextOutOfSightIsHarmless) {
  for (const PixelPoint at : {PixelPoint{kSmallest, kSmallest}, PixelPoint{kLargest, kLargest},
                              PixelPoint{kSmallest, 10}, PixelPoint{10, kLargest}}) {
    for (const bool vertical : {false, true}) {
      surface_.Text(at, u"Text", DejaVu(20, vertical), kBlack);
      EXPECT_FALSE(Ink(image_));
    }
  }
}

TEST_F(QtSurfaceTest, AnyTextIsHarmless) {
  for (const std::u16string& text :
       {std::u16string(), std::u16string(1, u'\xD800'), std::u16string(1024, u'\uFFFD'),
        std::u16string(u"\u05D0\u0628\u0E01\u200F\u202E\u0301"), std::u16string(3, u'\0')}) {
    EXPECT_GE(surface_.MeasureText(text, DejaVu(20)).width, 0);
    surface_.Text({10, 10}, text, DejaVu(20), kBlack);
  }
}

TEST_F(QtSurfaceTest, AMissingFaceIsDrawnInAnother) {
  surface_.Text({10, 10}, u"H", {u"No Such Face", 20, 400, false, false}, kBlack);
  EXPECT_TRUE(Ink(image_));
}

TEST(WrapImage, SharesThePixels) {
  RasterImage color = WhiteImage({3, 2});
  color.SetPixel(2, 1, {1, 2, 3});
  EXPECT_EQ(WrapImage(color).pixel(2, 1), qRgb(1, 2, 3));
  RasterImage oneBit = *RasterImage::Create({40, 2}, ImageDepth::OneBit);
  oneBit.SetPixel(33, 1, kWhite);
  EXPECT_EQ(WrapImage(oneBit).pixel(33, 1), qRgb(255, 255, 255));
  EXPECT_EQ(WrapImage(oneBit).pixel(32, 1), qRgb(0, 0, 0));
}

TEST(QtSurfaceFactory, MakesBitPatternsWithText) {
  SComponent component;
  component.SetSize({4, 2}, true, false);
  auto text = std::make_unique<SPtnObjText>();
  text->SetText(u"Bg");
  text->SetPosition({3, 17});
  text->SetFontName(u"DejaVu Sans");
  text->SetFontSize(16);
  component.MutablePattern()->objects.push_back(std::move(text));
  SCompEditDoc document;
  document.Load(&component);
  QtSurfaceFactory surfaces;
  ASSERT_TRUE(CreateBitPattern(&component, document, surfaces, GoldenFont()));
  std::string rows;
  const SPtn& pattern = *component.Pattern();
  for (std::int32_t y = 0; y < pattern.size.y; ++y) {
    const auto row = pattern.bitPattern->Row(pattern.size.x, y);
    for (std::int32_t x = 0; x < pattern.size.x; ++x) {
      rows += (row[static_cast<std::size_t>(x / 8)] & (0x80 >> (x % 8))) != 0 ? '#' : '.';
    }
    rows += '\n';
  }
  EXPECT_EQ(rows, Picture(R"(
      .........................................
      ....#######..............................
      ....#......##............................
      ....#.......#............................
      ....#.......#....####.#..................
      ....#......##...#....##..................
      ....########...#......#..................
      ....#......##..#......#..................
      ....#.......#..#......#..................
      ....#.......#..#......#..................
      ....#.......#..#......#..................
      ....#......#....#....##..................
      ....#######......####.#..................
      ......................#..................
      ................#....#...................
      .................####....................
      .........................................
      .........................................
      .........................................
      .........................................
      .........................................)"));
}

}  // namespace
}  // namespace mivo
