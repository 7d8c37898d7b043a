#include <QApplication>

#include "platform/qt/QtApplication.h"
#include "platform/qt/QtClock.h"
#include "platform/qt/QtMessages.h"
#include "shell/CommandLine.h"
#include "window/frmMain.h"

int main(int argc, char** argv) {
  int ownName = 1;  // the command line is one path; the toolkit finds no options of its own in it
  QApplication application(ownName, argv);
  tarnwick::SetUpApplication(application);
  tarnwick::QtMessages messages;
  tarnwick::QtClock clock;
  tarnwick::frmMain window({.CommandFile = tarnwick::CommandFile(argc, argv)}, messages, clock);
  window.show();
  return QApplication::exec();
}
