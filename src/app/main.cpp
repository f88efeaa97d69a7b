#include <QApplication>

#include "file_writer.h"
#include "mivo_app.h"
#include "outlined_style.h"

int main(int argc, char** argv) {
  mivo::ReportFileSizeLimitAsFailure();
  QApplication application(argc, argv);
  QCoreApplication::setApplicationName(QStringLiteral("mivo"));
  mivo::OutlinedStyle::UseWhereNeeded();
  mivo::CMivoApp app;
  app.InitInstance(QCoreApplication::arguments());
  return QApplication::exec();
}
