#include "first_difference.h"

#include <gtest/gtest.h>

#include <optional>
#include <string_view>
#include <vector>

#include "case_name.h"

namespace mivo {
namespace {

using Line = std::optional<std::int64_t>;

struct Case {
  const char* name;
  std::string_view expected;
  std::vector<std::string_view> written;
  Line line;
};

class FirstDifferenceOf : public testing::TestWithParam<Case> {};

TEST_P(FirstDifferenceOf, TheLineIsFound) {
  FirstDifference difference(GetParam().expected);
  for (const std::string_view piece : GetParam().written) EXPECT_TRUE(difference.Write(piece));
  EXPECT_EQ(difference.Line(), GetParam().line);
}

INSTANTIATE_TEST_SUITE_P(
    All, FirstDifferenceOf,
    testing::Values(Case{"NothingAndNothing", "", {}, std::nullopt},
                    Case{"Same", "a\nb\n", {"a\nb\n"}, std::nullopt},
                    Case{"SameInPieces", "a\nb\n", {"a", "", "\nb", "\n"}, std::nullopt},
                    Case{"FirstLine", "a\nb\n", {"x\nb\n"}, 1},
                    Case{"SecondLine", "a\nb\n", {"a\n", "x\n"}, 2},
                    Case{"AtALineEnd", "a\r\nb\n", {"a\nb\n"}, 1},
                    Case{"LongerWritten", "a\nb\n", {"a\nb\n", "c\n"}, 3},
                    Case{"LongerExpected", "a\nb\nc\n", {"a\nb\n"}, 3},
                    Case{"ExpectedWithoutLineEnd", "a\nb", {"a\nb\n"}, 2},
                    Case{"NothingWritten", "a\n", {}, 1}, Case{"NothingExpected", "", {"a"}, 1},
                    Case{"SameAgainAfterADifference", "ab\nc\n", {"x", "ab\nc\n"}, 1}),
    kCaseName);

}  // namespace
}  // namespace mivo
