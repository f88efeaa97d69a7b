#include "pin_grid_style.h"

#include <gtest/gtest.h>

namespace mivo {
namespace {

TEST(PinGridStyle, ListHasItsOwnOrder) {
  EXPECT_EQ(kPinGridStyles, (std::array<std::int32_t, 6>{0, 8, 4, 12, 1, 2}));
}

TEST(PinGridStyle, EveryListedStyleIsFoundAndStaysWhenChosenAgain) {
  for (std::size_t entry = 0; entry < kPinGridStyles.size(); ++entry) {
    for (const std::int32_t hidden : {0, 16}) {
      const std::int32_t type = kPinGridStyles[entry] | hidden;
      EXPECT_EQ(PinGridStyleEntry(type), entry);
      EXPECT_EQ(TypeWithPinGridStyle(type, entry), type);
    }
  }
}

TEST(PinGridStyle, AnyOtherStyleOpensTheFirstEntry) {
  for (const std::int32_t style : {3, 5, 6, 7, 9, 10, 11, 13, 14, 15}) {
    EXPECT_EQ(PinGridStyleEntry(style), 0U) << style;
    EXPECT_EQ(PinGridStyleEntry(style | 16), 0U) << style;
  }
}

TEST(PinGridStyle, ChoosingAStyleKeepsTheHiddenNumber) {
  EXPECT_EQ(TypeWithPinGridStyle(16 + 0, 1), 16 + 8);
  EXPECT_EQ(TypeWithPinGridStyle(16 + 12, 5), 16 + 2);
  EXPECT_EQ(TypeWithPinGridStyle(4, 0), 0);
}

}  // namespace
}  // namespace mivo
