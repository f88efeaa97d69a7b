#include "qt_text_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include "qt_text.h"

namespace mivo {

bool QtTextClipboard::SetText(std::u16string_view text) {
  QGuiApplication::clipboard()->setText(ToQString(text));
  return true;
}

std::optional<std::u16string> QtTextClipboard::GetText() {
  const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
  if (data == nullptr || !data->hasText()) return std::nullopt;
  return data->text().toStdU16String();
}

}  // namespace mivo
