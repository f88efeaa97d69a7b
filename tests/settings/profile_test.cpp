#include "profile.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "text_encoding.h"

namespace mivo {
namespace {

std::string Utf16File(std::u16string_view text) {
  std::string bytes = "\xFF\xFE";
  for (const char16_t c : text) {
    bytes.push_back(static_cast<char>(c & 0xFF));
    bytes.push_back(static_cast<char>(c >> 8));
  }
  return bytes;
}

struct ReadCase {
  const char* why;
  std::string_view content;
  std::int32_t expected;
};

class ProfileIntTest : public testing::TestWithParam<ReadCase> {};

TEST_P(ProfileIntTest, ReadsWidthOfWindowPosition) {
  const Profile profile(GetParam().content);
  EXPECT_EQ(profile.GetInt(u"WindowPosition", u"Width", -7), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Files, ProfileIntTest,
    testing::Values(ReadCase{"empty", "", -7}, ReadCase{"no_section", "Width=5\n", -7},
                    ReadCase{"no_key", "[WindowPosition]\nHeight=5\n", -7},
                    ReadCase{"plain", "[WindowPosition]\nWidth=640\n", 640},
                    ReadCase{"carriage_returns", "[WindowPosition]\r\nWidth=640\r\n", 640},
                    ReadCase{"no_last_line_end", "[WindowPosition]\nWidth=640", 640},
                    ReadCase{"case_of_names", "[windowposition]\nWIDTH=640\n", 640},
                    ReadCase{"blanks_around", " [ WindowPosition ] \n  Width \t=  640 \n", 640},
                    ReadCase{"negative", "[WindowPosition]\nWidth=-2147483648\n",
                             std::numeric_limits<std::int32_t>::min()},
                    ReadCase{"trailing_text", "[WindowPosition]\nWidth=12px\n", 12},
                    ReadCase{"no_number", "[WindowPosition]\nWidth=wide\n", 0},
                    ReadCase{"no_value", "[WindowPosition]\nWidth=\n", 0},
                    ReadCase{"comment", "[WindowPosition]\n;Width=1\nWidth=2\n", 2},
                    ReadCase{"first_key_counts", "[WindowPosition]\nWidth=1\nWidth=2\n", 1},
                    ReadCase{"first_section_counts",
                             "[WindowPosition]\n[WindowPosition]\nWidth=2\n", -7},
                    ReadCase{"other_section", "[Setting]\nWidth=1\n[WindowPosition]\nWidth=2\n", 2},
                    ReadCase{"key_only_as_prefix", "[WindowPosition]\nWidthOfAll=1\n", -7},
                    ReadCase{"unclosed_section", "[WindowPosition\nWidth=3\n", 3},
                    ReadCase{"utf8_mark", "\xEF\xBB\xBF[WindowPosition]\nWidth=4\n", 4},
                    ReadCase{"line_without_equals", "[WindowPosition]\nWidth\nWidth=9\n", 9}),
    [](const auto& test) { return test.param.why; });

TEST(Profile, ReadsUtf16) {
  const Profile profile(Utf16File(u"[LabelFont]\r\nFaceName=ＭＳ ゴシック\r\n"));
  EXPECT_EQ(profile.GetString(u"LabelFont", u"FaceName", u"Tahoma"), u"ＭＳ ゴシック");
}

TEST(Profile, ReadsUtf8AndEightBitText) {
  EXPECT_EQ(Profile("[a]\nk=Gr\xC3\xB6\xC3\x9F"
                    "e\n")
                .GetString(u"a", u"k", u""),
            u"Größe");
  EXPECT_EQ(Profile("[a]\nk=Gr\xF6\xDF"
                    "e\n")
                .GetString(u"a", u"k", u""),
            u"Größe");
}

TEST(Profile, StringsLoseBlanksAndOnePairOfQuotationMarks) {
  const Profile profile("[a]\nplain=  x y \ndouble=\" x \"\nsingle=' x '\nmixed=\"x'\nlone=\"\n");
  EXPECT_EQ(profile.GetString(u"a", u"plain", u"?"), u"x y");
  EXPECT_EQ(profile.GetString(u"a", u"double", u"?"), u" x ");
  EXPECT_EQ(profile.GetString(u"a", u"single", u"?"), u" x ");
  EXPECT_EQ(profile.GetString(u"a", u"mixed", u"?"), u"\"x'");
  EXPECT_EQ(profile.GetString(u"a", u"lone", u"?"), u"\"");
  EXPECT_EQ(profile.GetString(u"a", u"missing", u"?"), u"?");
}

TEST(Profile, NewFileIsUtf16WithMark) {
  EXPECT_EQ(Profile().Bytes(), "\xFF\xFE");
  Profile profile(Profile().Bytes());
  EXPECT_TRUE(profile.SetInt(u"Setting", u"EditWindowMargin", 0));
  EXPECT_EQ(profile.Bytes(), Utf16File(u"[Setting]\r\nEditWindowMargin=0\r\n"));
}

TEST(Profile, SettingTheSameValueChangesNothing) {
  Profile profile("[Setting]\nNoCheckPtnRectOnSave = 1\n");
  EXPECT_FALSE(profile.SetInt(u"setting", u"nocheckptnrectonsave", 1));
  EXPECT_EQ(profile.Bytes(), "[Setting]\nNoCheckPtnRectOnSave = 1\n");
}

TEST(Profile, SettingReplacesTheValueAlone) {
  Profile profile(
      "; mine\n[Setting]\nother=Gr\xF6\xDF"
      "e\nMargin =  50 \t\n\n[x]\nMargin=3\n");
  EXPECT_TRUE(profile.SetInt(u"Setting", u"Margin", -1));
  EXPECT_EQ(profile.Bytes(),
            "; mine\n[Setting]\nother=Gr\xF6\xDF"
            "e\nMargin =  -1 \t\n\n[x]\nMargin=3\n");
}

TEST(Profile, SettingFillsAnEmptyValue) {
  Profile profile("[Setting]\nMargin=\n");
  EXPECT_TRUE(profile.SetInt(u"Setting", u"Margin", 60));
  EXPECT_EQ(profile.Bytes(), "[Setting]\nMargin=60\n");
}

TEST(Profile, NewKeyGoesToTheEndOfItsSection) {
  Profile profile("[Setting]\na=1\n\n[x]\n");
  EXPECT_TRUE(profile.SetInt(u"Setting", u"b", 2));
  EXPECT_EQ(profile.Bytes(), "[Setting]\na=1\nb=2\r\n\n[x]\n");
  EXPECT_EQ(profile.GetInt(u"Setting", u"b", 0), 2);
}

TEST(Profile, NewKeyBehindALineWithoutEnd) {
  Profile profile("[Setting]\na=1");
  EXPECT_TRUE(profile.SetInt(u"Setting", u"b", 2));
  EXPECT_EQ(profile.Bytes(), "[Setting]\na=1\r\nb=2\r\n");
}

TEST(Profile, NewSectionGoesToTheEnd) {
  Profile profile("[x]\na=1");
  EXPECT_TRUE(profile.SetInt(u"Setting", u"b", 2));
  EXPECT_EQ(profile.Bytes(), "[x]\na=1\r\n[Setting]\r\nb=2\r\n");
}

TEST(Profile, AnyBytesComeBackUnchanged) {
  std::string bytes;
  for (int i = 0; i < 600; ++i) {
    EXPECT_EQ(Profile(bytes).Bytes(), bytes);
    EXPECT_EQ(Profile("\xFF\xFE" + bytes).Bytes(), "\xFF\xFE" + bytes);
    bytes.push_back(static_cast<char>(i * 37));
  }
}

}  // namespace
}  // namespace mivo
