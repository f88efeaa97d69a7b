#include "manual_window.h"

#include <QFileInfo>
#include <QImageReader>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextCursor>
#include <QTextDocument>
#include <QUrl>
#include <QVBoxLayout>
#include <algorithm>

#include "qt_text.h"
#include "text_table.h"

namespace mivo {
namespace {

constexpr QSize kFirstSize(760, 640);
constexpr int kMargin = 12;

/// GitHub's name of a heading, which the links inside the manual use.
QString AnchorOf(const QString& heading) {
  QString anchor = heading.toLower();
  anchor.replace(QLatin1Char(' '), QLatin1Char('-'));
  return anchor;
}

/// Lets links inside the manual find its headings, which Markdown leaves without names.
void NameHeadings(QTextDocument& document) {
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    if (block.blockFormat().headingLevel() == 0) continue;
    QTextCursor cursor(block);
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    QTextCharFormat name;
    name.setAnchor(true);
    name.setAnchorNames({AnchorOf(block.text())});
    cursor.mergeCharFormat(name);
  }
}

}  // namespace

QString FindManual(const QString& programFolder) {
  for (const char* const place :
       {"../../share/doc/mivo/manual.md", "doc/manual.md", "../../docs/manual.md"}) {
    const QFileInfo file(programFolder + QLatin1Char('/') + QLatin1String(place));
    if (file.isFile()) return file.canonicalFilePath();
  }
  return {};
}

ManualWindow::ManualWindow(const TextTable& texts, const QString& file, QWidget* parent)
    : QDialog(parent), browser_(new QTextBrowser(this)) {
  setObjectName(QStringLiteral("manual"));
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(ToQString(texts.Text(StringId::ManualTitle)));
  browser_->setObjectName(QStringLiteral("manualText"));
  browser_->setAccessibleName(windowTitle());
  browser_->setOpenExternalLinks(true);
  browser_->document()->setDocumentMargin(kMargin);
  browser_->viewport()->installEventFilter(this);
  if (file.isEmpty()) {
    browser_->setPlainText(ToQString(texts.Text(StringId::ManualMissing)));
  } else {
    browser_->setSource(QUrl::fromLocalFile(file), QTextDocument::MarkdownResource);
    NameHeadings(*browser_->document());
  }
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->addWidget(browser_);
  resize(kFirstSize);
}

bool ManualWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == browser_->viewport() && event->type() == QEvent::Resize) FitPictures();
  return QDialog::eventFilter(watched, event);
}

void ManualWindow::FitPictures() {
  const int most = browser_->viewport()->width() - 2 * kMargin;
  QTextDocument& document = *browser_->document();
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    for (auto part = block.begin(); !part.atEnd(); ++part) {
      const QTextFragment fragment = part.fragment();
      if (!fragment.charFormat().isImageFormat()) continue;
      QTextImageFormat picture = fragment.charFormat().toImageFormat();
      const QUrl source = browser_->source().resolved(QUrl(picture.name()));
      const int width = std::min(most, QImageReader(source.toLocalFile()).size().width());
      if (width <= 0 || picture.width() == width) continue;
      picture.setWidth(width);
      QTextCursor cursor(&document);
      cursor.setPosition(fragment.position());
      cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
      cursor.setCharFormat(picture);
      break;  // the block's parts are no longer those that are gone through
    }
  }
}

}  // namespace mivo
