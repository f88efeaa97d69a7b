#include <QApplication>

#include "file_writer.h"
#include "mivo_app.h"

int main(int argc, char** argv) {
  mivo::ReportFileSizeLimitAsFailure();
  QApplication application(argc, argv);
  QCoreApplication::setApplicationName(QStringLiteral("mivo"));
  mivo::CMivoApp app;
  app.InitInstance(QCoreApplication::arguments());
  return QApplication::exec();
}
