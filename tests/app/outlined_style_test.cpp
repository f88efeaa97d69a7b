#include "outlined_style.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QRadioButton>

namespace mivo {
namespace {

QPalette Dark() {
  QPalette colors(QColor(49, 54, 59));  // the others follow from it
  colors.setColor(QPalette::Base, QColor(35, 38, 41));
  return colors;
}

/// How much lighter than the window the lightest spot of the control without its text is, from 0.
template <typename Button>
int Outline(QStyle& style) {
  Button button;
  button.setPalette(Dark());
  button.setStyle(&style);
  button.resize(button.sizeHint());
  const QImage image = button.grab().toImage();
  int lightest = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      lightest = std::max(lightest, image.pixelColor(x, y).lightness());
    }
  }
  return lightest - Dark().color(QPalette::Window).lightness();
}

TEST(OutlinedStyle, OutlinesStandOutOnDark) {
  OutlinedStyle style;
  EXPECT_GT(Outline<QCheckBox>(style), 60);
  EXPECT_GT(Outline<QRadioButton>(style), 60);
}

class ProgramStyleTest : public testing::Test {
 protected:
  ~ProgramStyleTest() override {
    QApplication::setPalette(QPalette());
    QApplication::setStyle(QStringLiteral("fusion"));
  }
  [[nodiscard]] static bool IsOutlined() {
    OutlinedStyle::UseWhereNeeded();
    return dynamic_cast<OutlinedStyle*>(QApplication::style()) != nullptr;
  }
};

TEST_F(ProgramStyleTest, IsLeftAloneWithLightColours) {
  EXPECT_FALSE(IsOutlined());
}

TEST_F(ProgramStyleTest, IsOutlinedWithDarkColours) {
  QApplication::setPalette(Dark());
  EXPECT_TRUE(IsOutlined());
}

TEST_F(ProgramStyleTest, IsLeftAloneWhenTheDesktopHasItsOwn) {
  QApplication::setStyle(QStringLiteral("windows"));
  QApplication::setPalette(Dark());
  EXPECT_FALSE(IsOutlined());
}

}  // namespace
}  // namespace mivo
