#include "golden.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>

namespace mivo {

bool UpdatingGoldens() {
  const char* const value = std::getenv("UPDATE_GOLDENS");
  return value != nullptr && std::string_view(value) == "1";
}

testing::AssertionResult MatchesGolden(const std::filesystem::path& golden, std::string_view text) {
  if (UpdatingGoldens()) {
    std::filesystem::create_directories(golden.parent_path());
    std::ofstream file(golden, std::ios::binary);
    file << text;
    if (file.flush()) return testing::AssertionSuccess();
    return testing::AssertionFailure() << "cannot write " << golden;
  }
  std::ifstream file(golden, std::ios::binary);
  if (!file) return testing::AssertionFailure() << "no " << golden << "; see golden.h";
  const std::string kept{std::istreambuf_iterator<char>(file), {}};
  if (kept == text) return testing::AssertionSuccess();

  std::istringstream keptLines(kept);
  std::istringstream newLines{std::string(text)};
  std::string keptLine;
  std::string newLine;
  for (int number = 1;; ++number) {
    const bool hasKept = static_cast<bool>(std::getline(keptLines, keptLine));
    const bool hasNew = static_cast<bool>(std::getline(newLines, newLine));
    if (hasKept && hasNew && keptLine == newLine) continue;
    return testing::AssertionFailure()
           << golden << ", line " << number
           << " (golden.h says how to update)\n  kept: " << (hasKept ? keptLine : "(end)")
           << "\n  now:  " << (hasNew ? newLine : "(end)");
  }
}

}  // namespace mivo
