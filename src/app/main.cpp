#include <QApplication>

#include "file_writer.h"
#include "font_configuration.h"
#include "mivo_app.h"

int main(int argc, char** argv) {
  mivo::ReportFileSizeLimitAsFailure();
  mivo::FontConfiguration fonts;
  QApplication application(argc, argv);
  QCoreApplication::setApplicationName(QStringLiteral("mivo"));
  fonts.Await();
  mivo::CMivoApp app;
  app.InitInstance(QCoreApplication::arguments());
  return QApplication::exec();
}
