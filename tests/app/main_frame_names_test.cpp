#include <QClipboard>
#include <QGuiApplication>
#include <QTest>

#include "frame_rig.h"

namespace mivo {
namespace {

class MainFrameNamesTest : public FrameTest {
 protected:
  MainFrameNamesTest() {
    Put("parts.ZLB", LibraryFile(ComponentRecord("b", "note%20of%20b") + ComponentRecord("a") +
                                 "+ALIAS,A:b2,N:b,-ALIAS\n" + ComponentRecord("C")));
    Frame().Open(PathOf("parts.ZLB"));
  }
  ~MainFrameNamesTest() override { QGuiApplication::clipboard()->clear(); }

  void Select(int row) { Frame().Names().SelectRow(row); }
  [[nodiscard]] const SComponent* Shown() { return Frame().View().Editor().Component(); }
};

TEST_F(MainFrameNamesTest, SelectionShowsTheComponentAndItsNote) {
  Select(1);
  EXPECT_EQ(Shown(), Frame().Names().SelectedEntry()->Component());
  EXPECT_EQ(NoteText(), "");
  Select(2);
  EXPECT_EQ(NoteText(), "note of b");
}

TEST_F(MainFrameNamesTest, ChoosingAnotherNameWritesTheEditBack) {
  EditSelectedComponent();
  const SComponent* const edited = Shown();
  EXPECT_FALSE(Frame().IsModified());
  Select(1);
  EXPECT_TRUE(Frame().IsModified());
  EXPECT_EQ(edited->Pins().size(), 1u);
}

TEST_F(MainFrameNamesTest, MovingANameChangesTheOrderOfTheFile) {
  const SComponent* const shown = Shown();
  EXPECT_FALSE(IsEnabled(Command::MoveNameUp));
  Trigger(Command::MoveNameDown);
  EXPECT_EQ(ListedNames(), "a [b] b2 C");
  EXPECT_EQ(Shown(), shown);
  EXPECT_TRUE(Frame().IsModified());
  Trigger(Command::MoveNameUp);
  EXPECT_EQ(ListedNames(), "[b] a b2 C");
  Select(3);
  EXPECT_FALSE(IsEnabled(Command::MoveNameDown));
  Trigger(Command::MoveNameUp);
  Trigger(Command::Save);
  EXPECT_EQ(Content("parts.ZLB"),
            LibraryFile(ComponentRecord("b", "note%20of%20b") + ComponentRecord("a") +
                        ComponentRecord("C") + "+ALIAS,A:b2,N:b,-ALIAS\n"));
}

TEST_F(MainFrameNamesTest, FirstNameCannotMoveUp) {
  EXPECT_FALSE(IsEnabled(Command::MoveNameUp));
  Select(1);
  EXPECT_TRUE(IsEnabled(Command::MoveNameUp));
}

TEST_F(MainFrameNamesTest, LastNameCannotMoveDown) {
  Select(3);
  EXPECT_FALSE(IsEnabled(Command::MoveNameDown));
  Select(2);
  EXPECT_TRUE(IsEnabled(Command::MoveNameDown));
}

TEST_F(MainFrameNamesTest, SortCommitsThePendingEdit) {
  EditSelectedComponent();
  const SComponent* const edited = Shown();
  Prompts().confirmations = {true};
  Trigger(Command::SortByName);
  EXPECT_EQ(edited->Pins().size(), 1u);
  EXPECT_TRUE(Frame().IsModified()) << "by the edit";
}

TEST_F(MainFrameNamesTest, SortComparesCodeUnitsAndLeavesTheModificationAlone) {
  Prompts().confirmations = {true};
  Trigger(Command::SortByName);
  EXPECT_EQ(ListedNames(), "[C] a b b2");
  EXPECT_FALSE(Frame().IsModified());
}

TEST_F(MainFrameNamesTest, CancelledSortKeepsTheOrder) {
  Prompts().confirmations = {false};
  Trigger(Command::SortByName);
  EXPECT_EQ(ListedNames(), "[b] a b2 C");
}

TEST_F(MainFrameNamesTest, SortNeedsTwoNames) {
  Put("one.ZLB", LibraryFile(ComponentRecord("one")));
  Frame().Open(PathOf("one.ZLB"));
  EXPECT_FALSE(IsEnabled(Command::SortByName));
}

TEST_F(MainFrameNamesTest, CopyAndPasteAddANumberedComponentBeforeTheSelectedOne) {
  Select(1);
  Trigger(Command::CopyComponent);
  EXPECT_TRUE(IsEnabled(Command::PasteComponent));
  Select(3);
  Trigger(Command::PasteComponent);
  EXPECT_EQ(ListedNames(), "b a b2 [a(1)] C");
  EXPECT_EQ(Shown(), Frame().Names().SelectedEntry()->Component());
  EXPECT_TRUE(Frame().IsModified());
}

TEST_F(MainFrameNamesTest, PasteIntoAnEmptyLibrary) {
  Trigger(Command::CopyComponent);
  Trigger(Command::New);
  Trigger(Command::PasteComponent);
  EXPECT_EQ(ListedNames(), "[b]");
  EXPECT_EQ(NoteText(), "note of b");
}

TEST_F(MainFrameNamesTest, OtherClipboardTextCannotBePasted) {
  QGuiApplication::clipboard()->setText(QStringLiteral("some text"));
  EXPECT_FALSE(IsEnabled(Command::PasteComponent));
  QGuiApplication::clipboard()->setText(QStringLiteral("+TARSL_DATA_V.1.0") +
                                        QString(100, QLatin1Char('x')));
  EXPECT_TRUE(IsEnabled(Command::PasteComponent));
  Trigger(Command::PasteComponent);
  EXPECT_EQ(ListedNames(), "[b] a b2 C");
  EXPECT_FALSE(Frame().IsModified());
}

TEST_F(MainFrameNamesTest, CutSelectsTheNameThatFollows) {
  Select(1);
  Trigger(Command::CutComponent);
  EXPECT_EQ(ListedNames(), "b [b2] C");
  EXPECT_FALSE(Frame().IsModified()) << "cutting is no modification";
  EXPECT_EQ(Frame().Library().Components().size(), 2u);
}

TEST_F(MainFrameNamesTest, CutOfTheLastNameSelectsTheOneBeforeIt) {
  Select(3);
  Trigger(Command::CutComponent);
  EXPECT_EQ(ListedNames(), "b a [b2]");
}

TEST_F(MainFrameNamesTest, CutOfAnAliasKeepsTheComponent) {
  Select(2);
  Trigger(Command::CutComponent);
  EXPECT_EQ(ListedNames(), "b a [C]");
  EXPECT_EQ(Frame().Library().Components().size(), 3u);
}

TEST_F(MainFrameNamesTest, CutOfEveryNameLeavesTheViewEmpty) {
  for (int i = 0; i < 4; ++i) Trigger(Command::CutComponent);
  EXPECT_EQ(ListedNames(), "");
  EXPECT_EQ(Shown(), nullptr);
  EXPECT_TRUE(Frame().Library().Components().empty());
  EXPECT_FALSE(IsEnabled(Command::CutComponent));
  EXPECT_FALSE(IsEnabled(Command::CopyComponent));
}

TEST_F(MainFrameNamesTest, NewComponentStandsBeforeTheSelectedOne) {
  Select(1);
  CompPropertyValues values;
  values.name = u"b";
  values.width = 7;
  values.usePattern = true;
  values.note = u"fresh";
  Prompts().components = {values};
  Trigger(Command::NewComponent);
  EXPECT_EQ(Prompts().shownComponents, std::vector{CompPropertyValues{}});
  EXPECT_EQ(ListedNames(), "b [b(1)] a b2 C");
  EXPECT_EQ(NoteText(), "fresh");
  EXPECT_EQ(Shown()->Size(), (SPoint{7, 2}));
  EXPECT_NE(Shown()->Pattern(), nullptr);
  EXPECT_TRUE(Frame().IsModified());
}

TEST_F(MainFrameNamesTest, CancelledNewComponentChangesNothing) {
  Prompts().components = {std::nullopt};
  Trigger(Command::NewComponent);
  EXPECT_EQ(ListedNames(), "[b] a b2 C");
  EXPECT_FALSE(Frame().IsModified());
}

TEST_F(MainFrameNamesTest, ComponentPropertyRenamesAndChangesTheComponent) {
  CompPropertyValues values = ValuesOf(u"b", *Shown());
  values.name = u"a";
  values.note = u"changed";
  values.blocks = 3;
  Prompts().components = {values};
  Trigger(Command::ComponentProperty);
  EXPECT_EQ(Prompts().shownComponents.front().note, u"note of b");
  EXPECT_EQ(ListedNames(), "[a(1)] a b2 C");
  EXPECT_EQ(NoteText(), "changed");
  EXPECT_EQ(Shown()->BlockCount(), 3);
  EXPECT_EQ(Frame().View().Editor().Document().Blocks(), 3);
  EXPECT_TRUE(Frame().IsModified());
}

TEST_F(MainFrameNamesTest, DoubleClickOpensTheProperty) {
  Frame().show();
  SLBCompName& list = Frame().Names();
  Prompts().components = {std::nullopt};
  QTest::mouseDClick(list.viewport(), Qt::LeftButton, Qt::NoModifier,
                     list.visualRect(list.Names().index(0)).center());
  EXPECT_EQ(Prompts().shownComponents.size(), 1u);
}

TEST_F(MainFrameNamesTest, DoubleClickBelowTheLastNameOpensThePropertyOfTheSelectedOne) {
  Frame().show();
  Select(2);
  SLBCompName& list = Frame().Names();
  const QPoint below = list.visualRect(list.Names().index(3)).center() + QPoint(0, 40);
  Prompts().components = {std::nullopt};
  QTest::mouseDClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, below);
  ASSERT_EQ(Prompts().shownComponents.size(), 1u);
  EXPECT_EQ(Prompts().shownComponents.front().name, u"b2");
}

TEST_F(MainFrameNamesTest, DoubleClickIntoAnEmptyListDoesNothing) {
  Frame().show();
  Trigger(Command::New);
  QTest::mouseDClick(Frame().Names().viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(50, 50));
  EXPECT_TRUE(Prompts().shownComponents.empty());
}

TEST_F(MainFrameNamesTest, NoteIsShownWithEveryCharacter) {
  Put("odd.ZLB", LibraryFile(ComponentRecord("odd",
                                             "\xEF\xBB\xBF"
                                             "a%0D%0Ab%A0c")));
  Frame().Open(PathOf("odd.ZLB"));
  const auto* const note = Frame().findChild<QPlainTextEdit*>(QStringLiteral("noteBox"));
  EXPECT_EQ(note->document()->toRawText().toStdU16String(), u"\uFEFFa\u2029b\u00A0c");
  EXPECT_EQ(Shown()->note, u"\uFEFFa\r\nb\u00A0c");
}

// It takes hours when words are looked for in it.
TEST_F(MainFrameNamesTest, NoteOfAMegabyteWithoutABlankIsShownAndCopied) {
  Frame().show();
  CompPropertyValues values;
  values.name = u"long";
  values.note = std::u16string(1'000'000, u'n');
  Prompts().components = {values};
  Trigger(Command::NewComponent);
  auto* const note = Frame().findChild<QPlainTextEdit*>(QStringLiteral("noteBox"));
  note->grab();
  note->selectAll();
  note->copy();
  EXPECT_EQ(QGuiApplication::clipboard()->text().size(), 1'000'000);
  Select(1);
  EXPECT_EQ(note->wordWrapMode(), QTextOption::WrapAtWordBoundaryOrAnywhere)
      << "short notes are wrapped between words";
}

TEST_F(MainFrameNamesTest, AliasStandsBehindTheSelectedNameAndIsNoModification) {
  Prompts().texts = {u"a"};
  const SComponent* const component = Shown();
  Trigger(Command::AddAlias);
  EXPECT_EQ(Prompts().shownTexts, std::vector<std::u16string>{u"b"});
  EXPECT_EQ(ListedNames(), "b [a(1)] a b2 C");
  EXPECT_EQ(Shown(), component);
  EXPECT_FALSE(Frame().IsModified());
}

TEST_F(MainFrameNamesTest, EmptyAliasAddsNothing) {
  Prompts().texts = {u""};
  Trigger(Command::AddAlias);
  EXPECT_EQ(ListedNames(), "[b] a b2 C");
}

TEST_F(MainFrameNamesTest, LibraryTextIsEditedAndSaved) {
  Prompts().texts = {u"our parts"};
  Trigger(Command::LibraryProperty);
  EXPECT_EQ(Prompts().shownTexts, std::vector<std::u16string>{u""});
  EXPECT_TRUE(Frame().IsModified());
  Trigger(Command::Save);
  EXPECT_THAT(Content("parts.ZLB"), testing::HasSubstr("PROP:our%20parts\n"));
}

TEST_F(MainFrameNamesTest, AboutIsShown) {
  Trigger(Command::About);
  EXPECT_EQ(Prompts().aboutShown, 1);
}

TEST_F(MainFrameNamesTest, LettersAndDelDoNothingInTheList) {
  QTest::keyClick(&Frame().Names(), Qt::Key_C);
  QTest::keyClick(&Frame().Names(), Qt::Key_Delete);
  EXPECT_EQ(ListedNames(), "[b] a b2 C");
  QTest::keyClick(&Frame().Names(), Qt::Key_End);
  EXPECT_EQ(ListedNames(), "b a b2 [C]");
}

TEST_F(MainFrameNamesTest, RightPressSelectsTheRowUnderIt) {
  Frame().show();
  SLBCompName& list = Frame().Names();
  const QRect row = list.visualRect(list.Names().index(2));
  EXPECT_EQ(row.height(), 15);
  QTest::mousePress(list.viewport(), Qt::RightButton, Qt::NoModifier, row.center());
  EXPECT_EQ(ListedNames(), "b a [b2] C");
}

TEST_F(MainFrameNamesTest, OtherNamesOfTheSelectedComponentAreRedAndIndented) {
  Frame().show();
  SLBCompName& list = Frame().Names();
  const auto redBeginsAt = [&](int row) {
    const QRect rect = list.visualRect(list.Names().index(row));
    const QImage image = list.viewport()->grab(rect).toImage();
    for (int x = 0; x < image.width(); ++x) {
      for (int y = 0; y < image.height(); ++y) {
        const QColor color = image.pixelColor(x, y);
        if (color.red() > 200 && color.green() < 120 && color.blue() < 120) return x;
      }
    }
    return -1;
  };
  EXPECT_EQ(redBeginsAt(0), -1) << "the selected name itself";
  EXPECT_EQ(redBeginsAt(1), -1) << "another component";
  EXPECT_GE(redBeginsAt(2), 10) << "an alias";
  Select(1);
  EXPECT_EQ(redBeginsAt(2), -1);
}

TEST_F(MainFrameNamesTest, AHundredThousandNamesAreListedAtOnce) {
  std::string records;
  for (int i = 0; i < 100000; ++i) {
    records += "+COMP,N:P" + std::to_string(i) + ",X:1,Y:1,B:1,-COMP\n";
  }
  Put("large.ZLB", LibraryFile(records));
  Frame().show();
  Frame().Open(PathOf("large.ZLB"));
  EXPECT_EQ(Frame().Names().Names().rowCount(), 100000);
  QTest::keyClick(&Frame().Names(), Qt::Key_End);
  EXPECT_EQ(Frame().Names().SelectedRow(), 99999);
}

}  // namespace
}  // namespace mivo
