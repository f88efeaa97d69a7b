#include "text_encoding.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <vector>

#include "case_name.h"

namespace mivo {
namespace {

using namespace std::string_view_literals;

struct Utf8Case {
  const char* name;
  std::string_view bytes;
  std::u16string_view text;
};

/// Decodes `bytes` handed over in the given pieces, with room for `room` units a call, as a reader
/// of a file does.
std::u16string DecodePieces(const std::vector<std::string_view>& pieces, std::size_t room) {
  std::u16string text;
  std::string pending;
  for (std::size_t i = 0; i <= pieces.size(); ++i) {
    const bool last = i == pieces.size();
    if (!last) pending += pieces[i];
    for (;;) {
      std::u16string out(room, u'\0');
      const DecodeProgress progress = DecodeUtf8(pending, out, last);
      EXPECT_LE(progress.bytesRead, pending.size());
      EXPECT_LE(progress.unitsWritten, room);
      text.append(out, 0, progress.unitsWritten);
      pending.erase(0, progress.bytesRead);
      if (progress.unitsWritten == 0) break;
    }
  }
  EXPECT_TRUE(pending.empty());
  return text;
}

class WellFormedUtf8 : public testing::TestWithParam<Utf8Case> {};

TEST_P(WellFormedUtf8, Decodes) {
  EXPECT_EQ(Utf8ToUtf16(GetParam().bytes), GetParam().text);
}

TEST_P(WellFormedUtf8, Encodes) {
  EXPECT_EQ(Utf16ToUtf8(GetParam().text), GetParam().bytes);
}

INSTANTIATE_TEST_SUITE_P(
    , WellFormedUtf8,
    testing::Values(Utf8Case{"Empty", "", u""}, Utf8Case{"Ascii", "a%~", u"a%~"},
                    Utf8Case{"LongAscii", "0123456789abcdefghi", u"0123456789abcdefghi"},
                    Utf8Case{"Nul", "a\0b"sv, u"a\0b"sv}, Utf8Case{"LastOneByte", "\x7F", u"\x7F"},
                    Utf8Case{"FirstTwoBytes", "\xC2\x80", u"\u0080"},
                    Utf8Case{"LastTwoBytes", "\xDF\xBF", u"\u07FF"},
                    Utf8Case{"FirstThreeBytes", "\xE0\xA0\x80", u"\u0800"},
                    Utf8Case{"BeforeTheSurrogates", "\xED\x9F\xBF", u"\uD7FF"},
                    Utf8Case{"AfterTheSurrogates", "\xEE\x80\x80", u"\uE000"},
                    Utf8Case{"ByteOrderMarkIsACharacter", "\xEF\xBB\xBF", u"\uFEFF"},
                    Utf8Case{"LastThreeBytes", "\xEF\xBF\xBF", u"\uFFFF"},
                    Utf8Case{"FirstFourBytes", "\xF0\x90\x80\x80", u"\U00010000"},
                    Utf8Case{"LastFourBytes", "\xF4\x8F\xBF\xBF", u"\U0010FFFF"},
                    Utf8Case{"Mixed", "a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80z",
                             u"a\u00E4\u20AC\U0001F600z"}),
    kCaseName);

class MalformedUtf8 : public testing::TestWithParam<Utf8Case> {};

TEST_P(MalformedUtf8, DecodesToReplacementCharacters) {
  EXPECT_EQ(Utf8ToUtf16(GetParam().bytes), GetParam().text);
}

TEST_P(MalformedUtf8, DoesNotSwallowWhatFollows) {
  const std::string bytes = std::string(GetParam().bytes) + "z";
  EXPECT_EQ(Utf8ToUtf16(bytes), std::u16string(GetParam().text) + u"z");
}

TEST_P(MalformedUtf8, DecodesAlikeInPieces) {
  const std::string_view bytes = GetParam().bytes;
  for (std::size_t cut = 0; cut <= bytes.size(); ++cut) {
    EXPECT_EQ(DecodePieces({bytes.substr(0, cut), bytes.substr(cut)}, 8), GetParam().text) << cut;
  }
}

INSTANTIATE_TEST_SUITE_P(
    , MalformedUtf8,
    testing::Values(Utf8Case{"LoneContinuation", "\x80", u"\uFFFD"},
                    Utf8Case{"LastContinuation", "\xBF", u"\uFFFD"},
                    Utf8Case{"OverlongTwoBytes", "\xC0\xAF", u"\uFFFD\uFFFD"},
                    Utf8Case{"OverlongTwoBytesC1", "\xC1\xBF", u"\uFFFD\uFFFD"},
                    Utf8Case{"OverlongThreeBytes", "\xE0\x9F\xBF", u"\uFFFD\uFFFD\uFFFD"},
                    Utf8Case{"OverlongFourBytes", "\xF0\x8F\xBF\xBF", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
                    Utf8Case{"HighSurrogate", "\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD"},
                    Utf8Case{"LowSurrogate", "\xED\xBF\xBF", u"\uFFFD\uFFFD\uFFFD"},
                    Utf8Case{"BeyondUnicode", "\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
                    Utf8Case{"LeadF5", "\xF5\x80\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
                    Utf8Case{"LeadFF", "\xFF", u"\uFFFD"}, Utf8Case{"LeadFE", "\xFE", u"\uFFFD"},
                    Utf8Case{"TwoBytesCut", "\xC3", u"\uFFFD"},
                    Utf8Case{"ThreeBytesCutAfterOne", "\xE2", u"\uFFFD"},
                    Utf8Case{"ThreeBytesCutAfterTwo", "\xE2\x82", u"\uFFFD"},
                    Utf8Case{"FourBytesCutAfterOne", "\xF0", u"\uFFFD"},
                    Utf8Case{"FourBytesCutAfterTwo", "\xF0\x9F", u"\uFFFD"},
                    Utf8Case{"FourBytesCutAfterThree", "\xF0\x9F\x98", u"\uFFFD"},
                    Utf8Case{"CutByAscii",
                             "\xE2\x82"
                             "a",
                             u"\uFFFDa"},
                    Utf8Case{"CutByAnotherLead", "\xE2\x82\xC3\xA4", u"\uFFFD\u00E4"},
                    Utf8Case{"CutByALongerLead", "\xC3\xF0\x9F\x98\x80", u"\uFFFD\U0001F600"}),
    kCaseName);

TEST(DecodeUtf8, GivesTheSameInPiecesCutAtEveryByte) {
  const std::string_view bytes =
      "plain text \xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80 \xE2\x82 more \xF0\x9F\x98 \xED\xA0\x80 end";
  const std::u16string whole = Utf8ToUtf16(bytes);
  for (std::size_t cut = 0; cut <= bytes.size(); ++cut) {
    for (const std::size_t room : {2u, 3u, 64u}) {
      EXPECT_EQ(DecodePieces({bytes.substr(0, cut), bytes.substr(cut)}, room), whole) << cut;
    }
  }
}

TEST(DecodeUtf8, LeavesACutOffSequenceForTheNextPiece) {
  char16_t out[8] = {};
  const DecodeProgress progress = DecodeUtf8("a\xE2\x82", out, false);
  EXPECT_EQ(progress.bytesRead, 1u);
  EXPECT_EQ(progress.unitsWritten, 1u);
}

TEST(DecodeUtf8, DoesNotSplitASurrogatePair) {
  char16_t out[2] = {};
  const DecodeProgress progress = DecodeUtf8("a\xF0\x9F\x98\x80", out, true);
  EXPECT_EQ(progress.bytesRead, 1u);
  EXPECT_EQ(progress.unitsWritten, 1u);
}

RC_GTEST_PROP(DecodeUtf8, GivesTheSameForAnyBytesInAnyPieces,
              (const std::string& bytes, std::size_t seed)) {
  const std::string_view view = bytes;
  const std::size_t cut = seed % (bytes.size() + 1);
  RC_ASSERT(DecodePieces({view.substr(0, cut), view.substr(cut)}, 2 + seed % 7) ==
            Utf8ToUtf16(bytes));
}

TEST(Utf16ToUtf8, ReplacesLoneSurrogates) {
  const char16_t high = 0xD83D;
  const char16_t low = 0xDE00;
  EXPECT_EQ(Utf16ToUtf8(std::u16string{high}), "\xEF\xBF\xBD");
  EXPECT_EQ(Utf16ToUtf8(std::u16string{low}), "\xEF\xBF\xBD");
  EXPECT_EQ(Utf16ToUtf8(std::u16string{u'a', high, u'b'}),
            "a\xEF\xBF\xBD"
            "b");
  EXPECT_EQ(Utf16ToUtf8(std::u16string{low, high}), "\xEF\xBF\xBD\xEF\xBF\xBD");
  EXPECT_EQ(Utf16ToUtf8(std::u16string{high, high, low}), "\xEF\xBF\xBD\xF0\x9F\x98\x80");
}

TEST(AppendUtf8, KeepsWhatIsThere) {
  std::string out = "before ";
  AppendUtf8(out, u"\u00E4");
  EXPECT_EQ(out, "before \xC3\xA4");
}

RC_GTEST_PROP(Utf16ToUtf8, ReadsBackWithoutTheLoneSurrogates, ()) {
  const auto units = *rc::gen::container<std::vector<std::uint16_t>>(rc::gen::oneOf(
      rc::gen::inRange<std::uint16_t>(0, 0xFFFF), rc::gen::inRange<std::uint16_t>(0xD800, 0xE000)));
  std::u16string text(units.begin(), units.end());
  const std::u16string back = Utf8ToUtf16(Utf16ToUtf8(text));
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool high = (text[i] & 0xFC00) == 0xD800;
    const bool low = (text[i] & 0xFC00) == 0xDC00;
    if (high && i + 1 < text.size() && (text[i + 1] & 0xFC00) == 0xDC00) {
      ++i;
    } else if (high || low) {
      text[i] = u'\uFFFD';
    }
  }
  RC_ASSERT(back == text);
}

#ifndef _WIN32

TEST(DecodeSystemCodePage, IsLatin1OutsideTheUpperControls) {
  for (int byte = 0; byte < 256; ++byte) {
    if (byte >= 0x80 && byte < 0xA0) continue;
    const char c = static_cast<char>(byte);
    EXPECT_EQ(DecodeSystemCodePage({&c, 1}), std::u16string(1, static_cast<char16_t>(byte)));
  }
}

TEST(DecodeSystemCodePage, HasTwentySevenCharactersOfItsOwn) {
  EXPECT_EQ(DecodeSystemCodePage("\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E"),
            u"\u20AC\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160\u2039\u0152\u017D");
  EXPECT_EQ(
      DecodeSystemCodePage("\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9E\x9F"),
      u"\u2018\u2019\u201C\u201D\u2022\u2013\u2014\u02DC\u2122\u0161\u203A\u0153\u017E\u0178");
}

TEST(DecodeSystemCodePage, KeepsItsFiveUnassignedBytes) {
  EXPECT_EQ(DecodeSystemCodePage("\x81\x8D\x8F\x90\x9D"),
            (std::u16string{0x81, 0x8D, 0x8F, 0x90, 0x9D}));
}

TEST(DecodeSystemCodePage, TakesNulsAndNothing) {
  EXPECT_EQ(DecodeSystemCodePage(""), u"");
  EXPECT_EQ(DecodeSystemCodePage("a\0b"sv), u"a\0b"sv);
}

#endif

}  // namespace
}  // namespace mivo
