#include "qt_fonts.h"

#include <gtest/gtest.h>

#include <QFontDatabase>
#include <QFontInfo>
#include <QString>
#include <QStringList>
#include <string>

namespace mivo {
namespace {

Font FontOf(std::u16string face, std::int32_t height = 20) {
  return {std::move(face), height, 400, false, false};
}

class Substitutes : public testing::TestWithParam<const char*> {};

TEST_P(Substitutes, StandInForFontsThatAreMissing) {
  InstallFontSubstitutes();
  const QString face = QString::fromLatin1(GetParam());
  const bool isInstalled = QFontDatabase::families().contains(face, Qt::CaseInsensitive);
  QtFonts fonts;
  const Font font = FontOf(face.toStdU16String());
  const QtFonts::Entry& entry = fonts.Get(font);
  EXPECT_EQ(QFontInfo(entry.smooth).family(), isInstalled ? face : QStringLiteral("DejaVu Sans"));
  EXPECT_EQ(entry.font, font) << "the name itself does not change";
}

INSTANTIATE_TEST_SUITE_P(Faces, Substitutes, testing::Values("Tahoma", "MS UI Gothic"));

TEST(QtFonts, TakesHeightsAsPixelsOfTheEm) {
  QtFonts fonts;
  EXPECT_EQ(fonts.Get(FontOf(u"DejaVu Sans", 9)).smooth.pixelSize(), 9);
  EXPECT_EQ(fonts.Get(FontOf(u"DejaVu Sans", 4000)).smooth.pixelSize(), 4000);
}

TEST(QtFonts, TakesWeightAndItalic) {
  QtFonts fonts;
  const QFont& bold = fonts.Get({u"DejaVu Sans", 20, 700, true, false}).smooth;
  EXPECT_EQ(bold.weight(), QFont::Bold);
  EXPECT_TRUE(bold.italic());
}

TEST(QtFonts, AnyWeightIsHarmless) {
  QtFonts fonts;
  EXPECT_EQ(fonts.Get({u"DejaVu Sans", 20, -5, false, false}).smooth.weight(), 1);
  EXPECT_EQ(fonts.Get({u"DejaVu Sans", 20, 2000000000, false, false}).smooth.weight(), 1000);
}

TEST(QtFonts, ACommaInAFaceNameSeparatesNothing) {
  QtFonts fonts;
  EXPECT_EQ(fonts.Get(FontOf(u"One, Two")).smooth.families(),
            QStringList{QStringLiteral("One, Two")});
}

TEST(QtFonts, UprightAndLyingTextShareAFont) {
  QtFonts fonts;
  Font font = FontOf(u"DejaVu Sans");
  const QtFonts::Entry* const lying = &fonts.Get(font);
  font.vertical = true;
  EXPECT_EQ(&fonts.Get(font), lying);
}

TEST(QtFonts, ManyFontsPushOutTheOldestOnly) {
  QtFonts fonts;
  for (std::int32_t height = 1; height <= 100; ++height) {
    EXPECT_EQ(fonts.Get(FontOf(u"DejaVu Sans", height)).smooth.pixelSize(), height);
    EXPECT_EQ(fonts.Get(FontOf(u"DejaVu Sans", std::max(1, height - 20))).smooth.pixelSize(),
              std::max(1, height - 20));
  }
}

}  // namespace
}  // namespace mivo
