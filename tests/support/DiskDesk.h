#pragma once

#include <deque>
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/Clock.h"
#include "shell/DocumentCommands.h"
#include "store/modPath.h"
#include "store/modSettingsFile.h"
#include "support/NoPanels.h"
#include "support/RecordingHelpViewer.h"
#include "support/RecordingTrash.h"
#include "support/ScriptedColorDialog.h"
#include "support/StoppedClock.h"

namespace tarnwick::test {

/// A program whose documents, settings and copies all lie on the disk, in one folder: "documents", "config"
/// and "state". The user chooses the file that lies ready, and says yes. Nothing is shown.
class DiskDesk final : public Messages,
                       public FileDialogs,
                       public DialogHost,
                       public NoPanels,
                       public DocumentView {
 public:
  explicit DiskDesk(const std::filesystem::path& folder)
      : folder_(folder), Store(folder / "config"), Process(Out(), folder / "state") {
    Process.Start(PathText(folder / "documents"), {});
    Process.Design.Settings.CurrentSawDir = PathText(folder / "documents") + PathSeparator;
    Process.Design.View.SetSurface({8, 6});
  }
  DiskDesk(const DiskDesk&) = delete;
  DiskDesk& operator=(const DiskDesk&) = delete;

  /// The design with that hook angle, as it was saved under that name.
  void OpenSaved(const BandSaw& saw, const std::string& name) {
    Process.Design.Saw = saw;
    Process.Design.Recalculate(*this);
    Process.Design.KeepAsSaved();
    Process.Design.FileName = name;
  }

  void Choose(const std::string& name) { chosen_ = PathText(folder_ / "documents" / name); }

  /// Title and text of all boxes that only tell, a line break behind each; line breaks within are bars.
  [[nodiscard]] std::string Told() const {
    std::string lines;
    for (std::string line : told_) {
      for (char& c : line)
        if (c == '\n') c = '|';
      lines += line + '\n';
    }
    return lines;
  }

  Button Show(const Box& box) override {
    if (box.Offer != Buttons::Ok) return Button::Yes;
    told_.push_back(box.Title + ": " + box.Text);
    return Button::Ok;
  }
  std::optional<std::string> AskOpen(const FileQuestion&) override { return chosen_; }
  std::optional<std::string> AskSave(const FileQuestion&) override { return chosen_; }
  void Run(ValueDialog& dialog) override { dialog.PressCancel(); }
  void Run(YesNoDialog& dialog) override { dialog.PressCancel(); }

  void ShowCaption() override {}
  void ShowRecentFiles() override {}
  void ShowTeethDirection() override {}
  void SetBusy(bool busy) override { IsBusy = busy; }
  void ShowAnimation() override {}
  void HideAnimation() override {}
  void LetEventsRun() override {}

  bool IsBusy = false;

 private:
  Surroundings Out() { return {*this, time_, Store, colors_, help_, *this, bin_}; }

  std::filesystem::path folder_;
  std::optional<std::string> chosen_;
  std::vector<std::string> told_;
  StoppedClock time_;
  ScriptedColorDialog colors_;
  RecordingHelpViewer help_;
  RecordingTrash bin_;

 public:
  SettingsFile Store;
  Program Process;
  DocumentCommands Commands{{Process, *this, *this, *this}};
};

}  // namespace tarnwick::test
