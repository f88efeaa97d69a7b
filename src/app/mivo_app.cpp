#include "mivo_app.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <algorithm>
#include <limits>

#include "main_frame.h"
#include "path_text.h"
#include "qt_text.h"
#include "settings_location.h"

namespace mivo {
namespace {

constexpr std::int32_t kUseDefault = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kMaximized = 3;
constexpr std::int32_t kMinWidth = 400;
constexpr std::int32_t kMinHeight = 300;
constexpr QSize kDefaultSize(1100, 720);

std::filesystem::path FolderOf(const QString& path) {
  return PathFromText(path.toStdU16String());
}

SettingsFolders FindSettingsFolders() {
  const QFileInfo program(QCoreApplication::applicationFilePath());
  return {FolderOf(QFileInfo(program.canonicalFilePath()).absolutePath()),
          FolderOf(QDir::currentPath()),
          FolderOf(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation))};
}

std::int32_t InitialLength(std::int32_t stored, std::int32_t smallest, std::int32_t usual) {
  return stored == kUseDefault ? usual : std::max(stored, smallest);
}

}  // namespace

CMivoApp::CMivoApp() : settings_(ChooseSettingsFile(FindSettingsFolders())) {}

CMivoApp::~CMivoApp() = default;

void CMivoApp::InitInstance() {
  QCoreApplication::setApplicationVersion(ToQString(texts_.Text(StringId::Version)));
  QCommandLineParser parser;
  parser.setApplicationDescription(QStringLiteral("Editor of schematic component libraries"));
  parser.addHelpOption();
  parser.addVersionOption();
  parser.addPositionalArgument(QStringLiteral("file"),
                               QStringLiteral("library or schematic to open"),
                               QStringLiteral("[file]"));
  parser.process(*QCoreApplication::instance());

  frame_ = std::make_unique<CMainFrame>(settings_, texts_);
  ShowFrame();
  const QString file = parser.positionalArguments().value(0);
  if (file.isEmpty()) return;
  frame_->Open(QFileInfo(file).absoluteFilePath());
  if (QFileInfo(file).suffix().compare(QLatin1String("tmp"), Qt::CaseInsensitive) == 0) {
    frame_->SetTemporaryFileMode();
  }
}

void CMivoApp::ShowFrame() {
  const std::int32_t width = settings_.GetInt(u"WindowPosition", u"Width", kUseDefault);
  const std::int32_t height = settings_.GetInt(u"WindowPosition", u"Height", kUseDefault);
  const bool isMaximized = settings_.GetInt(u"WindowPosition", u"cmdShow", 1) == kMaximized;
  frame_->resize(InitialLength(width, kMinWidth, kDefaultSize.width()),
                 InitialLength(height, kMinHeight, kDefaultSize.height()));
  if (isMaximized) {
    frame_->showMaximized();
  } else {
    frame_->show();
  }
}

}  // namespace mivo
