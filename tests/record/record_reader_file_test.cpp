#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "attached_reader.h"
#include "case_name.h"
#include "record_reader.h"
#include "text_gen.h"

// What only a file can do to the reader: arrive in pieces, hold bytes that are no text, end.

namespace mivo {
namespace {

// The reader decodes a file window by window.
constexpr std::size_t kWindow = std::size_t{1} << 16;

/// Every field with the line that the reader counts behind it, to the second end in a row.
std::vector<std::pair<std::optional<std::u16string>, std::int32_t>> ReadAll(
    std::u16string_view text, const Delivery& delivery) {
  AttachedReader reader(text, delivery);
  std::vector<std::pair<std::optional<std::u16string>, std::int32_t>> fields;
  int ends = 0;
  while (ends < 2) {
    fields.emplace_back(reader.Next(), reader->Line());
    ends = fields.back().first ? 0 : ends + 1;
  }
  return fields;
}

class RecordReaderFile : public testing::TestWithParam<Delivery> {};

TEST_P(RecordReaderFile, ReadsFieldsAcrossTheWindowEdgeLikeAString) {
  const std::u16string across = u"a%41\u00E9,\u6F22%2Cb\U0001F600c,,\r\nd e\n";
  for (std::size_t before = 0; before < 40; ++before) {
    std::u16string text;
    while (text.size() < kWindow - before) text += u"field,";
    text.resize(kWindow - before - 1);
    text += u'\n';
    text += across;
    ASSERT_EQ(ReadAll(text, GetParam()), ReadAll(text, kDeliveries[0])) << before;
  }
}

TEST_P(RecordReaderFile, ReadsAFieldLongerThanAWindowLikeAString) {
  std::u16string text = u"a,";
  text.append(2 * kWindow, u'\u00E9');
  text += u"\nb\n";
  EXPECT_EQ(ReadAll(text, GetParam()), ReadAll(text, kDeliveries[0]));
}

TEST_P(RecordReaderFile, TakesBytesThatAreNoTextForReplacementCharacters) {
  PieceSource source(
      "a\xFF"
      "b,\xC3,\xE6\xBC,\xED\xA0\x80\n",
      GetParam().pieceBytes);
  SRecordReader reader;
  reader.AttachFile(source, ByteDecoding::Utf8);
  for (const std::u16string_view expected :
       {u"a\uFFFDb", u"\uFFFD", u"\uFFFD", u"\uFFFD\uFFFD\uFFFD"}) {
    std::u16string_view field;
    ASSERT_EQ(reader.ReadField(field), FieldStatus::Ok);
    EXPECT_EQ(field, expected);
  }
}

TEST_P(RecordReaderFile, TakesACharacterCutOffByTheEndForOneReplacementCharacter) {
  PieceSource source("a\xE6\xBC", GetParam().pieceBytes);
  SRecordReader reader;
  reader.AttachFile(source, ByteDecoding::Utf8);
  std::u16string_view field;
  ASSERT_EQ(reader.ReadField(field), FieldStatus::Ok);
  EXPECT_EQ(field.substr(0, 3), u"a\uFFFD\uFFFF");
}

TEST_P(RecordReaderFile, ExtendsTheSignOfBytesOfUnknownEncoding) {
  PieceSource source(
      "+\x80\xFE,b\xFF"
      "c\n",
      GetParam().pieceBytes);
  SRecordReader reader;
  reader.AttachFile(source, ByteDecoding::SignExtended);
  std::u16string_view field;
  ASSERT_EQ(reader.ReadField(field), FieldStatus::Ok);
  EXPECT_EQ(field, u"+\xFF80\xFFFE");
  ASSERT_EQ(reader.ReadField(field), FieldStatus::Ok);
  EXPECT_EQ(field,
            u"b\xFFFF"
            u"c");
  EXPECT_EQ(reader.ReadField(field), FieldStatus::End);
}

TEST_P(RecordReaderFile, TakesAFirstByteFFOfUnknownEncodingForTheEnd) {
  PieceSource source(
      "\xFF"
      "a\n",
      GetParam().pieceBytes);
  SRecordReader reader;
  reader.AttachFile(source, ByteDecoding::SignExtended);
  std::u16string_view field;
  EXPECT_EQ(reader.ReadField(field), FieldStatus::End);
}

TEST_P(RecordReaderFile, AsksAFileForItsEndOnce) {
  for (const std::string_view bytes : {"", "a\n", "a", "a%4", "a\xE6"}) {
    PieceSource source(bytes, GetParam().pieceBytes);
    SRecordReader reader;
    reader.AttachFile(source, ByteDecoding::Utf8);
    std::u16string_view field;
    for (int i = 0; i < 4; ++i) reader.ReadField(field);
    EXPECT_EQ(source.CallsAtEnd(), 1) << bytes;
  }
}

INSTANTIATE_TEST_SUITE_P(, RecordReaderFile,
                         testing::ValuesIn(std::begin(kDeliveries) + 1, std::end(kDeliveries)),
                         kCaseName);

RC_GTEST_PROP(RecordReaderFileProperty, ReadsEveryTextLikeAString, ()) {
  const TextUnits units = *rc::gen::scale(4, GenText());
  const auto pieceBytes = *rc::gen::inRange<std::size_t>(1, 9);
  // A lone surrogate cannot stand in a file.
  const std::u16string text = Utf8ToUtf16(Utf16ToUtf8(ToText(units)));
  RC_ASSERT(ReadAll(text, {"File", pieceBytes}) == ReadAll(text, kDeliveries[0]));
}

}  // namespace
}  // namespace mivo
