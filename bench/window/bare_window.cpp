// An empty window of the toolkit: what every program of its kind costs. Ends when it is painted.
//
//   bare_window          nothing in it
//   bare_window word     a menu and a label of one word each: what the first letters cost

#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <cstdlib>

#include "first_paint.h"

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QMainWindow window;
  window.resize(1100, 720);
  if (argc == 2) {
    window.menuBar()->addMenu(QStringLiteral("Menu"));
    window.setCentralWidget(new QLabel(QStringLiteral("word")));
  }
  const mivo::bench::FirstPaint painted(window, [] { std::_Exit(0); });
  window.show();
  return QApplication::exec();
}
