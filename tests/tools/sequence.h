#ifndef MIVO_TESTS_TOOLS_SEQUENCE_H
#define MIVO_TESTS_TOOLS_SEQUENCE_H

#include <filesystem>
#include <iosfwd>
#include <string>
#include <vector>

namespace mivo {

/// What a user does and what must come of it, a step a line. README.md beside the sequences
/// explains the steps.
struct Sequence {
  struct Step {
    int line = 0;
    std::string text;
  };

  std::filesystem::path file;
  int line = 0;
  std::string name;
  std::vector<Step> steps;
};

void PrintTo(const Sequence& sequence, std::ostream* out);

/// All sequences of the files "*.seq" in `folder`, ordered by file and line.
[[nodiscard]] std::vector<Sequence> LoadSequences(const std::filesystem::path& folder);

}  // namespace mivo

#endif
