#include <QApplication>

#include "mivo_app.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QCoreApplication::setApplicationName(QStringLiteral("mivo"));
  mivo::CMivoApp app;
  app.InitInstance();
  return QApplication::exec();
}
