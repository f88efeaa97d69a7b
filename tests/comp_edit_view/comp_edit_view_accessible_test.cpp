// The drawing as assistive programs see it.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAccessible>
#include <QTest>
#include <memory>
#include <string>
#include <vector>

#include "comp_edit_view.h"
#include "no_prompts.h"

namespace mivo {
namespace {

class AccessibleViewTest : public testing::Test {
 protected:
  AccessibleViewTest() {
    component_.SetSize({10, 10}, true, true);
    component_.SetBlockCount(2);
    AddPin(component_, {PinSide::Left, 3}, u"CLK", {u"4", u"9"}, SCompPin::kClock);
    AddPin(component_, {PinSide::Left, 7}, u"\\R\\S", {u"5"}, SCompPin::kNegation);
    AddPin(component_, {PinSide::Right, 2}, u"", {}, 0);
    view_.setAccessibleName(QStringLiteral("Drawing"));
    view_.resize(400, 400);
    view_.Editor().SetComponent(&component_);
    view_.show();
  }
  void SetUp() override { ASSERT_TRUE(QTest::qWaitForWindowExposed(&view_)); }

  static void AddPin(SComponent& component, SPinLocation location, std::u16string_view name,
                     const std::vector<std::u16string>& numbers, std::int32_t type) {
    SCompPin pin(component.BlockCount());
    pin.location = location;
    pin.type = type;
    pin.SetNameFromDisplayText(name);
    for (std::size_t i = 0; i < numbers.size(); ++i) {
      pin.SetNumber(static_cast<std::int32_t>(i), numbers[i]);
    }
    std::vector<SCompPin> pins = component.Pins();
    pins.push_back(std::move(pin));
    component.SetPins(std::move(pins));
  }

  [[nodiscard]] CCompEditView& View() { return view_; }
  [[nodiscard]] CompEditor& Editor() { return view_.Editor(); }
  [[nodiscard]] SComponent& Component() { return component_; }
  [[nodiscard]] QAccessibleInterface& Drawing() {
    return *QAccessible::queryAccessibleInterface(&view_);
  }
  /// The first child that is called so; null when there is none.
  [[nodiscard]] QAccessibleInterface* Pin(const char* name) {
    for (int i = 0; i < Drawing().childCount(); ++i) {
      QAccessibleInterface* const child = Drawing().child(i);
      if (child->text(QAccessible::Name) == QLatin1String(name)) return child;
    }
    return nullptr;
  }
  [[nodiscard]] std::vector<std::string> PinNames() {
    std::vector<std::string> names;
    for (int i = 0; i < Drawing().childCount(); ++i) {
      const QAccessibleInterface& child = *Drawing().child(i);
      if (child.role() != QAccessible::ListItem) continue;
      names.push_back(child.text(QAccessible::Name).toStdString());
    }
    return names;
  }

