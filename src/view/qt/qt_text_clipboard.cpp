#include "qt_text_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include "qt_text.h"

namespace mivo {
namespace {

bool IsActive() {
  return QGuiApplication::applicationState() == Qt::ApplicationActive;
}

/// Whether what the clipboard holds comes from this program, which needs no time to give it.
bool IsOwn() {
  // Without a screen the clipboard is this program's alone, but never says so.
  static const bool isPrivate = QGuiApplication::platformName() == QLatin1String("offscreen");
  return isPrivate || QGuiApplication::clipboard()->ownsClipboard();
}

std::optional<std::u16string> FetchRecords() {
  const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
  if (data == nullptr || !data->hasText()) return std::nullopt;
  const QString text = data->text();
  if (!text.startsWith(QLatin1Char('+'))) return std::nullopt;
  return ToText(text);
}

}  // namespace

QtTextClipboard::QtTextClipboard() : isKnown_(!IsActive() && !IsOwn()) {
  connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, [this] {
    isKnown_ = false;
    TellOfChange();
  });
  connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this] {
    if (!tellWhenActive_ || !IsActive()) return;
    isKnown_ = false;
    TellOfChange();
  });
}

void QtTextClipboard::TellOfChange() {
  tellWhenActive_ = !IsActive() && !IsOwn();
  if (!tellWhenActive_) emit Changed();
}

bool QtTextClipboard::SetText(std::u16string_view text) {
  QGuiApplication::clipboard()->setText(ToQString(text));
  return true;
}

std::optional<std::u16string> QtTextClipboard::GetText() {
  if (!isKnown_) {
    text_ = FetchRecords();
    isKnown_ = true;
  }
  return text_;
}

}  // namespace mivo
