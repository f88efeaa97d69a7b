#include "pin_style_pictures.h"

#include <gtest/gtest.h>

namespace mivo {
namespace {

constexpr int kHeight = 24;

TEST(PinStylePictures, FillARow) {
  const SCommonFont font;
  PinStylePictures pictures(font, kHeight);
  for (const double ratio : {1.0, 1.5, 2.0, 1.0}) {
    const QPixmap& picture = pictures.Get(0, ratio);
    EXPECT_EQ(picture.devicePixelRatio(), ratio);
    EXPECT_NEAR(picture.deviceIndependentSize().height(), kHeight, 1);
  }
}

TEST(PinStylePictures, AreDrawnOnce) {
  const SCommonFont font;
  PinStylePictures pictures(font, kHeight);
  const qint64 drawn = pictures.Get(4, 1).cacheKey();
  EXPECT_NE(pictures.Get(8, 1).cacheKey(), drawn);
  EXPECT_EQ(pictures.Get(4, 1).cacheKey(), drawn);
}

TEST(PinStylePictures, FollowTheFont) {
  SCommonFont font;
  PinStylePictures pictures(font, kHeight);
  const QImage before = pictures.Get(0, 1).toImage();
  font.weight = 700;
  EXPECT_NE(pictures.Get(0, 1).toImage(), before);
}

}  // namespace
}  // namespace mivo
