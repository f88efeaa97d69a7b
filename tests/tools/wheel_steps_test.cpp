#include "wheel_steps.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace mivo {
namespace {

struct WheelCase {
  const char* name;
  std::vector<std::int32_t> deltas;
  std::vector<std::int32_t> notches;
};

void PrintTo(const WheelCase& c, std::ostream* out) {
  *out << c.name;
}

class WheelStepsTest : public testing::TestWithParam<WheelCase> {};

TEST_P(WheelStepsTest, GivesWholeNotches) {
  WheelSteps steps;
  std::vector<std::int32_t> notches;
  for (const std::int32_t delta : GetParam().deltas) notches.push_back(steps.Take(delta));
  EXPECT_EQ(notches, GetParam().notches);
}

constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();

INSTANTIATE_TEST_SUITE_P(
    Turns, WheelStepsTest,
    testing::Values(WheelCase{"OneNotch", {120}, {1}}, WheelCase{"OneNotchBack", {-120}, {-1}},
                    WheelCase{"Parts", {40, 40, 40, 40}, {0, 0, 1, 0}},
                    WheelCase{"PartsBack", {-119, -1, -1}, {0, -1, 0}},
                    WheelCase{"ThereAndBack", {100, -100, 100, 20}, {0, 0, 0, 1}},
                    WheelCase{"Several", {250, 110}, {2, 1}}, WheelCase{"Nothing", {0, 0}, {0, 0}},
                    WheelCase{"Huge", {kMax, kMax, kMin}, {17895697, 17895697, -17895696}}),
    [](const auto& test) { return test.param.name; });

}  // namespace
}  // namespace mivo
