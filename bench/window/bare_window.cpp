// An empty window of the toolkit: what every program of its kind costs.
//
//   bare_window          nothing in it; ends when it is painted
//   bare_window word     a menu and a label of one word each: what the first letters cost
//   bare_window parts    the parts of Mivo's window made of the toolkit's own widgets, with nothing
//                        behind them: what any program with such a window pays
//   bare_window stay     nothing in it; ends when it is closed, for those who look from outside

#include <QApplication>
#include <QDockWidget>
#include <QLabel>
#include <QListWidget>
#include <QMainWindow>
#include <QMenuBar>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QStatusBar>
#include <QToolBar>
#include <QVBoxLayout>
#include <cstdlib>
#include <optional>
#include <string_view>

#include "first_paint.h"

namespace {

void AddWords(QMainWindow& window) {
  window.menuBar()->addMenu(QStringLiteral("Menu"));
  window.setCentralWidget(new QLabel(QStringLiteral("word")));
}

/// As many menus, commands, buttons, rows and panes as Mivo shows at its start.
void AddParts(QMainWindow& window) {
  constexpr int kMenus = 6;
  constexpr int kMenuCommands = 7;
  constexpr int kButtons = 22;
  constexpr int kNames = 10;
  QToolBar* const toolBar = window.addToolBar(QStringLiteral("Tools"));
  toolBar->setMovable(false);
  QPixmap picture(16, 16);
  picture.fill(Qt::darkGray);
  int command = 0;
  for (int menu = 0; menu < kMenus; ++menu) {
    QMenu* const added = window.menuBar()->addMenu(QStringLiteral("Menu %1").arg(menu));
    for (int item = 0; item < kMenuCommands; ++item, ++command) {
      QAction* const action = added->addAction(picture, QStringLiteral("Command %1").arg(command));
      if (command < kButtons) toolBar->addAction(action);
    }
  }

  auto* const dock = new QDockWidget;
  dock->setTitleBarWidget(new QWidget);
  auto* const pane = new QWidget;
  auto* const layout = new QVBoxLayout(pane);
  auto* const list = new QListWidget;
  for (int name = 0; name < kNames; ++name) list->addItem(QStringLiteral("Name %1").arg(name));
  layout->addWidget(list);
  layout->addWidget(new QPlainTextEdit(QStringLiteral("A note")));
  dock->setWidget(pane);
  window.addDockWidget(Qt::LeftDockWidgetArea, dock);

  auto* const area = new QAbstractScrollArea;
  area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  window.setCentralWidget(area);

  window.statusBar()->addWidget(new QLabel(QStringLiteral("Ready")), 1);
  for (const char* const lock : {"CAP", "NUM", "SCRL"}) {
    window.statusBar()->addPermanentWidget(new QLabel(QLatin1String(lock)));
  }
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QMainWindow window;
  window.setWindowTitle(QStringLiteral("Empty window"));
  window.resize(1100, 720);
  const std::string_view task = argc == 2 ? argv[1] : "";
  if (task == "word") AddWords(window);
  if (task == "parts") AddParts(window);
  std::optional<mivo::bench::FirstPaint> painted;
  if (task != "stay") painted.emplace(window, [] { std::_Exit(0); });
  window.show();
  return QApplication::exec();
}
