#include "common_font.h"

#include <gtest/gtest.h>

#include <limits>

namespace mivo {
namespace {

TEST(SCommonFont, IsTahomaNineUnitsHighAtFirst) {
  const SCommonFont font;
  EXPECT_EQ(font.face, u"Tahoma");
  EXPECT_EQ(font.height, 9);
  EXPECT_EQ(font.weight, 400);
  EXPECT_FALSE(font.italic);
}

TEST(SCommonFont, ScalesItsHeight) {
  EXPECT_EQ(ScaledFont({u"Face", 9, 700, true}, true, 5, 1), (Font{u"Face", 45, 700, true, true}));
  EXPECT_EQ(ScaledFont({u"Face", -9, 400, false}, false, 3, 2),
            (Font{u"Face", 13, 400, false, false}));
}

TEST(FontPixels, StayWithinTheirLimits) {
  constexpr std::int32_t kSmallest = std::numeric_limits<std::int32_t>::min();
  EXPECT_EQ(FontPixels(0, 10, 1), kMinFontPixels);
  EXPECT_EQ(FontPixels(9, 1, 10), kMinFontPixels);
  EXPECT_EQ(FontPixels(409, 10, 1), 4090);
  EXPECT_EQ(FontPixels(410, 10, 1), kMaxFontPixels);
  EXPECT_EQ(FontPixels(kSmallest, 10, 1), kMaxFontPixels);
}

}  // namespace
}  // namespace mivo
