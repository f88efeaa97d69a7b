// Cells are edited by mouse and keys.

#include <QApplication>

#include "window_rig.h"

namespace mivo {
namespace {

using namespace pin_grid_column;

class PinPropGridTest : public WindowTest {
 protected:
  void SetUp() override {
    Show(MakeComponent({{PinSide::Left, 1, u"A", {u"1", u"11"}},
                        {PinSide::Left, 3, u"\\B", {u"2", u"12"}},
                        {PinSide::Right, 2, u"C", {u"3", u"13"}, 3}},
                       2));
  }

  /// As if another window came to the front.
  void LoseFocus(Qt::FocusReason reason) {
    QFocusEvent event(QEvent::FocusOut, reason);
    QApplication::sendEvent(&Edit(), &event);
  }
};

// --- Texts ---------------------------------------------------------------------------------------

TEST_F(PinPropGridTest, NameIsEditedInItsCell) {
  Click(1, kName);
  EXPECT_EQ(SelectedRow(), 1);
  ASSERT_TRUE(Edit().isVisible());
  EXPECT_TRUE(Edit().hasFocus());
  EXPECT_EQ(Edit().text(), "\\B");
  EXPECT_EQ(Edit().selectedText(), "\\B");
  EXPECT_EQ(Edit().geometry(), Cell(1, kName).adjusted(1, 1, -1, 0));
  EXPECT_EQ(Edit().accessibleName(), "Name");
  EXPECT_EQ(Edit().maxLength(), 250);
}

TEST_F(PinPropGridTest, NumberIsEditedInItsCell) {
  Click(0, kFirstBlock + 1);
  ASSERT_TRUE(Edit().isVisible());
  EXPECT_EQ(Edit().text(), "11");
  EXPECT_EQ(Edit().geometry(), Cell(0, kFirstBlock + 1).adjusted(1, 1, -1, 0));
  EXPECT_EQ(Edit().accessibleName(), "Num");
  EXPECT_EQ(Edit().maxLength(), 64);
  QTest::keyClicks(&Edit(), "99");
  QTest::keyClick(&Edit(), Qt::Key_Return);
  EXPECT_EQ(Pin(0).GetNumber(1), u"99");
}

TEST_F(PinPropGridTest, LocationOpensNoEditor) {
  Click(0, kLocation);
  EXPECT_EQ(SelectedRow(), 0);
  EXPECT_FALSE(Edit().isVisible());
  EXPECT_FALSE(Chooser().isVisible());
}

TEST_F(PinPropGridTest, ReleaseOutsideTheGridIsNoClick) {
  QTest::mousePress(&Grid(), Qt::LeftButton, {}, Cell(0, kName).center());
  QTest::mouseRelease(&Grid(), Qt::LeftButton, {}, QPoint(10, -5));
  EXPECT_EQ(SelectedRow(), -1);
}

TEST_F(PinPropGridTest, OtherButtonsDoNothing) {
  QTest::mouseClick(&Grid(), Qt::RightButton, {}, Cell(0, kName).center());
  EXPECT_EQ(SelectedRow(), -1);
}

struct KeyCase {
  const char* name;
  Qt::Key key;
  int to;
};

class PinPropGridKeyTest : public PinPropGridTest, public testing::WithParamInterface<KeyCase> {};

INSTANTIATE_TEST_SUITE_P(Keys, PinPropGridKeyTest,
                         testing::Values(KeyCase{"Up", Qt::Key_Up, 0},
                                         KeyCase{"Down", Qt::Key_Down, 2},
                                         KeyCase{"Return", Qt::Key_Return, 2},
                                         KeyCase{"Enter", Qt::Key_Enter, 2}),
                         [](const auto& tested) { return std::string(tested.param.name); });

TEST_P(PinPropGridKeyTest, TypedTextIsKeptAndTheNextRowEdited) {
  Click(1, kName);
  QTest::keyClicks(&Edit(), "X\\Y");
  QTest::keyClick(&Edit(), GetParam().key);
  EXPECT_EQ(Pin(1).DisplayName(), u"X\\Y");
  EXPECT_EQ(SelectedRow(), GetParam().to);
  ASSERT_TRUE(Edit().isVisible());
  EXPECT_TRUE(Edit().hasFocus());
  EXPECT_EQ(Edit().text(), GetParam().to == 0 ? "A" : "C");
  EXPECT_EQ(Edit().geometry(), Cell(GetParam().to, kName).adjusted(1, 1, -1, 0));
  EXPECT_TRUE(Props().isVisible());
}

TEST_F(PinPropGridTest, UpAndDownStayAtTheEnds) {
  Click(0, kName);
  QTest::keyClicks(&Edit(), "X");
  QTest::keyClick(&Edit(), Qt::Key_Up);
  EXPECT_EQ(SelectedRow(), 0);
  ASSERT_TRUE(Edit().isVisible());
  EXPECT_EQ(Edit().text(), "X");
  EXPECT_EQ(Edit().selectedText(), "X");
  Click(2, kFirstBlock);
  QTest::keyClicks(&Edit(), "7");
  QTest::keyClick(&Edit(), Qt::Key_Return);
  EXPECT_EQ(SelectedRow(), 2);
  ASSERT_TRUE(Edit().isVisible());
  EXPECT_EQ(Edit().text(), "7");
  EXPECT_EQ(Pin(2).GetNumber(0), u"7");
}

TEST_F(PinPropGridTest, AllOtherKeysBelongToTheText) {
  Click(0, kName);
  QTest::keyClicks(&Edit(), "abc");
  QTest::keyClick(&Edit(), Qt::Key_Home);
  QTest::keyClick(&Edit(), Qt::Key_Right);
  QTest::keyClick(&Edit(), Qt::Key_Delete);
  QTest::keyClick(&Edit(), Qt::Key_Left);
  QTest::keyClick(&Edit(), Qt::Key_PageDown);
  EXPECT_EQ(Edit().text(), "ac");
  EXPECT_EQ(Edit().cursorPosition(), 0);
  EXPECT_EQ(SelectedRow(), 0);
}

TEST_F(PinPropGridTest, EscapeRestoresAndLeavesTheWindowOpen) {
  Click(0, kName);
  QTest::keyClicks(&Edit(), "X");
  QTest::keyClick(&Edit(), Qt::Key_Escape);
  EXPECT_FALSE(Edit().isVisible());
  EXPECT_TRUE(Grid().hasFocus());
  EXPECT_EQ(Pin(0).Name(), u"A");
  EXPECT_FALSE(Editor().Document().SelectionChanged());
  EXPECT_TRUE(Props().isVisible());
}

TEST_F(PinPropGridTest, ClickIntoAnotherCellKeepsWhatWasTyped) {
  Click(0, kName);
  QTest::keyClicks(&Edit(), "X");
  Click(1, kFirstBlock);
  EXPECT_EQ(Pin(0).Name(), u"X");
  EXPECT_EQ(SelectedRow(), 1);
  EXPECT_TRUE(Edit().isVisible());
  EXPECT_EQ(Edit().text(), "2");
}

TEST_F(PinPropGridTest, FocusOnAnotherControlKeepsWhatWasTyped) {
  Click(0, kName);
  QTest::keyClicks(&Edit(), "X");
  QTest::keyClick(&Edit(), Qt::Key_Tab);
  EXPECT_FALSE(Edit().isVisible());
  EXPECT_FALSE(Edit().hasFocus());
  EXPECT_NE(Props().focusWidget(), &Grid()) << "Tab goes on";
  EXPECT_EQ(Pin(0).Name(), u"X");
}

TEST_F(PinPropGridTest, FocusInAnotherWindowKeepsWhatWasTyped) {
  Click(0, kName);
  QTest::keyClicks(&Edit(), "X");
  LoseFocus(Qt::ActiveWindowFocusReason);
  EXPECT_FALSE(Edit().isVisible());
  EXPECT_EQ(Pin(0).Name(), u"X");
}

TEST_F(PinPropGridTest, MenuOfTheTextDoesNotEndTheEdit) {
  Click(0, kName);
  LoseFocus(Qt::PopupFocusReason);
  EXPECT_TRUE(Edit().isVisible());
}

TEST_F(PinPropGridTest, KeysOfCommandsBelongToTheTextWhileItIsEdited) {
  Click(0, kName);
  for (const int key : {Qt::Key_F11, Qt::Key_S, Qt::Key_Z, Qt::Key_Delete}) {
    QKeyEvent event(QEvent::ShortcutOverride, key, Qt::ControlModifier);
    event.ignore();
    QApplication::sendEvent(&Edit(), &event);
    EXPECT_TRUE(event.isAccepted()) << key;
  }
  QKeyEvent event(QEvent::ShortcutOverride, Qt::Key_F11, Qt::NoModifier);
  event.ignore();
  QApplication::sendEvent(&Grid(), &event);
  EXPECT_FALSE(event.isAccepted()) << "no cell is edited there";
}

TEST_F(PinPropGridTest, TypingStopsAtTheLimit) {
  Click(0, kName);
  Edit().insert(QString(251, u'x'));
  EXPECT_EQ(Edit().text().size(), 250);
  QTest::keyClick(&Edit(), Qt::Key_Escape);
  Click(0, kFirstBlock);
  Edit().insert(QString(65, u'x'));
  EXPECT_EQ(Edit().text().size(), 64);
}

TEST_F(PinPropGridTest, TextsOfAnyLengthAndContentStayWhenUntouched) {
  const std::u16string number = u"\x01\t\r\n\xD800" + std::u16string(5000, u'9') + u"\x2028";
  std::u16string name = u"\x3042\\A\x02\n";
  while (name.size() < 500) name += u"\\B";
  SComponent component = MakeComponent({{PinSide::Left, 1, name, {number}}});
  Editor().SetComponent(&component);
  const SCompPin before = Pin(0);
  for (const int column : {kName, kFirstBlock}) {
    Click(0, column);
    ASSERT_TRUE(Edit().isVisible());
    QTest::keyClick(&Edit(), Qt::Key_Home);
    QTest::keyClick(&Edit(), Qt::Key_Down);
    Props().EndEdit();
  }
  EXPECT_EQ(Pin(0), before);
  EXPECT_FALSE(Editor().Document().SelectionChanged());
  Editor().SetComponent(nullptr);
}

TEST_F(PinPropGridTest, LongTextCanBeEditedWithoutLosingTheRest) {
  SComponent component = MakeComponent({{PinSide::Left, 1, u"A", {std::u16string(5000, u'9')}}});
  Editor().SetComponent(&component);
  Click(0, kFirstBlock);
  QTest::keyClick(&Edit(), Qt::Key_End);
  QTest::keyClick(&Edit(), Qt::Key_Backspace);
  Props().EndEdit();
  EXPECT_EQ(Pin(0).GetNumber(0), std::u16string(4999, u'9'));
  Editor().SetComponent(nullptr);
}

TEST_F(PinPropGridTest, F2EditsTheNameOfTheSelectedRow) {
  ASSERT_TRUE(Editor().SelectPin({PinSide::Right, 2}));
  Grid().setFocus();
  QTest::keyClick(&Grid(), Qt::Key_F2);
  EXPECT_TRUE(Edit().isVisible());
  EXPECT_EQ(Edit().text(), "C");
}

TEST_F(PinPropGridTest, ChangesFromElsewhereCloseTheEditor) {
  Click(0, kName);
  Editor().Execute(Command::Delete);
  EXPECT_FALSE(Edit().isVisible());
  EXPECT_EQ(Grid().Grid().RowCount(), 2);
}

TEST_F(PinPropGridTest, ChangesAreDrawnAtOnce) {
  PaintCounter paints;
  Grid().installEventFilter(&paints);
  const auto isDrawnAfter = [&](const std::function<void()>& change) {
    QCoreApplication::processEvents();
    paints.count = 0;
    change();
    return WaitUntil([&] { return paints.count > 0; });
  };
  EXPECT_TRUE(isDrawnAfter([&] { ASSERT_TRUE(Editor().SelectPin({PinSide::Left, 1})); }));
  EXPECT_TRUE(isDrawnAfter([&] { Editor().Execute(Command::NextPinName); }));
  EXPECT_TRUE(isDrawnAfter([&] { Editor().Execute(Command::Undo); }));
}

// --- Styles --------------------------------------------------------------------------------------

TEST_F(PinPropGridTest, ChooserDropsDownOnTheStyleOfThePin) {
  Click(0, kStyle);
  ASSERT_TRUE(Chooser().isVisible());
  ASSERT_TRUE(Chooser().view()->isVisible());
  EXPECT_EQ(Chooser().count(), 6);
  EXPECT_EQ(Chooser().currentIndex(), 0);
  EXPECT_EQ(Chooser().geometry().topLeft(), Cell(0, kStyle).topLeft());
  EXPECT_GT(Chooser().width(), 72);
}

TEST_F(PinPropGridTest, StyleIsChosenFromTheList) {
  Click(0, kStyle);
  QTest::keyClick(Chooser().view(), Qt::Key_Down);
  QTest::keyClick(Chooser().view(), Qt::Key_Down);
  QTest::keyClick(Chooser().view(), Qt::Key_Return);
  EXPECT_EQ(Pin(0).type, SCompPin::kClock);
  EXPECT_TRUE(WaitUntil([&] { return !Chooser().isVisible(); }));
}

TEST_F(PinPropGridTest, FirstStyleCanBeChosenForAStyleThatIsNotInTheList) {
  Click(2, kStyle);
  EXPECT_EQ(Chooser().currentIndex(), 0);
  QTest::keyClick(Chooser().view(), Qt::Key_Return);
  EXPECT_EQ(Pin(2).type, 0);
}

TEST_F(PinPropGridTest, TurningAwayFromTheListChangesNothing) {
  Click(2, kStyle);
  QTest::keyClick(Chooser().view(), Qt::Key_Escape);
  EXPECT_TRUE(WaitUntil([&] { return !Chooser().isVisible(); }));
  EXPECT_EQ(Pin(2).type, 3);
  EXPECT_FALSE(Editor().Document().SelectionChanged());
  EXPECT_TRUE(Props().isVisible());
  EXPECT_EQ(Props().focusWidget(), &Grid());
}

TEST_F(PinPropGridTest, ListThatTheDesktopClosesEndsTheEdit) {
  Click(2, kStyle);
  Chooser().view()->window()->close();
  EXPECT_TRUE(WaitUntil([&] { return !Chooser().isVisible(); }));
  EXPECT_EQ(Grid().Grid().Edit(), PinGrid::EditKind::None);
  EXPECT_EQ(Pin(2).type, 3);
  EXPECT_EQ(Props().focusWidget(), &Grid());
}

TEST_F(PinPropGridTest, ListClosedAndOpenedAtOnceStaysOpen) {
  Click(0, kStyle);
  Chooser().hidePopup();
  Click(1, kStyle);
  QCoreApplication::processEvents();
  EXPECT_TRUE(Chooser().view()->isVisible());
  EXPECT_EQ(Grid().Grid().Edit(), PinGrid::EditKind::Style);
}

TEST_F(PinPropGridTest, EntryThatWouldBeChosenIsMarked) {
  Click(0, kStyle);
  QAbstractItemView& list = *Chooser().view();
  const auto picture = [&](int entry) {
    return list.viewport()->grab(list.visualRect(list.model()->index(entry, 0))).toImage();
  };
  const QImage marked = picture(0);
  const QImage unmarked = picture(1);
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_NE(picture(0), marked);
  EXPECT_NE(picture(1), unmarked);
}

TEST_F(PinPropGridTest, StylesHaveTheOrderOfTheList) {
  for (int entry = 0; entry < 6; ++entry) {
    Click(0, kStyle);
    QTest::keyClick(Chooser().view(), Qt::Key_Home);
    for (int i = 0; i < entry; ++i) QTest::keyClick(Chooser().view(), Qt::Key_Down);
    QTest::keyClick(Chooser().view(), Qt::Key_Return);
    constexpr std::int32_t kTypes[] = {0, 8, 4, 12, 1, 2};
    EXPECT_EQ(Pin(0).type, kTypes[entry]) << entry;
    EXPECT_TRUE(WaitUntil([&] { return !Chooser().isVisible(); }));
  }
}

TEST_F(PinPropGridTest, ChooserReopensOnTheStyleThatWasChosen) {
  Click(0, kStyle);
  QTest::keyClick(Chooser().view(), Qt::Key_Down);
  QTest::keyClick(Chooser().view(), Qt::Key_Return);
  EXPECT_TRUE(WaitUntil([&] { return !Chooser().isVisible(); }));
  Click(1, kStyle);
  EXPECT_EQ(Chooser().currentIndex(), 0);
  QTest::keyClick(Chooser().view(), Qt::Key_Escape);
  EXPECT_TRUE(WaitUntil([&] { return !Chooser().isVisible(); }));
  Click(0, kStyle);
  EXPECT_EQ(Chooser().currentIndex(), 1);
}

TEST_F(PinPropGridTest, EveryStyleInTheListHasASpokenNameAndAPicture) {
  Click(0, kStyle);
  for (int entry = 0; entry < Chooser().count(); ++entry) {
    EXPECT_FALSE(Chooser().itemData(entry, Qt::AccessibleTextRole).toString().isEmpty());
    EXPECT_FALSE(Chooser().itemData(entry, Qt::DecorationRole).value<QPixmap>().isNull());
  }
}

// --- Hidden numbers ------------------------------------------------------------------------------

TEST_F(PinPropGridTest, HideCellIsSwitchedByAClick) {
  Click(0, kHide);
  EXPECT_EQ(Pin(0).type, SCompPin::kHideNumber);
  Click(0, kHide);
  EXPECT_EQ(Pin(0).type, 0);
  EXPECT_FALSE(Edit().isVisible());
}

}  // namespace
}  // namespace mivo
