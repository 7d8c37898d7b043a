#pragma once

#include <string>

#include "shell/Program.h"
#include "support/CollectedMessages.h"
#include "support/MemoryStore.h"
#include "support/RecordingHelpViewer.h"
#include "support/RecordingTrash.h"
#include "support/ScriptedColorDialog.h"
#include "support/ScriptedFileDialogs.h"
#include "support/StoppedClock.h"
#include "support/TemporaryFolder.h"

namespace tarnwick::test {

/// A program among surroundings of its own: nothing of the computer is touched.
struct TestProgram {
  CollectedMessages Say;
  StoppedClock Time;
  MemoryStore Store;
  ScriptedColorDialog Colors;
  RecordingHelpViewer Help;
  ScriptedFileDialogs Files;
  RecordingTrash Bin;
  TemporaryFolder Documents, State;

  Program Process{{Say, Time, Store, Colors, Help, Files, Bin}, State.Path()};

  void Start(const std::string& commandFile = {}) { Process.Start(Documents.Path().string(), commandFile); }
};

}  // namespace tarnwick::test
