// The program's own window, for as long as a measurement takes.
//
//   mivo_window start FILE          starts with the file; ends when the window is painted
//   mivo_window open FILE RESULT    starts without; writes to RESULT how many seconds of the
//                                   processor it takes from the Open command to the painted list

#include <sys/resource.h>

#include <QApplication>
#include <cstdlib>
#include <fstream>
#include <memory>

#include "file_writer.h"
#include "first_paint.h"
#include "lb_comp_name.h"
#include "main_frame.h"
#include "mivo_app.h"

namespace mivo::bench {
namespace {

double CpuSeconds() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  const auto seconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_usec);
  };
  return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

int Start(const QStringList& arguments) {
  CMivoApp app;
  app.InitInstance({arguments[0], arguments[2]});
  const FirstPaint painted(app.Frame(), [] { std::_Exit(0); });
  return QApplication::exec();
}

int Open(const QStringList& arguments) {
  CMivoApp app;
  app.InitInstance({arguments[0]});
  CMainFrame& frame = app.Frame();
  std::unique_ptr<FirstPaint> listPainted;
  const FirstPaint framePainted(frame, [&] {
    const double before = CpuSeconds();
    frame.Open(arguments[2]);
    if (frame.Names().Names().rowCount() == 0) std::_Exit(1);
    const auto end = [&arguments, before] {
      std::ofstream(arguments[3].toStdString()) << CpuSeconds() - before;
      std::_Exit(0);
    };
    listPainted = std::make_unique<FirstPaint>(*frame.Names().viewport(), end);
  });
  return QApplication::exec();
}

}  // namespace
}  // namespace mivo::bench

int main(int argc, char** argv) {
  mivo::ReportFileSizeLimitAsFailure();
  const QApplication application(argc, argv);
  QCoreApplication::setApplicationName(QStringLiteral("mivo"));
  const QStringList arguments = QCoreApplication::arguments();
  const QString task = arguments.value(1);
  if (task == QLatin1String("start") && arguments.size() == 3) {
    return mivo::bench::Start(arguments);
  }
  if (task == QLatin1String("open") && arguments.size() == 4) return mivo::bench::Open(arguments);
  return 2;
}
