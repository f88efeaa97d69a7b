// The window in another language, and the window's own.

#include <QAbstractButton>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QStyleOptionMenuItem>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <algorithm>
#include <functional>
#include <map>
#include <set>

#include "command_actions.h"
#include "frame_rig.h"
#include "language_library.h"

namespace mivo {
namespace {

/// The program's texts in German.
const TextTable& German() {
  static const TextTable texts = [] {
    TextTable german;
    EXPECT_TRUE(german.Translate(LoadLanguageLibrary(MIVO_GERMAN)));
    return german;
  }();
  return texts;
}

const TextTable& English() {
  static const TextTable texts;
  return texts;
}

/// A menu that tells what it shows of an item.
class OpenMenu : public QMenu {
 public:
  [[nodiscard]] QString ShownText(const QAction* action) const {
    QStyleOptionMenuItem option;
    initStyleOption(&option, action);
    return option.text;
  }
};

std::set<QString> KeysOf(const QAction& action) {
  std::set<QString> keys;
  for (const QKeySequence& key : action.shortcuts()) keys.insert(key.toString());
  return keys;
}

/// The letters by which the items of a menu are chosen, in lower case.
QString Mnemonics(const QList<QAction*>& items) {
  QString letters;
  for (const QAction* const item : items) {
    const qsizetype mark = item->text().indexOf(QLatin1Char('&'));
    if (mark >= 0) letters += item->text().at(mark + 1).toLower();
  }
  return letters;
}

/// The letters that occur more than once.
QString Repeated(QString letters) {
  std::sort(letters.begin(), letters.end());
  QString repeated;
  for (qsizetype i = 1; i < letters.size(); ++i) {
    if (letters[i] == letters[i - 1]) repeated += letters[i];
  }
  return repeated;
}

/// The letters that choose more than one item, per menu that has any.
std::map<std::string, std::string> RepeatedMnemonics(const TextTable& texts) {
  const CommandActions actions(texts);
  std::map<std::string, std::string> repeated;
  const auto look = [&](const char* menu, const QList<QAction*>& items) {
    const QString letters = Repeated(Mnemonics(items));
    if (!letters.isEmpty()) repeated[menu] = letters.toStdString();
  };
  QMenuBar bar;
  actions.FillMenuBar(bar);
  look("bar", bar.actions());
  const std::vector<const char*> names = {"File", "Edit", "Component", "View", "Tool", "Help"};
  EXPECT_EQ(bar.actions().size(), static_cast<qsizetype>(names.size()));
  for (std::size_t i = 0; i < names.size(); ++i) {
    look(names[i], bar.actions().at(static_cast<qsizetype>(i))->menu()->actions());
  }
  QMenu nameMenu;
  actions.FillNameMenu(nameMenu);
  look("names", nameMenu.actions());
  QMenu viewMenu;
  actions.FillViewMenu(viewMenu);
  look("floating", viewMenu.actions());
  return repeated;
}

TEST(LanguageMnemonics, AreUniqueInEveryGermanMenu) {
  EXPECT_THAT(RepeatedMnemonics(German()), testing::IsEmpty());
}

// The English texts are fixed to the letter, and some share one: Rotate with Property, Cut with
// Tool.
TEST(LanguageMnemonics, AreUniqueInEnglishButForTwoPairs) {
  EXPECT_THAT(RepeatedMnemonics(English()),
              testing::ElementsAre(testing::Pair("Edit", "r"), testing::Pair("floating", "rt")));
}

TEST(LanguageKeys, AreTheSameInEveryLanguage) {
  const CommandActions english(English());
  const CommandActions german(German());
  int withKeys = 0;
  for (const auto& [command, action] : english.All()) {
    EXPECT_EQ(KeysOf(*german.Action(command)), KeysOf(*action)) << action->text().toStdString();
    withKeys += action->shortcuts().isEmpty() ? 0 : 1;
  }
  EXPECT_GE(withKeys, 10);
}

TEST(LanguageKeys, AreShownAsTheTextNamesThem) {
  const CommandActions actions(German());
  OpenMenu menu;
  const auto shown = [&](Command command) {
    menu.addAction(actions.Action(command));
    return menu.ShownText(actions.Action(command)).toStdString();
  };
  EXPECT_EQ(shown(Command::New), "&Neu\tStrg+N");
  EXPECT_EQ(shown(Command::ZoomIn), "Ver&größern\tBild auf");
  EXPECT_EQ(shown(Command::Delete), "&Löschen\tEntf");
  EXPECT_EQ(shown(Command::NextPinName), "Nächster Pinname\tF11");
  EXPECT_EQ(shown(Command::SaveAs), "Speichern &unter...");
}

class GermanFrameTest : public FrameTest {
 protected:
  GermanFrameTest() : FrameTest(German()) {}
};

TEST_F(GermanFrameTest, MenusAreGerman) {
  QString text;
  for (const QAction* const menu : Frame().menuBar()->actions()) {
    text += menu->text() + QLatin1Char(' ');
  }
  EXPECT_EQ(text.toStdString(), "&Datei &Bearbeiten Ba&uteil &Ansicht &Werkzeug &Hilfe ");
  EXPECT_EQ(Frame().Action(Command::Open)->text().toStdString(), "Ö&ffnen...\tStrg+O");
  EXPECT_EQ(Frame().Action(Command::Open)->statusTip().toStdString(),
            "Eine Bibliothek oder einen Schaltplan öffnen");
}

TEST_F(GermanFrameTest, KeysWork) {
  Put("a.ZLB", LibraryFile(ComponentRecord("A")));
  Frame().show();
  QApplication::setActiveWindow(&Frame());
  Prompts().openPaths = {PathOf("a.ZLB")};
  QTest::keyClick(&Frame(), Qt::Key_O, Qt::ControlModifier);
  EXPECT_EQ(ListedNames(), "[A]");
}

TEST_F(GermanFrameTest, NewLibraryIsProposedUnderAGermanName) {
  Prompts().savePaths = {QString()};
  Trigger(Command::Save);
  ASSERT_EQ(Prompts().proposedNames.size(), 1u);
  EXPECT_EQ(Prompts().proposedNames.front().toStdString(), "Unbenannt.ZLB");
}

TEST_F(GermanFrameTest, WhatFailedALoadIsSaidInGerman) {
  Put("broken.ZLB", "+TARSL_LIB_V.1.0\nVER:82\nPROP:\n+COMP,N:A\nX:0,-COMP\n");
  Frame().Open(PathOf("broken.ZLB"));
  EXPECT_THAT(StatusText(), testing::StartsWith("Zeile "));
  Put("other.ZLB", "something else");
  Frame().Open(PathOf("other.ZLB"));
  EXPECT_EQ(StatusText(), "Zeile 1: dies ist weder Bauteilbibliothek noch Schaltplan");
}

TEST_F(GermanFrameTest, PartsHaveGermanNames) {
  EXPECT_EQ(Frame().Names().accessibleName().toStdString(), "Bauteilnamen");
  EXPECT_EQ(Frame().View().accessibleName().toStdString(), "Zeichnung des Bauteils");
  const auto* const note = Frame().findChild<QPlainTextEdit*>(QStringLiteral("noteBox"));
  EXPECT_EQ(note->accessibleName().toStdString(), "Notiz zum Bauteil");
  const auto* const toolBar = Frame().findChild<QToolBar*>(QStringLiteral("toolBar"));
  EXPECT_EQ(toolBar->windowTitle().toStdString(), "Symbolleiste");
}

/// Answers the next message box with `button`; returns the texts of all its buttons.
std::string ButtonsAskedFor(const std::function<void()>& ask, QMessageBox::StandardButton button) {
  std::string texts;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    timer.stop();
    std::set<QString> sorted;
    for (const QAbstractButton* const each : box->buttons()) sorted.insert(each->text());
    for (const QString& text : sorted) texts += text.toStdString() + ' ';
    box->button(button)->click();
  });
  timer.start();
  ask();
  return texts;
}

