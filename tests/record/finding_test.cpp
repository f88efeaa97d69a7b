#include "finding.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "text_encoding.h"

namespace mivo {
namespace {

TEST(FindingMessage, IsOneSentencePerKind) {
  std::set<std::string> messages;
  for (std::int32_t kind = 0; kind < kFindingKinds; ++kind) {
    const std::string message = Utf16ToUtf8(MessageOf(static_cast<FindingKind>(kind)));
    ASSERT_FALSE(message.empty()) << kind;
    EXPECT_NE(message.back(), '.') << message;
    EXPECT_TRUE(messages.insert(message).second) << message;
  }
}

TEST(FindingMessage, IsEmptyForANumberThatIsNoKind) {
  EXPECT_TRUE(MessageOf(static_cast<FindingKind>(kFindingKinds)).empty());
  EXPECT_TRUE(MessageOf(static_cast<FindingKind>(-1)).empty());
}

TEST(FindingSeverity, IsErrorForWhatFailsTheRead) {
  for (const FindingKind kind :
       {FindingKind::NotALibrary, FindingKind::UnclosedRecord, FindingKind::WrongClosingTag,
        FindingKind::IncompleteRecord, FindingKind::InvalidValue, FindingKind::PinBeforeSize,
        FindingKind::MalformedBitPattern, FindingKind::BitPatternsTooLarge,
        FindingKind::OutOfProportion, FindingKind::OutOfMemory}) {
    EXPECT_EQ(SeverityOf(kind), Severity::Error) << Utf16ToUtf8(MessageOf(kind));
  }
}

TEST(FindingSeverity, IsWarningForWhatTheReadSurvives) {
  for (const FindingKind kind :
       {FindingKind::FieldWithoutValue, FindingKind::MalformedEscape, FindingKind::ObjectDropped,
        FindingKind::PatternUnused, FindingKind::DataCutOff, FindingKind::NameChanged,
        FindingKind::NotCanonical}) {
    EXPECT_EQ(SeverityOf(kind), Severity::Warning) << Utf16ToUtf8(MessageOf(kind));
  }
}

}  // namespace
}  // namespace mivo
