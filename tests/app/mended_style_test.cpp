#include "mended_style.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QRadioButton>
#include <QStyleFactory>
#include <memory>

namespace mivo {
namespace {

QPalette Dark() {
  QPalette colors(QColor(49, 54, 59));  // the others follow from it
  colors.setColor(QPalette::Base, QColor(35, 38, 41));
  return colors;
}

template <typename Button>
QImage Picture(QStyle& style, const QPalette& colors) {
  Button button;
  button.setPalette(colors);
  button.setStyle(&style);
  button.resize(button.sizeHint());
  return button.grab().toImage();
}

/// How much lighter than the window the lightest spot of the control without its text is, from 0.
template <typename Button>
int Outline(QStyle& style) {
  const QImage image = Picture<Button>(style, Dark());
  int lightest = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      lightest = std::max(lightest, image.pixelColor(x, y).lightness());
    }
  }
  return lightest - Dark().color(QPalette::Window).lightness();
}

TEST(MendedStyle, OutlinesStandOutOnDark) {
  MendedStyle style;
  EXPECT_GT(Outline<QCheckBox>(style), 60);
  EXPECT_GT(Outline<QRadioButton>(style), 60);
}

TEST(MendedStyle, OutlinesOnLightAreTheToolkits) {
  MendedStyle style;
  const std::unique_ptr<QStyle> own(QStyleFactory::create(QStringLiteral("fusion")));
  const QPalette light = own->standardPalette();
  EXPECT_EQ(Picture<QCheckBox>(style, light), Picture<QCheckBox>(*own, light));
  EXPECT_EQ(Picture<QRadioButton>(style, light), Picture<QRadioButton>(*own, light));
}

/// Counts how often it is asked for an icon.
class CountingStyle final : public QProxyStyle {
 public:
  CountingStyle() : QProxyStyle(QStringLiteral("fusion")) {}
  [[nodiscard]] QIcon standardIcon(StandardPixmap which, const QStyleOption* option,
                                   const QWidget* widget) const override {
    ++asked;
    return QProxyStyle::standardIcon(which, option, widget);
  }
  mutable int asked = 0;
};

class ArrowOfBars : public testing::TestWithParam<QStyle::StandardPixmap> {};

INSTANTIATE_TEST_SUITE_P(, ArrowOfBars,
                         testing::Values(QStyle::SP_ToolBarHorizontalExtensionButton,
                                         QStyle::SP_ToolBarVerticalExtensionButton));

TEST_P(ArrowOfBars, IsReadWhenItIsShown) {
  auto* const base = new CountingStyle;
  MendedStyle style;
  style.setBaseStyle(base);
  const QIcon arrow = style.standardIcon(GetParam(), nullptr, nullptr);
  EXPECT_EQ(base->asked, 0);
  EXPECT_FALSE(arrow.pixmap(16).isNull());
  EXPECT_GT(base->asked, 0);
}

TEST_P(ArrowOfBars, IsTheToolkitsAtAnySize) {
  const MendedStyle style;
  const QIcon arrow = style.standardIcon(GetParam(), nullptr, nullptr);
  const QIcon own = style.baseStyle()->standardIcon(GetParam());
  for (const int side : {8, 16, 24, 48}) {
    for (const double ratio : {1.0, 1.5, 2.0}) {
      const QSize size(side, side);
      EXPECT_EQ(arrow.actualSize(size), own.actualSize(size));
      const QPixmap shown = arrow.pixmap(size, ratio);
      const QPixmap expected = own.pixmap(size, ratio);
      EXPECT_EQ(shown.toImage(), expected.toImage()) << side << " at " << ratio;
      EXPECT_EQ(shown.devicePixelRatio(), expected.devicePixelRatio()) << side << " at " << ratio;
    }
  }
}

TEST_P(ArrowOfBars, OutlivesItsStyle) {
  auto style = std::make_unique<MendedStyle>();
  const QIcon arrow = style->standardIcon(GetParam(), nullptr, nullptr);
  style.reset();
  EXPECT_TRUE(arrow.pixmap(16).isNull());
}

class ProgramStyleTest : public testing::Test {
 protected:
  ~ProgramStyleTest() override { QApplication::setStyle(QStringLiteral("fusion")); }
  [[nodiscard]] static bool IsMended() {
    MendedStyle::UseWhereNeeded();
    return dynamic_cast<MendedStyle*>(QApplication::style()) != nullptr;
  }
};

TEST_F(ProgramStyleTest, IsMendedWhereItIsTheToolkitsOwn) {
  EXPECT_TRUE(IsMended());
}

TEST_F(ProgramStyleTest, IsLeftAloneWhenTheDesktopHasItsOwn) {
  QApplication::setStyle(QStringLiteral("windows"));
  EXPECT_FALSE(IsMended());
}

}  // namespace
}  // namespace mivo
