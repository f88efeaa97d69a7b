// The main window as assistive programs see it.

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPlainTextEdit>
#include <QToolBar>

#include "frame_rig.h"

namespace mivo {
namespace {

class AccessibleFrameTest : public FrameTest {
 protected:
  [[nodiscard]] QAccessibleInterface& List() {
    return *QAccessible::queryAccessibleInterface(&Frame().Names());
  }
  [[nodiscard]] std::string Row(int row) {
    return List().child(row)->text(QAccessible::Name).toStdString();
  }
};

/// Controls that a person meets: they need a name and a role. Frames, bars and areas only hold
/// them.
bool NeedsName(const QAccessibleInterface& item) {
  switch (item.role()) {
    case QAccessible::Button:
    case QAccessible::ButtonMenu:
    case QAccessible::CheckBox:
    case QAccessible::RadioButton:
    case QAccessible::EditableText:
    case QAccessible::List:
    case QAccessible::Table:
    case QAccessible::Canvas:
    case QAccessible::MenuItem:
    case QAccessible::MenuBar:
    case QAccessible::ToolBar:
    case QAccessible::ProgressBar:
    case QAccessible::ListItem:
      return true;
    default:
      return false;
  }
}

/// The controls below `item` without a name; counts all of them.
void FindNameless(QAccessibleInterface& item, std::vector<std::string>& nameless, int& controls) {
  const QObject* const object = item.object();
  const auto* const widget = qobject_cast<const QWidget*>(object);
  const bool isHidden = widget != nullptr && widget->isHidden();
  if (NeedsName(item) && !isHidden) {
    ++controls;
    const bool isSeparator = item.role() == QAccessible::Separator;
    if (!isSeparator && item.text(QAccessible::Name).isEmpty()) {
      nameless.push_back(object != nullptr ? object->metaObject()->className() +
                                                 (" " + object->objectName().toStdString())
                                           : "an item");
    }
  }
  for (int i = 0; i < item.childCount(); ++i) {
    if (QAccessibleInterface* const child = item.child(i)) FindNameless(*child, nameless, controls);
  }
}

TEST_F(AccessibleFrameTest, EveryControlHasANameAndARole) {
  Put("a.ZLB", LibraryFile(ComponentRecord("A") + ComponentRecord("B")));
  Frame().show();
  Frame().Open(PathOf("a.ZLB"));
  std::vector<std::string> nameless;
  int controls = 0;
  FindNameless(*QAccessible::queryAccessibleInterface(&Frame()), nameless, controls);
  EXPECT_THAT(nameless, testing::IsEmpty());
  EXPECT_GE(controls, 60) << "menus, tools, lists, pins";
}

TEST_F(AccessibleFrameTest, NamesOfTheListAreRead) {
  Put("a.ZLB", LibraryFile(ComponentRecord("A") + ComponentRecord("B") + ComponentRecord("C")));
  Frame().Open(PathOf("a.ZLB"));
  EXPECT_EQ(List().childCount(), 3);
  EXPECT_EQ(List().child(3), nullptr);
  EXPECT_EQ(Row(0) + Row(1) + Row(2), "ABC");
  EXPECT_TRUE(List().child(0)->state().selected);
  Frame().Names().SelectRow(2);
  EXPECT_FALSE(List().child(0)->state().selected);
  EXPECT_TRUE(List().child(2)->state().selected);
}

TEST_F(AccessibleFrameTest, NamesAreReadInTheirOrderAfterEveryChange) {
  Put("a.ZLB", LibraryFile(ComponentRecord("A") + ComponentRecord("B") + ComponentRecord("C")));
  Frame().Open(PathOf("a.ZLB"));
  EXPECT_EQ(Row(0) + Row(1) + Row(2), "ABC");
  Trigger(Command::MoveNameDown);
  EXPECT_EQ(Row(0) + Row(1) + Row(2), "BAC");
  Trigger(Command::CutComponent);
  EXPECT_EQ(Row(0) + Row(1), "BC");
  Trigger(Command::PasteComponent);
  EXPECT_EQ(Row(0) + Row(1) + Row(2), "BAC");
  Prompts().confirmations = {true};
  Trigger(Command::SortByName);
  EXPECT_EQ(Row(0) + Row(1) + Row(2), "ABC");
}

TEST_F(AccessibleFrameTest, RowsAreWhereTheyAreDrawnAndCanBeChosen) {
  Put("a.ZLB", LibraryFile(ComponentRecord("A") + ComponentRecord("B")));
  Frame().show();
  Frame().Open(PathOf("a.ZLB"));
  const QRect row = Frame().Names().visualRect(Frame().Names().Names().index(1));
  const QPoint at = Frame().Names().viewport()->mapToGlobal(row.center());
  QAccessibleInterface* const item = List().childAt(at.x(), at.y());
  ASSERT_EQ(item, List().child(1));
  EXPECT_TRUE(item->rect().contains(at));
  item->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(Frame().Names().SelectedRow(), 1);
  Trigger(Command::CutComponent);
  EXPECT_FALSE(item->isValid());
  EXPECT_EQ(List().indexOfChild(item), -1);
}

TEST_F(AccessibleFrameTest, PinsOfTheComponentAreRead) {
  Put("a.ZLB", LibraryFile(ComponentRecord("A")));
  Frame().Open(PathOf("a.ZLB"));
  const QAccessibleInterface& drawing = *QAccessible::queryAccessibleInterface(&Frame().View());
  EXPECT_EQ(drawing.text(QAccessible::Name), QStringLiteral("Drawing of the component"));
  EXPECT_EQ(drawing.child(0)->text(QAccessible::Name), QStringLiteral("pin L1 A number 1"));
  EXPECT_EQ(drawing.child(1)->text(QAccessible::Name), QStringLiteral("pin R1 B number 2"));
}

/// The toolkit counts what it registers.
QAccessible::Id NextId() {
  QWidget widget;
  const QAccessible::Id id =
      QAccessible::registerAccessibleInterface(new QAccessibleWidget(&widget));
  QAccessible::deleteAccessibleInterface(id);
  return id;
}

TEST_F(AccessibleFrameTest, AHundredThousandNamesCostNothingUntilTheyAreRead) {
  std::string records = ComponentRecord("P");
  for (int i = 0; i < 100000; ++i) {
    records += "+ALIAS,A:N" + std::to_string(i) + ",N:P,-ALIAS\n";
  }
  Put("many.ZLB", LibraryFile(records));
  Frame().show();
  QAccessibleInterface& list = List();
  const QAccessible::Id before = NextId();
  Frame().Open(PathOf("many.ZLB"));
  EXPECT_EQ(list.childCount(), 100001);
  EXPECT_EQ(Row(100000), "N99999");
  Frame().Names().SelectRow(50000);
  EXPECT_TRUE(list.child(50000)->state().selected);
  EXPECT_LT(NextId() - before, 100u) << "items for rows that nobody asked for";
}

}  // namespace
}  // namespace mivo
