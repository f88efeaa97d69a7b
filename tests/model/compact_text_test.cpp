#include "compact_text.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace mivo {
namespace {

/// Lengths around the room that a text has in itself.
constexpr std::size_t kLengths[] = {0, 1, CompactText::kRoom, CompactText::kRoom + 1, 1000};

std::u16string Sample(std::size_t length) {
  std::u16string text;
  for (std::size_t i = 0; i < length; ++i) text.push_back(static_cast<char16_t>(0xFF00 + i));
  return text;
}

TEST(CompactText, IsEmptyByDefault) {
  EXPECT_EQ(CompactText().View(), u"");
}

TEST(CompactText, CopiesMovesAndComparesTextsOfAnyLength) {
  for (const std::size_t length : kLengths) {
    const std::u16string sample = Sample(length);
    CompactText text(sample);
    EXPECT_EQ(text.View(), sample);
    CompactText copy(text);
    EXPECT_EQ(copy, text);
    const CompactText moved(std::move(copy));
    EXPECT_EQ(moved.View(), sample);
    EXPECT_FALSE(CompactText(sample + u'x') == text);
    for (const std::size_t other : kLengths) {
      CompactText assigned(Sample(other));
      assigned = text;
      EXPECT_EQ(assigned.View(), sample) << other;
      EXPECT_EQ(text.View(), sample);
    }
  }
}

TEST(CompactText, KeepsATextThatIsAssignedToItself) {
  for (const std::size_t length : kLengths) {
    CompactText text(Sample(length));
    const CompactText& same = text;
    text = same;
    EXPECT_EQ(text.View(), Sample(length));
  }
}

TEST(CompactText, AppendsToTextsOfAnyLength) {
  for (const std::size_t length : kLengths) {
    for (const std::size_t more : kLengths) {
      CompactText text(Sample(length));
      text.Append(Sample(more));
      text.Append(u"end");
      EXPECT_EQ(text.View(), Sample(length) + Sample(more) + u"end") << length << ' ' << more;
    }
  }
}

TEST(CompactText, GrowsByManyLittlePieces) {
  CompactText text;
  std::u16string expected;
  for (int i = 0; i < 1000; ++i) {
    text.Append(u"ab");
    expected += u"ab";
  }
  EXPECT_EQ(text.View(), expected);
}

}  // namespace
}  // namespace mivo
