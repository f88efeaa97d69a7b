#include "finding.h"

#include <gtest/gtest.h>

#include <set>

namespace mivo {
namespace {

constexpr FindingKind kFirst = FindingKind::FieldWithoutValue;
constexpr FindingKind kLast = FindingKind::BitPatternsTooLarge;

TEST(FindingMessage, IsOneSentencePerKind) {
  std::set<std::string_view> messages;
  for (int kind = static_cast<int>(kFirst); kind <= static_cast<int>(kLast); ++kind) {
    const std::string_view message = MessageOf(static_cast<FindingKind>(kind));
    ASSERT_FALSE(message.empty()) << kind;
    EXPECT_NE(message.back(), '.') << message;
    EXPECT_TRUE(messages.insert(message).second) << message;
  }
}

TEST(FindingSeverity, IsErrorForWhatFailsTheRead) {
  for (const FindingKind kind :
       {FindingKind::NotALibrary, FindingKind::UnclosedRecord, FindingKind::WrongClosingTag,
        FindingKind::IncompleteRecord, FindingKind::InvalidValue, FindingKind::PinBeforeSize,
        FindingKind::MalformedBitPattern, FindingKind::BitPatternsTooLarge}) {
    EXPECT_EQ(SeverityOf(kind), Severity::Error) << MessageOf(kind);
  }
}

TEST(FindingSeverity, IsWarningForWhatTheReadSurvives) {
  for (const FindingKind kind :
       {FindingKind::FieldWithoutValue, FindingKind::MalformedEscape, FindingKind::ObjectDropped,
        FindingKind::PatternUnused, FindingKind::DataCutOff, FindingKind::NameChanged,
        FindingKind::NotCanonical}) {
    EXPECT_EQ(SeverityOf(kind), Severity::Warning) << MessageOf(kind);
  }
}

}  // namespace
}  // namespace mivo
