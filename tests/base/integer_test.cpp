#include "integer.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace mivo {
namespace {

constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();

TEST(WrapAdd, AddsAndWraps) {
  EXPECT_EQ(WrapAdd(2, -5), -3);
  EXPECT_EQ(WrapAdd(kMax, 1), kMin);
  EXPECT_EQ(WrapAdd(kMin, -1), kMax);
  EXPECT_EQ(WrapAdd(kMin, kMin), 0);
}

TEST(WrapSub, SubtractsAndWraps) {
  EXPECT_EQ(WrapSub(2, 5), -3);
  EXPECT_EQ(WrapSub(kMin, 1), kMax);
  EXPECT_EQ(WrapSub(kMax, -1), kMin);
  EXPECT_EQ(WrapSub(0, kMin), kMin);
}

TEST(WrapMul, MultipliesAndWraps) {
  EXPECT_EQ(WrapMul(-7, 6), -42);
  EXPECT_EQ(WrapMul(kMax, 2), -2);
  EXPECT_EQ(WrapMul(kMin, -1), kMin);
  EXPECT_EQ(WrapMul(65536, 65536), 0);
}

TEST(WrapNeg, NegatesAndLeavesTheSmallestInteger) {
  EXPECT_EQ(WrapNeg(5), -5);
  EXPECT_EQ(WrapNeg(kMax), -kMax);
  EXPECT_EQ(WrapNeg(kMin), kMin);
}

TEST(WrapAbs, IsTheMagnitudeExceptOfTheSmallestInteger) {
  EXPECT_EQ(WrapAbs(0), 0);
  EXPECT_EQ(WrapAbs(-3), 3);
  EXPECT_EQ(WrapAbs(kMin + 1), kMax);
  EXPECT_EQ(WrapAbs(kMin), kMin);
}

TEST(WrapDiv, TruncatesTowardZeroAndWraps) {
  EXPECT_EQ(WrapDiv(7, 2), 3);
  EXPECT_EQ(WrapDiv(-7, 2), -3);
  EXPECT_EQ(WrapDiv(7, -2), -3);
  EXPECT_EQ(WrapDiv(7, -1), -7);
  EXPECT_EQ(WrapDiv(kMin, -1), kMin);
  EXPECT_EQ(WrapDiv(kMin, 2), kMin / 2);
}

TEST(WrapScale, MultipliesFirst) {
  EXPECT_EQ(WrapScale(5, 3, 2), 7);
  EXPECT_EQ(WrapScale(-5, 3, 2), -7);
  // The product wraps to -2 before it is divided.
  EXPECT_EQ(WrapScale(kMax, 2, 2), -1);
  EXPECT_EQ(WrapScale(kMin, 1, -1), kMin);
}

TEST(TruncateToInt, DropsTheFraction) {
  EXPECT_EQ(TruncateToInt(2.9), 2);
  EXPECT_EQ(TruncateToInt(-2.9), -2);
  EXPECT_EQ(TruncateToInt(-0.5), 0);
}

TEST(TruncateToInt, TakesTheWholeRange) {
  EXPECT_EQ(TruncateToInt(2147483647.0), kMax);
  EXPECT_EQ(TruncateToInt(2147483647.9), kMax);
  EXPECT_EQ(TruncateToInt(-2147483648.0), kMin);
  EXPECT_EQ(TruncateToInt(-2147483648.9), kMin);
}

TEST(TruncateToInt, GivesTheSmallestIntegerForWhatDoesNotFit) {
  EXPECT_EQ(TruncateToInt(2147483648.0), kMin);
  EXPECT_EQ(TruncateToInt(-2147483649.0), kMin);
  EXPECT_EQ(TruncateToInt(1e300), kMin);
  EXPECT_EQ(TruncateToInt(std::numeric_limits<double>::infinity()), kMin);
  EXPECT_EQ(TruncateToInt(std::nan("")), kMin);
}

}  // namespace
}  // namespace mivo
