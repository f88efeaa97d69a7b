#include "ptn_obj_text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "case_name.h"
#include "geometry_printing.h"
#include "ptn_obj_reading.h"

namespace mivo {
namespace {

using testing::ElementsAre;
using T = SPtnObjText;

SPtnObjText Text(std::u16string_view text, SPoint position = {}, std::int32_t align = 0,
                 bool horizontal = true) {
  SPtnObjText object;
  object.SetText(text);
  object.SetPosition(position);
  object.SetAlign(align);
  object.SetHorizontal(horizontal);
  return object;
}

// Record

TEST(TextRecord, HoldsEverything) {
  SPtnObjText text = Text(u"a, 50%", {3, -4}, 9, false);
  text.SetFontName(u"Some Sans");
  text.SetFontSize(12);
  text.SetBold(true);
  text.SetItalic(true);
  EXPECT_EQ(Written(text), u"+TX,X:3,Y:-4,A:9,D:0,S:a%2C%2050%25,FN:Some%20Sans,FS:12,FF:BI,-TX\n");
  EXPECT_EQ(Written(text, {1, 1}),
            u"+TX,X:2,Y:-5,A:9,D:0,S:a%2C%2050%25,FN:Some%20Sans,FS:12,FF:BI,-TX\n");
}

TEST(TextRecord, HasAnEmptyFontNameAndNoFlagsByDefault) {
  EXPECT_EQ(Written(Text(u"A")), u"+TX,X:0,Y:0,A:0,D:1,S:A,FN:,FS:10,FF:,-TX\n");
}

TEST(TextRecord, ReadsBack) {
  const std::u16string record = u"+TX,X:3,Y:-4,A:9,D:0,S:a%2C%2050%25,FN:Sans,FS:12,FF:BIUS,-TX\n";
  SPtnObjText text;
  const ReadRecord read = ReadInto(text, record + u"+L\n");
  EXPECT_TRUE(read.ok);
  EXPECT_TRUE(read.findings.empty());
  EXPECT_EQ(read.next, u"+L");
  EXPECT_EQ(text.Position(), (SPoint{3, -4}));
  EXPECT_EQ(text.Align(), 9);
  EXPECT_FALSE(text.IsHorizontal());
  EXPECT_EQ(text.Text(), u"a, 50%");
  EXPECT_EQ(text.FontName(), u"Sans");
  EXPECT_EQ(text.FontSize(), 12);
  EXPECT_TRUE(text.IsBold() && text.IsItalic() && text.IsUnderline() && text.IsStrikeout());
  EXPECT_EQ(Written(text), record);
}

TEST(TextRecord, LimitsTheFontSize) {
  SPtnObjText text;
  EXPECT_TRUE(ReadInto(text, u"+TX,X:0,Y:0,S:A,FS:2,-TX\n").ok);
  EXPECT_EQ(text.FontSize(), 4);
  EXPECT_TRUE(ReadInto(text, u"+TX,X:0,Y:0,S:A,FS:200,-TX\n").ok);
  EXPECT_EQ(text.FontSize(), 80);
}

TEST(TextRecord, SetsTheFlagsItsLettersName) {
  SPtnObjText text;
  EXPECT_TRUE(ReadInto(text, u"+TX,X:0,Y:0,S:A,FF:BxU,-TX\n").ok);
  EXPECT_TRUE(text.IsBold());
  EXPECT_FALSE(text.IsItalic());
  EXPECT_TRUE(text.IsUnderline());
  EXPECT_FALSE(text.IsStrikeout());
}

TEST(TextRecord, ClearsNoFlag) {
  SPtnObjText text;
  EXPECT_TRUE(ReadInto(text, u"+TX,X:0,Y:0,S:A,FF:BI,FF:U,FF:,-TX\n").ok);
  EXPECT_TRUE(text.IsBold() && text.IsItalic() && text.IsUnderline());
  EXPECT_FALSE(text.IsStrikeout());
}

TEST(TextRecord, IsHorizontalUnlessItsDirectionIsZero) {
  SPtnObjText text;
  EXPECT_TRUE(ReadInto(text, u"+TX,X:0,Y:0,S:A,D:0,-TX\n").ok);
  EXPECT_FALSE(text.IsHorizontal());
  EXPECT_TRUE(ReadInto(text, u"+TX,X:0,Y:0,S:A,D:-3,-TX\n").ok);
  EXPECT_TRUE(text.IsHorizontal());
}

struct RefusedCase {
  const char* name;
  std::u16string_view text;
  FindingKind why;
};

class TextRecordRefused : public testing::TestWithParam<RefusedCase> {};

TEST_P(TextRecordRefused, SaysWhy) {
  SPtnObjText text;
  const ReadRecord read = ReadInto(text, GetParam().text);
  EXPECT_FALSE(read.ok);
  ASSERT_FALSE(read.findings.empty());
  EXPECT_EQ(read.findings.back().kind, GetParam().why);
  EXPECT_EQ(read.findings.back().record, u"+TX");
}

INSTANTIATE_TEST_SUITE_P(
    , TextRecordRefused,
    testing::Values(
        RefusedCase{"WithoutX", u"+TX,Y:0,S:A,-TX\n", FindingKind::ObjectIncomplete},
        RefusedCase{"WithoutY", u"+TX,X:0,S:A,-TX\n", FindingKind::ObjectIncomplete},
        RefusedCase{"WithoutText", u"+TX,X:0,Y:0,FN:A,-TX\n", FindingKind::ObjectIncomplete},
        RefusedCase{"WithEmptyText", u"+TX,X:0,Y:0,S:,-TX\n", FindingKind::ObjectIncomplete},
        RefusedCase{"WithNothingBeforeANul", u"+TX,X:0,Y:0,S:%00A,-TX\n",
                    FindingKind::ObjectIncomplete},
        RefusedCase{"ClosedByAnotherTag", u"+TX,X:0,Y:0,S:A,-L\n",
                    FindingKind::ObjectClosedWrongly},
        RefusedCase{"CutOff", u"+TX,X:0,Y:0,S:A,FN:,FS:10,FF:\n", FindingKind::DataCutOff}),
    kCaseName);

TEST(TextRecord, WithAnEmptyTextIgnoresThatField) {
  SPtnObjText text = Text(u"before");
  const ReadRecord read = ReadInto(text, u"+TX,X:0,Y:0,S:,-TX\n");
  EXPECT_FALSE(read.ok);
  EXPECT_EQ(text.Text(), u"before");
  EXPECT_THAT(read.Kinds(),
              ElementsAre(FindingKind::FieldWithoutValue, FindingKind::ObjectIncomplete));
}

TEST(TextRecord, StoresItsValuesEvenWhenItFails) {
  SPtnObjText text;
  EXPECT_FALSE(ReadInto(text, u"+TX,X:3,Y:4,A:5,FS:20,FF:B,-TX\n").ok);
  EXPECT_EQ(Written(text), u"+TX,X:3,Y:4,A:5,D:1,S:,FN:,FS:20,FF:B,-TX\n");
}

TEST(TextRecord, CutsItsTextsAtANul) {
  SPtnObjText text;
  const ReadRecord read = ReadInto(text, u"+TX,X:0,Y:0,S:ab%00cd,FN:Sans%00Serif,-TX\n");
  EXPECT_TRUE(read.ok);
  EXPECT_EQ(text.Text(), u"ab");
  EXPECT_EQ(text.FontName(), u"Sans");
  EXPECT_THAT(read.Kinds(), ElementsAre(FindingKind::TextCutAtNul, FindingKind::TextCutAtNul));
}

TEST(TextRecord, HasNoUseForAWidth) {
  SPtnObjText text;
  const ReadRecord read = ReadInto(text, u"+TX,W:5,X:0,Y:0,S:A,-TX\n");
  EXPECT_TRUE(read.ok);
  EXPECT_EQ(text.width, 1);
  EXPECT_THAT(read.Kinds(), ElementsAre(FindingKind::UnknownKey));
}

// Node, setters, validity

TEST(Text, HasItsAnchorForTheOnlyNode) {
  SPtnObjText text = Text(u"A", {3, 4});
  EXPECT_EQ(text.GetNodeCount(), 1);
  EXPECT_EQ(text.GetNode(0), (SPoint{3, 4}));
  EXPECT_EQ(text.GetNode(-9), (SPoint{3, 4}));
  text.SetNode(9, 5, 6);
  EXPECT_EQ(text.Position(), (SPoint{5, 6}));
  text.Move(1, -1);
  EXPECT_EQ(text.Position(), (SPoint{6, 5}));
}

TEST(Text, IsValidUnlessEmpty) {
  EXPECT_FALSE(SPtnObjText().IsValid());
  EXPECT_TRUE(Text(u" ").IsValid());
}

TEST(Text, LimitsItsFontSize) {
  SPtnObjText text;
  for (const auto& [set, kept] : {std::pair{3, 4}, {4, 4}, {80, 80}, {81, 80}, {-100, 4}}) {
    text.SetFontSize(set);
    EXPECT_EQ(text.FontSize(), kept) << set;
  }
}

TEST(Text, MeasuresAnewAfterEveryChangeOfItsDrawnSize) {
  const std::pair<const char*, void (*)(SPtnObjText&)> changes[] = {
      {"text", [](SPtnObjText& t) { t.SetText(u"AB"); }},
      {"font name", [](SPtnObjText& t) { t.SetFontName(u""); }},
      {"font size", [](SPtnObjText& t) { t.SetFontSize(10); }},
      {"bold", [](SPtnObjText& t) { t.SetBold(false); }},
      {"italic", [](SPtnObjText& t) { t.SetItalic(false); }},
  };
  for (const auto& [name, change] : changes) {
    SPtnObjText text = Text(u"AB");
    text.SetExtent(100, 50);
    EXPECT_EQ(text.GetBoundingRect(), (SRect{0, -38, 100, 12}));
    change(text);
    EXPECT_EQ(text.GetBoundingRect(), (SRect{0, -6, 16, 2})) << name;
  }
}

TEST(Text, KeepsItsExtentWhenMovedOrTurned) {
  SPtnObjText text = Text(u"AB");
  text.SetExtent(100, 50);
  text.Move(1, 1);
  text.RotateAt({0, 0});
  text.MirrorAt(0);
  const SRect bounds = text.GetBoundingRect();
  EXPECT_EQ(bounds.right - bounds.left, 50);
  EXPECT_EQ(bounds.bottom - bounds.top, 100);
}

TEST(Text, ClonesEverything) {
  const std::u16string record = u"+TX,X:3,Y:-4,A:9,D:0,S:AB,FN:Sans,FS:12,FF:BIUS,-TX\n";
  SPtnObjText text;
  ASSERT_TRUE(ReadInto(text, record).ok);
  text.SetExtent(100, 50);
  const SRect bounds = text.GetBoundingRect();
  const auto clone = text.Clone();
  text.SetText(u"other");
  ASSERT_EQ(clone->GetType(), PtnObjType::Text);
  EXPECT_EQ(Written(*clone), record);
  EXPECT_EQ(clone->GetBoundingRect(), bounds);
}

// Bounds. The anchor is (100, 50).

struct BoundsCase {
  const char* name;
  std::int32_t align;
  bool horizontal;
  SRect commonFont;
  SRect ownFont;
};

class TextBoundsOf : public testing::TestWithParam<BoundsCase> {};

TEST_P(TextBoundsOf, OfTheEstimateFollowTheAlignment) {
  const BoundsCase& c = GetParam();
  SPtnObjText text = Text(u"AB", {100, 50}, c.align, c.horizontal);
  EXPECT_EQ(text.GetBoundingRect(), c.commonFont);
  text.SetFontName(u"Sans");
  EXPECT_EQ(text.GetBoundingRect(), c.ownFont);
}

INSTANTIATE_TEST_SUITE_P(
    Horizontal, TextBoundsOf,
    testing::Values(BoundsCase{"LeftLower", 0, true, {100, 44, 116, 52}, {100, 42, 116, 50}},
                    BoundsCase{"RightLower", 1, true, {84, 44, 100, 52}, {84, 42, 100, 50}},
                    BoundsCase{"CenterLower", 2, true, {92, 44, 108, 52}, {92, 42, 108, 50}},
                    BoundsCase{"LeftUpper", 4, true, {100, 50, 116, 58}, {100, 50, 116, 58}},
                    BoundsCase{"LeftMiddle", 8, true, {100, 47, 116, 55}, {100, 46, 116, 54}},
                    BoundsCase{"RightMiddle", 9, true, {84, 47, 100, 55}, {84, 46, 100, 54}},
                    BoundsCase{"UndefinedAlong", 3, true, {100, 44, 116, 52}, {100, 42, 116, 50}},
                    BoundsCase{"UndefinedAcross", 12, true, {100, 44, 116, 52}, {100, 42, 116, 50}},
                    BoundsCase{"HigherBits", 0x70, true, {100, 44, 116, 52}, {100, 42, 116, 50}}),
    kCaseName);

INSTANTIATE_TEST_SUITE_P(
    Vertical, TextBoundsOf,
    testing::Values(BoundsCase{"LeftLower", 0, false, {94, 34, 102, 50}, {92, 34, 100, 50}},
                    BoundsCase{"RightLower", 1, false, {94, 50, 102, 66}, {92, 50, 100, 66}},
                    BoundsCase{"CenterLower", 2, false, {94, 42, 102, 58}, {92, 42, 100, 58}},
                    BoundsCase{"LeftUpper", 4, false, {100, 34, 108, 50}, {100, 34, 108, 50}},
                    BoundsCase{"LeftMiddle", 8, false, {97, 34, 105, 50}, {96, 34, 104, 50}},
                    BoundsCase{"RightMiddle", 9, false, {97, 50, 105, 66}, {96, 50, 104, 66}},
                    BoundsCase{"UndefinedAlong", 3, false, {94, 34, 102, 50}, {92, 34, 100, 50}}),
    kCaseName);

TEST(TextBounds, OfANewTextAreEstimated) {
  EXPECT_EQ(Text(u"AB").GetBoundingRect(), (SRect{0, -6, 16, 2}));
}

TEST(TextBounds, OfAnOddExtentTruncate) {
  const auto bounds = [](std::int32_t align, bool horizontal, std::u16string_view font) {
    SPtnObjText text = Text(u"AB", {100, 50}, align, horizontal);
    text.SetFontName(font);
    text.SetExtent(7, 5);
    return text.GetBoundingRect();
  };
  EXPECT_EQ(bounds(2, true, u""), (SRect{97, 46, 104, 51}));
  EXPECT_EQ(bounds(2, false, u""), (SRect{96, 46, 101, 53}));
  EXPECT_EQ(bounds(8, true, u""), (SRect{100, 48, 107, 53}));
  EXPECT_EQ(bounds(8, true, u"Sans"), (SRect{100, 47, 107, 52}));
}

TEST(TextHitTest, HitsTheBoundsWithTheirEdges) {
  SPtnObjText text = Text(u"AB");  // (0, -6) to (16, 2)
  for (const SPoint p : {SPoint{0, -6}, {16, 2}, {8, 0}}) EXPECT_TRUE(text.HitTest(p));
  for (const SPoint p : {SPoint{-1, 0}, {17, 0}, {8, -7}, {8, 3}}) EXPECT_FALSE(text.HitTest(p));
}

TEST(TextIsInRect, NeedsTheBoundsInside) {
  SPtnObjText text = Text(u"AB");
  EXPECT_TRUE(text.IsInRect({0, -6, 16, 2}));
  EXPECT_FALSE(text.IsInRect({1, -6, 16, 2}));
  EXPECT_FALSE(text.IsInRect({0, -5, 16, 2}));
  EXPECT_FALSE(text.IsInRect({0, -6, 15, 2}));
  EXPECT_FALSE(text.IsInRect({0, -6, 16, 1}));
}

// Mirroring and turning

struct AlignCase {
  std::int32_t align, mirroredHorizontal, mirroredVertical, rotatedHorizontal;
};

class TextAlignment : public testing::TestWithParam<AlignCase> {};

TEST_P(TextAlignment, FlipsWithAMirror) {
  SPtnObjText horizontal = Text(u"A", {3, 4}, GetParam().align, true);
  horizontal.MirrorAt(10);
  EXPECT_EQ(horizontal.Position(), (SPoint{17, 4}));
  EXPECT_EQ(horizontal.Align(), GetParam().mirroredHorizontal);
  EXPECT_TRUE(horizontal.IsHorizontal());
  SPtnObjText vertical = Text(u"A", {3, 4}, GetParam().align, false);
  vertical.MirrorAt(10);
  EXPECT_EQ(vertical.Position(), (SPoint{17, 4}));
  EXPECT_EQ(vertical.Align(), GetParam().mirroredVertical);
  EXPECT_FALSE(vertical.IsHorizontal());
}

TEST_P(TextAlignment, FlipsWhenHorizontalTextTurns) {
  SPtnObjText horizontal = Text(u"A", {3, 4}, GetParam().align, true);
  horizontal.RotateAt({0, 0});
  EXPECT_EQ(horizontal.Position(), (SPoint{-4, 3}));
  EXPECT_EQ(horizontal.Align(), GetParam().rotatedHorizontal);
  EXPECT_FALSE(horizontal.IsHorizontal());
}

TEST_P(TextAlignment, StaysWhenVerticalTextTurns) {
  SPtnObjText vertical = Text(u"A", {3, 4}, GetParam().align, false);
  vertical.RotateAt({0, 0});
  EXPECT_EQ(vertical.Align(), GetParam().align);
  EXPECT_TRUE(vertical.IsHorizontal());
}

INSTANTIATE_TEST_SUITE_P(
    , TextAlignment,
    testing::Values(
        AlignCase{T::kLeft | T::kLower, T::kRight, T::kUpper, T::kRight | T::kUpper},
        AlignCase{T::kRight | T::kLower, T::kLeft, T::kRight | T::kUpper, T::kUpper},
        AlignCase{T::kCenter, T::kCenter, T::kCenter | T::kUpper, T::kCenter | T::kUpper},
        AlignCase{T::kUpper, T::kRight | T::kUpper, 0, T::kRight},
        AlignCase{T::kMiddle, T::kRight | T::kMiddle, T::kMiddle, T::kRight | T::kMiddle},
        AlignCase{T::kCenter | T::kMiddle, T::kCenter | T::kMiddle, T::kCenter | T::kMiddle,
                  T::kCenter | T::kMiddle}));

TEST(TextMirror, MakesALeftAlignedTextRightAlignedInPlace) {
  SPtnObjText text = Text(u"AB");  // (0, -6) to (16, 2): the middle is 8
  text.Mirror();
  EXPECT_EQ(text.Position(), (SPoint{16, 0}));
  EXPECT_EQ(text.Align(), T::kRight);
  EXPECT_EQ(text.GetBoundingRect(), (SRect{0, -6, 16, 2}));
}

TEST(TextMirror, LeavesACentredTextCentred) {
  SPtnObjText text = Text(u"AB", {5, 5}, T::kCenter);
  text.Mirror();
  EXPECT_EQ(text.Align(), T::kCenter);
  EXPECT_EQ(text.Position(), (SPoint{5, 5}));
}

TEST(TextRotate, TwiceKeepsTheBitsOfTheFirstTurn) {
  SPtnObjText text = Text(u"AB");
  text.RotateAt({0, 0});
  EXPECT_FALSE(text.IsHorizontal());
  EXPECT_EQ(text.Align(), 5);
  text.RotateAt({0, 0});
  EXPECT_TRUE(text.IsHorizontal());
  EXPECT_EQ(text.Align(), 5);
}

TEST(TextRotate, GoesAboutTheMiddleOfItsBounds) {
  SPtnObjText text = Text(u"AB");  // (0, -6) to (16, 2): the middle is (8, -2)
  text.Rotate();
  EXPECT_EQ(text.Position(), (SPoint{6, -10}));
}

}  // namespace
}  // namespace mivo
