// The manual tells the truth about the keys, and can be opened.

#include <QAction>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextDocument>
#include <QTextImageFormat>
#include <QTextStream>
#include <algorithm>
#include <map>
#include <vector>

#include "command_actions.h"
#include "frame_rig.h"
#include "manual_window.h"
#include "wait_until.h"

namespace mivo {
namespace {

using KeyTable = std::map<std::string, std::string>;

/// The keys of every command that has any, by the command's name without mnemonic and dots.
KeyTable KeysOfTheProgram() {
  const CommandActions actions{TextTable()};
  KeyTable table;
  for (const auto& [command, action] : actions.All()) {
    const QString text = action->text();
    QString name = text.section(QLatin1Char('\t'), 0, 0);
    name.remove(QLatin1Char('&')).remove(QStringLiteral("..."));
    QStringList keys;
    if (text.contains(QLatin1Char('\t'))) keys += text.section(QLatin1Char('\t'), 1);
    for (const QKeySequence& shortcut : action->shortcuts()) {
      const QString key = shortcut.toString(QKeySequence::PortableText);
      if (!keys.contains(key)) keys += key;
    }
    if (!keys.isEmpty()) table[name.toStdString()] = keys.join(QStringLiteral(", ")).toStdString();
  }
  return table;
}

/// The rows of the manual's table of commands and keys.
KeyTable KeysOfTheManual() {
  QFile file(QStringLiteral(MIVO_MANUAL));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  QTextStream lines(&file);
  KeyTable table;
  bool inside = false;
  for (QString line = lines.readLine(); !line.isNull(); line = lines.readLine()) {
    if (line == QLatin1String("| Command | Keys |")) {
      inside = true;
      lines.readLine();  // the rule below the titles
    } else if (inside && !line.startsWith(QLatin1Char('|'))) {
      break;
    } else if (inside) {
      const QStringList cells = line.split(QLatin1Char('|'));
      table[cells.value(1).trimmed().toStdString()] = cells.value(2).trimmed().toStdString();
    }
  }
  return table;
}

TEST(Manual, TellsTheKeysOfAllCommands) {
  EXPECT_EQ(KeysOfTheManual(), KeysOfTheProgram());
  EXPECT_GE(KeysOfTheManual().size(), 20u);
}

class ManualPlaceTest : public testing::TestWithParam<const char*> {};

TEST_P(ManualPlaceTest, IsFound) {
  const TempFolder folder;
  const QDir root(QString::fromStdString(folder.Path().string()));
  const QString file = root.filePath(QLatin1String("x/bin/") + QLatin1String(GetParam()));
  ASSERT_TRUE(root.mkpath(QStringLiteral("x/bin")));
  ASSERT_TRUE(root.mkpath(QFileInfo(QDir::cleanPath(file)).path()));
  EXPECT_EQ(FindManual(root.filePath(QStringLiteral("x/bin"))), QString());
  QFile manual(QDir::cleanPath(file));
  ASSERT_TRUE(manual.open(QIODevice::WriteOnly));
  EXPECT_EQ(FindManual(root.filePath(QStringLiteral("x/bin"))),
            QFileInfo(manual).canonicalFilePath());
}

INSTANTIATE_TEST_SUITE_P(InstalledUnpackedBuilt, ManualPlaceTest,
                         testing::Values("../../share/doc/mivo/manual.md", "doc/manual.md",
                                         "../../docs/manual.md"));

class ManualWindowTest : public FrameTest {
 protected:
  [[nodiscard]] static QTextBrowser& TextOf(ManualWindow& window) {
    return *window.findChild<QTextBrowser*>();
  }
};

TEST_F(ManualWindowTest, ShowsTheManualWithItsPictures) {
  const TextTable texts;
  auto* const window = new ManualWindow(texts, QStringLiteral(MIVO_MANUAL), nullptr);
  window->show();
  QTextBrowser& text = TextOf(*window);
  EXPECT_TRUE(text.toPlainText().startsWith(QStringLiteral("Mivo: the manual")));
  QFile file(QStringLiteral(MIVO_MANUAL));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QStringList parts = QString::fromUtf8(file.readAll()).split(QStringLiteral("](images/"));
  ASSERT_GE(parts.size(), 4);
  for (qsizetype i = 1; i < parts.size(); ++i) {
    const QString picture = QStringLiteral("images/") + parts[i].section(QLatin1Char(')'), 0, 0);
    EXPECT_FALSE(text.loadResource(QTextDocument::ImageResource, QUrl(picture)).isNull())
        << picture.toStdString();
  }
  window->close();
}

std::vector<QTextImageFormat> PicturesIn(const QTextDocument& document) {
  std::vector<QTextImageFormat> pictures;
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    for (auto part = block.begin(); !part.atEnd(); ++part) {
      const QTextCharFormat format = part.fragment().charFormat();
      if (format.isImageFormat()) pictures.push_back(format.toImageFormat());
    }
  }
  return pictures;
}

TEST_F(ManualWindowTest, PicturesAreAsWideAsTheTextAtMost) {
  const TextTable texts;
  auto* const window = new ManualWindow(texts, QStringLiteral(MIVO_MANUAL), nullptr);
  window->show();
  for (const int width : {760, 520, 2000}) {  // in which the tables have room
    window->resize(width, 600);
    QTextBrowser& text = TextOf(*window);
    ASSERT_TRUE(WaitUntil([&] { return text.width() == width; }));
    EXPECT_EQ(text.horizontalScrollBar()->maximum(), 0);
    const std::vector<QTextImageFormat> pictures = PicturesIn(*text.document());
    ASSERT_GE(pictures.size(), 4u);
    const double room = text.viewport()->width();
    for (const QTextImageFormat& picture : pictures) {
      EXPECT_LT(picture.width(), room);
      EXPECT_GT(picture.width(), std::min(room - 50, 600.0)) << "but no smaller than it has to be";
      const QVariant image =
          text.document()->resource(QTextDocument::ImageResource, QUrl(picture.name()));
      EXPECT_EQ(image.value<QImage>().width(), picture.width()) << "not scaled when it is drawn";
    }
  }
  window->close();
}

TEST_F(ManualWindowTest, LinksLeadToTheirHeadings) {
  const TextTable texts;
  auto* const window = new ManualWindow(texts, QStringLiteral(MIVO_MANUAL), nullptr);
  window->show();
  QTextBrowser& text = TextOf(*window);
  EXPECT_EQ(text.verticalScrollBar()->value(), 0);
  text.scrollToAnchor(QStringLiteral("keys"));
  EXPECT_GT(text.verticalScrollBar()->value(), text.verticalScrollBar()->maximum() / 2);
  window->close();
}

TEST_F(ManualWindowTest, TheCommandOpensOneWindow) {
  Frame().show();
  Trigger(Command::Manual);
  Trigger(Command::Manual);
  const QList<ManualWindow*> windows = Frame().findChildren<ManualWindow*>();
  ASSERT_EQ(windows.size(), 1);
  EXPECT_TRUE(windows.front()->isVisible());
  windows.front()->close();
  EXPECT_TRUE(WaitUntil([&] { return Frame().findChildren<ManualWindow*>().isEmpty(); }));
}

}  // namespace
}  // namespace mivo
