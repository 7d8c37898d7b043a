#include <QApplication>
#include <cstdlib>
#include <exception>
#include <memory>

#include "platform/qt/DocumentsFolder.h"
#include "platform/qt/QtApplication.h"
#include "platform/qt/QtClock.h"
#include "platform/qt/QtColorDialog.h"
#include "platform/qt/QtDialogHost.h"
#include "platform/qt/QtFileDialogs.h"
#include "platform/qt/QtHelpViewer.h"
#include "platform/qt/QtMessages.h"
#include "platform/qt/QtTrash.h"
#include "shell/CommandLine.h"
#include "shell/Program.h"
#include "store/modUserFolders.h"
#include "store/modUserStore.h"
#include "window/frmMain.h"

namespace {

int Run(int argc, char** argv) {
  int ownName = 1;  // the command line is one path; the toolkit finds no options of its own in it
  QApplication application(ownName, argv);
  tarnwick::SetUpApplication(application);
  tarnwick::QtMessages messages;
  tarnwick::QtClock clock;
  tarnwick::QtColorDialog colors;
  tarnwick::QtHelpViewer help;
  tarnwick::QtFileDialogs files;
  tarnwick::QtTrash trash;
  const std::unique_ptr<tarnwick::SettingsStore> store = tarnwick::UserSettingsStore();

  tarnwick::Program program({messages, clock, *store, colors, help, files, trash},
                            tarnwick::UserStateFolder());
  program.Start(tarnwick::DocumentsFolder(), tarnwick::CommandFile(argc, argv));
  tarnwick::QtDialogHost dialogs(help);
  tarnwick::frmMain window(program, dialogs);
  Pause(clock);
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
