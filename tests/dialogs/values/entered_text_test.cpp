#include "entered_text.h"

#include <gtest/gtest.h>

namespace mivo {
namespace {

TEST(EnteredText, LineBreaksAreStoredAsCrLf) {
  struct Case {
    std::u16string_view text;
    std::u16string_view stored;
  };
  const Case cases[] = {
      {u"", u""},
      {u"one", u"one"},
      {u"a\nb", u"a\r\nb"},
      {u"a\r\nb", u"a\r\nb"},
      {u"a\rb", u"a\r\nb"},
      {u"\r\r\n\n", u"\r\n\r\n\r\n"},
      {u"a\u2028b\u2029", u"a\r\nb\r\n"},
      {u"tab\tbell\a", u"tab\tbell\a"},
  };
  for (const Case& test : cases) {
    EXPECT_EQ(WithStoredLineBreaks(test.text), test.stored) << testing::PrintToString(test.text);
  }
}

TEST(EnteredText, ControlsShow) {
  EXPECT_EQ(WithVisibleControls(u"A\\B \u00E9\xD800"), u"A\\B \u00E9\xD800");
  EXPECT_EQ(WithVisibleControls(u"a\tb\nc\x7F\u2028\u2029"), u"a\uFFFDb\uFFFDc\uFFFD\uFFFD\uFFFD");
  EXPECT_EQ(WithVisibleControls(std::u16string_view(u"\0", 1)), u"\uFFFD");
}

TEST(EnteredText, TheMessageTellsTheLimit) {
  EXPECT_EQ(TooLongMessage(u"Enter at most %d characters.", 1023),
            u"Enter at most 1023 characters.");
  EXPECT_EQ(TooLongMessage(u"A translation that forgot it.", 5), u"A translation that forgot it.");
}

}  // namespace
}  // namespace mivo
