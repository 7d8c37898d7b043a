#include "shell/Program.h"

#include <utility>

namespace tarnwick {

void Program::Start(const std::string& documents, const std::string& commandFile) {
  commandFile_ = commandFile;
  if (!LoadConfig(Design.Settings, Out.Store, documents)) DefaultConfig(Design.Settings, documents);
  Design.ApplySettings();
  Design.ResetUnits();
  Design.KeepAsSaved();
}

std::string Program::TakeCommandFile() { return std::exchange(commandFile_, {}); }

void Program::SaveSettings() const { SaveConfigOrTell(Design.Settings, Out.Store, Out.Say); }

void Program::AddToRecent() {
  AddRecent(Design.Settings.Recent, Design.FileName, Design.SawDir());
  SaveSettings();
}

}  // namespace tarnwick
