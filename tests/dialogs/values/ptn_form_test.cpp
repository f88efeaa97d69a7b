#include "ptn_form.h"

#include <gtest/gtest.h>

#include <limits>

namespace mivo {
namespace {

constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kSmallest = std::numeric_limits<std::int32_t>::min();

TEST(PtnForm, OffersPenWidthsUpToFive) {
  struct Case {
    std::int32_t width;
    std::int32_t offered;
  };
  for (const Case test : {Case{0, 0}, Case{1, 1}, Case{5, 5}, Case{6, 5}, Case{9, 5}, Case{-1, 0},
                          Case{kLargest, 5}, Case{kSmallest, 0}}) {
    EXPECT_EQ(OfferedPenWidth(test.width), test.offered) << test.width;
  }
}

TEST(PtnForm, AnchorsAreTwoBitsEach) {
  struct Case {
    std::int32_t align;
    HorizontalAnchor horizontal;
    VerticalAnchor vertical;
  };
  const Case cases[] = {
      {0, HorizontalAnchor::Left, VerticalAnchor::Lower},
      {1, HorizontalAnchor::Right, VerticalAnchor::Lower},
      {2, HorizontalAnchor::Center, VerticalAnchor::Lower},
      {3, HorizontalAnchor::Center, VerticalAnchor::Lower},
      {4, HorizontalAnchor::Left, VerticalAnchor::Upper},
      {5, HorizontalAnchor::Right, VerticalAnchor::Upper},
      {8, HorizontalAnchor::Left, VerticalAnchor::Center},
      {10, HorizontalAnchor::Center, VerticalAnchor::Center},
      {12, HorizontalAnchor::Left, VerticalAnchor::Center},
      {16, HorizontalAnchor::Left, VerticalAnchor::Lower},
      {-1, HorizontalAnchor::Center, VerticalAnchor::Center},
      {kSmallest, HorizontalAnchor::Left, VerticalAnchor::Lower},
  };
  for (const Case& test : cases) {
    EXPECT_EQ(HorizontalAnchorOf(test.align), test.horizontal) << test.align;
    EXPECT_EQ(VerticalAnchorOf(test.align), test.vertical) << test.align;
  }
}

TEST(PtnForm, AnchorsMakeTheAlignment) {
  EXPECT_EQ(AlignOf(HorizontalAnchor::Left, VerticalAnchor::Lower), 0);
  EXPECT_EQ(AlignOf(HorizontalAnchor::Right, VerticalAnchor::Lower), 1);
  EXPECT_EQ(AlignOf(HorizontalAnchor::Left, VerticalAnchor::Upper), 4);
  EXPECT_EQ(AlignOf(HorizontalAnchor::Right, VerticalAnchor::Upper), 5);
  EXPECT_EQ(AlignOf(HorizontalAnchor::Center, VerticalAnchor::Center), 10);
}

TEST(PtnForm, ATextWithoutFaceUsesTheCommonFont) {
  EXPECT_TRUE(UsesCommonFont({}));
  TextValues values{
      .text = u"T", .align = 5, .face = u"Serif", .height = 20, .weight = 700, .italic = true};
  EXPECT_FALSE(UsesCommonFont(values));
  UseCommonFont(values);
  EXPECT_EQ(values, (TextValues{.text = u"T", .align = 5, .face = u"", .height = 10}));
}

}  // namespace
}  // namespace mivo
