#pragma once

#include <string>

#include "platform/Clock.h"
#include "platform/ColorDialog.h"
#include "platform/HelpViewer.h"
#include "platform/Messages.h"
#include "platform/SettingsStore.h"
#include "shell/OpenDesign.h"

namespace tarnwick {

/// The program's ways to its surroundings.
struct Surroundings {
  Messages& Say;
  Clock& Time;
  SettingsStore& Store;
  ColorDialog& Colors;
  HelpViewer& Help;
};

/// What the process holds from its start to its end.
class Program {
 public:
  explicit Program(const Surroundings& surroundings) : Out(surroundings) {}

  Surroundings Out;
  OpenDesign Design;

  /// The first steps of the program, ahead of its window.
  /// @param documents    the user's documents folder
  /// @param commandFile  design to open once the window is there; empty: none
  void Start(const std::string& documents, const std::string& commandFile);

  /// Opens the design of the command line, the first time it is called.
  /// @return whether there was one, whatever became of it
  bool OpenCommandFile();

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
