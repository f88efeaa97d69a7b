#ifndef MIVO_TESTS_VIEW_SUPPORT_GOLDEN_H
#define MIVO_TESTS_VIEW_SUPPORT_GOLDEN_H

#include <gtest/gtest.h>

#include <filesystem>
#include <string_view>

namespace mivo {

// Results that were looked at once and are kept beside the tests, in a folder `goldens`. After a
// change that is meant to alter them:
//
//   UPDATE_GOLDENS=1 ctest --test-dir build -R 'view'
//
// writes what the tests produce now; the difference is then reviewed like any other.

/// Whether kept results are being written anew.
[[nodiscard]] bool UpdatingGoldens();

/// Compares `text` with the file `golden`, or writes it there when goldens are being updated. A
/// failure says which line is the first to differ.
[[nodiscard]] testing::AssertionResult MatchesGolden(const std::filesystem::path& golden,
                                                     std::string_view text);

}  // namespace mivo

#endif
