#include "comp_property.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLineEdit>
#include <string>

#include "dialog_driver.h"
#include "note_edit.h"

namespace mivo {
namespace {

class CompProperty : public testing::Test {
 protected:
  CCompProperty& Open(const CompPropertyValues& values = {}) {
    dialog_.emplace(texts_, values, nullptr);
    Show(*dialog_);
    return *dialog_;
  }

  std::optional<std::u16string> PressOk() {
    return MessageOf([this] { Click(*dialog_, "okButton"); });
  }
  bool IsAccepted() { return !dialog_->isVisible() && dialog_->result() == QDialog::Accepted; }
  bool IsChecked(const char* name) { return Find<QCheckBox>(*dialog_, name).isChecked(); }
  bool IsEnabled(const char* name) { return Find<QWidget>(*dialog_, name).isEnabled(); }

  TextTable texts_;
  std::optional<CCompProperty> dialog_;
};

TEST_F(CompProperty, ShowsTheValuesOfANewComponent) {
  CCompProperty& dialog = Open();
  EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Property - component"));
  EXPECT_EQ(TextOf(dialog, "nameEdit"), u"NAME");
  EXPECT_EQ(TextOf(dialog, "prefixEdit"), u"U");
  EXPECT_EQ(TextOf(dialog, "widthEdit"), u"2");
  EXPECT_EQ(TextOf(dialog, "heightEdit"), u"2");
  EXPECT_EQ(TextOf(dialog, "blocksEdit"), u"1");
  EXPECT_EQ(TextOf(dialog, "fixedBlockNumberEdit"), u"1");
  EXPECT_FALSE(IsChecked("usePatternCheck"));
  EXPECT_FALSE(IsChecked("noBitPatternCheck"));
  EXPECT_FALSE(IsEnabled("noBitPatternCheck"));
  EXPECT_FALSE(IsChecked("fixedBlockCheck"));
  EXPECT_FALSE(IsChecked("sharedBlockCheck"));
  EXPECT_TRUE(IsEnabled("blocksEdit"));
  EXPECT_FALSE(IsEnabled("fixedBlockNumberEdit"));
  EXPECT_EQ(PressOk(), std::nullopt);
  ASSERT_TRUE(IsAccepted());
  EXPECT_EQ(dialog.Values(), CompPropertyValues());
}

TEST_F(CompProperty, TakesWhatIsTyped) {
  CCompProperty& dialog = Open();
  Type(dialog, "nameEdit", "74HC00");
  Type(dialog, "prefixEdit", "IC");
  Type(dialog, "widthEdit", "255");
  Type(dialog, "heightEdit", " 7");
  Type(dialog, "blocksEdit", "4");
  Type(dialog, "manufacturerEdit", "Maker");
  Type(dialog, "partNumberEdit", "SN74HC00");
  Type(dialog, "packageEdit", "SO14");
  Find<NoteEdit>(dialog, "noteEdit").setFocus();
  QTest::keyClicks(&Find<NoteEdit>(dialog, "noteEdit"), QStringLiteral("Quad"));
  QTest::keyClick(&Find<NoteEdit>(dialog, "noteEdit"), Qt::Key_Return);
  QTest::keyClicks(&Find<NoteEdit>(dialog, "noteEdit"), QStringLiteral("NAND"));
  EXPECT_EQ(PressOk(), std::nullopt);
  ASSERT_TRUE(IsAccepted());
  EXPECT_EQ(dialog.Values(), (CompPropertyValues{.name = u"74HC00",
                                                 .prefix = u"IC",
                                                 .width = 255,
                                                 .height = 7,
                                                 .blocks = 4,
                                                 .note = u"Quad\r\nNAND",
                                                 .manufacturer = u"Maker",
                                                 .partNumber = u"SN74HC00",
                                                 .package = u"SO14"}));
}

struct RefusedField {
  const char* title;
  const char* edit;
  std::string typed;
  std::u16string message;
};

const RefusedField kRefused[] = {
    {"NameOf33Characters", "nameEdit", std::string(33, 'A'), u"Invalid component name."},
    {"TrailingSpace", "nameEdit", "NAME ", u"Invalid component name."},
    {"Brace", "nameEdit", "R{1}", u"Invalid component name."},
    {"EmptyName", "nameEdit", "", u"Invalid component name."},
    {"Width0", "widthEdit", "0", u"Size must be 1~255."},
    {"Width256", "widthEdit", "256", u"Size must be 1~255."},
    {"WidthNoNumber", "widthEdit", "wide", u"Size must be 1~255."},
    {"WidthEmpty", "widthEdit", "", u"Size must be 1~255."},
    {"HeightNegative", "heightEdit", "-2", u"Size must be 1~255."},
    {"HeightHuge", "heightEdit", "99999999999", u"Size must be 1~255."},
    {"Blocks0", "blocksEdit", "0", u"Blocks must be 1~255."},
    {"Blocks256", "blocksEdit", "256", u"Blocks must be 1~255."},
};

class CompPropertyRefusals : public CompProperty,
                             public testing::WithParamInterface<RefusedField> {};

TEST_P(CompPropertyRefusals, ShowTheMessageAndLeadToTheField) {
  const RefusedField& test = GetParam();
  CCompProperty& dialog = Open();
  Type(dialog, test.edit, test.typed);
  Type(dialog, "packageEdit", "kept");
  EXPECT_EQ(PressOk(), test.message);
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_EQ(FocusName(dialog), test.edit);
  EXPECT_EQ(TextOf(dialog, test.edit), std::u16string(test.typed.begin(), test.typed.end()));
  EXPECT_EQ(Find<QLineEdit>(dialog, test.edit).selectedText().toStdString(), test.typed);
  EXPECT_EQ(TextOf(dialog, "packageEdit"), u"kept");
}

INSTANTIATE_TEST_SUITE_P(Each, CompPropertyRefusals, testing::ValuesIn(kRefused),
                         [](const auto& test) { return std::string(test.param.title); });

TEST_F(CompProperty, ANameOf32CharactersIsAccepted) {
  Open();
  Type(*dialog_, "nameEdit", std::string(32, 'A'));
  EXPECT_EQ(PressOk(), std::nullopt);
  EXPECT_EQ(dialog_->Values().name, std::u16string(32, u'A'));
}

TEST_F(CompProperty, RefusesOneValueAfterTheOther) {
  CCompProperty& dialog = Open();
  Type(dialog, "nameEdit", "");
  Type(dialog, "heightEdit", "0");
  Type(dialog, "blocksEdit", "0");
  EXPECT_EQ(PressOk(), u"Invalid component name.");
  Type(dialog, "nameEdit", "A");
  EXPECT_EQ(PressOk(), u"Size must be 1~255.");
  EXPECT_EQ(FocusName(dialog), "heightEdit");
  Type(dialog, "heightEdit", "1");
  EXPECT_EQ(PressOk(), u"Blocks must be 1~255.");
  Type(dialog, "blocksEdit", "1");
  EXPECT_EQ(PressOk(), std::nullopt);
  EXPECT_TRUE(IsAccepted());
}

TEST_F(CompProperty, SharedBlockShowsOneBlockAndExcludesFixed) {
  CCompProperty& dialog = Open({.blocks = 4});
  EXPECT_EQ(TextOf(dialog, "blocksEdit"), u"4");
  Click(dialog, "sharedBlockCheck");
  EXPECT_FALSE(IsEnabled("blocksEdit"));
  EXPECT_EQ(TextOf(dialog, "blocksEdit"), u"1");
  EXPECT_FALSE(IsEnabled("fixedBlockNumberEdit"));

  Click(dialog, "fixedBlockCheck");
  EXPECT_FALSE(IsChecked("sharedBlockCheck"));
  EXPECT_TRUE(IsChecked("fixedBlockCheck"));
  EXPECT_FALSE(IsEnabled("blocksEdit"));
  EXPECT_TRUE(IsEnabled("fixedBlockNumberEdit"));

  Click(dialog, "sharedBlockCheck");
  EXPECT_TRUE(IsChecked("sharedBlockCheck"));
  EXPECT_FALSE(IsChecked("fixedBlockCheck"));

  Click(dialog, "sharedBlockCheck");
  EXPECT_TRUE(IsEnabled("blocksEdit"));
  EXPECT_EQ(TextOf(dialog, "blocksEdit"), u"4");
}

TEST_F(CompProperty, GivesBackTheBlockMode) {
  Open();
  Click(*dialog_, "sharedBlockCheck");
  EXPECT_EQ(PressOk(), std::nullopt);
  EXPECT_EQ(dialog_->Values(), (CompPropertyValues{.sharedBlock = true}));

  Open();
  Click(*dialog_, "fixedBlockCheck");
  Type(*dialog_, "fixedBlockNumberEdit", "12");
  EXPECT_EQ(PressOk(), std::nullopt);
  EXPECT_EQ(dialog_->Values(), (CompPropertyValues{.fixedBlock = true, .fixedBlockNumber = 12}));
}

TEST_F(CompProperty, OfTwoBlockModesSharedPrevails) {
  Open({.fixedBlock = true, .fixedBlockNumber = 4, .sharedBlock = true});
  EXPECT_TRUE(IsChecked("sharedBlockCheck"));
  EXPECT_FALSE(IsChecked("fixedBlockCheck"));
  EXPECT_EQ(PressOk(), std::nullopt);
  EXPECT_EQ(dialog_->Values(), (CompPropertyValues{.sharedBlock = true}));
}

TEST_F(CompProperty, AFixedBlockOpensWithItsNumber) {
  CCompProperty& dialog = Open({.fixedBlock = true, .fixedBlockNumber = 4});
  EXPECT_TRUE(IsChecked("fixedBlockCheck"));
  EXPECT_EQ(TextOf(dialog, "fixedBlockNumberEdit"), u"4");
  EXPECT_TRUE(IsEnabled("fixedBlockNumberEdit"));
  EXPECT_FALSE(IsEnabled("blocksEdit"));
}

TEST_F(CompProperty, RefusesFixedBlockNumbersOutOfRange) {
  CCompProperty& dialog = Open({.fixedBlock = true, .fixedBlockNumber = 256});
  EXPECT_EQ(PressOk(), u"Fixed Block Number must be 1~255.");
  EXPECT_EQ(FocusName(dialog), "fixedBlockNumberEdit");
  Type(dialog, "fixedBlockNumberEdit", "0");
  EXPECT_EQ(PressOk(), u"Fixed Block Number must be 1~255.");
  Type(dialog, "fixedBlockNumberEdit", "255");
  EXPECT_EQ(PressOk(), std::nullopt);
  EXPECT_EQ(dialog.Values().fixedBlockNumber, 255);
}

TEST_F(CompProperty, UsePatternTakesNoBitPatternAlong) {
  Open();
  Click(*dialog_, "usePatternCheck");
  EXPECT_TRUE(IsChecked("noBitPatternCheck"));
  EXPECT_TRUE(IsEnabled("noBitPatternCheck"));
  Click(*dialog_, "noBitPatternCheck");
  EXPECT_FALSE(IsChecked("noBitPatternCheck"));
  Click(*dialog_, "usePatternCheck");
  EXPECT_FALSE(IsChecked("noBitPatternCheck"));
  EXPECT_FALSE(IsEnabled("noBitPatternCheck"));
  Click(*dialog_, "usePatternCheck");
  EXPECT_EQ(PressOk(), std::nullopt);
  EXPECT_TRUE(dialog_->Values().usePattern);
  EXPECT_TRUE(dialog_->Values().noBitPattern);
}

TEST_F(CompProperty, WithoutAPatternThereIsNoBitPatternChoice) {
  Open({.usePattern = false, .noBitPattern = true});
  EXPECT_FALSE(IsChecked("noBitPatternCheck"));
  EXPECT_EQ(PressOk(), std::nullopt);
  EXPECT_FALSE(dialog_->Values().noBitPattern);

  Open({.usePattern = true, .noBitPattern = false});
  EXPECT_TRUE(IsEnabled("noBitPatternCheck"));
  EXPECT_FALSE(IsChecked("noBitPatternCheck"));
  EXPECT_EQ(PressOk(), std::nullopt);
  EXPECT_TRUE(dialog_->Values().usePattern);
  EXPECT_FALSE(dialog_->Values().noBitPattern);
}

TEST_F(CompProperty, ANoteOf1023CharactersIsTheLongest) {
  CCompProperty& dialog = Open();
  auto& note = Find<NoteEdit>(dialog, "noteEdit");
  note.setPlainText(QString(1023, u'n'));
  note.moveCursor(QTextCursor::End);
  QTest::keyClick(&note, 'x');
  EXPECT_EQ(PressOk(), u"Enter at most 1023 characters.");
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_EQ(FocusName(dialog), "noteEdit");
  QTest::keyClick(&note, Qt::Key_Backspace);
  EXPECT_EQ(PressOk(), std::nullopt);
  EXPECT_EQ(dialog.Values().note, std::u16string(1023, u'n'));
}

TEST_F(CompProperty, ALineBreakCountsAsTwoCharacters) {
  CCompProperty& dialog = Open();
  auto& note = Find<NoteEdit>(dialog, "noteEdit");
  note.setPlainText(QString(1021, u'n') + QStringLiteral("\na"));
  EXPECT_EQ(PressOk(), u"Enter at most 1023 characters.");
  note.setPlainText(QString(1020, u'n') + QStringLiteral("\na"));
  EXPECT_EQ(PressOk(), std::nullopt);
  EXPECT_EQ(dialog.Values().note, std::u16string(1020, u'n') + u"\r\na");
}

TEST_F(CompProperty, UntouchedTextsComeBackUnchanged) {
  std::u16string odd = u"\uFEFFa\nb\rc\r\nd\te\u2028f\u2029g\u00A0h\uFDD0i\x7F\x01\xD800";
  odd.push_back(u'\0');
  const CompPropertyValues values{.name = u"NAME",
                                  .prefix = odd,
                                  .note = odd,
                                  .manufacturer = std::u16string(40000, u'm'),
                                  .partNumber = odd + odd,
                                  .package = u"\n"};
  Open(values);
  EXPECT_EQ(PressOk(), std::nullopt);
  ASSERT_TRUE(IsAccepted());
  EXPECT_EQ(dialog_->Values(), values);
}

TEST_F(CompProperty, AnUntouchedNoteOfAMegabyteComesBack) {
  std::u16string note;
  while (note.size() < 1'000'000) note += u"The quick brown fox jumps over the lazy dog.\n";
  Open({.note = note});
  EXPECT_EQ(PressOk(), std::nullopt);
  EXPECT_TRUE(IsAccepted());
  EXPECT_EQ(dialog_->Values().note, note);
}

TEST_F(CompProperty, ANoteOfAMegabyteInOneLineComesBack) {
  const std::u16string note(1'000'000, u'n');
  Open({.note = note});
  EXPECT_EQ(PressOk(), std::nullopt);
  EXPECT_EQ(dialog_->Values().note, note);
}

TEST_F(CompProperty, OfALongTextTheBeginningShows) {
  Open({.partNumber = std::u16string(30000, u'p')});
  EXPECT_EQ(Find<QLineEdit>(*dialog_, "partNumberEdit").cursorPosition(), 0);
}

TEST_F(CompProperty, ANameOf5000CharactersShowsWholeAndIsRefused) {
  const std::u16string name(5000, u'N');
  Open({.name = name});
  EXPECT_EQ(TextOf(*dialog_, "nameEdit"), name);
  EXPECT_EQ(PressOk(), u"Invalid component name.");
}

TEST_F(CompProperty, EscapeCancels) {
  CCompProperty& dialog = Open();
  Type(dialog, "nameEdit", "B");
  QTest::keyClick(&dialog, Qt::Key_Escape);
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(dialog.result(), QDialog::Rejected);
}

TEST_F(CompProperty, EnterAcceptsFromAField) {
  CCompProperty& dialog = Open();
  Type(dialog, "widthEdit", "9");
  QTest::keyClick(&Find<QLineEdit>(dialog, "widthEdit"), Qt::Key_Return);
  ASSERT_TRUE(IsAccepted());
  EXPECT_EQ(dialog.Values().width, 9);
}

TEST_F(CompProperty, TabVisitsTheFieldsInReadingOrder) {
  EXPECT_EQ(TabOrder(Open({.usePattern = true, .fixedBlock = true})),
            (std::vector<std::string>{"nameEdit", "prefixEdit", "widthEdit", "heightEdit",
                                      "usePatternCheck", "noBitPatternCheck", "fixedBlockCheck",
                                      "fixedBlockNumberEdit", "sharedBlockCheck",
                                      "manufacturerEdit", "partNumberEdit", "packageEdit",
                                      "noteEdit", "okButton", "cancelButton"}));
}

TEST_F(CompProperty, StartsInTheName) {
  Open();
  EXPECT_EQ(FocusName(*dialog_), "nameEdit");
  EXPECT_EQ(Find<QLineEdit>(*dialog_, "nameEdit").selectedText(), QStringLiteral("NAME"));
}

TEST_F(CompProperty, AsksForAnEdit) {
  std::optional<CompPropertyValues> answer;
  EXPECT_TRUE(Answer<CCompProperty>([&] { answer = CCompProperty::Ask(texts_, {}, nullptr); },
                                    [](CCompProperty& dialog) {
                                      Type(dialog, "nameEdit", "X");
                                      Click(dialog, "okButton");
                                    }));
  EXPECT_EQ(answer, (CompPropertyValues{.name = u"X"}));
  EXPECT_TRUE(Answer<CCompProperty>([&] { answer = CCompProperty::Ask(texts_, {}, nullptr); },
                                    [](CCompProperty& dialog) { Click(dialog, "cancelButton"); }));
  EXPECT_EQ(answer, std::nullopt);
}

}  // namespace
}  // namespace mivo
