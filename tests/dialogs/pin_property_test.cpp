#include "pin_property.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <string>

#include "block_spin_box.h"
#include "dialog_driver.h"
#include "pin_name_show_hide.h"

namespace mivo {
namespace {

constexpr const char* kStyleRadios[] = {"plainRadio",         "clockRadio",  "negationRadio",
                                        "negationClockRadio", "shapeSRadio", "shapeZRadio"};

PinValues ThreeBlocks() {
  return {.name = u"A/B", .numbers = {u"1", u"4", u"9"}};
}

class PinProperty : public testing::Test {
 protected:
  CPinProperty& Open(const PinValues& values) {
    dialog_.emplace(texts_, values, font_, nullptr);
    Show(*dialog_);
    return *dialog_;
  }

  const PinValues& Ok() {
    Click(*dialog_, "okButton");
    EXPECT_EQ(dialog_->result(), QDialog::Accepted);
    return dialog_->Values();
  }

  /// Opens the nested dialog and deals with it.
  void ShowHide(const std::function<void(CDlgPinNameShowHide&)>& answer) {
    EXPECT_TRUE(Answer<CDlgPinNameShowHide>([&] { Click(*dialog_, "showHideButton"); }, answer));
  }
  void HideAllParts() {
    ShowHide([](CDlgPinNameShowHide& parts) {
      Click(parts, "hideAllButton");
      Click(parts, "okButton");
    });
  }
  bool IsShowHideEnabled() { return Find<QPushButton>(*dialog_, "showHideButton").isEnabled(); }

