// The pin grid as assistive programs see it.

#include <QAccessible>

#include "window_rig.h"

namespace mivo {
namespace {

using namespace pin_grid_column;

class AccessibleGridTest : public WindowTest {
 protected:
  void SetUp() override {
    Show(MakeComponent({{PinSide::Left, 1, u"A", {u"1", u"11"}},
                        {PinSide::Left, 3, u"B", {u"2", u"12"}, SCompPin::kClock},
                        {PinSide::Right, 2, u"C", {u"3"}, SCompPin::kHideNumber}},
                       2));
  }

  [[nodiscard]] QAccessibleInterface& Whole() {
    return *QAccessible::queryAccessibleInterface(&Grid());
  }
  [[nodiscard]] QAccessibleTableInterface& Table() { return *Whole().tableInterface(); }
  [[nodiscard]] std::string Text(int row, int column) {
    return Table().cellAt(row, column)->text(QAccessible::Name).toStdString();
  }
};

TEST_F(AccessibleGridTest, ReadsEveryCell) {
  EXPECT_EQ(Whole().role(), QAccessible::Table);
  EXPECT_EQ(Whole().text(QAccessible::Name), QStringLiteral("Pins"));
  EXPECT_EQ(Table().rowCount(), 3);
  EXPECT_EQ(Table().columnCount(), 6);
  std::string text;
  for (int row = 0; row < 3; ++row) {
    for (int column = 0; column < 6; ++column) text += Text(row, column) + '|';
    text += '\n';
  }
  EXPECT_EQ(text,
            "L1|A|Plain|Hide|1|11|\n"
            "L3|B|Clock|Hide|2|12|\n"
            "R2|C|Plain|Hide|3||\n");
}

TEST_F(AccessibleGridTest, ColumnsAndRowsAreDescribed) {
  std::string text;
  for (int column = 0; column < 6; ++column) {
    text += Table().columnDescription(column).toStdString() + '|';
  }
  EXPECT_EQ(text, "Loc|Name|Type|Hide|Block 1|Block 2|");
  EXPECT_EQ(Table().rowDescription(2), QStringLiteral("R2"));
}

TEST_F(AccessibleGridTest, HiddenNumbersAreChecked) {
  EXPECT_FALSE(Table().cellAt(0, kHide)->state().checked);
  EXPECT_TRUE(Table().cellAt(2, kHide)->state().checked);
  EXPECT_TRUE(Table().cellAt(0, kHide)->state().checkable);
  EXPECT_FALSE(Table().cellAt(0, kName)->state().checkable);
}

TEST_F(AccessibleGridTest, CellsAreChildrenRowByRow) {
  const int cells = 18;
  ASSERT_GE(Whole().childCount(), cells);
  for (int i = 0; i < Whole().childCount(); ++i) {
    const QAccessibleInterface* const child = Whole().child(i);
    ASSERT_NE(child, nullptr) << i;
    EXPECT_EQ(Whole().indexOfChild(child), i);
    EXPECT_EQ(child->parent(), &Whole());
  }
  EXPECT_EQ(Whole().child(7), Table().cellAt(1, 1));
  EXPECT_EQ(Table().cellAt(3, 0), nullptr);
  EXPECT_EQ(Table().cellAt(0, 6), nullptr);
  EXPECT_EQ(Table().cellAt(-1, 0), nullptr);
}

TEST_F(AccessibleGridTest, CellsAreWhereTheyAreDrawn) {
  const QRect cell = Cell(1, kName);
  const QPoint at = Grid().mapToGlobal(cell.center());
  EXPECT_EQ(Whole().childAt(at.x(), at.y()), Table().cellAt(1, kName));
  EXPECT_EQ(Table().cellAt(1, kName)->rect(),
            QRect(Grid().mapToGlobal(cell.topLeft()), cell.size()));
}

TEST_F(AccessibleGridTest, RowsOutOfSightAreOffScreen) {
  Show(ManyPins(100, 1));
  EXPECT_EQ(Table().rowCount(), 100);
  EXPECT_FALSE(Table().cellAt(0, kName)->state().offscreen);
  EXPECT_TRUE(Table().cellAt(99, kName)->state().offscreen);
}

TEST_F(AccessibleGridTest, SelectsARow) {
  EXPECT_EQ(Table().selectedRowCount(), 0);
  EXPECT_TRUE(Table().selectRow(1));
  EXPECT_EQ(SelectedRow(), 1);
  EXPECT_EQ(Table().selectedRows(), QList<int>{1});
  EXPECT_EQ(Table().selectedCells().size(), 6);
  EXPECT_TRUE(Table().cellAt(1, 0)->state().selected);
  EXPECT_FALSE(Table().cellAt(0, 0)->state().selected);
  EXPECT_FALSE(Table().selectRow(3));
}

TEST_F(AccessibleGridTest, ACellsActionEditsIt) {
  Table().cellAt(1, kName)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_TRUE(Edit().isVisible());
  EXPECT_EQ(Edit().text(), QStringLiteral("B"));
  // Now the control is what is there.
  const QPoint at = Edit().mapToGlobal(Edit().rect().center());
  EXPECT_EQ(Whole().childAt(at.x(), at.y()), QAccessible::queryAccessibleInterface(&Edit()));
}

TEST_F(AccessibleGridTest, CellsThatAreGoneAreInvalid) {
  QAccessibleInterface* const cell = Table().cellAt(2, kFirstBlock + 1);
  ASSERT_TRUE(cell->isValid());
  Show(MakeComponent({{PinSide::Left, 1}}));
  EXPECT_FALSE(cell->isValid());
  EXPECT_TRUE(cell->state().invalid);
  EXPECT_EQ(cell->text(QAccessible::Name), QString());
  EXPECT_TRUE(cell->rect().isEmpty());
  cell->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
}

}  // namespace
}  // namespace mivo
