// Painting and mouse agree, whatever the display's number of device pixels per logical pixel is.
// This program is run with several of them.

#include <gtest/gtest.h>

#include <QImage>
#include <QTest>
#include <cmath>

#include "colors.h"
#include "comp_edit_view.h"
#include "no_prompts.h"

namespace mivo {
namespace {

QColor ToQColor(Color color) {
  return QColor::fromRgb(color.red, color.green, color.blue);
}

/// A body of 10 cells with a pin at L3, at every zoom.
class ScaledDisplayTest : public testing::TestWithParam<int> {
 protected:
  void SetUp() override {
    component_.SetSize({10, 10}, false, false);
    SCompPin pin;
    pin.location = kPlace;
    component_.SetPins({pin});
    view_.resize(320, 280);  // the display has fewer logical pixels then
    view_.Editor().SetComponent(&component_);
    view_.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&view_));
    for (int i = 0; i < GetParam(); ++i) view_.Editor().Execute(Command::ZoomIn);
    // The pin comes to the middle, as far as there is something to scroll.
    const PixelPoint corner = Device({-50, -50});
    const PixelPoint middle = Device({-5, 30});
    const PixelSize client = view_.Editor().Coordinates().ClientSize();
    view_.Editor().ScrollTo(
        {middle.x - corner.x - client.width / 2, middle.y - corner.y - client.height / 2});
    ratio_ = view_.viewport()->devicePixelRatioF();
  }

  [[nodiscard]] PixelPoint Device(SPoint point) const {
    return view_.Editor().Coordinates().ToDevice(point);
  }
  /// The logical point in whose middle, or as near to it as can be, the device pixel is.
  [[nodiscard]] QPoint Logical(SPoint point) const {
    const PixelPoint pixel = Device(point);
    return {static_cast<int>(std::lround(pixel.x / ratio_)),
            static_cast<int>(std::lround(pixel.y / ratio_))};
  }
  [[nodiscard]] bool ClickSelects(SPoint point) {
    QTest::keyClick(&view_, Qt::Key_Escape);
    QTest::mouseMove(view_.viewport(), Logical(point));
    QTest::mouseClick(view_.viewport(), Qt::LeftButton, {}, Logical(point));
    return view_.Editor().Document().SingleSelection() != nullptr;
  }

  static constexpr SPinLocation kPlace{PinSide::Left, 3};

  SComponent component_;
  NoPrompts prompts_;
  CCompEditView view_{prompts_};
  double ratio_ = 0;
};

TEST_P(ScaledDisplayTest, HasTheScaleThatWasAskedFor) {
  bool given = false;
  const double asked = qEnvironmentVariable("MIVO_TEST_SCALE").toDouble(&given);
  EXPECT_DOUBLE_EQ(ratio_, given ? asked : 1.0);
}

TEST_P(ScaledDisplayTest, PaintsEveryDevicePixelOnce) {
  const QImage picture = view_.viewport()->grab().toImage();
  EXPECT_DOUBLE_EQ(picture.devicePixelRatio(), ratio_);
  const PixelSize client = view_.Editor().Coordinates().ClientSize();
  EXPECT_EQ(client.width, static_cast<int>(std::ceil(view_.viewport()->width() * ratio_)));
  EXPECT_EQ(client.height, static_cast<int>(std::ceil(view_.viewport()->height() * ratio_)));
  const PixelPoint pin = Device({-5, 30});
  EXPECT_EQ(picture.pixelColor(pin.x, pin.y), ToQColor(colors::kPin));
  // Nothing is blurred: there are only the colours of the drawing.
  for (int x = 0; x < picture.width(); ++x) {
    const QColor color = picture.pixelColor(x, pin.y);
    const bool isOfTheDrawing = color == QColor(Qt::white) || color == ToQColor(colors::kPin) ||
                                color == ToQColor(colors::kGridCell) ||
                                color == ToQColor(colors::kGridUnit);
    ASSERT_TRUE(isOfTheDrawing) << x << ' ' << color.name().toStdString();
  }
}

TEST_P(ScaledDisplayTest, MousePointsAtWhatIsPaintedThere) {
  for (const SPoint point : {SPoint{-5, 30}, SPoint{2, 28}, SPoint{0, 25}, SPoint{-9, 35}}) {
    QTest::mouseMove(view_.viewport(), QPoint(1, 1));
    QTest::mouseMove(view_.viewport(), Logical(point));
    const std::optional<SPoint> found = view_.MousePoint();
    ASSERT_TRUE(found);
    EXPECT_LE(std::abs(found->x - point.x), 1) << point.x << ", " << point.y;
    EXPECT_LE(std::abs(found->y - point.y), 1) << point.x << ", " << point.y;
  }
}

TEST_P(ScaledDisplayTest, ClickHitsThePinWhereItIsSeen) {
  EXPECT_TRUE(ClickSelects({-5, 30}));
  EXPECT_TRUE(ClickSelects({-8, 28}));
  EXPECT_FALSE(ClickSelects({-5, 38}));
  EXPECT_FALSE(ClickSelects({-16, 30}));
}

INSTANTIATE_TEST_SUITE_P(AtZoom, ScaledDisplayTest, testing::Values(0, 1, 2, 3));

}  // namespace
}  // namespace mivo
