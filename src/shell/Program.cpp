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

bool Program::OpenCommandFile() {
  const std::string path = TakeCommandFile();
  if (path.empty()) return false;
  if (Design.OpenPath(path, Out.Say)) AddToRecent();
  return true;
}

void Program::SaveSettings() const { SaveConfigOrTell(Design.Settings, Out.Store, Out.Say); }

void Program::AddToRecent() {
  AddRecent(Design.Settings.Recent, Design.FileName, Design.SawDir());
  SaveSettings();
}

}  // namespace tarnwick
