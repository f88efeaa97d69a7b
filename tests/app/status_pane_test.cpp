#include "status_pane.h"

#include <QApplication>
#include <QLabel>
#include <QLayout>
#include <QProgressBar>
#include <QStatusTipEvent>

#include "frame_rig.h"

namespace mivo {
namespace {

class StatusPaneTest : public testing::Test {
 protected:
  StatusPaneTest() {
    pane_.resize(600, 24);
    pane_.show();
  }
  [[nodiscard]] StatusPane& Pane() { return pane_; }
  [[nodiscard]] QLabel& Field(const char* name) {
    return *pane_.findChild<QLabel*>(QLatin1String(name));
  }
  [[nodiscard]] std::string Words() { return Field("statusText").text().toStdString(); }
  /// Where everything is that the user looks at while the pointer moves.
  [[nodiscard]] std::vector<QRect> Places() {
    pane_.layout()->activate();
    return {Field("statusText").geometry(), Field("statusPlace").geometry(),
            Field("statusZoom").geometry(), Field("statusNames").geometry()};
  }

 private:
  TextTable texts_;
  StatusPane pane_{texts_};
};

TEST_F(StatusPaneTest, MostUrgentWordsAreShown) {
  Pane().SetHint(QStringLiteral("hint"));
  EXPECT_EQ(Words(), "hint");
  Pane().ShowNote(QStringLiteral("note"));
  EXPECT_EQ(Words(), "note");
  Pane().ShowTip(QStringLiteral("tip"));
  EXPECT_EQ(Words(), "tip");
  Pane().ShowProgress(QStringLiteral("task"), 0.5);
  EXPECT_EQ(Words(), "task");
  Pane().HideProgress();
  EXPECT_EQ(Words(), "tip");
  Pane().ShowTip(QString());
  EXPECT_EQ(Words(), "note");
  Pane().ShowNote(QString());
  EXPECT_EQ(Words(), "hint");
}

TEST_F(StatusPaneTest, ANoteStaysUntilAnotherThingIsExpected) {
  Pane().SetHint(QStringLiteral("Place line"));
  Pane().ShowNote(QStringLiteral("note"));
  Pane().SetHint(QStringLiteral("Place line"));
  EXPECT_EQ(Words(), "note");
  Pane().SetHint(QStringLiteral("Place line: end point"));
  EXPECT_EQ(Words(), "Place line: end point");
}

TEST_F(StatusPaneTest, NothingMovesWhileThePointerDoes) {
  Pane().SetNames(0, 12345);
  Pane().SetZoom(1);
  const std::vector<QRect> before = Places();
  Pane().SetHint(QString(500, QLatin1Char('W')));
  Pane().SetPlace(SPoint{0, 0});
  EXPECT_EQ(Places(), before);
  Pane().SetPlace(SPoint{-2000, 2550});
  Pane().SetZoom(10);
  Pane().SetNames(12344, 12345);
  EXPECT_EQ(Places(), before);
  Pane().SetPlace(std::nullopt);
  Pane().SetZoom(std::nullopt);
  EXPECT_EQ(Places(), before);
}

TEST_F(StatusPaneTest, LongWordsNeverMakeTheWindowWider) {
  Pane().SetHint(QStringLiteral("x"));
  const int least = Pane().minimumSizeHint().width();
  Pane().SetHint(QString(500, QLatin1Char('W')));
  EXPECT_EQ(Pane().minimumSizeHint().width(), least);
}

TEST_F(StatusPaneTest, PlaceIsInCells) {
  Pane().SetPlace(SPoint{-5, 127});
  EXPECT_EQ(Field("statusPlace").text(), QStringLiteral("-0.5, 12.7"));
}

TEST_F(StatusPaneTest, NamesTellPositionAndNumber) {
  Pane().SetNames(1, 3);
  EXPECT_EQ(Field("statusNames").text(), QStringLiteral("2 / 3"));
  Pane().SetNames(-1, 3);
  EXPECT_EQ(Field("statusNames").text(), QStringLiteral("3"));
  Pane().SetNames(-1, 0);
  EXPECT_EQ(Field("statusNames").text(), QString());
}

TEST_F(StatusPaneTest, ProgressLeavesTheNumbersWhereTheyAre) {
  Pane().SetNames(0, 5);
  const std::vector<QRect> before = Places();
  Pane().ShowProgress(QStringLiteral("Opening a.ZLB"), 0.25);
  const auto* const bar = Pane().findChild<QProgressBar*>();
  EXPECT_TRUE(bar->isVisible());
  EXPECT_DOUBLE_EQ(bar->value() / double(bar->maximum()), 0.25);
  const std::vector<QRect> during = Places();
  EXPECT_TRUE(std::equal(before.begin() + 1, before.end(), during.begin() + 1));
  Pane().HideProgress();
  EXPECT_FALSE(bar->isVisible());
  EXPECT_EQ(Places(), before);
}

using FrameStatusTest = FrameTest;

TEST_F(FrameStatusTest, ACommandsTipLeavesTheNumbersInSight) {
  Put("a.ZLB", LibraryFile(ComponentRecord("A")));
  Frame().show();
  Frame().Open(PathOf("a.ZLB"));
  QStatusTipEvent tip(QStringLiteral("what it does"));
  QApplication::sendEvent(&Frame(), &tip);
  EXPECT_EQ(StatusText(), "what it does");
  EXPECT_TRUE(Frame().findChild<QLabel*>(QStringLiteral("statusNames"))->isVisible());
  QStatusTipEvent none{QString()};
  QApplication::sendEvent(&Frame(), &none);
  EXPECT_EQ(StatusText(), "Select pins and objects");
}

TEST_F(FrameStatusTest, HintsFollowTheTool) {
  Put("a.ZLB", LibraryFile("+PTN,N:p,X:41,Y:31\n-PTN\n+COMP,N:p\nX:4,Y:3,B:1\nTYPE:GEN,FB:0\nR:U\n"
                           "P:p\nNOTE:,-COMP\n"));
  EXPECT_EQ(StatusText(), "No component is open");
  Frame().Open(PathOf("a.ZLB"));
  Trigger(Command::CircleTool);
  EXPECT_EQ(StatusText(), "Place ellipse");
  Trigger(Command::New);
  EXPECT_EQ(StatusText(), "No component is open");
  EXPECT_EQ(StatusText("statusZoom"), "");
  EXPECT_EQ(StatusText("statusNames"), "");
}

}  // namespace
}  // namespace mivo
