// A window of the toolkit with nothing in it, as large as Mivo's: the least that a start can take.

#include <QApplication>
#include <QWidget>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QWidget window;
  window.setWindowTitle(QStringLiteral("Empty window"));
  window.resize(1100, 720);
  window.show();
  return QApplication::exec();
}
