#include "ptn_text_dlg.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QFontDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <limits>
#include <string>

#include "dialog_driver.h"

namespace mivo {
namespace {

const TextValues kOwnFont{
    .text = u"T", .face = u"DejaVu Serif", .height = 20, .weight = 700, .italic = true};

class PtnTextDlg : public testing::Test {
 protected:
  CPtnTextDlg& Open(const TextValues& values) {
    dialog_.emplace(texts_, values, nullptr);
    Show(*dialog_);
    return *dialog_;
  }

  const TextValues& Ok() {
    Click(*dialog_, "okButton");
    EXPECT_EQ(dialog_->result(), QDialog::Accepted);
    return dialog_->Values();
  }

  bool IsChecked(const char* name) { return Find<QAbstractButton>(*dialog_, name).isChecked(); }
  bool IsFontEnabled() { return Find<QPushButton>(*dialog_, "fontButton").isEnabled(); }

  void ChooseFont(const std::function<void(QFontDialog&)>& answer) {
    EXPECT_TRUE(Answer<QFontDialog>([&] { Click(*dialog_, "fontButton"); }, answer));
  }

  TextTable texts_;
  std::optional<CPtnTextDlg> dialog_;
};

TEST_F(PtnTextDlg, ShowsANewText) {
  CPtnTextDlg& dialog = Open({});
  EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Property -text"));
  EXPECT_EQ(TextOf(dialog, "textEdit"), u"");
  EXPECT_TRUE(IsChecked("leftRadio"));
  EXPECT_TRUE(IsChecked("lowerRadio"));
  EXPECT_TRUE(IsChecked("commonFontCheck"));
  EXPECT_FALSE(IsFontEnabled());
  EXPECT_EQ(FocusName(dialog), "textEdit");
  EXPECT_EQ(Ok(), TextValues());
}

TEST_F(PtnTextDlg, EveryAlignmentHasItsButtons) {
  struct Case {
    std::int32_t align;
    const char* horizontal;
    const char* vertical;
    std::int32_t after;
  };
  const Case cases[] = {
      {0, "leftRadio", "lowerRadio", 0},
      {1, "rightRadio", "lowerRadio", 1},
      {2, "horizontalCenterRadio", "lowerRadio", 2},
      {3, "horizontalCenterRadio", "lowerRadio", 2},
      {4, "leftRadio", "upperRadio", 4},
      {8, "leftRadio", "verticalCenterRadio", 8},
      {12, "leftRadio", "verticalCenterRadio", 8},
      {15, "horizontalCenterRadio", "verticalCenterRadio", 10},
      {16, "leftRadio", "lowerRadio", 0},
  };
  for (const Case& test : cases) {
    Open({.align = test.align});
    EXPECT_TRUE(IsChecked(test.horizontal)) << test.align;
    EXPECT_TRUE(IsChecked(test.vertical)) << test.align;
    EXPECT_EQ(Ok().align, test.after) << test.align;
  }
}

TEST_F(PtnTextDlg, EveryButtonChoosesItsAlignment) {
  struct Case {
    const char* button;
    std::int32_t before;
    std::int32_t after;
  };
  const Case cases[] = {
      {"leftRadio", 5, 4},  {"rightRadio", 4, 5}, {"horizontalCenterRadio", 4, 6},
      {"lowerRadio", 5, 1}, {"upperRadio", 1, 5}, {"verticalCenterRadio", 1, 9},
  };
  for (const Case& test : cases) {
    Open({.align = test.before});
    Click(*dialog_, test.button);
    EXPECT_EQ(Ok().align, test.after) << test.button;
  }
}

TEST_F(PtnTextDlg, KeepsAFontOfItsOwn) {
  Open(kOwnFont);
  EXPECT_FALSE(IsChecked("commonFontCheck"));
  EXPECT_TRUE(IsFontEnabled());
  EXPECT_EQ(Ok(), kOwnFont);
}

TEST_F(PtnTextDlg, TheCommonFontTakesTheOwnOneAway) {
  Open(kOwnFont);
  Click(*dialog_, "commonFontCheck");
  EXPECT_FALSE(IsFontEnabled());
  EXPECT_EQ(Ok(), (TextValues{.text = u"T"}));
}

TEST_F(PtnTextDlg, UncheckingTheCommonFontAloneKeepsIt) {
  Open({.text = u"T"});
  Click(*dialog_, "commonFontCheck");
  EXPECT_TRUE(IsFontEnabled());
  const TextValues& values = Ok();
  EXPECT_EQ(values.height, 10);
  EXPECT_EQ(values.face, u"");
}

TEST_F(PtnTextDlg, ATextWithoutFaceOpensWithTheFreshFont) {
  Open({.text = u"T", .height = 33, .weight = 700});
  EXPECT_EQ(Ok(), (TextValues{.text = u"T"}));
}

TEST_F(PtnTextDlg, TheFontDialogStartsWithTheFontAndReplacesIt) {
  Open(kOwnFont);
  ChooseFont([](QFontDialog& dialog) {
    EXPECT_TRUE(dialog.testOption(QFontDialog::ScalableFonts));
    EXPECT_EQ(dialog.currentFont().pointSize(), 20);
    EXPECT_TRUE(dialog.currentFont().italic());
    EXPECT_TRUE(dialog.currentFont().bold());
    dialog.setCurrentFont(QFont(QStringLiteral("DejaVu Sans"), 14, QFont::Bold, false));
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  EXPECT_EQ(Ok(), (TextValues{.text = u"T", .face = u"DejaVu Sans", .height = 14, .weight = 700}));
}

TEST_F(PtnTextDlg, TheFontDialogAcceptedAsItOpensChangesNothing) {
  for (const char16_t* const face : {u"DejaVu Sans", u"DejaVu Serif"}) {
    for (const std::int32_t weight : {400, 700}) {
      for (const bool isItalic : {false, true}) {
        const TextValues values{.face = face, .height = 13, .weight = weight, .italic = isItalic};
        Open(values);
        ChooseFont([](QFontDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
        EXPECT_EQ(Ok(), values) << testing::PrintToString(values.face) << weight << isItalic;
      }
    }
  }
}

TEST_F(PtnTextDlg, TheFontDialogCancelledChangesNothing) {
  Open(kOwnFont);
  ChooseFont([](QFontDialog& dialog) {
    dialog.setCurrentFont(QFont(QStringLiteral("DejaVu Sans"), 14));
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  EXPECT_EQ(Ok(), kOwnFont);
}

TEST_F(PtnTextDlg, TheFontDialogTakesAnyHeight) {
  for (const std::int32_t height : {0, -20, std::numeric_limits<std::int32_t>::min(),
                                    std::numeric_limits<std::int32_t>::max()}) {
    Open({.face = u"DejaVu Sans", .height = height, .weight = height});
    ChooseFont([](QFontDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_EQ(Ok().height, height);
  }
}

TEST_F(PtnTextDlg, ALineOf250CharactersCanBeTyped) {
  CPtnTextDlg& dialog = Open({});
  Type(dialog, "textEdit", std::string(252, 't'));
  EXPECT_EQ(Ok().text.size(), 250u);
}

TEST_F(PtnTextDlg, AnUntouchedTextComesBackUnchanged) {
  std::u16string odd = u"\uFEFF\r\n\t\x01\x7F\u2028\xDC00\u00A0";
  odd.push_back(u'\0');
  odd += std::u16string(100000, u't');
  Open({.text = odd});
  EXPECT_EQ(Ok().text, odd);
}

TEST_F(PtnTextDlg, CancelIsNoAnswer) {
  std::optional<TextValues> answer;
  EXPECT_TRUE(Answer<CPtnTextDlg>([&] { answer = CPtnTextDlg::Ask(texts_, kOwnFont, nullptr); },
                                  [](CPtnTextDlg& dialog) { Click(dialog, "okButton"); }));
  EXPECT_EQ(answer, kOwnFont);
  EXPECT_TRUE(Answer<CPtnTextDlg>([&] { answer = CPtnTextDlg::Ask(texts_, kOwnFont, nullptr); },
                                  [](CPtnTextDlg& dialog) { Click(dialog, "cancelButton"); }));
  EXPECT_EQ(answer, std::nullopt);
}

TEST_F(PtnTextDlg, StartsInTheText) {
  CPtnTextDlg& dialog = Open(kOwnFont);
  EXPECT_EQ(FocusName(dialog), "textEdit");
  EXPECT_EQ(Find<QLineEdit>(dialog, "textEdit").selectedText(), QStringLiteral("T"));
}

TEST_F(PtnTextDlg, TabVisitsTheControlsInReadingOrder) {
  EXPECT_EQ(TabOrder(Open(kOwnFont)),
            (std::vector<std::string>{"textEdit", "leftRadio", "lowerRadio", "commonFontCheck",
                                      "fontButton", "okButton", "cancelButton"}));
}

}  // namespace
}  // namespace mivo