 private:
  SComponent component_;
  NoPrompts prompts_;
  CCompEditView view_{prompts_};
};

TEST_F(AccessibleViewTest, ReadsThePinsAroundTheBody) {
  EXPECT_EQ(Drawing().role(), QAccessible::Canvas);
  EXPECT_EQ(Drawing().text(QAccessible::Name), QStringLiteral("Drawing"));
  EXPECT_THAT(PinNames(),
              testing::ElementsAre("pin L3 CLK number 4, 9", "pin L7 RS number 5", "pin R2"));
}

TEST_F(AccessibleViewTest, DescribesTheShape) {
  EXPECT_EQ(Pin("pin L3 CLK number 4, 9")->text(QAccessible::Description), QStringLiteral("Clock"));
  EXPECT_EQ(Pin("pin L7 RS number 5")->text(QAccessible::Description),
            QStringLiteral("Inverted, overlined"));
  EXPECT_EQ(Pin("pin R2")->text(QAccessible::Description), QString());
}

TEST_F(AccessibleViewTest, ScrollBarsAndViewportComeBehindThePins) {
  ASSERT_GT(Drawing().childCount(), 3);
  for (int i = 0; i < Drawing().childCount(); ++i) {
    const QAccessibleInterface* const child = Drawing().child(i);
    ASSERT_NE(child, nullptr) << i;
    EXPECT_EQ(Drawing().indexOfChild(child), i);
    EXPECT_EQ(child->parent(), &Drawing()) << i;
  }
  EXPECT_EQ(Drawing().child(-1), nullptr);
  EXPECT_EQ(Drawing().child(Drawing().childCount()), nullptr);
}

TEST_F(AccessibleViewTest, PinsAreWhereTheyAreDrawn) {
  const PixelPoint body = Editor().Coordinates().ToDevice({0, 30});
  const double ratio = View().devicePixelRatioF();
  const QPoint middle =
      View().viewport()->mapToGlobal(QPointF((body.x - 5) / ratio, body.y / ratio).toPoint());
  const QAccessibleInterface* const pin = Drawing().childAt(middle.x(), middle.y());
  ASSERT_NE(pin, nullptr);
  EXPECT_EQ(pin->text(QAccessible::Name), QStringLiteral("pin L3 CLK number 4, 9"));
  EXPECT_TRUE(pin->rect().contains(middle));
  EXPECT_NE(Drawing().childAt(middle.x(), middle.y() + 20), pin);
}

TEST_F(AccessibleViewTest, ScrolledOutOfSightIsOffScreen) {
  const QAccessibleInterface* const pin = Pin("pin L3 CLK number 4, 9");
  EXPECT_FALSE(pin->state().offscreen);
  View().resize(100, 100);
  for (int i = 0; i < 3; ++i) Editor().Execute(Command::ZoomIn);
  Editor().ScrollTo({100000, 100000});
  EXPECT_TRUE(pin->state().offscreen);
  const QPoint at = pin->rect().center();
  EXPECT_NE(Drawing().childAt(at.x(), at.y()), pin);
}

TEST_F(AccessibleViewTest, SelectionShows) {
  View().activateWindow();
  View().setFocus();
  ASSERT_TRUE(QTest::qWaitFor([&] { return View().hasFocus(); }));
  QAccessibleInterface* const pin = Pin("pin L3 CLK number 4, 9");
  EXPECT_TRUE(pin->state().selectable);
  EXPECT_FALSE(pin->state().selected);
  ASSERT_TRUE(Editor().SelectPin({PinSide::Left, 3}));
  EXPECT_TRUE(pin->state().selected);
  EXPECT_TRUE(pin->state().focused);
  EXPECT_EQ(Drawing().focusChild(), pin);
  QTest::keyClick(&View(), Qt::Key_Escape);
  EXPECT_FALSE(pin->state().selected);
  EXPECT_FALSE(pin->state().focused);
}

TEST_F(AccessibleViewTest, TheActionSelects) {
  QAccessibleActionInterface* const action = Pin("pin R2")->actionInterface();
  ASSERT_NE(action, nullptr);
  ASSERT_EQ(action->actionNames(), QStringList{QAccessibleActionInterface::pressAction()});
  action->doAction(QStringLiteral("something else"));
  EXPECT_EQ(Editor().Document().SingleSelection(), nullptr);
  action->doAction(QAccessibleActionInterface::pressAction());
  ASSERT_NE(Editor().Document().SingleSelection(), nullptr);
  EXPECT_EQ(Editor().Document().SingleSelection()->Pin()->location,
            (SPinLocation{PinSide::Right, 2}));
}

TEST_F(AccessibleViewTest, ANewNameIsRead) {
  QAccessibleInterface* const pin = Pin("pin R2");
  ASSERT_TRUE(Editor().SelectPin({PinSide::Right, 2}));
  ASSERT_TRUE(Editor().Execute(Command::NextPinName));
  EXPECT_NE(pin->text(QAccessible::Name), QStringLiteral("pin R2"));
  EXPECT_TRUE(pin->text(QAccessible::Name).startsWith(QStringLiteral("pin R2 ")));
}

TEST_F(AccessibleViewTest, ADeletedPinIsGoneAndHarmless) {
  const QAccessible::Id id = QAccessible::uniqueId(Pin("pin R2"));
  ASSERT_TRUE(Editor().SelectPin({PinSide::Right, 2}));
  Editor().Execute(Command::Delete);
  EXPECT_EQ(QAccessible::accessibleInterface(id), nullptr);
  EXPECT_EQ(PinNames().size(), 2u);
}

TEST_F(AccessibleViewTest, ANewPinIsAnItem) {
  EXPECT_EQ(PinNames().size(), 3u);
  Editor().Execute(Command::PinTool);
  const PixelPoint at = Editor().Coordinates().ToDevice({105, 60});
  Editor().MoveMouse(at);
  Editor().PressLeft(at);
  Editor().ReleaseLeft(at);
  EXPECT_THAT(PinNames(), testing::Contains("pin R6 NAME number NUM"));
}

TEST_F(AccessibleViewTest, AnotherComponentLeavesNothingBehind) {
  std::vector<QAccessible::Id> ids;
  for (int i = 0; i < 3; ++i) ids.push_back(QAccessible::uniqueId(Drawing().child(i)));
  SComponent other;
  other.SetSize({2, 2}, true, true);
  AddPin(other, {PinSide::Left, 3}, u"X", {}, 0);
  Editor().SetComponent(&other);
  EXPECT_THAT(PinNames(), testing::ElementsAre("pin L3 X"));
  EXPECT_EQ(QAccessible::accessibleInterface(ids[1]), nullptr);
  EXPECT_EQ(QAccessible::accessibleInterface(ids[2]), nullptr);
  Editor().SetComponent(nullptr);
  EXPECT_TRUE(PinNames().empty());
  EXPECT_EQ(QAccessible::accessibleInterface(ids[0]), nullptr);
}

TEST_F(AccessibleViewTest, AnItemOutlivesItsViewUnharmed) {
  NoPrompts prompts;
  auto view = std::make_unique<CCompEditView>(prompts);
  view->Editor().SetComponent(&Component());
  const QAccessible::Id id =
      QAccessible::uniqueId(QAccessible::queryAccessibleInterface(view.get())->child(0));
  ASSERT_NE(QAccessible::accessibleInterface(id), nullptr);
  view->Editor().SetComponent(nullptr);
  view.reset();
  EXPECT_EQ(QAccessible::accessibleInterface(id), nullptr);
}

TEST_F(AccessibleViewTest, TwoPinsAtOnePlaceAreTwoItems) {
  AddPin(Component(), {PinSide::Right, 2}, u"SECOND", {}, 0);
  Editor().SetComponent(&Component());
  EXPECT_THAT(PinNames(), testing::IsSupersetOf({"pin R2", "pin R2 SECOND"}));
  EXPECT_NE(Pin("pin R2"), Pin("pin R2 SECOND"));
}

}  // namespace
}  // namespace mivo
