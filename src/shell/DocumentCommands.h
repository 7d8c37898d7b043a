#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "entry/DialogHost.h"
#include "shell/Program.h"
#include "window/MainView.h"

namespace tarnwick {

/// What the document commands need of the main window beside its panels.
class DocumentView {
 public:
  virtual ~DocumentView() = default;
  virtual void ShowCaption() = 0;
  virtual void ShowRecentFiles() = 0;
  virtual void ShowTeethDirection() = 0;
  virtual void SetBusy(bool busy) = 0;  // hourglass; some commands cannot be picked
  virtual void ShowAnimation() = 0;     // plays to its end, or until somebody wants to go on
  virtual void HideAnimation() = 0;
  virtual void LetEventsRun() = 0;  // a long piece of work keeps the window alive by it
};

/// New, Open, Save and their kin: what they ask, word for word, and what becomes of the open design.
///
/// While a command runs, everything that asks for another is ignored. A failure that has no words of its own
/// is told by its number.
class DocumentCommands {
 public:
  struct Desk {
    Program& Process;
    DialogHost& Dialogs;
    MainView& Panels;
    DocumentView& Window;
  };
  explicit DocumentCommands(const Desk& desk) : desk_(desk) {}

  /// The window is there: the design that a crash has left comes up, if the user wants it, else that of the
  /// command line.
  void Begin();

  /// Keeps the copy that outlives a crash up to date. To be called every RecoveryInterval, also while a
  /// dialog is open.
  void NoteForRecovery();

  void New();
  void NewStepByStep();
  void Open();
  void OpenRecent(std::size_t index);  // counted from 0
  void Save();
  void SaveAs();
  void ExportDxf();
  void SaveText();

  /// Opens a file without any question. One that is no band saw file is removed from its place.
  void OpenNamedFile(const std::string& name, const std::string& folder);

  /// Asks for a place and writes the design there, whatever name it has.
  /// @return whether it was written
  bool SaveBeforeLeaving();

  /// The window wants to close. False: it stays.
  [[nodiscard]] bool MayClose();

  /// 1: from left to right, 2: the other way. The one in force does nothing.
  void SetTeethDirection(std::int16_t direction);

  [[nodiscard]] bool IsBusy() const { return busy_; }

 private:
  enum class Refused { Removed, Kept };
  class Work;

  [[nodiscard]] OpenDesign& Design() const { return desk_.Process.Design; }
  Button Ask(const Box& box) const { return desk_.Process.Out.Say.Show(box); }
  [[nodiscard]] bool SavesOrGivesUp(const Box& question);
  [[nodiscard]] bool MayLeave(std::string_view changed);
  [[nodiscard]] bool MayOpenAgain();
  void OpenCommandFile();
  /// A failure that has no words of its own is told under the name of the activity.
  void TellWhatFails(std::string_view activity, std::string_view procedure,
                     const std::function<void()>& act) const;
  void BeginBlank();
  void FillAll();
  void AskAndOpen();
  void OpenRecentFile(const RecentFile& file);
  void AskAndSave();
  void AskAndSaveAs();
  bool AskAndSaveBeforeLeaving();
  void OpenFile(const std::string& name, const std::string& folder, Refused refused);
  void ShowOpened();
  void ShowRefused(Refused refused);
  bool TakeSaveName(bool warn);
  [[nodiscard]] bool MayReplace(const std::string& path) const;
  bool Write(std::string_view procedure);
  void ExportDrawing();
  void TellFailure(std::error_code failure, std::string_view procedure) const;
  void Recalculate();

  Desk desk_;
  bool busy_ = false;
};

}  // namespace tarnwick
