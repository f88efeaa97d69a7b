#include "finding_text.h"

#include <gtest/gtest.h>

namespace mivo {
namespace {

TEST(FindingText, NamesTheFieldAndTheRecord) {
  EXPECT_EQ(FindingText({FindingKind::UnknownKey, 7, 1, u"+PIN", u"COLOR:3"}),
            "unknown key is ignored: \"COLOR:3\" in +PIN");
}

TEST(FindingText, LeavesOutWhatIsNotThere) {
  EXPECT_EQ(FindingText({FindingKind::UnknownKey, 7, 1, u"", u"COLOR:3"}),
            "unknown key is ignored: \"COLOR:3\"");
  EXPECT_EQ(FindingText({FindingKind::UnknownKey, 7, 1, u"+PIN", u""}),
            "unknown key is ignored in +PIN");
}

TEST(FindingText, IsOneLineWhateverTheFieldHolds) {
  EXPECT_EQ(FindingText({FindingKind::UnknownKey, 7, 1, u"+P\tN", u"A\n\x1B[1m\\B"}),
            "unknown key is ignored: \"A\\n\\u001b[1m\\B\" in +P\\tN");
}

TEST(FindingText, TellsOfAFieldThatTheDataEndIn) {
  EXPECT_EQ(FindingText({FindingKind::WrongClosingTag, 7, 1, u"+PIN", u"-PI\xFFFF\xFFFF"}),
            "closing tag does not belong here: \"-PI\" in +PIN (cut off by the end of the data)");
}

TEST(PlaceText, IsTheBeginningThatEditorsUnderstand) {
  EXPECT_EQ(PlaceText("dir/my lib.ZLB", 12), "dir/my lib.ZLB:12: ");
  EXPECT_EQ(PlaceText("C:\\libs\\a.ZLB", 1), "C:\\libs\\a.ZLB:1: ");
  EXPECT_EQ(PlaceText("a\nb", 1), "a\\nb:1: ");
}

}  // namespace
}  // namespace mivo
