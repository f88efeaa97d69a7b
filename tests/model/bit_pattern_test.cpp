#include "bit_pattern.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "case_name.h"
#include "geometry_printing.h"
#include "record_text.h"

namespace mivo {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

using Bytes = std::vector<std::uint8_t>;

Bytes RowBytes(const SBitPattern& pattern, std::int32_t width, std::int32_t y) {
  const auto row = pattern.Row(width, y);
  return {row.begin(), row.end()};
}

/// A pattern with all its bits set.
SBitPattern Filled(SPoint size) {
  SBitPattern pattern(size);
  for (std::int32_t y = 0; y < size.y; ++y) {
    const auto row = pattern.Row(size.x, y);
    for (std::uint8_t& byte : row) byte = 0xFF;
    if (size.x % 8 != 0) row.back() = static_cast<std::uint8_t>(0xFF << (8 - size.x % 8));
  }
  return pattern;
}

SBitPattern Read(SPoint size, std::u16string_view fields) {
  RecordText text(u"+BMP," + std::u16string(fields) + u",-BMP\n");
  const auto pattern = SBitPattern::Read(*text, size);
  EXPECT_TRUE(pattern.has_value());
  return pattern.value_or(SBitPattern({0, 0}));
}

std::u16string Written(const SBitPattern& pattern, SPoint size) {
  return WrittenText([&](SRecordWriter& writer) { pattern.Write(writer, size); });
}

struct SizeCase {
  const char* name;
  SPoint size;
  std::int32_t stride;
  std::int64_t declared;
  std::size_t stored;
};

void PrintTo(const SizeCase& sizeCase, std::ostream* out) {
  *out << sizeCase.name;
}

class BitPatternSize : public testing::TestWithParam<SizeCase> {};

TEST_P(BitPatternSize, DecidesHowManyBytesThereAre) {
  EXPECT_EQ(SBitPattern::Stride(GetParam().size.x), GetParam().stride);
  EXPECT_EQ(SBitPattern::ByteCountOf(GetParam().size), GetParam().declared);
  const SBitPattern pattern(GetParam().size);
  EXPECT_EQ(pattern.Bytes().size(), GetParam().stored);
  EXPECT_THAT(pattern.Bytes(), Each(0));
  EXPECT_EQ(pattern.Size(), GetParam().size);
}

constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();

INSTANTIATE_TEST_SUITE_P(
    , BitPatternSize,
    testing::Values(SizeCase{"OnePixel", {1, 1}, 2, 2, 2}, SizeCase{"OneWord", {16, 3}, 2, 6, 6},
                    SizeCase{"BeyondOneWord", {17, 3}, 4, 12, 12},
                    SizeCase{"Largest", {501, 501}, 64, 32064, 32064},
                    SizeCase{"TooWide", {600, 2}, 64, 152, 128},
                    SizeCase{"TooHigh", {16, 600}, 2, 1200, 1002},
                    SizeCase{"Enormous", {kMost, kMost}, 64, 576460752034988032, 32064},
                    SizeCase{"Empty", {0, 5}, 0, 0, 0}, SizeCase{"NoRows", {5, 0}, 2, 0, 0},
                    SizeCase{"Negative", {-5, -5}, 0, 0, 0},
                    SizeCase{"Smallest", {-kMost - 1, kMost}, 0, 0, 0}),
    kCaseName);

TEST(BitPatternRow, HasTheBytesOfThePixelsOnly) {
  SBitPattern pattern({17, 2});
  EXPECT_EQ(pattern.Row(17, 0).size(), 3u);
  pattern.Row(17, 1)[2] = 0x80;
  EXPECT_EQ(pattern.Bytes(), (Bytes{0, 0, 0, 0, 0, 0, 0x80, 0}));
}

TEST(BitPatternRow, IsEmptyWhereNothingIsStored) {
  SBitPattern pattern({16, 2});
  EXPECT_TRUE(pattern.Row(16, -1).empty());
  EXPECT_TRUE(pattern.Row(16, 2).empty());
  EXPECT_TRUE(pattern.Row(16, kMost).empty());
  EXPECT_TRUE(pattern.Row(0, 0).empty());
  EXPECT_TRUE(pattern.Row(-1, 0).empty());
}

TEST(BitPatternRow, OfAnotherSizeEndsWithTheBytes) {
  const SBitPattern pattern({16, 2});
  EXPECT_EQ(pattern.Row(600, 0).size(), 4u);
  EXPECT_EQ(pattern.Row(24, 0).size(), 3u);
  EXPECT_EQ(pattern.Row(24, 1).size(), 0u);
  EXPECT_EQ(pattern.Row(1, 1).size(), 1u);
}

struct RowCase {
  const char* name;
  std::int32_t width;
  std::u16string field;
  Bytes bytes;
  std::vector<FindingKind> findings;
};

void PrintTo(const RowCase& rowCase, std::ostream* out) {
  *out << rowCase.name;
}

class BitPatternRowRead : public testing::TestWithParam<RowCase> {};

TEST_P(BitPatternRowRead, TakesTwoCharactersAByte) {
  RecordText text(u"+BMP," + GetParam().field + u",-BMP\n");
  const auto pattern = SBitPattern::Read(*text, {GetParam().width, 1});
  ASSERT_TRUE(pattern.has_value());
  EXPECT_EQ(RowBytes(*pattern, GetParam().width, 0), GetParam().bytes);
  EXPECT_EQ(text.findings.Kinds(), GetParam().findings);
}

INSTANTIATE_TEST_SUITE_P(
    , BitPatternRowRead,
    testing::Values(
        RowCase{"AllNibbles",
                64,
                u"@ABCDEFGHIJKLMNO",
                {0x01, 0x23, 0x45, 0x67, 0x89, 0xAB, 0xCD, 0xEF},
                {}},
        RowCase{"OddLength", 16, u"A@O", {0x10, 0}, {FindingKind::ValueIgnored}},
        RowCase{"NoNibbles", 16, u"ZZ@A", {0, 1}, {FindingKind::ValueIgnored}},
        RowCase{"OneNoNibble", 16, u"ZAAZ", {0, 0}, {FindingKind::ValueIgnored}},
        RowCase{"BelowTheFirstNibble", 16, u"?@@?", {0, 0}, {FindingKind::ValueIgnored}},
        RowCase{"FarAboveTheLastNibble", 8, u"\u0140\u0141", {0}, {FindingKind::ValueIgnored}},
        RowCase{"Short", 16, u"OO", {0xFF, 0}, {}},
        RowCase{"Long", 8, u"OOAA", {0xFF}, {FindingKind::ValueIgnored}},
        RowCase{"BitsBeyondTheWidth", 11, u"OOOO", {0xFF, 0xE0}, {FindingKind::BitsBeyondWidth}},
        RowCase{"NoBitsBeyondTheWidth", 11, u"OON@", {0xFF, 0xE0}, {}},
        RowCase{"WholeBytes", 24, u"OOOOOO", {0xFF, 0xFF, 0xFF}, {}}),
    kCaseName);

TEST(BitPatternRead, LeavesMissingRowsEmpty) {
  const SBitPattern pattern = Read({8, 3}, u"OO\nAA");
  EXPECT_EQ(pattern.Bytes(), (Bytes{0xFF, 0, 0x11, 0, 0, 0}));
}

TEST(BitPatternRead, TakesAnEmptyFieldForARow) {
  EXPECT_EQ(Read({8, 3}, u"OO,,AA").Bytes(), (Bytes{0xFF, 0, 0, 0, 0x11, 0}));
}

TEST(BitPatternRead, IgnoresRowsBeyondTheHeight) {
  RecordText text(u"+BMP\nOO\nAA\nBB\n-BMP\n");
  const auto pattern = SBitPattern::Read(*text, {8, 2});
  ASSERT_TRUE(pattern.has_value());
  EXPECT_EQ(pattern->Bytes(), (Bytes{0xFF, 0, 0x11, 0}));
  EXPECT_THAT(text.findings.all,
              ElementsAre(Finding{FindingKind::SurplusValue, 4, 1, u"+BMP", u"BB"}));
}

TEST(BitPatternRead, TakesAtMost501PixelsOfAWiderRow) {
  RecordText text(u"+BMP," + std::u16string(150, u'O') + u",-BMP\n");
  const auto pattern = SBitPattern::Read(*text, {600, 1});
  ASSERT_TRUE(pattern.has_value());
  Bytes expected(63, 0xFF);
  expected.back() = 0xF8;
  EXPECT_EQ(RowBytes(*pattern, 600, 0), expected);
}

TEST(BitPatternRead, PassesOverRowsThatAreNotStored) {
  std::u16string rows;
  for (int y = 0; y < 600; ++y) rows += u"OO,";
  RecordText text(u"+BMP," + rows + u"-BMP\n");
  const auto pattern = SBitPattern::Read(*text, {8, 600});
  ASSERT_TRUE(pattern.has_value());
  EXPECT_EQ(RowBytes(*pattern, 8, 500), Bytes{0xFF});
  EXPECT_THAT(RowBytes(*pattern, 8, 501), IsEmpty());
  EXPECT_THAT(text.findings.all, IsEmpty());
}

struct EndCase {
  const char* name;
  std::u16string_view record;
  bool read;
  std::vector<FindingKind> findings;
};

void PrintTo(const EndCase& endCase, std::ostream* out) {
  *out << endCase.name;
}

class BitPatternEnd : public testing::TestWithParam<EndCase> {};

TEST_P(BitPatternEnd, DecidesWhetherThePatternIsRead) {
  RecordText text(GetParam().record);
  EXPECT_EQ(SBitPattern::Read(*text, {8, 2}).has_value(), GetParam().read);
  EXPECT_EQ(text.findings.Kinds(), GetParam().findings);
}

INSTANTIATE_TEST_SUITE_P(
    , BitPatternEnd,
    testing::Values(
        EndCase{"Closed", u"+BMP,OO,-BMP\n", true, {}},
        EndCase{"ClosedAtOnce", u"+BMP,-BMP\n", true, {}},
        EndCase{"ClosedByAnotherTag", u"+BMP,OO,-PTN\n", false, {FindingKind::MalformedBitPattern}},
        EndCase{"ClosedByATagThatBeginsAlike",
                u"+BMP,-BMPS\n",
                false,
                {FindingKind::MalformedBitPattern}},
        EndCase{"CutOff", u"+BMP,OO\n", false, {FindingKind::UnclosedRecord}},
        EndCase{"MalformedEscape",
                u"+BMP,O%4,-BMP\n",
                false,
                {FindingKind::MalformedEscape, FindingKind::UnclosedRecord}},
        EndCase{
            "UnknownRecord", u"+BMP,+X,AA,-BMP,-X,OO,-BMP\n", true, {FindingKind::UnknownRecord}},
        EndCase{"UnknownRecordCutOff",
                u"+BMP,+X,-BMP\n",
                false,
                {FindingKind::UnknownRecord, FindingKind::UnclosedRecord}}),
    kCaseName);

TEST(BitPatternWrite, WritesOneFieldARow) {
  SBitPattern pattern({11, 2});
  pattern.Row(11, 0)[0] = 0x1F;
  pattern.Row(11, 1)[1] = 0xE0;
  EXPECT_EQ(Written(pattern, {11, 2}), u"+BMP\nAO@@\n@@N@\n-BMP\n");
}

TEST(BitPatternWrite, Writes63BytesOfAWiderRow) {
  std::u16string row(126, u'O');
  row.back() = u'H';
  EXPECT_EQ(Written(Read({600, 1}, row), {600, 1}), u"+BMP\n" + row.substr(0, 125) + u"H\n-BMP\n");
}

TEST(BitPatternWrite, WritesRowsThatAreNotStoredAsEmptyOnes) {
  const std::u16string written = Written(Filled({8, 600}), {8, 600});
  std::u16string expected = u"+BMP\n";
  for (int y = 0; y < 600; ++y) expected += y < 501 ? u"OO\n" : u"@@\n";
  EXPECT_EQ(written, expected + u"-BMP\n");
}

TEST(BitPatternWrite, EndsWithTheBytesWhenTheSizeHasChangedSince) {
  const SBitPattern pattern = Filled({8, 2});  // 4 bytes, every second of them padding
  EXPECT_EQ(Written(pattern, {24, 9}), u"+BMP\nOO@@OO\n-BMP\n");
  EXPECT_EQ(Written(pattern, {16, 9}), u"+BMP\nOO@@\nOO@@\n-BMP\n");
  EXPECT_EQ(Written(pattern, {8, 1}), u"+BMP\nOO\n-BMP\n");
  EXPECT_EQ(Written(pattern, {kMost, kMost}), u"+BMP\nOO@@OO@@\n-BMP\n");
  EXPECT_EQ(Written(pattern, {0, kMost}), u"+BMP\n-BMP\n");
  EXPECT_EQ(Written(pattern, {-1, -1}), u"+BMP\n-BMP\n");
}

TEST(BitPatternResized, KeepsTheOldPixelsAtTheTopLeft) {
  const SBitPattern grown = Filled({11, 11}).Resized({11, 11}, {21, 21});
  ASSERT_EQ(grown.Bytes().size(), 84u);
  for (std::int32_t y = 0; y < 21; ++y) {
    EXPECT_EQ(RowBytes(grown, 21, y), y < 11 ? (Bytes{0xFF, 0xE0, 0}) : (Bytes{0, 0, 0})) << y;
  }
}

TEST(BitPatternResized, ClearsPixelsBeyondTheNewWidth) {
  const SBitPattern shrunk = Filled({21, 21}).Resized({21, 21}, {12, 12});
  ASSERT_EQ(shrunk.Bytes().size(), 24u);
  for (std::int32_t y = 0; y < 12; ++y)
    EXPECT_EQ(RowBytes(shrunk, 12, y), (Bytes{0xFF, 0xF0})) << y;
}

TEST(BitPatternResized, KeepsAWholeByteAtItsEdge) {
  const SBitPattern shrunk = Filled({24, 1}).Resized({24, 1}, {16, 1});
  EXPECT_EQ(shrunk.Bytes(), (Bytes{0xFF, 0xFF}));
}

TEST(BitPatternResized, HasAMaskForEveryWidth) {
  constexpr std::uint8_t kMasks[] = {0xFF, 0x80, 0xC0, 0xE0, 0xF0, 0xF8, 0xFC, 0xFE};
  for (std::int32_t width = 1; width <= 16; ++width) {
    const SBitPattern shrunk = Filled({32, 1}).Resized({32, 1}, {width, 1});
    EXPECT_EQ(RowBytes(shrunk, width, 0).back(), kMasks[width % 8]) << width;
  }
}

TEST(BitPatternResized, TakesAnySizes) {
  const SBitPattern pattern = Filled({16, 16});
  EXPECT_THAT(pattern.Resized({16, 16}, {-5, kMost}).Bytes(), IsEmpty());
  EXPECT_EQ(pattern.Resized({-5, kMost}, {8, 1}).Bytes(), (Bytes{0, 0}));
  EXPECT_EQ(pattern.Resized({kMost, kMost}, {8, 1}).Bytes(), (Bytes{0xFF, 0}));
  EXPECT_EQ(Filled({8, 1}).Resized({501, 501}, {24, 2}).Bytes(),
            (Bytes{0xFF, 0, 0, 0, 0, 0, 0, 0}));
}

TEST(BitPatternBudgetTest, IsOneGibibyte) {
  BitPatternBudget budget;
  EXPECT_FALSE(budget.Take((std::int64_t{1} << 30) + 1));
  EXPECT_TRUE(budget.Take((std::int64_t{1} << 30) - 2));
  EXPECT_FALSE(budget.Take(3)) << "what was refused was not taken";
  EXPECT_TRUE(budget.Take(2));
  EXPECT_FALSE(budget.Take(1));
  EXPECT_TRUE(budget.Take(0));
}

}  // namespace
}  // namespace mivo
