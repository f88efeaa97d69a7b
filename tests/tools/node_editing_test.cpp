#include "node_editing.h"

#include <gtest/gtest.h>

#include <limits>

namespace mivo {
namespace {

constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();

struct NearestCase {
  const char* name;
  SPoint start;
  SPoint end;
  SPoint point;
  SPoint nearest;
};

void PrintTo(const NearestCase& c, std::ostream* out) {
  *out << c.name;
}

class NearestOnSegmentTest : public testing::TestWithParam<NearestCase> {};

TEST_P(NearestOnSegmentTest, IsThePerpendicularFootWithinTheSegment) {
  const NearestCase& c = GetParam();
  EXPECT_EQ(NearestOnSegment(c.start, c.end, c.point), c.nearest);
  EXPECT_EQ(NearestOnSegment(c.end, c.start, c.point), c.nearest) << "the other way round";
}

INSTANTIATE_TEST_SUITE_P(
    Segments, NearestOnSegmentTest,
    testing::Values(NearestCase{"Horizontal", {0, 0}, {10, 0}, {4, 3}, {4, 0}},
                    NearestCase{"Vertical", {5, 0}, {5, 10}, {9, 7}, {5, 7}},
                    NearestCase{"Diagonal", {0, 0}, {10, 10}, {0, 10}, {5, 5}},
                    NearestCase{"RoundedDown", {0, 0}, {40, 20}, {21, 10}, {21, 10}},
                    NearestCase{"RoundedUp", {0, 0}, {3, 1}, {2, 0}, {2, 1}},
                    NearestCase{"BeyondTheStart", {0, 0}, {10, 0}, {-4, 3}, {0, 0}},
                    NearestCase{"BeyondTheEnd", {0, 0}, {10, 0}, {14, -3}, {10, 0}},
                    NearestCase{"OnAnEnd", {3, 4}, {10, 20}, {10, 20}, {10, 20}},
                    NearestCase{"NoLength", {3, 4}, {3, 4}, {10, 20}, {3, 4}},
                    NearestCase{"Negative", {-10, -10}, {-20, -10}, {-13, 0}, {-13, -10}},
                    NearestCase{
                        "Everything", {kMin, kMin}, {kMax, kMax}, {kMax, kMax}, {kMax, kMax}},
                    NearestCase{"EverythingFromTheOtherCorner",
                                {kMin, kMin},
                                {kMax, kMax},
                                {kMin, kMin},
                                {kMin, kMin}}),
    [](const auto& test) { return test.param.name; });

}  // namespace
}  // namespace mivo
