#include "clipboard_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <variant>

#include "comp_edit_doc.h"
#include "edit_samples.h"
#include "text_encoding.h"

namespace mivo {
namespace {

constexpr std::u16string_view kPinText =
    u"+MIVO_PIN_V.1.0\n"
    u"+PIN,N:\\RESET,DF:FFFFFFFF,L:T3,T:,M:1,-PIN\n"
    u"-MIVO_PIN_V.1.0\n";

class CopyTest : public testing::Test {
 protected:
  CopyTest() {
    const SComponent component = MakeComponent({6, 4}, 1, {}, Drawn::Yes);
    doc.Load(&component);
    doc.RaiseOperation();
  }
  std::string Copied() {
    EXPECT_TRUE(doc.CopyToClipboard(clipboard));
    return Utf16ToUtf8(clipboard.text.value());
  }

  SCompEditDoc doc;
  FakeClipboard clipboard;
  const SCompPin pin = MakePin(PinSide::Top, 3, u"\\RESET");
};

TEST_F(CopyTest, OnePinGivesPinText) {
  doc.AddPin(&pin);
  EXPECT_EQ(Copied(), Utf16ToUtf8(kPinText));
}

TEST_F(CopyTest, OneObjectGivesPatternTextRelativeToTheSelectionRectangle) {
  doc.AddObject(MakeLine({12, 23}, {30, 40}).get());
  EXPECT_EQ(Copied(),
            "+MIVO_PTN_V.1.0\n"
            "+L,W:1,S:0,CV:0,X:1,Y:1,X:19,Y:18,-L\n"
            "+MIVO_PTN_V.1.0\n");
}

TEST_F(CopyTest, AllObjectsInSelectionOrder) {
  doc.PasteObjects(OneOfEach(), 0, 0);
  ASSERT_EQ(doc.SelectionRect(), (SRect{-1, -1, 61, 31}));
  EXPECT_EQ(Copied(),
            "+MIVO_PTN_V.1.0\n"
            "+L,W:1,S:0,CV:0,X:3,Y:4,X:18,Y:10,-L\n"
            "+C,W:1,S:0,F:-1,X:6,Y:6,X:16,Y:26,-C\n"
            "+PG,W:1,S:0,F:-1,N:3,X:1,Y:1,X:21,Y:1,X:11,Y:16,-PG\n"
            "+AR,W:1,S:0,X:11,Y:11,R:8,B:0,E:1440,-AR\n"
            "+TX,X:5,Y:29,A:0,D:1,S:50%25%2C%20ok,FN:,FS:10,FF:,-TX\n"
            "+MIVO_PTN_V.1.0\n");
}

TEST_F(CopyTest, OnePinAndOneLineGivePatternTextOfTheLine) {
  doc.AddPin(&pin);  // (26, -10) to (34, 0)
  doc.AddObject(MakeLine({30, 10}, {40, 20}).get());
  EXPECT_EQ(Copied(),
            "+MIVO_PTN_V.1.0\n"
            "+L,W:1,S:0,CV:0,X:5,Y:21,X:15,Y:31,-L\n"
            "+MIVO_PTN_V.1.0\n");
}

TEST_F(CopyTest, TwoPinsGiveEmptyPatternText) {
  doc.AddPin(&pin);
  doc.AddPin(&pin);
  EXPECT_EQ(Copied(), "+MIVO_PTN_V.1.0\n+MIVO_PTN_V.1.0\n");
}

TEST_F(CopyTest, LeavesDocumentAndSelectionAlone) {
  doc.AddObject(MakeLine({12, 23}, {30, 40}).get());
  const std::string selected = Selected(doc);
  Copied();
  EXPECT_EQ(Selected(doc), selected);
  EXPECT_TRUE(doc.SelectionChanged());
}

TEST_F(CopyTest, FailsWithoutSelectionAndWhenTheClipboardCannotBeHad) {
  EXPECT_FALSE(doc.CopyToClipboard(clipboard));
  EXPECT_FALSE(clipboard.text);
  doc.AddPin(&pin);
  clipboard.refuses = true;
  EXPECT_FALSE(doc.CopyToClipboard(clipboard));
}

// --- What may be pasted --------------------------------------------------------------------------

TEST(CanPasteTest, TextsThatBeginWithAHeader) {
  EXPECT_TRUE(CanPaste(u"+MIVO_PIN_V.1.0\n"));
  EXPECT_TRUE(CanPaste(u"+MIVO_PTN_V.1.0\n"));
  EXPECT_TRUE(CanPaste(u"+MIVO_PIN_V.1.0 and more"));
}

TEST(CanPasteTest, NothingElse) {
  for (const std::u16string_view text :
       {u"", u"+", u"-MIVO_PIN_V.1.0\n", u" +MIVO_PIN_V.1.0\n", u"\n+MIVO_PTN_V.1.0\n",
        u"+mivo_pin_v.1.0\n", u"+MIVO_PIN_V.1.1\n", u"+TARSL_DATA_V.1.0\n"}) {
    EXPECT_FALSE(CanPaste(text)) << Utf16ToUtf8(text);
    EXPECT_TRUE(std::holds_alternative<std::monostate>(ReadClipboardText(text, 1)));
  }
}

// 14 characters and the terminating zero make a block of 30 bytes, the length of the header alone.
TEST(CanPasteTest, NoTextShorterThanTheHeader) {
  EXPECT_FALSE(CanPaste(u"+MIVO_PIN_V.1."));
  EXPECT_FALSE(CanPaste(u"+MIVO_PTN_V.1."));
  EXPECT_FALSE(CanPaste(std::u16string_view(u"+MIVO_PIN_V.1.\0000", 15)));
}

TEST(CanPasteTest, TextEndsAtItsFirstNul) {
  const std::u16string_view text(u"+MIVO_PTN_V.1.0\n+L,X:1,Y:2,X:3,Y:4,-L\n\0+L,X:5,Y:6,-L\n", 53);
  const ClipboardContent content = ReadClipboardText(text, 1);
  EXPECT_EQ(std::get<PatternText>(content).objects.size(), 1u);
}

// The first field must be exactly the header; a longer one passes the first look only.
TEST(CanPasteTest, AFirstFieldThatOnlyBeginsWithAHeaderHoldsNothing) {
  for (const std::u16string_view text :
       {u"+MIVO_PIN_V.1.0", u"+MIVO_PTN_V.1.0", u"+MIVO_PTN_V.1.01\n+L,-L\n",
        u"+MIVO_PIN_V.1.0 \n+PIN,-PIN\n", u"+MIVO_PTN_V.1.0%\n"}) {
    EXPECT_TRUE(CanPaste(text)) << Utf16ToUtf8(text);
    EXPECT_TRUE(std::holds_alternative<std::monostate>(ReadClipboardText(text, 1)))
        << Utf16ToUtf8(text);
  }
}

// --- Reading -------------------------------------------------------------------------------------

std::optional<SCompPin> ReadPin(std::u16string_view text, std::int32_t blockCount = 1) {
  return std::get<PinText>(ReadClipboardText(text, blockCount)).pin;
}

/// The records of the objects that `text` holds.
std::string ReadObjects(std::u16string_view text) {
  std::string records;
  const ClipboardContent content = ReadClipboardText(text, 1);
  for (const auto& object : std::get<PatternText>(content).objects) records += RecordOf(*object);
  return records;
}

TEST(PinTextTest, GivesThePinBack) {
  EXPECT_EQ(ReadPin(kPinText), MakePin(PinSide::Top, 3, u"\\RESET"));
}

TEST(PinTextTest, ThePinGetsTheBlocksOfTheComponent) {
  EXPECT_EQ(ReadPin(kPinText, 3)->NumberCount(), 3);
  const auto pin = ReadPin(u"+MIVO_PIN_V.1.0\n+PIN,N:A,M:1,M:2,M:3,-PIN\n-MIVO_PIN_V.1.0\n", 2);
  EXPECT_EQ(pin->GetNumber(0), u"1");
  EXPECT_EQ(pin->GetNumber(1), u"2");
  EXPECT_EQ(pin->NumberCount(), 2);
}

TEST(PinTextTest, ForeignRecordsAreSkipped) {
  const auto pin =
      ReadPin(u"+MIVO_PIN_V.1.0\n+NEW,+PIN,N:X,-PIN,-NEW,key:1,+PIN,N:A,-PIN\n-MIVO_PIN_V.1.0\n");
  ASSERT_TRUE(pin);
  EXPECT_EQ(pin->Name(), u"A");
}

TEST(PinTextTest, AnyClosingTagEndsTheText) {
  EXPECT_FALSE(ReadPin(u"+MIVO_PIN_V.1.0\n-X,+PIN,N:A,-PIN\n-MIVO_PIN_V.1.0\n"));
}

TEST(PinTextTest, MayHoldNoPin) {
  EXPECT_FALSE(ReadPin(u"+MIVO_PIN_V.1.0\n"));
  EXPECT_FALSE(ReadPin(u"+MIVO_PIN_V.1.0\n-MIVO_PIN_V.1.0\n"));
  EXPECT_FALSE(ReadPin(u"+MIVO_PIN_V.1.0\n+L,-L\n-MIVO_PIN_V.1.0\n"));
  EXPECT_FALSE(ReadPin(u"+MIVO_PIN_V.1.0\n+NEW,never closed\n+PIN,N:A,-PIN\n"));
}

TEST(PinTextTest, APinThatCannotBeReadIsDropped) {
  EXPECT_FALSE(ReadPin(u"+MIVO_PIN_V.1.0\n+PIN,N:A,-L\n"));
  const auto pin = ReadPin(u"+MIVO_PIN_V.1.0\n+PIN,N:A,-PIN,+PIN,N:B,-L\n");
  ASSERT_TRUE(pin);
  EXPECT_EQ(pin->Name(), u"A");
}

TEST(PinTextTest, TheLastOfSeveralPinsCounts) {
  EXPECT_EQ(ReadPin(u"+MIVO_PIN_V.1.0\n+PIN,N:A,-PIN\n+PIN,N:B,-PIN\n")->Name(), u"B");
}

TEST(PinTextTest, CutAtEveryCharacterIsHarmless) {
  // A tag takes effect together with the character that ends it. A pin without its closing tag is
  // taken, one with a piece of it is not.
  const std::size_t pinBegins = kPinText.find(u"+PIN") + 5;
  const std::size_t closingTag = kPinText.find(u"-PIN");
  for (std::size_t length = 0; length <= kPinText.size(); ++length) {
    const ClipboardContent content = ReadClipboardText(kPinText.substr(0, length), 2);
    EXPECT_EQ(std::holds_alternative<PinText>(content), length >= 16) << length;
    if (length < 16) continue;
    const std::optional<SCompPin>& pin = std::get<PinText>(content).pin;
    const bool inClosingTag = length > closingTag && length < closingTag + 5;
    EXPECT_EQ(pin.has_value(), length >= pinBegins && !inClosingTag) << length;
    EXPECT_EQ(pin.value_or(SCompPin(2)).NumberCount(), 2) << length;
  }
}

TEST(PatternTextTest, TheOpeningTagClosesItToo) {
  EXPECT_EQ(ReadObjects(u"+MIVO_PTN_V.1.0\n+L,X:1,Y:2,X:3,Y:4,-L\n+MIVO_PTN_V.1.0\n"),
            "+L,W:1,S:0,CV:0,X:1,Y:2,X:3,Y:4,-L\n");
}

TEST(PatternTextTest, ReadsOneObjectOfEachClass) {
  std::vector<SCompEditElm> selection;
  std::string records;
  for (std::unique_ptr<SPtnObj>& object : OneOfEach()) {
    records += RecordOf(*object);
    selection.emplace_back(1, std::move(object));
  }
  EXPECT_EQ(ReadObjects(WriteClipboardText(selection, {})), records);
}

TEST(PatternTextTest, OnlyUnknownRecordsGiveNoObjectsButAreAPatternText) {
  const ClipboardContent content =
      ReadClipboardText(u"+MIVO_PTN_V.1.0\n+NEW,a:1,-NEW\n+PIN,N:A,-PIN\n+MIVO_PTN_V.1.0\n", 1);
  ASSERT_TRUE(std::holds_alternative<PatternText>(content));
  EXPECT_TRUE(std::get<PatternText>(content).objects.empty());
}

TEST(PatternTextTest, PastedWithoutObjectsItTakesANumberThatUndoSkips) {
  SComponent component = MakeComponent({6, 4}, 1, {MakePin(PinSide::Left, 1)}, Drawn::Yes);
  SCompEditDoc doc;
  doc.Load(&component);
  const std::string loaded = Shown(doc);
  doc.RaiseOperation();
  ASSERT_TRUE(doc.PickElement(0));
  doc.DeleteSelection();
  ClipboardContent content =
      ReadClipboardText(u"+MIVO_PTN_V.1.0\n+NEW,-NEW\n+MIVO_PTN_V.1.0\n", doc.Blocks());
  doc.PasteObjects(std::move(std::get<PatternText>(content).objects), 0, 0);
  EXPECT_EQ(doc.Operation(), 2);
  EXPECT_TRUE(doc.Undo());
  EXPECT_EQ(Shown(doc), loaded);
}

TEST(PatternTextTest, RecordsAroundABadOneAreRead) {
  EXPECT_EQ(ReadObjects(u"+MIVO_PTN_V.1.0\n"
                        u"+L,X:1,Y:2,X:3,Y:4,-L\n"
                        u"+PG,N:1,X:0,Y:0,-PG\n"
                        u"+C,X:1,Y:1,-L\n"
                        u"stray,-TX,:,key:\n"
                        u"+L,X:5,Y:6,X:7,Y:8,-L\n"
                        u"+MIVO_PTN_V.1.0\n"),
            "+L,W:1,S:0,CV:0,X:1,Y:2,X:3,Y:4,-L\n"
            "+L,W:1,S:0,CV:0,X:5,Y:6,X:7,Y:8,-L\n");
}

TEST(PatternTextTest, NothingIsReadBehindARecordThatIsNeverClosed) {
  EXPECT_EQ(ReadObjects(u"+MIVO_PTN_V.1.0\n+NEW,a:1\n+L,X:5,Y:6,X:7,Y:8,-L\n"), "");
}

TEST(PatternTextTest, CutAtEveryCharacterIsHarmless) {
  std::vector<SCompEditElm> selection;
  for (std::unique_ptr<SPtnObj>& object : OneOfEach()) selection.emplace_back(1, std::move(object));
  const std::u16string text = WriteClipboardText(selection, {});
  for (std::size_t length = 0; length <= text.size(); ++length) {
    const std::u16string_view cut = std::u16string_view(text).substr(0, length);
    const ClipboardContent content = ReadClipboardText(cut, 1);
    EXPECT_EQ(std::holds_alternative<PatternText>(content), length >= 16);
    if (length < 16) continue;
    const auto& objects = std::get<PatternText>(content).objects;
    // Every line but the first is a record; the one that was cut may have been read in part.
    const auto complete = static_cast<std::size_t>(std::count(cut.begin(), cut.end(), u'\n')) - 1;
    ASSERT_GE(objects.size(), std::min(complete, selection.size())) << length;
    ASSERT_LE(objects.size(), std::min(complete + 1, selection.size())) << length;
    for (std::size_t i = 0; i < std::min(complete, selection.size()); ++i) {
      EXPECT_EQ(RecordOf(*objects[i]), RecordOf(*selection[i].Object())) << length;
    }
  }
}

}  // namespace
}  // namespace mivo
