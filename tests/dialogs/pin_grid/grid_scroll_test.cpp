#include "grid_scroll.h"

#include <gtest/gtest.h>

#include "case_name.h"

namespace mivo {
namespace {

struct ScrollCase {
  const char* name;
  ScrollRequest request;
  int from;
  int thumb;
  int to;
};

class GridScrollTest : public testing::TestWithParam<ScrollCase> {};

// 50 rows of which 10 are in sight, 4 to a page.
INSTANTIATE_TEST_SUITE_P(
    Requests, GridScrollTest,
    testing::Values(ScrollCase{"LineForward", ScrollRequest::LineForward, 7, 0, 8},
                    ScrollCase{"LineBack", ScrollRequest::LineBack, 7, 0, 6},
                    ScrollCase{"PageForward", ScrollRequest::PageForward, 7, 0, 11},
                    ScrollCase{"PageBack", ScrollRequest::PageBack, 7, 0, 3},
                    ScrollCase{"Thumb", ScrollRequest::Thumb, 7, 23, 23},
                    ScrollCase{"End", ScrollRequest::End, 7, 0, 40},
                    ScrollCase{"StartIsIgnored", ScrollRequest::Start, 7, 0, 7},
                    ScrollCase{"LineBackAtTheStart", ScrollRequest::LineBack, 0, 0, 0},
                    ScrollCase{"PageBackNearTheStart", ScrollRequest::PageBack, 2, 0, 0},
                    ScrollCase{"LineForwardAtTheEnd", ScrollRequest::LineForward, 40, 0, 40},
                    ScrollCase{"PageForwardNearTheEnd", ScrollRequest::PageForward, 38, 0, 40},
                    ScrollCase{"ThumbBeyondTheEnd", ScrollRequest::Thumb, 7, 41, 40},
                    ScrollCase{"ThumbBeforeTheStart", ScrollRequest::Thumb, 7, -1, 0}),
    [](const auto& tested) { return std::string(tested.param.name); });

TEST_P(GridScrollTest, Scrolls) {
  GridScroll scroll(4);
  scroll.SetCount(50);
  scroll.SetVisible(10);
  scroll.ScrollTo(GetParam().from);
  scroll.Scroll(GetParam().request, GetParam().thumb);
  EXPECT_EQ(scroll.First(), GetParam().to);
}

TEST(GridScroll, StaysAtTheStartWhenEverythingIsInSight) {
  GridScroll scroll(4);
  scroll.SetCount(5);
  scroll.SetVisible(10);
  scroll.Scroll(ScrollRequest::End, 0);
  EXPECT_EQ(scroll.First(), 0);
  EXPECT_EQ(scroll.Last(), 0);
}

TEST(GridScroll, GoesBackWhenThereIsLessToShow) {
  GridScroll scroll(4);
  scroll.SetCount(50);
  scroll.SetVisible(10);
  scroll.ScrollTo(40);
  scroll.SetCount(30);
  EXPECT_EQ(scroll.First(), 20);
}

TEST(GridScroll, GoesBackWhenTheWindowGrows) {
  GridScroll scroll(4);
  scroll.SetCount(50);
  scroll.SetVisible(10);
  scroll.ScrollTo(40);
  scroll.SetVisible(25);
  EXPECT_EQ(scroll.First(), 25);
}

struct RevealCase {
  const char* name;
  int visible;
  int index;
  int first;
};

class GridScrollRevealTest : public testing::TestWithParam<RevealCase> {};

INSTANTIATE_TEST_SUITE_P(Places, GridScrollRevealTest,
                         testing::Values(RevealCase{"InSight", 10, 25, 20},
                                         RevealCase{"FirstInSight", 10, 20, 20},
                                         RevealCase{"LastInSight", 10, 29, 20},
                                         RevealCase{"JustAbove", 10, 19, 19},
                                         RevealCase{"JustBelow", 10, 30, 21},
                                         RevealCase{"WindowOfNoWholeRow", 0, 30, 30}),
                         [](const auto& tested) { return std::string(tested.param.name); });

TEST_P(GridScrollRevealTest, ScrollsNoFartherThanNeeded) {
  GridScroll scroll(4);
  scroll.SetCount(50);
  scroll.SetVisible(GetParam().visible);
  scroll.ScrollTo(20);
  scroll.Reveal(GetParam().index);
  EXPECT_EQ(scroll.First(), GetParam().first);
}

}  // namespace
}  // namespace mivo
