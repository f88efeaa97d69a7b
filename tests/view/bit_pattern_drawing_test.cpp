#include "bit_pattern_drawing.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "case_name.h"
#include "colors.h"
#include "recording_surface.h"

namespace mivo {
namespace {

constexpr ViewScale kPlain{1, 1, 1, 1};

BitImage Bits(const std::vector<std::string>& rows) {
  BitImage image(static_cast<std::int32_t>(rows.front().size()),
                 static_cast<std::int32_t>(rows.size()));
  for (std::size_t y = 0; y < rows.size(); ++y) {
    for (std::size_t x = 0; x < rows[y].size(); ++x) {
      if (rows[y][x] == '#') image.Set(static_cast<std::int32_t>(x), static_cast<std::int32_t>(y));
    }
  }
  return image;
}

std::string Drawn(const BitImage& bits, DrawFlags flags = kDrawNormal,
                  BitOrientation orientation = {}, const ViewScale& scale = kPlain,
                  SPoint position = {}) {
  RecordingSurface surface({100, 100});
  DrawBitPattern(surface, position, bits.View(), flags, colors::kBitPattern, orientation, scale);
  return surface.TakeRecord();
}

struct OrientedCase {
  const char* name;
  BitOrientation orientation;
  const char* drawn;
};

class OrientedBits : public testing::TestWithParam<OrientedCase> {};

TEST_P(OrientedBits, AreTurnedAndMirrored) {
  EXPECT_EQ(Drawn(Bits({"##.", "..#"}), kDrawNormal, GetParam().orientation),
            "bits 0,0 " + std::string(GetParam().drawn) + " #80ffff\n");
}

INSTANTIATE_TEST_SUITE_P(
    Orientations, OrientedBits,
    testing::Values(OrientedCase{"Plain", {0, false}, "3x2 ##./..#"},
                    OrientedCase{"QuarterTurn", {1, false}, "2x3 .#/.#/#."},
                    OrientedCase{"HalfTurn", {2, false}, "3x2 #../.##"},
                    OrientedCase{"ThreeQuarterTurns", {3, false}, "2x3 .#/#./#."},
                    OrientedCase{"Mirrored", {0, true}, "3x2 .##/#.."},
                    OrientedCase{"MirroredQuarterTurn", {1, true}, "2x3 #./#./.#"},
                    OrientedCase{"MirroredHalfTurn", {2, true}, "3x2 ..#/##."},
                    OrientedCase{"MirroredThreeQuarterTurns", {3, true}, "2x3 #./.#/.#"},
                    OrientedCase{"OnlyTheLowestTwoBitsTurn", {5, false}, "2x3 .#/.#/#."}),
    kCaseName);

TEST(DrawBitPattern, RowsOfMoreThan256BytesAreNotFlipped) {
  std::vector<std::string> rows = {std::string(2049, '.'), std::string(2049, '.')};
  rows[0][0] = '#';
  const std::string wide = Drawn(Bits(rows), kDrawNormal, {0, true});
  EXPECT_TRUE(wide.ends_with("# #80ffff\n")) << "turned by a half turn only";
  rows[0].resize(2048);
  rows[1].resize(2048);
  const std::string narrow = Drawn(Bits(rows), kDrawNormal, {0, true});
  EXPECT_TRUE(narrow.ends_with(". #80ffff\n"));
}

struct FlagsCase {
  const char* name;
  DrawFlags flags;
  const char* drawn;
};

class BitFlags : public testing::TestWithParam<FlagsCase> {};

TEST_P(BitFlags, ChooseTheColor) {
  EXPECT_EQ(Drawn(Bits({"#"}), GetParam().flags), GetParam().drawn);
}

INSTANTIATE_TEST_SUITE_P(
    Flags, BitFlags,
    testing::Values(FlagsCase{"Normal", kDrawNormal, "bits 0,0 1x1 # #80ffff\n"},
                    FlagsCase{"Selected", kDrawSelected, "bits 0,0 1x1 # #80ffff\n"},
                    FlagsCase{"Monochrome", kDrawMonochrome, "bits 0,0 1x1 # #000000\n"},
                    FlagsCase{"MonochromeAndNormal", kDrawMonochrome | kDrawNormal,
                              "bits 0,0 1x1 # #80ffff\n"},
                    FlagsCase{"Grey", kDrawGrey, ""}, FlagsCase{"None", 0, ""}),
    kCaseName);

struct StretchCase {
  const char* name;
  std::int32_t multiplier;
  std::int32_t divisor;
  SPoint position;
  const char* box;  // of an image of 3 by 2
};

class BitStretch : public testing::TestWithParam<StretchCase> {};

TEST_P(BitStretch, CentresPixelsOnTheirPoints) {
  const StretchCase& c = GetParam();
  EXPECT_EQ(
      Drawn(Bits({"###", "###"}), kDrawNormal, {}, {c.multiplier, c.divisor, 1, 1}, c.position),
      "bits " + std::string(c.box) + " ###/### #80ffff\n");
}

INSTANTIATE_TEST_SUITE_P(Zooms, BitStretch,
                         testing::Values(StretchCase{"One", 1, 1, {4, 5}, "4,5 3x2"},
                                         StretchCase{"Two", 2, 1, {4, 5}, "7,9 6x4"},
                                         StretchCase{"Five", 5, 1, {0, 0}, "-2,-2 15x10"},
                                         StretchCase{"Ten", 10, 1, {-1, 0}, "-15,-5 30x20"},
                                         StretchCase{"Half", 1, 2, {4, 5}, "2,2 2x2"}),
                         kCaseName);

TEST(ViewOf, ShowsTheStoredPartOfABitPattern) {
  SBitPattern bits({20, 3});
  bits.Row(20, 2)[1] = 0x80;
  const BitImageView view = ViewOf(bits, {20, 3});
  EXPECT_EQ(view.width, 20);
  EXPECT_EQ(view.height, 3);
  EXPECT_EQ(view.stride, 4);
  EXPECT_TRUE(view.At(8, 2));
  EXPECT_FALSE(view.At(7, 2));
}

TEST(ViewOf, NothingIsStoredBeyond501PixelsEachWay) {
  const SBitPattern bits({600, 700});
  const BitImageView view = ViewOf(bits, {600, 700});
  EXPECT_EQ(view.width, 501);
  EXPECT_EQ(view.height, 501);
  EXPECT_EQ(view.stride, 64);
}

TEST(ViewOf, AChangedSizeReadsNoBitsBehindTheBytes) {
  SBitPattern bits({8, 1});
  bits.Row(8, 0)[0] = 0xFF;
  const BitImageView view = ViewOf(bits, {40, 30});
  EXPECT_TRUE(view.At(0, 0));
  EXPECT_FALSE(view.At(39, 29));
  EXPECT_EQ(ViewOf(bits, {-5, -5}).width, 0);
}

}  // namespace
}  // namespace mivo
