#include <QClipboard>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QToolBar>

#include "command_actions.h"
#include "frame_rig.h"
#include "wait_until.h"

namespace mivo {
namespace {

using MainFrameWindowTest = FrameTest;

TEST_F(MainFrameWindowTest, FirstStartWritesTheSettingsBack) {
  EXPECT_EQ(Settings().GetInt(u"Setting", u"NoCheckPtnRectOnSave", -1), 1);
  EXPECT_EQ(Settings().GetInt(u"Setting", u"EditWindowMargin", -1), 0);
}

TEST_F(MainFrameWindowTest, MarginIsLimitedInTheViewAndWrittenBackAsItWas) {
  Settings().SetInt(u"Setting", u"EditWindowMargin", 500);
  Restart();
  EXPECT_EQ(Frame().View().Editor().Coordinates().Margin(), 200);
  EXPECT_EQ(Settings().GetInt(u"Setting", u"EditWindowMargin", -1), 500);
}

TEST_F(MainFrameWindowTest, FarObjectsAreDroppedOnlyWhenTheSettingSaysSo) {
  const std::string library = LibraryFile(
      "+PTN,N:p,X:41,Y:31\n+L,W:1,S:0,CV:0,X:0,Y:0,X:5,Y:5,-L\n"
      "+L,W:1,S:0,CV:0,X:900,Y:900,X:905,Y:905,-L\n-PTN\n"
      "+COMP,N:p\nX:4,Y:3,B:1\nTYPE:GEN,FB:0\nR:U\nP:p\n"
      "+PIN,N:A,DF:FFFFFFFF,L:L1,T:,M:1,-PIN\nNOTE:,MFR:,MFRPN:,PKG:,-COMP\n");
  for (const bool keeps : {true, false}) {
    Put("p.ZLB", library);
    Settings().SetInt(u"Setting", u"NoCheckPtnRectOnSave", keeps ? 1 : 0);
    Restart();
    Frame().Open(PathOf("p.ZLB"));
    EditSelectedComponent();
    Trigger(Command::Save);
    EXPECT_EQ(Content("p.ZLB").find("X:900") != std::string::npos, keeps);
  }
}

TEST_F(MainFrameWindowTest, BitPatternIsOverwrittenOnlyAfterAQuestion) {
  Put("p.ZLB",
      LibraryFile("+PTN,N:p,X:41,Y:31\n+BMP\n-BMP\n+L,W:1,S:0,CV:0,X:0,Y:0,X:7,Y:0,-L\n-PTN\n"
                  "+COMP,N:p\nX:4,Y:3,B:1\nTYPE:GEN,FB:0\nR:U\nP:p\nNOTE:,-COMP\n"));
  Frame().Open(PathOf("p.ZLB"));
  const auto firstByte = [&] {
    return Frame().View().Editor().Component()->Pattern()->bitPattern->Bytes().front();
  };
  Prompts().confirmations = {false};
  Trigger(Command::CreateBitPattern);
  EXPECT_EQ(firstByte(), 0);
  Prompts().confirmations = {true};
  Trigger(Command::CreateBitPattern);
  EXPECT_EQ(firstByte(), 0xFF);
  EXPECT_TRUE(Prompts().confirmations.empty());
}

TEST_F(MainFrameWindowTest, SizeIsKeptForTheNextStart) {
  Frame().show();
  Frame().resize(777, 555);
  EXPECT_TRUE(WaitUntil(
      [&] { return Settings().GetInt(u"WindowPosition", u"Width", 0) == Frame().width(); }));
  EXPECT_EQ(Settings().GetInt(u"WindowPosition", u"Width", 0), 777);
  EXPECT_EQ(Settings().GetInt(u"WindowPosition", u"Height", 0), 555);
  EXPECT_EQ(Settings().GetInt(u"WindowPosition", u"cmdShow", 0), 1);
}

TEST_F(MainFrameWindowTest, MaximisedWindowKeepsItsNormalSize) {
  Frame().resize(777, 555);
  Frame().show();
  Frame().showMaximized();
  EXPECT_TRUE(WaitUntil([&] { return Settings().GetInt(u"WindowPosition", u"cmdShow", 0) == 3; }));
  EXPECT_EQ(Settings().GetInt(u"WindowPosition", u"Width", 0), 777);
}

TEST_F(MainFrameWindowTest, EveryCommandHasATipAndEveryToolButtonAnIcon) {
  for (const TextId id : AllTextIds()) {
    if (id.kind != TextKind::Command) continue;
    const QAction* const action = Frame().Action(static_cast<Command>(id.number));
    EXPECT_FALSE(action->text().isEmpty()) << id.number;
    EXPECT_FALSE(action->toolTip().isEmpty()) << id.number;
    EXPECT_FALSE(action->statusTip().isEmpty()) << id.number;
  }
  const auto* const toolBar = Frame().findChild<QToolBar*>(QStringLiteral("toolBar"));
  for (const QAction* const action : toolBar->actions()) {
    EXPECT_TRUE(action->isSeparator() || !action->icon().isNull()) << action->text().toStdString();
  }
}

TEST_F(MainFrameWindowTest, IconsDifferFromEachOther) {
  std::vector<QImage> images;
  const auto* const toolBar = Frame().findChild<QToolBar*>(QStringLiteral("toolBar"));
  for (const QAction* const action : toolBar->actions()) {
    if (action->isSeparator()) continue;
    const QImage image = action->icon().pixmap(24, 24).toImage();
    for (const QImage& other : images) EXPECT_NE(image, other) << action->text().toStdString();
    images.push_back(image);
  }
  EXPECT_GE(images.size(), 20u);
}

TEST_F(MainFrameWindowTest, MenusHoldTheirCommandsInOrder) {
  QString text;
  for (const QAction* const menu : Frame().menuBar()->actions()) {
    text += menu->text() + QLatin1Char(':');
    for (const QAction* const action : menu->menu()->actions()) {
      const QString name = action->text().section(QLatin1Char('\t'), 0, 0);
      text += action->isSeparator() ? QStringLiteral(" |") : QStringLiteral(" %1,").arg(name);
    }
    text += QLatin1Char('\n');
  }
  EXPECT_EQ(text.toStdString(),
            "&File: &New, &Open..., &Save, Save &as..., | E&xit,\n"
            "&Edit: &Undo, | Cu&t, &Copy, &Paste, &Delete, | &Mirror, &Rotate, | P&roperty..., |"
            " Next pin name, Next pin number,\n"
            "&Component: Cut component, Copy component, Paste component, | New component...,"
            " Component property..., | Add alias..., Sort by name, | Library property...,\n"
            "&View: Zoom &In, Zoom &Out, | &Pin property, Swap pin name and pin num,\n"
            "&Tool: &Selector, &Pin, &Line, &Circle, Poly&gon, &Arc, &Text, | Edit &node mode, |"
            " Create &BIT-PATTERN,\n"
            "&Help: &Manual, &Safety copies..., | &About Mivo...,\n");
}

TEST_F(MainFrameWindowTest, F6GoesRoundViewListAndNote) {
  Frame().show();
  Frame().activateWindow();
  ASSERT_TRUE(WaitUntil([&] { return Frame().isActiveWindow(); }));
  Frame().View().setFocus();
  const auto focused = [&] { return Frame().focusWidget()->objectName().toStdString(); };
  std::string forward;
  for (int i = 0; i < 3; ++i) {
    QTest::keyClick(&Frame(), Qt::Key_F6);
    forward += focused() + ' ';
  }
  EXPECT_EQ(forward, "nameList noteBox componentView ");
  QTest::keyClick(&Frame(), Qt::Key_F6, Qt::ShiftModifier);
  EXPECT_EQ(focused(), "noteBox");
}

TEST_F(MainFrameWindowTest, ToolsAndPasteTakeTheKeysToTheView) {
  Put("a.ZLB", LibraryFile(ComponentRecord("A")));
  Frame().Open(PathOf("a.ZLB"));
  Frame().show();
  const auto focusAfter = [&](Command command) {
    Frame().Names().setFocus();
    Trigger(command);
    return Frame().focusWidget()->objectName().toStdString();
  };
  EXPECT_EQ(focusAfter(Command::LineTool), "componentView");
  EXPECT_EQ(focusAfter(Command::Selector), "componentView");
  QGuiApplication::clipboard()->setText(QStringLiteral("+MIVO_PIN_V.1.0\n+PIN,N:A,-PIN\n"));
  EXPECT_EQ(focusAfter(Command::Paste), "componentView");
  EXPECT_EQ(focusAfter(Command::ZoomIn), "nameList");
}

TEST_F(MainFrameWindowTest, LabelFontIsThatOfTheSettings) {
  const SCommonFont usual = Frame().View().CommonFont();
  EXPECT_EQ(usual.face, u"Tahoma");
  EXPECT_EQ(usual.height, 9);
  EXPECT_EQ(usual.weight, 400);
  EXPECT_FALSE(usual.italic);
  Put("FONT.INI",
      "[LabelFont]\nHeight=12\nIsBold=700\nIsItalic=1\nFaceName=" + std::string(40, 'f') + "\n");
  SettingsFile settings(Folder() / "FONT.INI");
  const TextTable texts;
  const CMainFrame frame(settings, texts);
  const SCommonFont& font = frame.View().CommonFont();
  EXPECT_EQ(font.face, std::u16string(32, u'f')) << "no longer than that";
  EXPECT_EQ(font.height, 12);
  EXPECT_EQ(font.weight, 700);
  EXPECT_TRUE(font.italic);
}

TEST_F(MainFrameWindowTest, FrameHandsTheFocusToTheView) {
  Frame().show();
  Frame().activateWindow();
  ASSERT_TRUE(WaitUntil([&] { return Frame().isActiveWindow(); }));
  Frame().Names().setFocus();
  Frame().setFocus();
  EXPECT_TRUE(Frame().View().hasFocus());
}

TEST_F(MainFrameWindowTest, NoteKeepsCopyingWhileTheViewHasSomethingToCopy) {
  Put("parts.ZLB", LibraryFile(ComponentRecord("a", "a%20note")));
  Frame().show();
  Frame().activateWindow();
  ASSERT_TRUE(WaitUntil([&] { return Frame().isActiveWindow(); }));
  Frame().Open(PathOf("parts.ZLB"));
  CompEditor& editor = Frame().View().Editor();
  ASSERT_TRUE(editor.SelectPin(editor.Component()->Pins().front().location));
  ASSERT_TRUE(IsEnabled(Command::Copy));
  auto* const note = Frame().findChild<QPlainTextEdit*>(QStringLiteral("noteBox"));
  note->setFocus();
  note->selectAll();
  QTest::keyClick(note, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(), "a note");
  Frame().View().setFocus();
  QTest::keyClick(&Frame().View(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith(QLatin1String("+MIVO_PIN")));
  QGuiApplication::clipboard()->clear();
}

TEST_F(MainFrameWindowTest, AcceleratorsWorkWhereverTheFocusIs) {
  Frame().show();
  Frame().activateWindow();
  ASSERT_TRUE(WaitUntil([&] { return Frame().isActiveWindow(); }));
  auto* const note = Frame().findChild<QPlainTextEdit*>(QStringLiteral("noteBox"));
  const std::vector<QWidget*> parts = {&Frame().View(), &Frame().Names(), note};
  for (QWidget* const part : parts) {
    part->setFocus();
    Prompts().openPaths = {QString()};
    QTest::keyClick(part, Qt::Key_O, Qt::ControlModifier);
    EXPECT_TRUE(Prompts().openPaths.empty()) << part->objectName().toStdString();
  }
}

TEST_F(MainFrameWindowTest, NameMenuHoldsItsCommandsInOrder) {
  const TextTable texts;
  const CommandActions actions(texts);
  QMenu menu;
  actions.FillNameMenu(menu);
  std::string text;
  for (const QAction* const action : menu.actions()) {
    text += action->isSeparator() ? "| " : action->text().toStdString() + ", ";
  }
  EXPECT_EQ(text,
            "Cut component, Copy component, Paste component, | New component..., "
            "Component property..., | Add alias..., ");
}

TEST_F(MainFrameWindowTest, StatusTellsPlaceZoomAndName) {
  Put("parts.ZLB", LibraryFile(ComponentRecord("a") + ComponentRecord("b")));
  Frame().show();
  Frame().Open(PathOf("parts.ZLB"));
  Frame().Names().SelectRow(1);
  Trigger(Command::ZoomIn);
  EXPECT_EQ(StatusText("statusZoom"), "×2");
  EXPECT_EQ(StatusText("statusNames"), "2 / 2");
  CCompEditView& view = Frame().View();
  EXPECT_TRUE(WaitUntil([&] {
    const PixelPoint place = view.Editor().Coordinates().ToDevice({25, 30});
    QTest::mouseMove(view.viewport(), QPoint(place.x, place.y));
    return StatusText("statusPlace") == "2.5, 3.0";
  })) << StatusText("statusPlace");
}

TEST_F(MainFrameWindowTest, NotesStayInsideThePaneAndTheLastRowInSight) {
  std::string records;
  for (int i = 0; i < 200; ++i) records += ComponentRecord("part" + std::to_string(i));
  Put("many.ZLB", LibraryFile(records));
  Frame().show();
  Frame().Open(PathOf("many.ZLB"));
  SLBCompName& list = Frame().Names();
  auto* const note = Frame().findChild<QPlainTextEdit*>(QStringLiteral("noteBox"));
  EXPECT_EQ(list.geometry().bottom() - note->geometry().top() + 1, 5) << "they overlap";
  EXPECT_EQ(note->parentWidget()->height() - note->geometry().bottom() - 1, 5);
  QTest::keyClick(&list, Qt::Key_End);
  const QRect row = list.visualRect(list.currentIndex());
  const int rowBottom = list.viewport()->mapTo(note->parentWidget(), row.bottomLeft()).y();
  EXPECT_LT(rowBottom, note->geometry().top());
}

}  // namespace
}  // namespace mivo
