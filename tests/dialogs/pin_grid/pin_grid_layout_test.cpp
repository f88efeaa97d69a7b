#include "pin_grid_layout.h"

#include <gtest/gtest.h>

namespace mivo {
namespace {

using namespace pin_grid_column;

struct HitCase {
  const char* name;
  int x;
  int column;
};

class PinGridHitTest : public testing::TestWithParam<HitCase> {};

INSTANTIATE_TEST_SUITE_P(
    Columns, PinGridHitTest,
    testing::Values(HitCase{"LocationFirst", 0, kLocation}, HitCase{"LocationLast", 31, kLocation},
                    HitCase{"NameFirst", 32, kName}, HitCase{"NameLast", 187, kName},
                    HitCase{"StyleFirst", 188, kStyle}, HitCase{"StyleLast", 267, kStyle},
                    HitCase{"HideFirst", 268, kHide}, HitCase{"HideLast", 299, kHide},
                    HitCase{"Block0First", 300, kFirstBlock},
                    HitCase{"Block0Last", 399, kFirstBlock},
                    HitCase{"Block1First", 400, kFirstBlock + 1},
                    HitCase{"Block31Last", 3499, kFirstBlock + 31}),
    [](const auto& tested) { return std::string(tested.param.name); });

TEST_P(PinGridHitTest, ColumnIsFoundFromX) {
  EXPECT_EQ(PinGridLayout(20).ColumnAt(GetParam().x), GetParam().column);
}

TEST(PinGridLayout, ColumnsStandSideBySide) {
  for (const double scale : {0.01, 1.0, 1.25, 1.5, 2.0, 3.7}) {
    const PinGridLayout layout(20, scale);
    EXPECT_EQ(layout.Left(kLocation), 0);
    for (int column = 0; column < 12; ++column) {
      SCOPED_TRACE(column);
      EXPECT_EQ(layout.Left(column + 1), layout.Left(column) + layout.Width(column));
      EXPECT_EQ(layout.ColumnAt(layout.Left(column)), column);
      EXPECT_EQ(layout.ColumnAt(layout.Left(column + 1) - 1), column);
    }
  }
}

TEST(PinGridLayout, WidthsFollowTheDisplay) {
  const PinGridLayout layout(20, 1.5);
  EXPECT_EQ(layout.Width(kLocation), 48);
  EXPECT_EQ(layout.Width(kName), 234);
  EXPECT_EQ(layout.Width(kStyle), 120);
  EXPECT_EQ(layout.Width(kHide), 48);
  EXPECT_EQ(layout.Width(kFirstBlock), 150);
}

TEST(PinGridLayout, RowIsFoundFromY) {
  const PinGridLayout layout(20);
  EXPECT_EQ(layout.RowAt(0), 0);
  EXPECT_EQ(layout.RowAt(19), 0);
  EXPECT_EQ(layout.RowAt(20), 1);
}

TEST(PinGridLayout, OnlyWholeRowsAndBlocksCountAsFitting) {
  const PinGridLayout layout(20);
  EXPECT_EQ(layout.WholeRows(19), 0);
  EXPECT_EQ(layout.WholeRows(59), 2);
  EXPECT_EQ(layout.WholeRows(60), 3);
  EXPECT_EQ(layout.WholeBlocks(0), 0);
  EXPECT_EQ(layout.WholeBlocks(399), 0);
  EXPECT_EQ(layout.WholeBlocks(400), 1);
  EXPECT_EQ(layout.WholeBlocks(599), 2);
}

}  // namespace
}  // namespace mivo
