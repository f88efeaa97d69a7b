#include "image_golden.h"

#include <QImage>
#include <QString>
#include <filesystem>

#include "golden.h"
#include "qt_surface.h"

namespace mivo {
namespace {

struct Difference {
  int pixels = 0;
  QPoint first;
  QImage picture;  // red where they differ
};

Difference Compare(const QImage& kept, const QImage& now) {
  Difference difference;
  difference.picture =
      now.convertToFormat(QImage::Format_Grayscale8).convertToFormat(QImage::Format_RGB32);
  for (int y = 0; y < now.height(); ++y) {
    for (int x = 0; x < now.width(); ++x) {
      if (kept.pixel(x, y) == now.pixel(x, y)) continue;
      if (difference.pixels++ == 0) difference.first = {x, y};
      difference.picture.setPixel(x, y, qRgb(255, 0, 0));
    }
  }
  return difference;
}

}  // namespace

const SCommonFont& GoldenFont() {
  static const SCommonFont font{u"DejaVu Sans", 9, 400, false};
  return font;
}

testing::AssertionResult MatchesImageGolden(const std::string& name, RasterImage& image) {
  const std::filesystem::path golden = std::filesystem::path(MIVO_GOLDENS) / (name + ".png");
  const QString goldenName = QString::fromStdString(golden.string());
  const QImage now = WrapImage(image);
  if (UpdatingGoldens()) {
    std::filesystem::create_directories(golden.parent_path());
    if (now.save(goldenName)) return testing::AssertionSuccess();
    return testing::AssertionFailure() << "cannot write " << golden;
  }
  const QImage kept = QImage(goldenName).convertToFormat(QImage::Format_RGB32);
  if (kept.isNull()) return testing::AssertionFailure() << "no " << golden << "; see golden.h";

  const std::filesystem::path actual = std::filesystem::path(MIVO_ACTUAL) / (name + ".png");
  const auto keepActual = [&](const QImage& picture, const std::filesystem::path& file) {
    std::filesystem::create_directories(file.parent_path());
    picture.save(QString::fromStdString(file.string()));
  };
  const QImage shown = now.convertToFormat(QImage::Format_RGB32);
  if (kept.size() != shown.size()) {
    keepActual(shown, actual);
    return testing::AssertionFailure() << golden << " has another size than " << actual;
  }
  const Difference difference = Compare(kept, shown);
  if (difference.pixels == 0) return testing::AssertionSuccess();
  keepActual(shown, actual);
  keepActual(difference.picture.scaled(4 * shown.size()), actual.string() + ".difference.png");
  return testing::AssertionFailure()
         << difference.pixels << " pixels differ between " << golden << " and " << actual
         << ", first at " << difference.first.x() << ", " << difference.first.y()
         << " (golden.h says how to update)";
}

}  // namespace mivo
