#include "qt_fonts.h"

#include <QFontDatabase>
#include <QString>
#include <QStringList>
#include <algorithm>

#include "qt_text.h"

namespace mivo {
namespace {

QFont MakeFont(const Font& font, QFont::StyleStrategy edges) {
  QFont made;
  // The replacement by name, for which the toolkit need not search. A comma in a name separates
  // nothing.
  made.setFamilies({QFont::substitute(ToQString(font.face))});
  made.setPixelSize(font.height);
  made.setWeight(static_cast<QFont::Weight>(std::clamp(font.weight, 1, 1000)));
  made.setItalic(font.italic);
  made.setKerning(false);
  made.setHintingPreference(QFont::PreferFullHinting);
  made.setStyleStrategy(
      static_cast<QFont::StyleStrategy>(QFont::PreferOutline | QFont::PreferNoShaping | edges));
  return made;
}

}  // namespace

void InstallFontSubstitutes() {
  // Letters as upright and open as Tahoma's, still clear at nine pixels. Nearly all of them keep
  // within the eight units that a pin's box allows for a character.
  const QString substitute = QStringLiteral("DejaVu Sans");
  const QStringList families = QFontDatabase::families();
  for (const char* face : {"Tahoma", "MS UI Gothic"}) {
    const QString name = QString::fromLatin1(face);
    if (!families.contains(name, Qt::CaseInsensitive)) {
      QFont::insertSubstitution(name, substitute);
    }
  }
}

const QtFonts::Entry& QtFonts::Get(const Font& font) {
  Font key = font;
  key.vertical = false;
  const auto found = std::find_if(entries_.begin(), entries_.end(),
                                  [&](const Entry& entry) { return entry.font == key; });
  if (found != entries_.end()) return *found;
  if (entries_.size() == kMaxEntries) entries_.erase(entries_.begin());
  const QFont smooth = MakeFont(
      key, static_cast<QFont::StyleStrategy>(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
  entries_.push_back(
      {std::move(key), smooth, MakeFont(font, QFont::NoAntialias), QFontMetrics(smooth)});
  return entries_.back();
}

}  // namespace mivo
