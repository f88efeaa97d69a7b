#include "form_dialog.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <algorithm>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "about_dlg.h"
#include "add_alias.h"
#include "comp_property.h"
#include "dialog_driver.h"
#include "dialog_texts.h"
#include "language_library.h"
#include "line_property_dlg.h"
#include "pin_name_show_hide.h"
#include "pin_property.h"
#include "prop_lib.h"
#include "ptn_property.h"
#include "ptn_text_dlg.h"

namespace mivo {
namespace {

std::vector<std::unique_ptr<QDialog>> AllDialogs(const TextTable& texts) {
  std::vector<std::unique_ptr<QDialog>> dialogs;
  dialogs.push_back(std::make_unique<CAboutDlg>(texts, nullptr));
  dialogs.push_back(std::make_unique<CAddAlias>(texts, u"A", nullptr));
  dialogs.push_back(std::make_unique<CCompProperty>(texts, CompPropertyValues(), nullptr));
  dialogs.push_back(std::make_unique<CLinePropertyDlg>(texts, LineValues(), nullptr));
  dialogs.push_back(std::make_unique<CDlgPinNameShowHide>(texts, u"A/B", 1, nullptr));
  dialogs.push_back(std::make_unique<CPinProperty>(texts, PinValues(), SCommonFont(), nullptr));
  dialogs.push_back(std::make_unique<CPropLib>(texts, u"A", nullptr));
  dialogs.push_back(std::make_unique<CPtnProperty>(texts, ShapeValues(), nullptr));
  dialogs.push_back(std::make_unique<CPtnTextDlg>(texts, TextValues(), nullptr));
  return dialogs;
}

TEST(FormDialog, EveryControlThatTakesTheFocusHasASpokenName) {
  const TextTable texts;
  for (const auto& dialog : AllDialogs(texts)) {
    for (const QWidget* const control : dialog->findChildren<QWidget*>()) {
      if (control->focusPolicy() == Qt::NoFocus || control->focusProxy() != nullptr) continue;
      if (control->objectName().startsWith(QLatin1String("qt_"))) continue;
      EXPECT_FALSE(control->objectName().isEmpty()) << dialog->windowTitle().toStdString();
      EXPECT_FALSE(control->accessibleName().isEmpty()) << control->objectName().toStdString();
      EXPECT_FALSE(control->accessibleName().contains(u'&')) << control->objectName().toStdString();
    }
  }
}

TEST(FormDialog, EveryMnemonicLabelLeadsToAControl) {
  const TextTable texts;
  for (const auto& dialog : AllDialogs(texts)) {
    for (const QLabel* const label : dialog->findChildren<QLabel*>()) {
      EXPECT_TRUE(label->buddy() != nullptr || !label->text().contains(u'&'));
    }
  }
}

void ExpectEverythingFits(const TextTable& texts) {
  for (const auto& dialog : AllDialogs(texts)) {
    Show(*dialog);
    for (const QWidget* const control : dialog->findChildren<QWidget*>()) {
      if (!control->isVisibleTo(dialog.get())) continue;
      if (qobject_cast<const QAbstractSpinBox*>(control->parent()) != nullptr) continue;
      if (control->objectName().isEmpty() && qobject_cast<const QLabel*>(control) == nullptr) {
        continue;
      }
      const QSize least = control->minimumSizeHint();
      EXPECT_TRUE(control->width() >= least.width() && control->height() >= least.height())
          << dialog->windowTitle().toStdString() << ": " << control->objectName().toStdString();
    }
  }
}

TEST(FormDialog, EverythingFitsInAnyFontAndLanguage) {
  TextTable german;
  ASSERT_TRUE(german.Translate(LoadLanguageLibrary(MIVO_GERMAN)));
  const QFont before = QApplication::font();
  for (const int size : {6, 10, 24, 40}) {
    SCOPED_TRACE(size);
    QFont font = before;
    font.setPointSize(size);
    QApplication::setFont(font);
    ExpectEverythingFits(TextTable());
    ExpectEverythingFits(german);
  }
  QApplication::setFont(before);
}

TEST(FormDialog, TheTextsAreTheTables) {
  TextTable texts;
  ASSERT_TRUE(texts.Translate([](TextId id) {
    if (id == TextId{TextKind::String, static_cast<std::int32_t>(StringId::Version)}) {
      return std::u16string(BuiltInText(id));
    }
    return u"&T" + std::u16string(BuiltInText(id));
  }));
  for (const auto& dialog : AllDialogs(texts)) {
    EXPECT_TRUE(dialog->windowTitle().startsWith(QLatin1String("&T")));
    for (const QAbstractButton* const button : dialog->findChildren<QAbstractButton*>()) {
      if (button->text().isEmpty()) continue;
      EXPECT_TRUE(button->text().startsWith(QLatin1String("&T"))) << button->text().toStdString();
    }
    for (const QLabel* const label : dialog->findChildren<QLabel*>()) {
      if (label->text().isEmpty()) continue;
      EXPECT_TRUE(label->text().startsWith(QLatin1String("&T"))) << label->text().toStdString();
    }
  }
}

/// What a dialog says, and of which control, in alphabetical order: labels with the control that
/// they belong to, buttons with themselves, group boxes with nothing.
std::vector<std::string> Wording(const QDialog& dialog) {
  std::vector<std::string> wording;
  const auto add = [&](const QString& text, const QWidget* control) {
    if (text.isEmpty()) return;
    wording.push_back(text.toStdString() + " > " +
                      (control != nullptr ? control->objectName().toStdString() : ""));
  };
  for (const QLabel* const label : dialog.findChildren<QLabel*>()) {
    add(label->text(), label->buddy());
  }
  for (const QAbstractButton* const button : dialog.findChildren<QAbstractButton*>()) {
    add(button->text(), button);
  }
  for (const QGroupBox* const group : dialog.findChildren<QGroupBox*>()) {
    add(group->title(), nullptr);
  }
  std::sort(wording.begin(), wording.end());
  return wording;
}

TEST(FormDialog, EveryWordStandsAtItsControl) {
  const std::map<std::string, std::vector<std::string>> expected = {
      {"About Mivo", {"Mivo Version 0.84.00 > ", "OK > okButton"}},
      {"Add alias",
       {"&Alias > aliasEdit", "Alias for > nameEdit", "Cancel > cancelButton", "OK > okButton"}},
      {"Property - component",
       {"&Blocks > blocksEdit", "&Fixed block Num > fixedBlockCheck", "&Name > nameEdit",
        "&Shared block > sharedBlockCheck", "&X > widthEdit", "&Y > heightEdit", "Block > ",
        "Cancel > cancelButton", "Manufacturer > manufacturerEdit",
        "MfrPartNumber > partNumberEdit", "No &Bit-pattern > noBitPatternCheck", "No&te > noteEdit",
        "Numbe&r > prefixEdit", "OK > okButton", "Package > packageEdit", "Pattern > ", "Size > ",
        "Use &Pattern > usePatternCheck"}},
      {"Property - Line",
       {"&Curve line > curveCheck", "&Dot > dotCheck", "&Width > widthList",
        "Cancel > cancelButton", "OK > okButton"}},
      {"Show/Hide name individually",
       {"Cancel > cancelButton", "Hide All > hideAllButton", "OK > okButton",
        "Show All > showAllButton"}},
      {"Pin - property",
       {"&Block > blockSpin", "&Hide number > hideNumberCheck", "&Name > nameEdit",
        "Cancel > cancelButton", "Nu&mber > ", "OK > okButton", "Show/Hide > showHideButton",
        "Style > "}},
      {"Property - library", {"Cancel > cancelButton", "OK > okButton"}},
      {"Property - pattern",
       {"&Dot > dotCheck", "&Fill > fillCheck", "&Width > widthList", "Cancel > cancelButton",
        "OK > okButton"}},
      {"Property -text",
       {"&Font... > fontButton", "&Text > textEdit", "Cancel > cancelButton",
        "Center > horizontalCenterRadio", "Center > verticalCenterRadio", "Horizontal anchor > ",
        "Left > leftRadio", "Lower > lowerRadio", "OK > okButton", "Right > rightRadio",
        "Upper > upperRadio", "Use common font > commonFontCheck", "Vertical anchor > "}},
  };
  const TextTable texts;
  std::map<std::string, std::vector<std::string>> said;
  for (const auto& dialog : AllDialogs(texts)) {
    said[dialog->windowTitle().toStdString()] = Wording(*dialog);
  }
  EXPECT_EQ(said, expected);
}

TEST(FormDialog, EveryTitleIsSeenWhole) {
  const TextTable texts;
  for (const auto& dialog : AllDialogs(texts)) {
    Show(*dialog);
    EXPECT_GT(dialog->width(), dialog->fontMetrics().horizontalAdvance(dialog->windowTitle()) +
                                   5 * dialog->fontMetrics().height())
        << dialog->windowTitle().toStdString();
  }
}

TEST(FormDialog, EscapeCancelsEveryDialog) {
  const TextTable texts;
  for (const auto& dialog : AllDialogs(texts)) {
    Show(*dialog);
    QTest::keyClick(dialog->focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible()) << dialog->windowTitle().toStdString();
    EXPECT_EQ(dialog->result(), QDialog::Rejected) << dialog->windowTitle().toStdString();
  }
}

TEST(FormDialog, EnterAcceptsEveryDialogFromWhereItStarts) {
  const TextTable texts;
  for (const auto& dialog : AllDialogs(texts)) {
    Show(*dialog);
    // In a field of several lines Enter begins a line.
    const bool hasLines = qobject_cast<QPlainTextEdit*>(dialog->focusWidget()) != nullptr;
    QTest::keyClick(dialog->focusWidget(), Qt::Key_Return,
                    hasLines ? Qt::ControlModifier : Qt::NoModifier);
    EXPECT_FALSE(dialog->isVisible()) << dialog->windowTitle().toStdString();
    EXPECT_EQ(dialog->result(), QDialog::Accepted) << dialog->windowTitle().toStdString();
  }
}

TEST(FormDialog, MnemonicsAreSharedByTwoControlsOnly) {
  const TextTable texts;
  const auto mnemonicOf = [](const QString& text) {
    const qsizetype mark = text.indexOf(u'&');
    return mark < 0 ? QString() : text.mid(mark + 1, 1).toUpper();
  };
  for (const auto& dialog : AllDialogs(texts)) {
    std::map<QString, QStringList> users;
    for (const QLabel* const label : dialog->findChildren<QLabel*>()) {
      users[mnemonicOf(label->text())] += label->text();
    }
    for (const QAbstractButton* const button : dialog->findChildren<QAbstractButton*>()) {
      users[mnemonicOf(button->text())] += button->text();
    }
    for (const QGroupBox* const group : dialog->findChildren<QGroupBox*>()) {
      users[mnemonicOf(group->title())] += group->title();
    }
    users.erase(QString());
    for (const auto& [letter, shown] : users) {
      if (shown == QStringList{QStringLiteral("&Blocks"), QStringLiteral("No &Bit-pattern")}) {
        continue;  // the same on every desktop; each press goes to the other one
      }
      EXPECT_EQ(shown.size(), 1) << shown.join(u' ').toStdString();
    }
  }
}

TEST(FormDialog, ASharedMnemonicVisitsBothAndChecksNothing) {
  const TextTable texts;
  CCompProperty dialog(texts, {.usePattern = true}, nullptr);
  Show(dialog);
  std::set<std::string> visited;
  for (int i = 0; i < 2; ++i) {
    QTest::keyClick(&dialog, Qt::Key_B, Qt::AltModifier);
    visited.insert(FocusName(dialog));
  }
  EXPECT_EQ(visited, (std::set<std::string>{"blocksEdit", "noBitPatternCheck"}));
  EXPECT_FALSE(Find<QAbstractButton>(dialog, "noBitPatternCheck").isChecked());
}

TEST(FormDialog, MnemonicsOfThePinDialogLeadToTheirControls) {
  const TextTable texts;
  CPinProperty dialog(texts, {.name = u"A", .numbers = {u"1", u"2"}}, SCommonFont(), nullptr);
  Show(dialog);
  const auto focusAfter = [&](Qt::Key key) {
    QTest::keyClick(&dialog, key, Qt::AltModifier);
    return FocusName(dialog);
  };
  EXPECT_EQ(focusAfter(Qt::Key_M), "numberEdit");
  EXPECT_EQ(focusAfter(Qt::Key_B), "blockSpin");
  EXPECT_EQ(focusAfter(Qt::Key_N), "nameEdit");
  QTest::keyClick(&dialog, Qt::Key_H, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor(
      [&] { return Find<QAbstractButton>(dialog, "hideNumberCheck").isChecked(); }));
}

TEST(FormDialog, ARefusalClosesByEscapeAlone) {
  const TextTable texts;
  CCompProperty dialog(texts, {.name = u""}, nullptr);
  Show(dialog);
  EXPECT_TRUE(Answer<QMessageBox>([&] { Click(dialog, "okButton"); },
                                  [](QMessageBox& box) {
                                    EXPECT_EQ(box.icon(), QMessageBox::Warning);
                                    QTest::keyClick(&box, Qt::Key_Escape);
                                  }));
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_EQ(FocusName(dialog), "nameEdit");
}

TEST(FormDialog, MnemonicsLeadToTheirFields) {
  const TextTable texts;
  CCompProperty dialog(texts, {}, nullptr);
  Show(dialog);
  struct Case {
    Qt::Key key;
    const char* control;
  };
  for (const Case& test :
       {Case{Qt::Key_X, "widthEdit"}, Case{Qt::Key_Y, "heightEdit"}, Case{Qt::Key_R, "prefixEdit"},
        Case{Qt::Key_T, "noteEdit"}, Case{Qt::Key_N, "nameEdit"}}) {
    QTest::keyClick(&dialog, test.key, Qt::AltModifier);
    EXPECT_EQ(FocusName(dialog), test.control);
  }
}

}  // namespace
}  // namespace mivo
