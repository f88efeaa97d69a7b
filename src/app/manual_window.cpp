#include "manual_window.h"

#include <QFileInfo>
#include <QImage>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>
#include <QUrl>
#include <QVBoxLayout>
#include <algorithm>

#include "qt_text.h"
#include "text_table.h"

namespace mivo {
namespace {

constexpr QSize kFirstSize(760, 640);
constexpr int kMargin = 12;
constexpr int kCellPadding = 4;

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

/// Single lines between the cells, and room around what is in them.
void RuleTables(QTextDocument& document, const QBrush& lines) {
  for (QTextFrame* const frame : document.rootFrame()->childFrames()) {
    auto* const table = qobject_cast<QTextTable*>(frame);
    if (table == nullptr) continue;
    QTextTableFormat format = table->format();
    format.setBorderCollapse(true);
    format.setBorderBrush(lines);
    format.setCellPadding(kCellPadding);
    format.setCellSpacing(0);
    table->setFormat(format);
  }
}

/// Text with pictures, which become as wide as the text at most.
class PicturedText final : public QTextBrowser {
 public:
  using QTextBrowser::QTextBrowser;

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QTextBrowser::resizeEvent(event);
    FitPictures();
  }

 private:
  void FitPictures() {
    const int most = viewport()->width() - 2 * kMargin;
    const qreal ratio = devicePixelRatioF();
    QTextDocument& shown = *document();
    // As one change: each for itself could bring a scroll bar, and with it another width to fit.
    QTextCursor change(&shown);
    change.beginEditBlock();
    for (QTextBlock block = shown.begin(); block.isValid(); block = block.next()) {
      for (auto part = block.begin(); !part.atEnd(); ++part) {
        const QTextFragment fragment = part.fragment();
        if (!fragment.charFormat().isImageFormat()) continue;
        QTextImageFormat picture = fragment.charFormat().toImageFormat();
        QImage image(source().resolved(QUrl(picture.name())).toLocalFile());
        const int width = std::min(most, image.width());
        if (width <= 0 || picture.width() == width) continue;
        // The text's own way to scale leaves letters in the picture ragged.
        image = image.scaledToWidth(qRound(width * ratio), Qt::SmoothTransformation);
        image.setDevicePixelRatio(ratio);
        shown.addResource(QTextDocument::ImageResource,
                          shown.baseUrl().resolved(QUrl(picture.name())), image);
        picture.setWidth(width);
        QTextCursor cursor(&shown);
        cursor.setPosition(fragment.position());
        cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
        cursor.setCharFormat(picture);
        break;  // the block's parts are no longer those that are gone through
      }
    }
    change.endEditBlock();
  }
};

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
    : QDialog(parent) {
  auto* const text = new PicturedText(this);
  setObjectName(QStringLiteral("manual"));
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(ToQString(texts.Text(StringId::ManualTitle)));
  text->setObjectName(QStringLiteral("manualText"));
  text->setAccessibleName(windowTitle());
  text->setOpenExternalLinks(true);
  text->document()->setDocumentMargin(kMargin);
  if (file.isEmpty()) {
    text->setPlainText(ToQString(texts.Text(StringId::ManualMissing)));
  } else {
    text->setSource(QUrl::fromLocalFile(file), QTextDocument::MarkdownResource);
    NameHeadings(*text->document());
    RuleTables(*text->document(), palette().mid());
  }
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->addWidget(text);
  resize(kFirstSize);
}

}  // namespace mivo
