#ifndef MIVO_VIEW_QT_FONTS_H
#define MIVO_VIEW_QT_FONTS_H

#include <QFont>
#include <QFontMetrics>
#include <vector>

#include "drawing_surface.h"

namespace mivo {

/// Registers a replacement for the fonts that libraries and settings name by tradition, "Tahoma"
/// and "MS UI Gothic", where they are not installed. Stored names stay as they are. Call it once,
/// after the application object exists.
void InstallFontSubstitutes();

/// The toolkit's fonts for descriptions, kept while they are in use: making one costs more than
/// drawing a word with it. Letters are as wide in a word as alone, so that a text and its parts
/// measure the same.
class QtFonts {
 public:
  struct Entry {
    Font font;
    QFont smooth;
    QFont hardEdged;
    QFontMetrics metrics;
  };

  /// Valid until the next call. `font.vertical` does not matter.
  [[nodiscard]] const Entry& Get(const Font& font);

 private:
  static constexpr std::size_t kMaxEntries = 32;
  std::vector<Entry> entries_;
};

}  // namespace mivo

#endif
