// A window from nothing to its first paint, and gone again; start_bench.py measures how long that takes.
//
//   tarnwick_start_window empty            the toolkit's own empty main window
//   tarnwick_start_window main [DESIGN]    ours; with a design, until that is painted

#include <QApplication>
#include <QMainWindow>
#include <cstdlib>
#include <cstring>
#include <string>

#include "platform/qt/DocumentsFolder.h"
#include "platform/qt/DrawingSurface.h"
#include "platform/qt/QtApplication.h"
#include "platform/qt/QtHosts.h"
#include "platform/qt/QtSurroundings.h"
#include "shell/CommandLine.h"
#include "shell/Program.h"
#include "store/modUserFolders.h"
#include "window/frmMain.h"

namespace {

/// Ends the process when the window has been painted.
class EmptyWindow final : public QMainWindow {
 protected:
  void paintEvent(QPaintEvent* event) override {
    QMainWindow::paintEvent(event);
    std::_Exit(EXIT_SUCCESS);
  }
};

int RunEmpty(int argc, char** argv) {
  const QApplication application(argc, argv);
  EmptyWindow window;
  window.resize(1200, 800);
  window.show();
  return QApplication::exec();
}

int RunMain(int argc, char** argv) {
  int ownName = 1;
  QApplication application(ownName, argv);
  tarnwick::SetUpApplication(application);
  tarnwick::QtSurroundings surroundings;
  tarnwick::Program program(surroundings.All(), tarnwick::UserStateFolder());
  const std::string design = tarnwick::CommandFile(argc - 1, argv + 1);
  program.Start(tarnwick::DocumentsFolder(), design);
  tarnwick::QtHosts hosts(program);
  tarnwick::frmMain window(program, hosts.All());
  const auto* surface = window.findChild<tarnwick::DrawingSurface*>("PicEditor");
  QObject::connect(surface, &tarnwick::DrawingSurface::Painted, &window, [&] {
    if (design.empty() || !window.windowTitle().startsWith("untitled")) std::_Exit(EXIT_SUCCESS);
  });
  window.show();
  return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  const bool empty = argc > 1 && std::strcmp(argv[1], "empty") == 0;
  return empty ? RunEmpty(argc, argv) : RunMain(argc, argv);
}
