// The icons that are packed are the one that the program draws for its windows. UPDATE_GOLDENS=1
// writes packaging/windows/mivo.ico and packaging/linux/icons anew.

#include <gtest/gtest.h>

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QSvgGenerator>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "command_icon.h"
#include "temp_folder.h"

namespace mivo {
namespace {

bool IsToBeUpdated() {
  return std::getenv("UPDATE_GOLDENS") != nullptr;
}

QImage Picture(const QIcon& icon, int side) {
  return icon.pixmap(QSize(side, side), 1.0).toImage().convertToFormat(QImage::Format_ARGB32);
}

/// A number of an icon file: little-endian.
void Append(std::string& bytes, std::uint32_t number, int size) {
  for (int i = 0; i < size; ++i) bytes.push_back(static_cast<char>(number >> (8 * i) & 0xFF));
}

/// An image as icon files hold it: a bitmap of 32 bits per pixel from the bottom up, whose header
/// counts a mask of one bit per pixel in; the mask is empty, because the pixels have alpha.
std::string Bitmap(const QImage& image) {
  const auto side = static_cast<std::uint32_t>(image.width());
  const std::uint32_t maskBytes = (side + 31) / 32 * 4 * side;
  std::string bytes;
  Append(bytes, 40, 4);
  Append(bytes, side, 4);
  Append(bytes, 2 * side, 4);
  Append(bytes, 1, 2);
  Append(bytes, 32, 2);
  Append(bytes, 0, 4);
  Append(bytes, 4 * side * side + maskBytes, 4);
  bytes.append(16, '\0');
  for (int y = image.height() - 1; y >= 0; --y) {
    for (int x = 0; x < image.width(); ++x) Append(bytes, image.pixel(x, y), 4);
  }
  return bytes.append(maskBytes, '\0');
}

std::string IconFile(const QIcon& icon) {
  const std::vector<int> sides = {16, 20, 24, 32, 40, 48, 64, 128};
  std::string directory;
  Append(directory, 0, 2);
  Append(directory, 1, 2);
  Append(directory, static_cast<std::uint32_t>(sides.size()), 2);
  std::string images;
  for (const int side : sides) {
    const std::string bitmap = Bitmap(Picture(icon, side));
    Append(directory, static_cast<std::uint32_t>(side), 1);
    Append(directory, static_cast<std::uint32_t>(side), 1);
    Append(directory, 0, 2);
    Append(directory, 1, 2);
    Append(directory, 32, 2);
    Append(directory, static_cast<std::uint32_t>(bitmap.size()), 4);
    Append(directory, static_cast<std::uint32_t>(6 + 16 * sides.size() + images.size()), 4);
    images += bitmap;
  }
  return directory + images;
}

std::string ScalableIcon(const QIcon& icon) {
  constexpr QRect kBox(0, 0, 48, 48);
  QBuffer file;
  QSvgGenerator generator;
  generator.setOutputDevice(&file);
  generator.setSize(kBox.size());
  generator.setViewBox(kBox);
  generator.setTitle(QStringLiteral("Mivo"));
  generator.setDescription(QString());
  QPainter painter(&generator);
  icon.paint(&painter, kBox);
  painter.end();
  return file.data().toStdString();
}

QString PathOfIcon(const char* folder, const char* type) {
  const QString path = QStringLiteral(MIVO_ICONS "/%1/apps/mivo.%2").arg(folder, type);
  if (IsToBeUpdated()) QDir().mkpath(QFileInfo(path).path());
  return path;
}

TEST(ProgramIcon, IsTheIconOfTheWindowsExecutable) {
  const std::string drawn = IconFile(ProgramIcon());
  if (IsToBeUpdated()) std::ofstream(MIVO_ICON, std::ios::binary) << drawn;
  EXPECT_TRUE(BytesOf(MIVO_ICON) == drawn) << "UPDATE_GOLDENS=1 draws it anew";
}

class DesktopIconTest : public testing::TestWithParam<int> {};

TEST_P(DesktopIconTest, IsTheProgramIcon) {
  const int side = GetParam();
  const std::string folder = std::to_string(side) + "x" + std::to_string(side);
  const QString path = PathOfIcon(folder.c_str(), "png");
  const QImage drawn = Picture(ProgramIcon(), side);
  if (IsToBeUpdated()) drawn.save(path);
  const QImage packed = QImage(path).convertToFormat(QImage::Format_ARGB32);
  EXPECT_TRUE(packed == drawn) << path.toStdString() << ": UPDATE_GOLDENS=1 draws it anew";
}

INSTANTIATE_TEST_SUITE_P(Sides, DesktopIconTest, testing::Values(16, 22, 24, 32, 48, 64, 128, 256));

TEST(ProgramIcon, IsTheScalableIconOfTheDesktop) {
  const std::filesystem::path path = PathOfIcon("scalable", "svg").toStdString();
  const std::string drawn = ScalableIcon(ProgramIcon());
  if (IsToBeUpdated()) std::ofstream(path, std::ios::binary) << drawn;
  EXPECT_EQ(BytesOf(path), drawn) << "UPDATE_GOLDENS=1 draws it anew";
}

}  // namespace
}  // namespace mivo
