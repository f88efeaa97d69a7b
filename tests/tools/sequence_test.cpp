#include "sequence.h"

#include <gtest/gtest.h>

#include <exception>

#include "sequence_player.h"

namespace mivo {
namespace {

class SequenceTest : public ::testing::TestWithParam<Sequence> {};

TEST_P(SequenceTest, Plays) {
  const Sequence& sequence = GetParam();
  SequencePlayer player;
  for (const Sequence::Step& step : sequence.steps) {
    std::optional<std::string> wrong;
    try {
      wrong = player.Do(step.text);
    } catch (const std::exception& error) {
      wrong = error.what();
    }
    if (!wrong) continue;
    ADD_FAILURE_AT(sequence.file.string().c_str(), step.line)
        << sequence.name << "\n  " << step.text << "\n  " << *wrong;
  }
  EXPECT_FALSE(sequence.steps.empty());
}

/// "selector.seq" line 12 becomes Selector_12, which finds the case and stays unique.
std::string TestName(const ::testing::TestParamInfo<Sequence>& info) {
  std::string name = info.param.file.stem().string() + "_" + std::to_string(info.param.line);
  for (char& c : name) {
    if (c == '-') c = '_';
  }
  return name;
}

INSTANTIATE_TEST_SUITE_P(Sequences, SequenceTest,
                         ::testing::ValuesIn(LoadSequences(MIVO_SEQUENCE_FOLDER)), TestName);

}  // namespace
}  // namespace mivo
