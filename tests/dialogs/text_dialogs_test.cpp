#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <optional>
#include <string>

#include "about_dlg.h"
#include "add_alias.h"
#include "dialog_driver.h"
#include "note_edit.h"
#include "prop_lib.h"

namespace mivo {
namespace {

class TextDialogs : public testing::Test {
 protected:
  TextTable texts_;
};

TEST_F(TextDialogs, AddAliasShowsTheNameAndTakesAnyAlias) {
  CAddAlias dialog(texts_, u"74HC00", nullptr);
  Show(dialog);
  EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Add alias"));
  EXPECT_EQ(TextOf(dialog, "nameEdit"), u"74HC00");
  EXPECT_TRUE(Find<QLineEdit>(dialog, "nameEdit").isReadOnly());
  EXPECT_EQ(TextOf(dialog, "aliasEdit"), u"");
  EXPECT_EQ(FocusName(dialog), "aliasEdit");
  Type(dialog, "aliasEdit", "not a {name}");
  QTest::keyClick(&Find<QLineEdit>(dialog, "aliasEdit"), Qt::Key_Return);
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
  EXPECT_EQ(dialog.Alias(), u"not a {name}");
}

TEST_F(TextDialogs, AddAliasShowsALongName) {
  const std::u16string name = std::u16string(5000, u'N') + u"\n\t\x01";
  CAddAlias dialog(texts_, name, nullptr);
  Show(dialog);
  EXPECT_EQ(TextOf(dialog, "nameEdit"), name);
  EXPECT_LT(dialog.width(), 2000);
}

TEST_F(TextDialogs, AddAliasAsks) {
  std::optional<std::u16string> alias;
  EXPECT_TRUE(Answer<CAddAlias>([&] { alias = CAddAlias::Ask(texts_, u"A", nullptr); },
                                [](CAddAlias& dialog) {
                                  Type(dialog, "aliasEdit", "B");
                                  Click(dialog, "okButton");
                                }));
  EXPECT_EQ(alias, u"B");
  EXPECT_TRUE(Answer<CAddAlias>([&] { alias = CAddAlias::Ask(texts_, u"A", nullptr); },
                                [](CAddAlias& dialog) { Click(dialog, "cancelButton"); }));
  EXPECT_EQ(alias, std::nullopt);
}

TEST_F(TextDialogs, AddAliasTabOrder) {
  CAddAlias dialog(texts_, u"A", nullptr);
  Show(dialog);
  EXPECT_EQ(TabOrder(dialog),
            (std::vector<std::string>{"aliasEdit", "okButton", "cancelButton", "nameEdit"}));
}

TEST_F(TextDialogs, LibraryTextOf256CharactersIsRefused) {
  CPropLib dialog(texts_, u"", nullptr);
  Show(dialog);
  EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Property - library"));
  auto& edit = Find<NoteEdit>(dialog, "textEdit");
  edit.setPlainText(QString(256, u't'));
  EXPECT_EQ(MessageOf([&] { Click(dialog, "okButton"); }), u"Enter at most 255 characters.");
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_EQ(FocusName(dialog), "textEdit");
  edit.setPlainText(QString(255, u't'));
  EXPECT_EQ(MessageOf([&] { Click(dialog, "okButton"); }), std::nullopt);
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
  EXPECT_EQ(dialog.Content(), std::u16string(255, u't'));
}

TEST_F(TextDialogs, ALineBreakOfALibraryTextCountsAsTwoCharacters) {
  CPropLib dialog(texts_, u"", nullptr);
  Show(dialog);
  auto& edit = Find<NoteEdit>(dialog, "textEdit");
  edit.setPlainText(QString(253, u't') + QStringLiteral("\na"));
  EXPECT_EQ(MessageOf([&] { Click(dialog, "okButton"); }), u"Enter at most 255 characters.");
  edit.setPlainText(QString(252, u't') + QStringLiteral("\na"));
  EXPECT_EQ(MessageOf([&] { Click(dialog, "okButton"); }), std::nullopt);
  EXPECT_EQ(dialog.Content(), std::u16string(252, u't') + u"\r\na");
}

TEST_F(TextDialogs, LibraryTextIsTypedInLines) {
  CPropLib dialog(texts_, u"old", nullptr);
  Show(dialog);
  auto& edit = Find<NoteEdit>(dialog, "textEdit");
  EXPECT_EQ(FocusName(dialog), "textEdit");
  QTest::keyClicks(&edit, QStringLiteral("a"));  // in place of the old text, which is selected
  QTest::keyClick(&edit, Qt::Key_Return);
  QTest::keyClicks(&edit, QStringLiteral("b"));
  QTest::keyClick(&edit, Qt::Key_Return, Qt::ShiftModifier);
  QTest::keyClicks(&edit, QStringLiteral("c"));
  QTest::keyClick(&edit, Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
  EXPECT_EQ(dialog.Content(), u"a\r\nb\r\nc");
}

TEST_F(TextDialogs, UntouchedLibraryTextComesBackUnchanged) {
  std::u16string odd = u"\uFEFFa\nb\rc\r\nd\t\u2028\u2029\u00A0\uFDD0\x7F\x01\xD800";
  odd.push_back(u'\0');
  odd += std::u16string(300, u't');
  std::optional<std::u16string> answer;
  EXPECT_TRUE(Answer<CPropLib>([&] { answer = CPropLib::Ask(texts_, odd, nullptr); },
                               [](CPropLib& dialog) { Click(dialog, "okButton"); }));
  EXPECT_EQ(answer, odd);
  EXPECT_TRUE(Answer<CPropLib>([&] { answer = CPropLib::Ask(texts_, odd, nullptr); },
                               [](CPropLib& dialog) { Click(dialog, "cancelButton"); }));
  EXPECT_EQ(answer, std::nullopt);
}

TEST_F(TextDialogs, AnEditTakenBackIsNoEdit) {
  CPropLib dialog(texts_, u"a\nb", nullptr);
  Show(dialog);
  auto& edit = Find<NoteEdit>(dialog, "textEdit");
  edit.moveCursor(QTextCursor::End);
  QTest::keyClick(&edit, 'x');
  EXPECT_EQ(dialog.Content(), u"a\r\nbx");
  QTest::keyClick(&edit, Qt::Key_Backspace);
  EXPECT_EQ(dialog.Content(), u"a\nb");
}

TEST_F(TextDialogs, AMegabyteCanBePasted) {
  CPropLib dialog(texts_, u"", nullptr);
  Show(dialog);
  QApplication::clipboard()->setText(QString(1'000'000, u'p'));
  QTest::keyClick(&Find<NoteEdit>(dialog, "textEdit"), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(dialog.Content().size(), 1'000'000u);
  EXPECT_EQ(MessageOf([&] { Click(dialog, "okButton"); }), u"Enter at most 255 characters.");
  QApplication::clipboard()->clear();
}

TEST_F(TextDialogs, LibraryTextTabOrder) {
  CPropLib dialog(texts_, u"", nullptr);
  Show(dialog);
  EXPECT_EQ(TabOrder(dialog), (std::vector<std::string>{"textEdit", "okButton", "cancelButton"}));
}

TEST_F(TextDialogs, AboutShowsIconAndVersion) {
  QPixmap icon(64, 64);
  icon.fill(Qt::red);
  QWidget window;
  window.setWindowIcon(icon);
  CAboutDlg dialog(texts_, &window);
  Show(dialog);
  EXPECT_EQ(dialog.windowTitle(), QStringLiteral("About Mivo"));
  EXPECT_EQ(Find<QLabel>(dialog, "versionLabel").text(), QStringLiteral("Mivo Version 0.84.00"));
  const QImage shown = Find<QLabel>(dialog, "iconLabel").pixmap().toImage();
  ASSERT_FALSE(shown.isNull());
  EXPECT_EQ(shown.pixelColor(shown.rect().center()), QColor(Qt::red));
  EXPECT_EQ(dialog.findChild<QWidget*>(QStringLiteral("cancelButton")), nullptr);
  Click(dialog, "okButton");
  EXPECT_FALSE(dialog.isVisible());
}

}  // namespace
}  // namespace mivo