TEST_F(GermanFrameTest, QuestionsHaveGermanButtonsThatAnswer) {
  DialogPrompts prompts(Frame(), German());
  SaveAnswer answer = SaveAnswer::Cancel;
  const auto askToSave = [&] { answer = prompts.AskSaveChanges(); };
  EXPECT_EQ(ButtonsAskedFor(askToSave, QMessageBox::Yes), "&Ja &Nein Abbrechen ");
  EXPECT_EQ(answer, SaveAnswer::Save);
  ButtonsAskedFor(askToSave, QMessageBox::No);
  EXPECT_EQ(answer, SaveAnswer::Discard);
  ButtonsAskedFor(askToSave, QMessageBox::Cancel);
  EXPECT_EQ(answer, SaveAnswer::Cancel);

  bool confirmed = false;
  const auto confirm = [&] { confirmed = prompts.Confirm(StringId::CannotUndo); };
  EXPECT_EQ(ButtonsAskedFor(confirm, QMessageBox::Ok), "Abbrechen OK ");
  EXPECT_TRUE(confirmed);
  ButtonsAskedFor(confirm, QMessageBox::Cancel);
  EXPECT_FALSE(confirmed);
}

// Whatever the frame shows comes from the table: with a language in which every text is "#",
// nothing else is left.
TEST(LanguageOfTheFrame, LeavesNoTextBehind) {
  TextTable texts;
  ASSERT_TRUE(texts.Translate([](TextId id) -> std::u16string {
    return id == IdOf(StringId::Version) ? std::u16string(BuiltInText(id)) : u"#";
  }));
  const TempFolder folder;
  SettingsFile settings(folder.Put("MIVO.INI", "\xFF\xFE"));
  CMainFrame frame(settings, texts);
  std::set<QString> shown;
  for (const QObject* const object : frame.findChildren<QObject*>()) {
    const auto* const widget = qobject_cast<const QWidget*>(object);
    if (widget != nullptr && widget->isHidden()) continue;
    for (const char* const property :
         {"text", "title", "toolTip", "statusTip", "whatsThis", "accessibleName",
          "accessibleDescription", "placeholderText", "windowTitle"}) {
      const QVariant value = object->property(property);
      if (value.typeId() != QMetaType::QString) continue;
      if (value.toString().isEmpty()) continue;
      shown.insert(QLatin1String(object->metaObject()->className()) + QLatin1Char(' ') +
                   QLatin1String(property) + QLatin1Char(' ') + value.toString());
    }
  }
  std::vector<std::string> left;
  for (const QString& text : shown) {
    if (!text.endsWith(QLatin1String(" #"))) left.push_back(text.toStdString());
  }
  EXPECT_THAT(left, testing::IsEmpty());
  EXPECT_GE(shown.size(), 5u);
}

}  // namespace
}  // namespace mivo