  TextTable texts_;
  SCommonFont font_;
  std::optional<CPinProperty> dialog_;
};

TEST_F(PinProperty, ShowsThePin) {
  CPinProperty& dialog =
      Open({.name = u"\\R\\S\\T", .numbers = {u"7", u"8"}, .hideNumber = true, .shape = 12});
  EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Pin - property"));
  EXPECT_EQ(TextOf(dialog, "nameEdit"), u"\\R\\S\\T");
  EXPECT_EQ(TextOf(dialog, "numberEdit"), u"7");
  EXPECT_EQ(TextOf(dialog, "blockEdit"), u"1");
  EXPECT_TRUE(Find<QCheckBox>(dialog, "hideNumberCheck").isChecked());
  EXPECT_TRUE(Find<QRadioButton>(dialog, "negationClockRadio").isChecked());
  EXPECT_EQ(
      Ok(),
      (PinValues{.name = u"\\R\\S\\T", .numbers = {u"7", u"8"}, .hideNumber = true, .shape = 12}));
}

TEST_F(PinProperty, TheBlockTextChoosesTheNumber) {
  CPinProperty& dialog = Open(ThreeBlocks());
  struct Case {
    const char* typed;
    std::u16string number;
  };
  for (const Case& test : {Case{"7", u"9"}, Case{"0", u"1"}, Case{"2", u"4"}, Case{"text", u"1"},
                           Case{"3", u"9"}, Case{"", u"1"}}) {
    Type(dialog, "blockEdit", test.typed);
    EXPECT_EQ(TextOf(dialog, "numberEdit"), test.number) << test.typed;
    EXPECT_EQ(TextOf(dialog, "blockEdit"),
              std::u16string(test.typed, test.typed + std::string(test.typed).size()));
  }
  EXPECT_EQ(Ok(), ThreeBlocks());
}

TEST_F(PinProperty, KeepsTheNumbersOfAllBlocks) {
  CPinProperty& dialog = Open(ThreeBlocks());
  Type(dialog, "blockEdit", "2");
  Type(dialog, "numberEdit", "B4");
  Type(dialog, "blockEdit", "1");
  EXPECT_EQ(TextOf(dialog, "numberEdit"), u"1");
  Type(dialog, "numberEdit", "A1");
  EXPECT_EQ(Ok().numbers, (std::vector<std::u16string>{u"A1", u"B4", u"9"}));
}

TEST_F(PinProperty, TheUpDownControlStaysInTheBlocks) {
  CPinProperty& dialog = Open(ThreeBlocks());
  auto& edit = Find<QLineEdit>(dialog, "blockEdit");
  edit.setFocus();
  const auto press = [&](Qt::Key key, const std::u16string& block, const std::u16string& number) {
    QTest::keyClick(&edit, key);
    EXPECT_EQ(TextOf(dialog, "blockEdit"), block);
    EXPECT_EQ(TextOf(dialog, "numberEdit"), number);
  };
  press(Qt::Key_Down, u"1", u"1");
  press(Qt::Key_Up, u"2", u"4");
  press(Qt::Key_Up, u"3", u"9");
  press(Qt::Key_Up, u"3", u"9");
  Type(edit, "70");
  press(Qt::Key_Down, u"2", u"4");
  Type(edit, "x");
  press(Qt::Key_Up, u"2", u"4");
}

TEST_F(PinProperty, PagesOfBlocksEndAtTheLimits) {
  PinValues values;
  values.numbers.assign(15, u"n");
  CPinProperty& dialog = Open(values);
  auto& edit = Find<QLineEdit>(dialog, "blockEdit");
  edit.setFocus();
  const auto blockAfter = [&](Qt::Key key) {
    QTest::keyClick(&edit, key);
    EXPECT_EQ(edit.selectedText(), edit.text());
    return edit.text().toInt();
  };
  EXPECT_EQ(blockAfter(Qt::Key_PageUp), 11);
  EXPECT_EQ(blockAfter(Qt::Key_PageUp), 15);
  EXPECT_EQ(blockAfter(Qt::Key_PageDown), 5);
  EXPECT_EQ(blockAfter(Qt::Key_PageDown), 1);
}

TEST_F(PinProperty, ArrowsThatLeadNowhereAreGrey) {
  const auto arrows = [&](const char* block) {
    Type(*dialog_, "blockEdit", block);
    const auto& spin = Find<BlockSpinBox>(*dialog_, "blockSpin");
    const int right = spin.Edit().geometry().right() + 1;
    return dialog_
        ->grab(QRect(spin.mapTo(dialog_.operator->(), QPoint(right, 0)),
                     QSize(spin.width() - right, spin.height())))
        .toImage();
  };
  Open(ThreeBlocks());
  const QImage atFirst = arrows("1");
  const QImage between = arrows("2");
  const QImage atLast = arrows("3");
  EXPECT_NE(atFirst, between);
  EXPECT_NE(atLast, between);
  EXPECT_NE(atFirst, atLast);
  Open({.numbers = {u"5"}});
  const QImage withOneBlock = arrows("1");
  EXPECT_NE(withOneBlock, atFirst);
  EXPECT_NE(withOneBlock, atLast);
}

TEST_F(PinProperty, AnotherTextForTheSameBlockLeavesItsNumberAlone) {
  CPinProperty& dialog = Open(ThreeBlocks());
  Type(dialog, "numberEdit", "55");
  Type(dialog, "blockEdit", "01");
  EXPECT_TRUE(Find<QLineEdit>(dialog, "numberEdit").isUndoAvailable());
}

TEST_F(PinProperty, AOneBlockPinHasNothingToStep) {
  CPinProperty& dialog = Open({.numbers = {u"5"}});
  auto& edit = Find<QLineEdit>(dialog, "blockEdit");
  EXPECT_TRUE(edit.isEnabled());
  Type(edit, "9");
  QTest::keyClick(&edit, Qt::Key_Down);
  QTest::keyClick(&edit, Qt::Key_Up);
  EXPECT_EQ(TextOf(dialog, "blockEdit"), u"9");
  EXPECT_EQ(TextOf(dialog, "numberEdit"), u"5");
}

TEST_F(PinProperty, WithoutBlocksNothingIsNumbered) {
  CPinProperty& dialog = Open({.name = u"A"});
  Type(dialog, "numberEdit", "5");
  Type(dialog, "blockEdit", "2");
  EXPECT_TRUE(Ok().numbers.empty());
}

TEST_F(PinProperty, EveryStyleHasItsButton) {
  for (std::size_t i = 0; i < std::size(kStyleRadios); ++i) {
    Open({.shape = PinForm::kStyles[i]});
    for (std::size_t j = 0; j < std::size(kStyleRadios); ++j) {
      EXPECT_EQ(Find<QRadioButton>(*dialog_, kStyleRadios[j]).isChecked(), i == j);
    }
    EXPECT_EQ(Ok().shape, PinForm::kStyles[i]);

    Open({.shape = 3});
    Click(*dialog_, kStyleRadios[i]);
    EXPECT_EQ(Ok().shape, PinForm::kStyles[i]);
  }
}

TEST_F(PinProperty, AStyleWithoutButtonBecomes2) {
  Open({.shape = 5});
  for (const char* const radio : kStyleRadios) {
    EXPECT_FALSE(Find<QRadioButton>(*dialog_, radio).isChecked()) << radio;
  }
  EXPECT_EQ(Ok().shape, 2);
}

TEST_F(PinProperty, EveryStyleHasAPictureOfItsOwn) {
  Open({});
  std::vector<QImage> pictures;
  for (const char* const name : kStyleRadios) {
    const auto& radio = Find<QRadioButton>(*dialog_, name);
    pictures.push_back(radio.icon().pixmap(radio.iconSize()).toImage());
    ASSERT_FALSE(pictures.back().isNull());
    EXPECT_FALSE(radio.accessibleName().isEmpty());
  }
  for (std::size_t i = 0; i < pictures.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) EXPECT_NE(pictures[i], pictures[j]) << i << ' ' << j;
  }
}

TEST_F(PinProperty, EmptyNamesAndNumbersAreAccepted) {
  CPinProperty& dialog = Open({.name = u"A", .numbers = {u"1"}});
  Type(dialog, "nameEdit", "");
  Type(dialog, "numberEdit", "");
  EXPECT_EQ(Ok(), (PinValues{.name = u"", .numbers = {u""}}));
}

TEST_F(PinProperty, PartsOfAnEmptyNameCannotBeChosen) {
  CPinProperty& dialog = Open({});
  EXPECT_FALSE(IsShowHideEnabled());
  Type(dialog, "nameEdit", "A");
  EXPECT_TRUE(IsShowHideEnabled());
  Type(dialog, "nameEdit", "");
  EXPECT_FALSE(IsShowHideEnabled());
}

TEST_F(PinProperty, KeepsTheHiddenPartsOfAnUnchangedName) {
  Open({.name = u"A/B", .nameMask = 0xFFFFFFFD, .hideNumber = false});
  Click(*dialog_, "hideNumberCheck");
  EXPECT_EQ(Ok(), (PinValues{.name = u"A/B", .nameMask = 0xFFFFFFFD, .hideNumber = true}));
}

TEST_F(PinProperty, ShowHideChoosesParts) {
  Open(ThreeBlocks());
  HideAllParts();
  EXPECT_EQ(Ok().nameMask, 0xFFFFFFFC);
}

TEST_F(PinProperty, ShowHideCancelledKeepsTheParts) {
  Open({.name = u"A/B", .nameMask = 0xFFFFFFFE});
  ShowHide([](CDlgPinNameShowHide& parts) {
    EXPECT_EQ(parts.Mask(), 0xFFFFFFFE);
    Click(parts, "hideAllButton");
    Click(parts, "cancelButton");
  });
  EXPECT_EQ(Ok().nameMask, 0xFFFFFFFE);
}

TEST_F(PinProperty, AChangedNameIsShownWhole) {
  CPinProperty& dialog = Open(ThreeBlocks());
  HideAllParts();
  Type(dialog, "nameEdit", "A/B/C");
  EXPECT_EQ(Ok(), (PinValues{.name = u"A/B/C", .numbers = {u"1", u"4", u"9"}}));
}

TEST_F(PinProperty, ShowHideOfAChangedNameStartsWhole) {
  CPinProperty& dialog = Open({.name = u"A/B", .nameMask = 0});
  Type(dialog, "nameEdit", "A/B/C");
  ShowHide([](CDlgPinNameShowHide& parts) {
    EXPECT_EQ(parts.Mask(), 0xFFFFFFFF);
    Click(parts, "hideAllButton");
    Click(parts, "okButton");
  });
  EXPECT_EQ(Ok().nameMask, 0xFFFFFFF8);
}

TEST_F(PinProperty, TypingStopsAtTheLimits) {
  CPinProperty& dialog = Open({.numbers = {u""}});
  Type(dialog, "nameEdit", std::string(252, 'n'));
  Type(dialog, "numberEdit", std::string(66, '1'));
  const PinValues& values = Ok();
  EXPECT_EQ(values.name.size(), 250u);
  EXPECT_EQ(values.numbers[0].size(), 64u);
}

TEST_F(PinProperty, UntouchedTextsComeBackUnchanged) {
  std::u16string odd = u"\uFEFF\n\t\x01\x7F\u2028\xD800\u00A0";
  odd.push_back(u'\0');
  const PinValues values{.name = std::u16string(5000, u'n') + odd,
                         .nameMask = 5,
                         .numbers = {odd, std::u16string(70000, u'1'), std::u16string(65, u'2')}};
  CPinProperty& dialog = Open(values);
  for (const char* const block : {"2", "3", "1"}) Type(dialog, "blockEdit", block);
  EXPECT_EQ(Ok(), values);
}

TEST_F(PinProperty, ALongTextDoesNotGrow) {
  CPinProperty& dialog = Open({.name = std::u16string(300, u'n'), .numbers = {u"1"}});
  auto& name = Find<QLineEdit>(dialog, "nameEdit");
  name.setCursorPosition(300);
  QTest::keyClicks(&name, QStringLiteral("xy"));
  EXPECT_EQ(Ok().name, std::u16string(300, u'n'));
}

TEST_F(PinProperty, EnterInTheBlockFieldAccepts) {
  CPinProperty& dialog = Open(ThreeBlocks());
  Type(dialog, "blockEdit", "2");
  QTest::keyClick(&Find<QLineEdit>(dialog, "blockEdit"), Qt::Key_Return);
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
}

TEST_F(PinProperty, TabVisitsTheControlsInReadingOrder) {
  CPinProperty& dialog = Open(ThreeBlocks());
  EXPECT_EQ(FocusName(dialog), "nameEdit");
  EXPECT_EQ(Find<QLineEdit>(dialog, "nameEdit").selectedText(), QStringLiteral("A/B"));
  EXPECT_EQ(TabOrder(dialog), (std::vector<std::string>{"nameEdit", "showHideButton", "numberEdit",
                                                        "blockSpin", "hideNumberCheck",
                                                        "plainRadio", "okButton", "cancelButton"}));
}

}  // namespace
}  // namespace mivo
