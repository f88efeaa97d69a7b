#include "view_coordinates.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "case_name.h"

namespace mivo {
namespace {

constexpr std::int32_t kSmallest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();

ViewCoordinates Shown(SPoint cells, PixelSize client, std::int32_t zoomIndex = 0) {
  ViewCoordinates view;
  view.SetBody(cells);
  view.SetClientSize(client);
  view.SetZoom(zoomIndex);
  return view;
}

TEST(ViewCoordinates, InitialState) {
  const ViewCoordinates view;
  EXPECT_EQ(view.ZoomIndex(), 0);
  EXPECT_EQ(view.Scale(), (ViewScale{1, 1, 1, 1}));
  EXPECT_EQ(view.Extent(), (PixelSize{10, 10}));
  EXPECT_EQ(view.Margin(), 50);
  EXPECT_EQ(view.Origin(), (PixelPoint{0, 0}));
}

// --- Zoom
// ------------------------------------------------------------------------------------------

TEST(ViewCoordinates, ZoomOutAtTheSmallestKeepsTheIndex) {
  ViewCoordinates view;
  view.SetZoom(-1);
  EXPECT_EQ(view.ZoomIndex(), 0);
  view.SetZoom(kSmallest);
  EXPECT_EQ(view.ZoomIndex(), 0);
}

TEST(ViewCoordinates, ZoomInAtTheLargestKeepsTheIndex) {
  ViewCoordinates view;
  view.SetZoom(4);
  EXPECT_EQ(view.ZoomIndex(), 3);
  view.SetZoom(kLargest);
  EXPECT_EQ(view.ZoomIndex(), 3);
}

struct ScaleCase {
  const char* name;
  double ratio;
  std::array<std::int32_t, 4> multipliers;
  std::int32_t markPixels;
};

class ScaleOnDisplay : public testing::TestWithParam<ScaleCase> {};

TEST_P(ScaleOnDisplay, IsTheTableTimesTheRatioRounded) {
  const ScaleCase& c = GetParam();
  ViewCoordinates view;
  view.SetDevicePixelRatio(c.ratio);
  for (std::int32_t index = 0; index < 4; ++index) {
    view.SetZoom(index);
    const auto entry = static_cast<std::size_t>(index);
    EXPECT_EQ(view.Scale(), (ViewScale{c.multipliers[entry], 1, ViewCoordinates::kZoomTable[entry],
                                       c.markPixels}));
  }
}

INSTANTIATE_TEST_SUITE_P(Ratios, ScaleOnDisplay,
                         testing::Values(ScaleCase{"Ordinary", 1, {1, 2, 5, 10}, 1},
                                         ScaleCase{"OneAndAHalf", 1.5, {2, 3, 8, 15}, 2},
                                         ScaleCase{"OneAndAQuarter", 1.25, {1, 3, 6, 13}, 1},
                                         ScaleCase{"Two", 2, {2, 4, 10, 20}, 2},
                                         ScaleCase{"BelowOne", 0.4, {1, 1, 2, 4}, 1},
                                         ScaleCase{"Zero", 0, {1, 2, 5, 10}, 1},
                                         ScaleCase{"NotANumber", std::nan(""), {1, 2, 5, 10}, 1},
                                         ScaleCase{"TooLarge", 1e300, {64, 128, 320, 640}, 64}),
                         kCaseName);

// --- Extent and margin
// -----------------------------------------------------------------------------

TEST(ViewCoordinates, TheExtentIsBodyAndMarginsScaled) {
  EXPECT_EQ(Shown({4, 3}, {0, 0}).Extent(), (PixelSize{140, 130}));
  EXPECT_EQ(Shown({4, 3}, {0, 0}, 2).Extent(), (PixelSize{700, 650}));
}

TEST(ViewCoordinates, WithoutAComponentTheContentIsTenUnits) {
  ViewCoordinates view = Shown({4, 3}, {20, 20});
  view.SetBody(std::nullopt);
  EXPECT_EQ(view.Extent(), (PixelSize{110, 110}));
}

struct MarginCase {
  std::int32_t set;
  std::int32_t used;
};

class MarginLimits : public testing::TestWithParam<MarginCase> {};

TEST_P(MarginLimits, KeepTheMarginBetween50And200) {
  ViewCoordinates view = Shown({1, 1}, {0, 0});
  view.SetMargin(GetParam().set);
  EXPECT_EQ(view.Margin(), GetParam().used);
  EXPECT_EQ(view.Extent().width, 10 + 2 * GetParam().used);
}

INSTANTIATE_TEST_SUITE_P(Margins, MarginLimits,
                         testing::Values(MarginCase{10, 50}, MarginCase{500, 200},
                                         MarginCase{49, 50}, MarginCase{50, 50}, MarginCase{51, 51},
                                         MarginCase{200, 200}, MarginCase{201, 200},
                                         MarginCase{kSmallest, 50}, MarginCase{kLargest, 200}));

// --- Scrolling
// -------------------------------------------------------------------------------------

TEST(ViewCoordinates, ASmallBodyIsCentredWithTheMarginOnEachSide) {
  const ViewCoordinates view = Shown({4, 4}, {340, 141});
  // 140 pixels of body and margins: 100 are left over on both sides, and 1 below.
  EXPECT_EQ(view.Origin(), (PixelPoint{-150, -50}));
  EXPECT_EQ(view.Horizontal(), (ScrollBar{0, 140, 340}));
  EXPECT_EQ(view.Vertical(), (ScrollBar{0, 140, 141}));
  EXPECT_EQ(view.ToDevice({20, 20}), (PixelPoint{170, 70})) << "the middle of the body";
}

TEST(ViewCoordinates, ABodyThatJustFitsIsCentred) {
  const ViewCoordinates view = Shown({4, 4}, {140, 140});
  EXPECT_EQ(view.Origin(), (PixelPoint{-50, -50}));
}

TEST(ViewCoordinates, ALargerBodyScrollsWithTheMarginAsItsBorder) {
  ViewCoordinates view = Shown({40, 40}, {300, 200});
  EXPECT_EQ(view.Horizontal(), (ScrollBar{0, 500, 300}));
  EXPECT_EQ(view.Origin(), (PixelPoint{-50, -50}));
  view.ScrollTo({kLargest, kLargest});
  EXPECT_EQ(view.Horizontal(), (ScrollBar{200, 500, 300}));
  EXPECT_EQ(view.Vertical(), (ScrollBar{300, 500, 200}));
  EXPECT_EQ(view.Origin(), (PixelPoint{150, 250}));
  // The last pixel shows the end of the margin behind the body.
  EXPECT_EQ(view.ToDevice({400 + 50, 400 + 50}), (PixelPoint{300, 200}));
  view.ScrollTo({-1, kSmallest});
  EXPECT_EQ(view.Origin(), (PixelPoint{-50, -50}));
}

TEST(ViewCoordinates, ScalesTheMarginOfAScrolledBody) {
  EXPECT_EQ(Shown({40, 40}, {300, 200}, 3).Origin(), (PixelPoint{-500, -500}));
}

TEST(ViewCoordinates, OneAxisCanScrollWhileTheOtherIsCentred) {
  ViewCoordinates view = Shown({40, 4}, {300, 200});
  view.ScrollTo({70, 70});
  EXPECT_EQ(view.Origin(), (PixelPoint{20, -80}));
  EXPECT_EQ(view.Vertical().position, 0);
}

TEST(ViewCoordinates, ResizingKeepsThePositionWithinItsRange) {
  ViewCoordinates view = Shown({40, 40}, {300, 300});
  view.ScrollTo({200, 120});
  view.SetClientSize({400, 300});
  EXPECT_EQ(view.Horizontal().position, 100);
  EXPECT_EQ(view.Vertical().position, 120);
  view.SetClientSize({600, 300});
  EXPECT_EQ(view.Horizontal().position, 0);
  EXPECT_EQ(view.Origin().x, -100);
}

TEST(ViewCoordinates, ScrollsByLines) {
  ViewCoordinates view = Shown({40, 40}, {100, 100});
  view.ScrollByLines({1, 2});
  EXPECT_EQ(view.Horizontal().position, 32);
  EXPECT_EQ(view.Vertical().position, 64);
  view.ScrollByLines({kSmallest, -1});
  EXPECT_EQ(view.Horizontal().position, 0);
  EXPECT_EQ(view.Vertical().position, 32);
  view.SetDevicePixelRatio(2);
  view.ScrollByLines({1, 0});
  EXPECT_EQ(view.Horizontal().position, 64);
}

TEST(ViewCoordinates, AZoomKeepsThePointUnderTheCursor) {
  ViewCoordinates view = Shown({40, 40}, {300, 200});
  view.ScrollTo({100, 100});
  const PixelPoint cursor{120, 90};
  const SPoint under = view.ToComponent(cursor);
  for (const std::int32_t index : {1, 2, 3, 2, 1}) {
    view.SetZoom(index);
    view.ScrollToKeep(cursor, under);
    EXPECT_EQ(view.ToDevice(under), cursor) << index;
  }
}

TEST(ViewCoordinates, KeepingAPointNeverScrollsOutOfRange) {
  ViewCoordinates view = Shown({40, 40}, {300, 200});
  view.ScrollToKeep({0, 0}, {kLargest, kLargest});
  EXPECT_EQ(view.Horizontal().position, 200);
  view.ScrollToKeep({kLargest, kLargest}, {0, 0});
  EXPECT_EQ(view.Horizontal().position, 0);
}

TEST(ViewCoordinates, KeepingAPointLeavesACentredBodyCentred) {
  ViewCoordinates view = Shown({4, 4}, {340, 340});
  view.ScrollToKeep({10, 10}, {30, 30});
  EXPECT_EQ(view.Origin(), (PixelPoint{-150, -150}));
}

TEST(ViewCoordinates, AnyBodyHasAnExtent) {
  for (const SPoint cells :
       {SPoint{kLargest, kLargest}, SPoint{kSmallest, kSmallest}, SPoint{0, -5}}) {
    ViewCoordinates view = Shown(cells, {300, 200}, 3);
    view.ScrollTo({kLargest, kLargest});
    EXPECT_GE(view.Horizontal().position, 0);
    EXPECT_LE(view.Horizontal().position, std::max(0, view.Extent().width - 300));
  }
  EXPECT_EQ(Shown({kLargest, 1}, {300, 200}, 3).Extent().width, kLargest);
  EXPECT_EQ(Shown({kSmallest, 1}, {300, 200}, 3).Extent().width, 0);
}

// --- Conversion
// ------------------------------------------------------------------------------------

TEST(ViewCoordinates, ConvertsBackTruncatingTowardZero) {
  ViewCoordinates view = Shown({40, 40}, {300, 200}, 2);
  view.ScrollTo({250, 250});  // the margin is 250 pixels wide: the body starts at the corner
  EXPECT_EQ(view.ToDevice({3, 4}), (PixelPoint{15, 20}));
  EXPECT_EQ(view.ToComponent({19, 24}), (SPoint{3, 4}));
  EXPECT_EQ(view.ToComponent({-4, -5}), (SPoint{0, -1}));
}

TEST(ViewCoordinates, ConvertsAnything) {
  ViewCoordinates view = Shown({40, 40}, {300, 200}, 3);
  view.ScrollTo({700, 700});
  EXPECT_EQ(view.ToComponent({kLargest, kSmallest}).x, (kSmallest + 199) / 10);
  EXPECT_EQ(view.ToDevice({429496730, 0}).x, 4 - 200) << "wraps";
}

TEST(ViewCoordinates, KnowsItsClientArea) {
  ViewCoordinates view = Shown({40, 40}, {300, 200}, 1);
  EXPECT_TRUE(view.ClientContains({0, 0}));
  EXPECT_TRUE(view.ClientContains({299, 199}));
  EXPECT_FALSE(view.ClientContains({300, 199}));
  EXPECT_FALSE(view.ClientContains({299, 200}));
  EXPECT_FALSE(view.ClientContains({-1, 0}));
  EXPECT_FALSE(view.ClientContains({0, -1}));
  EXPECT_EQ(view.VisibleArea(), (SRect{-50, -50, 100, 50}));
}

}  // namespace
}  // namespace mivo
