#include <QApplication>
#include <cstdlib>
#include <exception>

#include "platform/qt/DocumentsFolder.h"
#include "platform/qt/QtApplication.h"
#include "platform/qt/QtHosts.h"
#include "platform/qt/QtSurroundings.h"
#include "shell/CommandLine.h"
#include "shell/Program.h"
#include "store/modUserFolders.h"
#include "window/frmMain.h"

namespace {

int Run(int argc, char** argv) {
  int ownName = 1;  // the command line is one path; the toolkit finds no options of its own in it
  QApplication application(ownName, argv);
  tarnwick::SetUpApplication(application);
  tarnwick::QtSurroundings surroundings;
  tarnwick::Program program(surroundings.All(), tarnwick::UserStateFolder());
  program.Start(tarnwick::DocumentsFolder(), tarnwick::CommandFile(argc, argv));
  tarnwick::QtHosts hosts(program);
  tarnwick::frmMain window(program, hosts.All());
  Pause(surroundings.Time);
  window.show();
  return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return Run(argc, argv);
  } catch (const std::exception&) {
    return EXIT_FAILURE;  // what fails before there is a window has nobody to tell
  }
}
