#ifndef MIVO_VIEW_QT_TEXT_H
#define MIVO_VIEW_QT_TEXT_H

#include <QString>
#include <string>
#include <string_view>

namespace mivo {

// Every character passes unchanged, lone surrogates and byte-order marks included.

[[nodiscard]] inline QString ToQString(std::u16string_view text) {
  return QStringView(text.data(), static_cast<qsizetype>(text.size())).toString();
}

[[nodiscard]] inline std::u16string ToText(const QString& text) {
  return text.toStdU16String();
}

}  // namespace mivo

#endif
