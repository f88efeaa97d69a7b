#include "mivo_app.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QStandardPaths>
#include <algorithm>
#include <limits>

#include "language_library.h"
#include "main_frame.h"
#include "mended_style.h"
#include "path_text.h"
#include "qt_fonts.h"
#include "qt_text.h"
#include "settings_location.h"
#include "window_placement.h"

namespace mivo {
namespace {

constexpr std::int32_t kUseDefault = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kMinWidth = 400;
constexpr std::int32_t kMinHeight = 300;
constexpr QSize kDefaultSize(1100, 720);

std::filesystem::path FolderOf(const QString& path) {
  return PathFromText(ToText(path));
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

CMivoApp::CMivoApp() : CMivoApp(FindSettingsFolders()) {}

CMivoApp::CMivoApp(const SettingsFolders& folders)
    : settings_(ChooseSettingsFile(folders)),
      languageLibrary_(folders.executable / kLanguageLibraryName) {}

CMivoApp::~CMivoApp() = default;

void CMivoApp::InitInstance(const QStringList& arguments) {
  if (texts_.Translate(LoadLanguageLibrary(languageLibrary_))) TranslateToolkit();

  QCoreApplication::setApplicationVersion(ToQString(texts_.Text(StringId::Version)));
  QCommandLineParser parser;
  parser.setApplicationDescription(ToQString(texts_.Text(StringId::Purpose)));
  parser.addHelpOption();
  parser.addVersionOption();
  const QString fileName = ToQString(texts_.Text(StringId::FileArgument));
  parser.addPositionalArgument(fileName, ToQString(texts_.Text(StringId::FileHelp)),
                               QLatin1Char('[') + fileName + QLatin1Char(']'));
  parser.process(arguments);

  InstallFontSubstitutes();
  MendedStyle::UseWhereNeeded();
  frame_ = std::make_unique<CMainFrame>(settings_, texts_);
  ShowFrame();
  const QString argument = parser.positionalArguments().value(0);
  const QFileInfo file(argument);
  const QString path = argument.isEmpty() ? argument : file.absoluteFilePath();
  const bool isTemporary = file.suffix().compare(QLatin1String("tmp"), Qt::CaseInsensitive) == 0;
  // Whoever waits for a temporary file gets that and nothing else.
  const bool isRestored = frame_->OfferRecovery(isTemporary ? path : QString());
  if (!path.isEmpty() && !isRestored) frame_->Open(path);
  if (isTemporary) frame_->SetTemporaryFileMode();
}

void CMivoApp::TranslateToolkit() {
  const QLocale language(ToQString(texts_.Text(StringId::LanguageCode)));
  const auto load = [&](const QString& folder) {
    return toolkitTexts_.load(language, QStringLiteral("qtbase"), QStringLiteral("_"), folder);
  };
  // A toolkit that is a part of the program is installed nowhere.
  if (load(ToQString(TextFromPath(languageLibrary_.parent_path()))) ||
      load(QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QCoreApplication::installTranslator(&toolkitTexts_);
  }
}

void CMivoApp::ShowFrame() {
  const std::int32_t width = settings_.GetInt(u"WindowPosition", u"Width", kUseDefault);
  const std::int32_t height = settings_.GetInt(u"WindowPosition", u"Height", kUseDefault);
  const bool isMaximized =
      settings_.GetInt(u"WindowPosition", u"cmdShow", 1) == WindowPlacement::kMaximized;
  const QSize placed = PlacedSize(*frame_, kDefaultSize);
  frame_->resize(InnerSize(*frame_, {InitialLength(width, kMinWidth, placed.width()),
                                     InitialLength(height, kMinHeight, placed.height())}));
  if (isMaximized) {
    frame_->showMaximized();
  } else {
    frame_->show();
  }
}

}  // namespace mivo
