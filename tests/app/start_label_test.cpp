#include <QApplication>
#include <QLabel>
#include <QPalette>
#include <algorithm>
#include <cmath>

#include "frame_rig.h"

namespace mivo {
namespace {

class StartLabelTest : public FrameTest {
 protected:
  [[nodiscard]] QLabel& Label() {
    return *Frame().findChild<QLabel*>(QStringLiteral("startLabel"));
  }
  [[nodiscard]] std::string Text() {
    return (Label().text() + QLatin1Char('\n') + Label().accessibleDescription()).toStdString();
  }
};

TEST_F(StartLabelTest, TellsTheWaysToGoOn) {
  Frame().show();
  EXPECT_TRUE(Label().isVisible());
  EXPECT_THAT(Text(), testing::StartsWith("No component is open\n"));
  for (const char* const way : {"Ctrl+O", "New component...", "drop a file"}) {
    EXPECT_THAT(Text(), testing::HasSubstr(way));
  }
  EXPECT_EQ(Label().parentWidget(), Frame().View().viewport());
}

TEST_F(StartLabelTest, GoesWithTheFirstComponentAndComesBackWithoutOne) {
  Put("a.ZLB", LibraryFile(ComponentRecord("A")));
  Put("empty.ZLB", LibraryFile(""));
  Frame().show();
  Frame().Open(PathOf("a.ZLB"));
  EXPECT_FALSE(Label().isVisible());
  Frame().Open(PathOf("empty.ZLB"));
  EXPECT_TRUE(Label().isVisible());
  Prompts().components = {CompPropertyValues{}};
  Trigger(Command::NewComponent);
  EXPECT_FALSE(Label().isVisible());
  Prompts().saveAnswers = {SaveAnswer::Discard};
  Trigger(Command::New);
  EXPECT_TRUE(Label().isVisible());
}

TEST_F(StartLabelTest, LeavesTheMouseToTheView) {
  Frame().show();
  const QPoint middle = Label().geometry().center();
  EXPECT_EQ(Frame().View().viewport()->childAt(middle), nullptr);
}

/// 1 for the same colour, 21 for black on white.
double Contrast(const QColor& a, const QColor& b) {
  const auto light = [](const QColor& color) {
    const auto part = [](double value) {
      return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) +
           0.0722 * part(color.blueF()) + 0.05;
  };
  return std::max(light(a), light(b)) / std::min(light(a), light(b));
}

TEST_F(StartLabelTest, CanBeReadOnTheWhiteViewUnderADarkTheme) {
  const QPalette usual = QApplication::palette();
  QApplication::setPalette(QPalette(QColor(50, 50, 50)));
  ASSERT_GT(QApplication::palette().color(QPalette::Text).lightness(), 200);
  Restart();
  Frame().show();
  const QImage picture = Frame().View().viewport()->grab().toImage();
  QApplication::setPalette(usual);
  double best = 1;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      best = std::max(best, Contrast(picture.pixelColor(x, y), Qt::white));
    }
  }
  EXPECT_EQ(picture.pixelColor(2, 2), QColor(Qt::white)) << "the view's own background";
  EXPECT_GE(best, 7.0);
}

}  // namespace
}  // namespace mivo
