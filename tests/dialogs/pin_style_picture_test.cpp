#include "pin_style_picture.h"
#include "pin_style_text.h"

#include <gtest/gtest.h>

#include <QImage>
#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "colors.h"
#include "comp_pin.h"

namespace mivo {
namespace {

constexpr SRect kArea{-26, -13, 40, 9};
constexpr int kPixelsPerUnit = 4;

/// What is seen of one colour, in component units from where the pin meets the body; nothing when
/// there is none of it.
std::optional<SRect> ExtentOf(const QImage& image, Color color) {
  std::optional<SRect> extent;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixelColor(x, y) != QColor(color.red, color.green, color.blue)) continue;
      const SPoint at{kArea.left + x / kPixelsPerUnit, kArea.top + y / kPixelsPerUnit};
      if (!extent) extent = SRect{at.x, at.y, at.x, at.y};
      extent->left = std::min(extent->left, at.x);
      extent->right = std::max(extent->right, at.x);
      extent->bottom = std::max(extent->bottom, at.y);
    }
  }
  return extent;
}

QImage PictureOf(std::int32_t style, std::u16string_view name = u"NAME", double ratio = 1) {
  return PinStylePicture(style, name, kArea, SCommonFont(), kPixelsPerUnit / ratio, ratio)
      .toImage();
}

/// Where the ink of the pin and the body is, left of the body.
std::int32_t LeftEnd(const QImage& image) {
  return ExtentOf(image, colors::kPin)->left;
}

TEST(PinStylePicture, ShowsThePinAtTheEdgeOfABodyOnPaper) {
  const QImage image = PictureOf(0);
  EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::white));
  ASSERT_TRUE(ExtentOf(image, colors::kPin));
  EXPECT_NEAR(ExtentOf(image, colors::kPin)->left, -10, 1) << "a pin is ten units long";
  EXPECT_EQ(ExtentOf(image, colors::kPin)->right, 0);
  EXPECT_EQ(ExtentOf(image, colors::kBody)->top, kArea.top) << "the edge runs through";
  EXPECT_EQ(ExtentOf(image, colors::kBody)->bottom, kArea.bottom - 1);
  ASSERT_TRUE(ExtentOf(image, colors::kPinName));
  EXPECT_GT(ExtentOf(image, colors::kPinName)->left, 0) << "inside the body";
  ASSERT_TRUE(ExtentOf(image, colors::kPinNumber));
  EXPECT_LT(ExtentOf(image, colors::kPinNumber)->right, 0);
  EXPECT_LT(ExtentOf(image, colors::kPinNumber)->bottom, 0) << "above the pin";
}

TEST(PinStylePicture, ShowsWhatAStyleMeans) {
  const QImage plain = PictureOf(0);
  const auto inkRight = [](const QImage& image) { return ExtentOf(image, colors::kPin)->right; };
  const auto numberRight = [](const QImage& image) {
    return ExtentOf(image, colors::kPinNumber)->right;
  };
  EXPECT_GT(inkRight(PictureOf(SCompPin::kClock)), inkRight(plain)) << "a wedge in the body";
  EXPECT_EQ(inkRight(PictureOf(SCompPin::kNegation)), inkRight(plain));
  EXPECT_NE(PictureOf(SCompPin::kNegation), plain);
  EXPECT_GT(inkRight(PictureOf(SCompPin::kNegation | SCompPin::kClock)), inkRight(plain));
  EXPECT_EQ(LeftEnd(PictureOf(SCompPin::kShapeS)), LeftEnd(plain));
  EXPECT_GT(numberRight(PictureOf(SCompPin::kShapeS)), numberRight(plain)) << "nearer the body";
  EXPECT_GT(LeftEnd(PictureOf(SCompPin::kShapeZ)), LeftEnd(plain)) << "no pin line";
  EXPECT_GT(numberRight(PictureOf(SCompPin::kShapeZ)), numberRight(plain));
}

TEST(PinStylePicture, LeavesAnEmptyNameOut) {
  EXPECT_EQ(ExtentOf(PictureOf(0, {}), colors::kPinName), std::nullopt);
}

TEST(PinStylePicture, HasTheSameSizeOnEveryDisplay) {
  const QSize size((kArea.right - kArea.left) * 4, (kArea.bottom - kArea.top) * 4);
  for (const double ratio : {1.0, 1.5, 2.0}) {
    const QPixmap picture = PinStylePicture(0, u"NAME", kArea, SCommonFont(), 4, ratio);
    EXPECT_EQ(picture.devicePixelRatio(), ratio);
    EXPECT_EQ(picture.deviceIndependentSize().toSize(), size) << ratio;
  }
}

TEST(PinStylePicture, EveryStyleHasANameOfItsOwn) {
  std::vector<std::u16string_view> names;
  for (const std::int32_t style : {0, 1, 2, 4, 8, 12}) {
    names.push_back(BuiltInText(PinStyleText(style)));
    EXPECT_FALSE(names.back().empty());
  }
  std::sort(names.begin(), names.end());
  EXPECT_EQ(std::unique(names.begin(), names.end()), names.end());
  EXPECT_EQ(PinStyleText(3), PinStyleText(0));
}

}  // namespace
}  // namespace mivo
