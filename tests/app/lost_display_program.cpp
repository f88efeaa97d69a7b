// A Mivo that edits the library on its command line, says so, and goes on running.

#include <QApplication>
#include <cstdio>

#include "comp_edit_view.h"
#include "main_frame.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  mivo::SettingsFile settings("");
  const mivo::TextTable texts;
  mivo::CMainFrame frame(settings, texts);
  frame.show();
  frame.Open(QString::fromLocal8Bit(argv[1]));
  mivo::CompEditor& editor = frame.View().Editor();
  if (!editor.SelectPin(editor.Component()->Pins().front().location)) return 2;
  frame.Action(mivo::Command::Delete)->trigger();
  std::puts("edited");
  std::fflush(stdout);
  return QApplication::exec();
}
