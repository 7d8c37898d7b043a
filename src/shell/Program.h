#pragma once

#include <filesystem>
#include <string>

#include "platform/Clock.h"
#include "platform/ColorDialog.h"
#include "platform/FileDialogs.h"
#include "platform/HelpViewer.h"
#include "platform/Messages.h"
#include "platform/SettingsStore.h"
#include "platform/Trash.h"
#include "shell/OpenDesign.h"
#include "shell/Recovery.h"

namespace tarnwick {

/// The program's ways to its surroundings.
struct Surroundings {
  Messages& Say;
  Clock& Time;
  SettingsStore& Store;
  ColorDialog& Colors;
  HelpViewer& Help;
  FileDialogs& Files;
  Trash& Bin;
};

/// What the process holds from its start to its end.
class Program {
 public:
  /// @param stateFolder  of the user, for the copy that outlives a crash; empty: none is kept
  explicit Program(const Surroundings& surroundings, const std::filesystem::path& stateFolder = {})
      : Out(surroundings), Copies(stateFolder) {}

  Surroundings Out;
  OpenDesign Design;
  Recovery Copies;

  /// The first steps of the program, ahead of its window.
  /// @param documents    the user's documents folder
  /// @param commandFile  design to open once the window is there; empty: none
  void Start(const std::string& documents, const std::string& commandFile);

  /// The design of the command line, the first time it is called; empty: none.
  [[nodiscard]] std::string TakeCommandFile();

  /// Writes the settings; a failure is told.
  void SaveSettings() const;

  /// Puts the open design at the top of the recent files, and writes the settings.
  void AddToRecent();

 private:
  std::string commandFile_;
};

}  // namespace tarnwick
