#pragma once

#include <memory>

#include "platform/qt/QtClock.h"
#include "platform/qt/QtColorDialog.h"
#include "platform/qt/QtFileDialogs.h"
#include "platform/qt/QtHelpViewer.h"
#include "platform/qt/QtMessages.h"
#include "platform/qt/QtTrash.h"
#include "shell/Program.h"
#include "store/modUserStore.h"

namespace tarnwick {

/// The surroundings of the program on a desktop.
struct QtSurroundings {
  QtMessages Say;
  QtClock Time;
  std::unique_ptr<SettingsStore> Store = UserSettingsStore();
  QtColorDialog Colors;
  QtHelpViewer Help;
  QtFileDialogs Files;
  QtTrash Bin;

  [[nodiscard]] Surroundings All() { return {Say, Time, *Store, Colors, Help, Files, Bin}; }
};

}  // namespace tarnwick
