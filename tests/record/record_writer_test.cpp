#include "record_writer.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <limits>

#include "attached_reader.h"
#include "case_name.h"
#include "text_gen.h"

namespace mivo {
namespace {

using namespace std::string_view_literals;

/// What the same writes put into a string; equal to what they put into a file, or the test fails.
template <typename Writes>
std::u16string Written(const Writes& writes) {
  std::u16string text;
  SRecordWriter toString;
  toString.AttachString(text);
  writes(toString);
  EXPECT_EQ(toString.Flush(), FieldStatus::Ok);

  std::string bytes;
  StringByteSink sink(bytes);
  SRecordWriter toFile;
  toFile.AttachFile(sink);
  writes(toFile);
  EXPECT_EQ(toFile.Flush(), FieldStatus::Ok);
  EXPECT_EQ(bytes, Utf16ToUtf8(text));
  return text;
}

struct TextCase {
  const char* name;
  std::u16string_view text;
  std::u16string_view written;
};

void PrintTo(const TextCase& textCase, std::ostream* out) {
  *out << textCase.name;
}

class WriteField : public testing::TestWithParam<TextCase> {};

TEST_P(WriteField, EscapesWhatWouldEndOrChangeIt) {
  EXPECT_EQ(Written([](SRecordWriter& writer) {
              EXPECT_EQ(writer.WriteField(GetParam().text), FieldStatus::Ok);
            }),
            GetParam().written);
}

INSTANTIATE_TEST_SUITE_P(
    , WriteField,
    testing::Values(
        TextCase{"PercentCommaBlank", u"50%, ok", u"50%25%2C%20ok"}, TextCase{"Empty", u"", u""},
        TextCase{"TabAndLineEnds", u"\t\n\r", u"%09%0A%0D"},
        TextCase{"FirstAndLastControl", u"\x01\x1F", u"%01%1F"},
        TextCase{"ColonSignsAndBackslash", u"a:+-\\", u"a:+-\\"},
        TextCase{"DeleteAndC1Controls", u"\x7F\u0080\u009F", u"\x7F\u0080\u009F"},
        TextCase{"NonAscii", u"\u00E9\u6F22\U0001F600\uFFFF", u"\u00E9\u6F22\U0001F600\uFFFF"},
        TextCase{"UpToItsFirstNul", u"a\0b"sv, u"a"}, TextCase{"NulFirst", u"\0b"sv, u""}),
    kCaseName);

TEST(RecordWriter, EscapesEveryControlCharacterInTwoDigits) {
  std::u16string text;
  std::u16string expected;
  for (char16_t c = 1; c <= 32; ++c) {
    text += c;
    expected += {u'%', u"0123456789ABCDEF"[c / 16], u"0123456789ABCDEF"[c % 16]};
  }
  EXPECT_EQ(Written([&](SRecordWriter& writer) { writer.WriteField(text); }), expected);
}

TEST(RecordWriter, SeparatesFieldsByCommasAndLinesByLineFeeds) {
  EXPECT_EQ(Written([](SRecordWriter& writer) {
              writer.WriteField(u"+A");
              writer.WriteField(u"");
              writer.WriteField(u"b");
              EXPECT_EQ(writer.EndLine(), FieldStatus::Ok);
              writer.EndLine();
              writer.WriteField(u"-A");
              writer.EndLine();
            }),
            u"+A,,b\n\n-A\n");
}

TEST(RecordWriter, WritesIntegersInDecimal) {
  constexpr auto kLimits = std::numeric_limits<std::int32_t>();
  EXPECT_EQ(Written([&](SRecordWriter& writer) {
              writer.WriteInt(u"X", 0);
              writer.WriteInt(u"Y", -12);
              writer.WriteInt(u"VER", kLimits.max());
              writer.WriteInt(u"Z", kLimits.min());
            }),
            u"X:0,Y:-12,VER:2147483647,Z:-2147483648");
}

TEST(RecordWriter, WritesHexadecimalPaddedWithEscapedBlanks) {
  EXPECT_EQ(Written([](SRecordWriter& writer) {
              writer.WriteHex(u"DF", 0xFFFFFFFF);
              writer.WriteHex(u"DF", 5);
              writer.WriteHex(u"DF", 0x1A);
              writer.WriteHex(u"DF", 0);
            }),
            u"DF:FFFFFFFF,DF:%20%20%20%20%20%20%205,DF:%20%20%20%20%20%201A,"
            u"DF:%20%20%20%20%20%20%200");
}

TEST(RecordWriter, EscapesKeysAndTextsButNotTheColon) {
  EXPECT_EQ(Written([](SRecordWriter& writer) {
              writer.WriteText(u"A B", u"c,d:e");
              writer.WriteText(u"N", u"");
              writer.WriteText(u"M", u"a\0b"sv);
            }),
            u"A%20B:c%2Cd:e,N:,M:a");
}

TEST(RecordWriter, StartsALineWithEachTarget) {
  std::u16string first;
  std::u16string second = u"kept:";
  SRecordWriter writer;
  writer.AttachString(first);
  writer.WriteField(u"a");
  writer.AttachString(second);
  writer.WriteField(u"b");
  EXPECT_EQ(first, u"a");
  EXPECT_EQ(second, u"kept:b");

  std::string bytes;
  StringByteSink sink(bytes);
  writer.AttachFile(sink);
  writer.WriteField(u"c");
  EXPECT_EQ(bytes, "") << "handed over with the flush";
  EXPECT_EQ(writer.Flush(), FieldStatus::Ok);
  EXPECT_EQ(bytes, "c");
  EXPECT_EQ(second, u"kept:b");
}

TEST(RecordWriter, WritesALoneSurrogateIntoAFileAsAReplacementCharacter) {
  std::string bytes;
  StringByteSink sink(bytes);
  SRecordWriter writer;
  writer.AttachFile(sink);
  writer.WriteField(u"a\xD83D");
  writer.WriteField(u"\xDE00z");
  writer.Flush();
  EXPECT_EQ(bytes, "a\xEF\xBF\xBD,\xEF\xBF\xBDz");
}

TEST(RecordWriter, KeepsPairsTogetherInLongTexts) {
  // One unit more in front moves every pair across another edge of the pieces that are encoded.
  for (std::size_t before = 0; before < 2; ++before) {
    std::u16string text(before, u'a');
    for (int i = 0; i < 100000; ++i) text += u"\U0001F600";
    EXPECT_EQ(Written([&](SRecordWriter& writer) { writer.WriteField(text); }), text);
  }
}

TEST(RecordWriter, EndsALongTextAtItsFirstNul) {
  const std::u16string front(5000, u'a');
  const std::u16string text = front + u'\0' + front;
  EXPECT_EQ(Written([&](SRecordWriter& writer) { writer.WriteField(text); }), front);
}

TEST(RecordWriter, HandsOnLongTextsThatAreNothingButEscapes) {
  const std::u16string text(200000, u',');
  const std::u16string written = Written([&](SRecordWriter& writer) { writer.WriteField(text); });
  ASSERT_EQ(written.size(), 3 * text.size());
  EXPECT_EQ(written.substr(written.size() - 6), u"%2C%2C");
}

TEST(RecordWriterFailure, HasNoTarget) {
  SRecordWriter writer;
  EXPECT_EQ(writer.WriteField(u"a"), FieldStatus::End);
  EXPECT_EQ(writer.WriteInt(u"X", 1), FieldStatus::End);
  EXPECT_EQ(writer.WriteHex(u"X", 1), FieldStatus::End);
  EXPECT_EQ(writer.WriteText(u"X", u"1"), FieldStatus::End);
  EXPECT_EQ(writer.EndLine(), FieldStatus::End);
  EXPECT_EQ(writer.Flush(), FieldStatus::End);
}

TEST(RecordWriterFailure, ShowsAtTheFlush) {
  FailingSink sink(0);
  SRecordWriter writer;
  writer.AttachFile(sink);
  EXPECT_EQ(writer.WriteField(u"a"), FieldStatus::Ok);
  EXPECT_EQ(writer.Flush(), FieldStatus::End);
}

TEST(RecordWriterFailure, IsKept) {
  FailingSink sink(1);
  SRecordWriter writer;
  writer.AttachFile(sink);
  const std::u16string text(50000, u'a');
  EXPECT_EQ(writer.WriteField(text), FieldStatus::Ok);
  EXPECT_EQ(writer.WriteField(text), FieldStatus::Ok);
  EXPECT_EQ(writer.WriteField(text), FieldStatus::End);
  EXPECT_EQ(sink.Calls(), 2);

  EXPECT_EQ(writer.WriteField(u""), FieldStatus::End);
  EXPECT_EQ(writer.WriteInt(u"X", 1), FieldStatus::End);
  EXPECT_EQ(writer.EndLine(), FieldStatus::End);
  for (int i = 0; i < 10; ++i) EXPECT_EQ(writer.WriteField(text), FieldStatus::End);
  EXPECT_EQ(writer.Flush(), FieldStatus::End);
  EXPECT_EQ(sink.Calls(), 2) << "a sink that has failed gets nothing more";
}

TEST(RecordWriterFailure, IsForgottenWithTheTarget) {
  FailingSink failing(0);
  SRecordWriter writer;
  writer.AttachFile(failing);
  writer.WriteField(u"a");
  EXPECT_EQ(writer.Flush(), FieldStatus::End);

  std::string bytes;
  StringByteSink sink(bytes);
  writer.AttachFile(sink);
  EXPECT_EQ(writer.WriteField(u"b"), FieldStatus::Ok);
  EXPECT_EQ(writer.Flush(), FieldStatus::Ok);
  EXPECT_EQ(bytes, "b");
}

RC_GTEST_PROP(RecordWriterProperty, ReadsBackAsItWas, ()) {
  // A field of its own would be no field at the end of a line, or would look like the end of the
  // data; "=" in front stands for the key that every text has.
  const auto lines = *rc::gen::container<std::vector<std::vector<TextUnits>>>(
      rc::gen::container<std::vector<TextUnits>>(GenText()));
  std::u16string text;
  SRecordWriter writer;
  writer.AttachString(text);
  std::vector<std::optional<std::u16string>> fields;
  for (const auto& line : lines) {
    for (const TextUnits& units : line) {
      fields.push_back(ToText(units));
      fields.back()->insert(0, 1, u'=');
      RC_ASSERT(writer.WriteField(*fields.back()) == FieldStatus::Ok);
    }
    RC_ASSERT(writer.EndLine() == FieldStatus::Ok);
  }

  AttachedReader fromString(text, kDeliveries[0]);
  RC_ASSERT(fromString.Next(fields.size()) == fields);
  RC_ASSERT(fromString.Next() == std::nullopt);
  RC_ASSERT(fromString->Line() == static_cast<std::int32_t>(lines.size()) + 1);

  // A file has no place for lone surrogates, not even where two stand together by way of a comma.
  for (auto& field : fields) field = Utf8ToUtf16(Utf16ToUtf8(*field));
  AttachedReader fromFile(text, kDeliveries[1]);
  RC_ASSERT(fromFile.Next(fields.size()) == fields);
}

}  // namespace
}  // namespace mivo
