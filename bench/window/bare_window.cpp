// An empty window of the toolkit: what every program of its kind costs. Ends when it is painted.

#include <QApplication>
#include <QMainWindow>
#include <cstdlib>

#include "first_paint.h"

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QMainWindow window;
  window.resize(1100, 720);
  const mivo::bench::FirstPaint painted(window, [] { std::_Exit(0); });
  window.show();
  return QApplication::exec();
}
