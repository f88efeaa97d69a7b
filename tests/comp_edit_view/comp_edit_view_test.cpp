#include "comp_edit_view.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QSignalSpy>
#include <QTest>

#include "no_prompts.h"

namespace mivo {
namespace {

/// The real view with real events: what the toolkit sends reaches the editor.
class CompEditViewTest : public testing::Test {
 protected:
  void SetUp() override {
    component.SetSize({10, 10}, true, true);
    view.resize(400, 400);
    view.Editor().SetComponent(&component);
    view.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));
  }

  [[nodiscard]] QPoint At(SPoint point) const {
    const PixelPoint pixel = view.Editor().Coordinates().ToDevice(point);
    return (QPointF(pixel.x, pixel.y) / view.viewport()->devicePixelRatioF()).toPoint();
  }
  void Click(SPoint point) {
    QTest::mouseMove(view.viewport(), At(point));
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, At(point));
  }
  [[nodiscard]] std::size_t Selected() const { return view.Editor().Document().Selection().size(); }
  [[nodiscard]] QImage Picture() { return view.viewport()->grab().toImage(); }
  /// It is selected then.
  void DrawLine() {
    QTest::keyClick(&view, Qt::Key_L);
    Click({10, 10});
    Click({60, 40});
  }

  SComponent component;
  NoPrompts prompts;
  CCompEditView view{prompts};
};

TEST_F(CompEditViewTest, DrawsALineWithTheMouse) {
  DrawLine();
  ASSERT_EQ(Selected(), 1u);
  const SPtnObj* const line = view.Editor().Document().Selection()[0].Object();
  ASSERT_NE(line, nullptr);
  EXPECT_EQ(line->GetNode(0), (SPoint{10, 10}));
  EXPECT_EQ(line->GetNode(1), (SPoint{60, 40}));
}

TEST_F(CompEditViewTest, EscapeReleasesAndDelDeletes) {
  DrawLine();
  QTest::keyClick(&view, Qt::Key_Escape);
  EXPECT_EQ(Selected(), 0u);
  QTest::keyClick(&view, Qt::Key_S);
  Click({60, 40});
  EXPECT_EQ(Selected(), 1u);
  QTest::keyClick(&view, Qt::Key_Delete);
  EXPECT_EQ(Selected(), 0u);
  EXPECT_TRUE(view.Editor().IsEnabled(Command::Undo));
}

TEST_F(CompEditViewTest, ShowsWhatIsSelectedOverTheDrawing) {
  const QImage empty = Picture();
  DrawLine();
  EXPECT_NE(Picture(), empty);
  QTest::keyClick(&view, Qt::Key_Delete);
  EXPECT_EQ(Picture(), empty);
}

TEST_F(CompEditViewTest, LettersWithCtrlAreNotToolKeys) {
  QTest::keyClick(&view, Qt::Key_L, Qt::ControlModifier);
  EXPECT_TRUE(view.Editor().IsChecked(Command::Selector));
}

TEST_F(CompEditViewTest, PageUpAndPageDownZoom) {
  QTest::keyClick(&view, Qt::Key_PageUp);
  EXPECT_EQ(view.Editor().Coordinates().ZoomIndex(), 1);
  QTest::keyClick(&view, Qt::Key_PageDown);
  EXPECT_EQ(view.Editor().Coordinates().ZoomIndex(), 0);
}

TEST_F(CompEditViewTest, ARightClickAsksForTheMenuAndARightDragDoesNot) {
  QSignalSpy menu(&view, &CCompEditView::ContextMenuRequested);
  QTest::mouseClick(view.viewport(), Qt::RightButton, {}, At({20, 20}));
  EXPECT_EQ(menu.count(), 1);
  QTest::mousePress(view.viewport(), Qt::RightButton, {}, At({20, 20}));
  QTest::mouseMove(view.viewport(), At({60, 60}));
  QTest::mouseRelease(view.viewport(), Qt::RightButton, {}, At({60, 60}));
  EXPECT_EQ(menu.count(), 1);
}

TEST_F(CompEditViewTest, TellsWhenCommandsChange) {
  QSignalSpy changes(&view, &CCompEditView::CommandsChanged);
  QTest::keyClick(&view, Qt::Key_P);
  EXPECT_GT(changes.count(), 0);
}

TEST_F(CompEditViewTest, HidingTheWindowEndsADrag) {
  DrawLine();
  QTest::mousePress(view.viewport(), Qt::LeftButton, {}, At({30, 20}));
  QTest::mouseMove(view.viewport(), At({40, 20}));
  view.hide();
  QTest::mouseMove(view.viewport(), At({80, 20}));
  EXPECT_EQ(view.Editor().Document().Selection()[0].Object()->GetNode(0), (SPoint{20, 10}));
}

TEST_F(CompEditViewTest, CopiesAndPastesThroughTheSystemClipboard) {
  DrawLine();
  ASSERT_TRUE(view.Editor().Execute(Command::Copy));
  EXPECT_TRUE(view.Editor().IsEnabled(Command::Paste));
  ASSERT_TRUE(view.Editor().Execute(Command::Paste));
  EXPECT_EQ(view.Editor().Document().Selection()[0].Object()->GetNode(0), (SPoint{1, 1}));
}

}  // namespace
}  // namespace mivo
