#include "about_dlg.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>

#include "dialog_texts.h"

namespace mivo {
namespace {

namespace text = dialog_text::about;

}  // namespace

CAboutDlg::CAboutDlg(const TextTable& texts, QWidget* parent)
    : FormDialog(texts, text::kTitle, parent) {
  auto* const icon = new QLabel(this);
  icon->setObjectName(QStringLiteral("iconLabel"));
  // As tall as a few lines of text, so that it grows with the font.
  constexpr int kIconLines = 3;
  const int side = kIconLines * fontMetrics().lineSpacing();
  icon->setPixmap(windowIcon().pixmap(QSize(side, side), devicePixelRatio()));

  auto* const version = new QLabel(Text(text::kVersion) + Text(StringId::Version), this);
  version->setObjectName(QStringLiteral("versionLabel"));
  version->setTextFormat(Qt::PlainText);

  auto* const row = new QHBoxLayout;
  row->setSpacing(2 * fontMetrics().averageCharWidth());
  row->addWidget(icon);
  row->addWidget(version, 1);
  Finish(row, Buttons::Ok);
}

}  // namespace mivo
