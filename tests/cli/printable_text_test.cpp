#include "printable_text.h"

#include <gtest/gtest.h>

#include <string>

#include "case_name.h"

namespace mivo {
namespace {

struct Case {
  const char* name;
  std::u16string text;
  std::string column;
  std::string message;
};

class PrintableText : public testing::TestWithParam<Case> {};

TEST_P(PrintableText, InAColumn) {
  std::string out = "before ";
  AppendColumn(out, GetParam().text);
  EXPECT_EQ(out, "before " + GetParam().column);
}

TEST_P(PrintableText, InAMessage) {
  std::string out = "before ";
  AppendMessage(out, GetParam().text);
  EXPECT_EQ(out, "before " + GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(
    All, PrintableText,
    testing::Values(Case{"Empty", u"", "", ""},
                    Case{"Plain", u"74LS00 (4)", "74LS00 (4)", "74LS00 (4)"},
                    Case{"BeyondAscii", u"Bauteil für 5 €", "Bauteil für 5 €", "Bauteil für 5 €"},
                    Case{"SurrogatePair", u"😀", "😀", "😀"},
                    Case{"TabAndLineEnds", u"a\tb\nc\rd", "a\\tb\\nc\\rd", "a\\tb\\nc\\rd"},
                    Case{"Backslash", u"\\n", "\\\\n", "\\n"},
                    Case{"TerminalSequence", u"\x1B[2J", "\\u001b[2J", "\\u001b[2J"},
                    Case{"Nul", std::u16string(1, u'\0'), "\\u0000", "\\u0000"},
                    Case{"EdgesOfAscii", u"\x1F ~\x7F", "\\u001f ~\\u007f", "\\u001f ~\\u007f"},
                    Case{"EdgesOfTheSecondRange", u"\x80\x9B\x9F\xA0",
                         "\\u0080\\u009b\\u009f\u00A0", "\\u0080\\u009b\\u009f\u00A0"},
                    Case{"LoneSurrogate", u"a\xD800z", "a\uFFFDz", "a\uFFFDz"}),
    kCaseName);

TEST(PrintableText, BytesThatAreNotUtf8AreNoFailure) {
  std::string out;
  AppendMessage(out, std::string_view("a\xFF\tz"));
  EXPECT_EQ(out, "a\uFFFD\\tz");
}

}  // namespace
}  // namespace mivo
