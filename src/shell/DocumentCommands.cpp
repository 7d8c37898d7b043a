#include "shell/DocumentCommands.h"

#include <utility>

#include "dxf/modDXF.h"
#include "entry/StepByStep.h"
#include "print/modText.h"
#include "shell/ProgramQuestions.h"
#include "shell/SavePath.h"
#include "shell/TellFailures.h"
#include "shell/modFailure.h"
#include "store/modFiles.h"
#include "store/modPath.h"
#include "store/modSave.h"

namespace tarnwick {
namespace {

constexpr std::string_view OpenFilter = "Band Saw Files (*.bsw)|*.bsw";
constexpr std::string_view SaveFilter = "All Files (*.bsw)|*.bsw";  // the word belongs to it
constexpr std::string_view DxfFilter = "DXF Files (*.dxf)|*.dxf";
constexpr std::string_view TextFilter = "Text Files (*.txt)|*.txt";

constexpr std::string_view Extension = ".bsw";

// Each command has its own words, and these spellings.
constexpr std::string_view Changed = "     Bandsaw file has changed!";
constexpr std::string_view ChangedForSteps = "     Bandaw file has changed!";
constexpr std::string_view ChangedAtClose = "     Saw file has changed!";

Box SaveQuestion(std::string_view changed) {
  return {.Title = "Save File.",
          .Text = std::string(changed) + "\n\nDo you want to save this file?              ",
          .Offer = Buttons::YesNoCancel,
          .Shown = Icon::Question,
          .Default = Button::Yes};
}

Box AlreadyOpenQuestion() {
  return {.Title = "File open!",
          .Text = "     File already open!  Save file before opening?",
          .Offer = Buttons::YesNoCancel,
          .Default = Button::Yes};
}

bool Contains(std::string_view text, std::string_view part) {
  return text.find(part) != std::string_view::npos;
}

/// Where the name begins in a path, behind the last separator.
std::size_t TitleStart(const std::string& path) {
  const std::size_t last = path.rfind(PathSeparator);
  return last == std::string::npos ? 0 : last + 1;
}

/// Anywhere in the path.
bool HoldsExtension(const std::string& path) { return Contains(path, Extension); }

bool HasExtension(const std::string& path) { return Contains(path.substr(TitleStart(path)), "."); }

}  // namespace

/// A command at work: the hourglass, and the animation of files. Both are gone in every way out of it.
class DocumentCommands::Work {
 public:
  explicit Work(DocumentCommands& commands) : commands_(commands) {
    commands_.busy_ = true;
    commands_.desk_.Window.SetBusy(true);
  }
  Work(const Work&) = delete;
  Work& operator=(const Work&) = delete;
  ~Work() { End(); }

  void ShowAnimation() {
    animated_ = true;
    commands_.desk_.Window.ShowAnimation();
  }

  void End() {
    if (std::exchange(animated_, false)) commands_.desk_.Window.HideAnimation();
    if (std::exchange(working_, false)) {
      commands_.desk_.Window.SetBusy(false);
      commands_.busy_ = false;
    }
  }

 private:
  DocumentCommands& commands_;
  bool animated_ = false;
  bool working_ = true;
};

// ---- questions

/// Whether the design may be left: it is as saved, or saved now, or given up.
/// @param question  about saving the open design, with Yes, No and Cancel
/// @return false when it is to stay
bool DocumentCommands::SavesOrGivesUp(const Box& question) {
  switch (Ask(question)) {
    case Button::Yes:
      return SaveBeforeLeaving();
    case Button::No:
      return true;
    case Button::Ok:
    case Button::Cancel:
      break;
  }
  return false;
}

bool DocumentCommands::MayLeave(std::string_view changed) {
  return SameSaw(Design().Saw, Design().SawSaved) || SavesOrGivesUp(SaveQuestion(changed));
}

bool DocumentCommands::MayOpenAgain() { return SavesOrGivesUp(AlreadyOpenQuestion()); }

bool DocumentCommands::MayReplace(const std::string& path) const {
  return Ask(ReplaceQuestion(path)) == Button::Yes;
}

void DocumentCommands::TellWhatFails(std::string_view activity, std::string_view procedure,
                                     const std::function<void()>& act) const {
  TellFailures(desk_.Process.Out.Say, activity, procedure, act);
}

// ---- at the start, and all the time

void DocumentCommands::Begin() {
  if (!desk_.Process.Copies.Offer(Design(), desk_.Process.Out.Say)) return OpenCommandFile();
  (void)desk_.Process.TakeCommandFile();  // it would push the recovered design aside
  desk_.Window.ShowCaption();
  ShowOpened();
}

/// A design that is half read is not what the user would want back.
void DocumentCommands::NoteForRecovery() {
  if (!busy_) desk_.Process.Copies.Note(Design());
}

// ---- new

void DocumentCommands::BeginBlank() {
  Design().FileName = UntitledName;
  Design().Viewer = false;
  desk_.Window.ShowCaption();
  Design().ClearSaw();
  desk_.Panels.ShowUnits();
  FillAll();
  desk_.Panels.ShowPanel(Panel::Main);
}

void DocumentCommands::FillAll() {
  desk_.Panels.ShowSawInfo();
  desk_.Panels.FillBoxes();
}

void DocumentCommands::New() {
  if (busy_ || !MayLeave(Changed)) return;
  BeginBlank();
  desk_.Panels.DrawSaw();
  Design().KeepAsSaved();
}

void DocumentCommands::NewStepByStep() {
  if (busy_ || !MayLeave(ChangedForSteps)) return;
  BeginBlank();
  Design().SawSaved = Design().Saw;  // what the questions make of it counts as a change
  Recalculate();
  if (!StepByStepInput(Design().Saw, QuestionsOf(desk_.Process, desk_.Dialogs))) Design().ResetUnits();
  Design().Recalculate(desk_.Process.Out.Say);
  Design().ViewAll();
  desk_.Panels.DrawSaw();
  FillAll();
  Design().SawEdit = Design().Saw;
}

// ---- open

void DocumentCommands::Open() {
  if (busy_) return;
  TellWhatFails("Opening", "mnuItemOpen", [this] { AskAndOpen(); });
}

void DocumentCommands::AskAndOpen() {
  if (!MayLeave(Changed)) return;
  const std::optional<std::string> path = desk_.Process.Out.Files.AskOpen(
      {.Filter = std::string(OpenFilter), .Folder = Design().SawDir(), .Name = Design().FileName});
  if (!path) return;
  if (*path == Design().SawDir() + Design().FileName && !MayOpenAgain()) return;
  const std::size_t title = TitleStart(*path);
  OpenFile(path->substr(title), path->substr(0, title), Refused::Removed);
}

void DocumentCommands::OpenRecent(std::size_t index) {
  if (busy_ || index >= Design().Settings.Recent.size()) return;
  const RecentFile file = Design().Settings.Recent[index];  // the list may be another once it is open
  TellWhatFails("Opening", "mnuRecentFiles", [&] { OpenRecentFile(file); });
}

void DocumentCommands::OpenRecentFile(const RecentFile& file) {
  const bool isOpen = file.Path() == Design().SawDir() + Design().FileName;
  const bool changed = !SameSaw(Design().Saw, Design().SawSaved);
  if (changed && !(isOpen ? MayOpenAgain() : MayLeave(Changed))) return;
  if (!changed && isOpen) return;
  OpenFile(file.File, file.DriveDir, Refused::Kept);
}

void DocumentCommands::OpenCommandFile() {
  const std::string path = desk_.Process.TakeCommandFile();
  if (!path.empty()) OpenNamedFile(FileNameOf(path), FolderOf(path));
}

void DocumentCommands::OpenNamedFile(const std::string& name, const std::string& folder) {
  if (busy_) return;
  TellWhatFails("Opening", "OpenNamedFile", [&] { OpenFile(name, folder, Refused::Removed); });
}

void DocumentCommands::OpenFile(const std::string& name, const std::string& folder, Refused refused) {
  Design().FileName = name;
  Design().Settings.CurrentSawDir = AddBackslash(folder);
  Design().Viewer = false;
  desk_.Window.ShowCaption();
  Work work(*this);
  Design().ClearSaw();
  FillAll();
  work.ShowAnimation();
  const bool opened = Design().ReadFile(desk_.Process.Out.Say);
  if (opened) {
    ShowOpened();
    work.End();
    desk_.Process.AddToRecent();
    desk_.Window.ShowRecentFiles();
  } else {
    ShowRefused(refused);
  }
}

void DocumentCommands::ShowOpened() {
  desk_.Panels.ShowUnits();
  desk_.Panels.DrawSaw();
  desk_.Panels.ShowPanel(Panel::Main);
  FillAll();
}

/// What is no band saw file leaves a blank, unnamed design. Open removes it with no question, also when it
/// was the disk that failed: meant so, and a desktop keeps it in its trash.
void DocumentCommands::ShowRefused(Refused refused) {
  const std::string path = Design().SawDir() + Design().FileName;
  if (refused == Refused::Removed && FileExists(FilePath(path))) desk_.Process.Out.Bin.Remove(path);
  Design().FileName = UntitledName;
  Design().KeepAsSaved();
  desk_.Window.ShowCaption();
  ShowOpened();
}

// ---- save

/// Asks where to save, and takes that place.
bool DocumentCommands::TakeSaveName(bool warn) {
  const std::optional<std::string> path = AskSavePath(desk_.Process.Out.Files, desk_.Process.Out.Say,
                                                      {.Filter = std::string(SaveFilter),
                                                       .Folder = Design().SawDir(),
                                                       .Name = Design().FileName,
                                                       .WarnBeforeReplacing = warn},
                                                      Extension, HoldsExtension);
  if (!path) return false;
  const std::size_t title = TitleStart(*path);
  Design().FileName = path->substr(title);
  Design().Settings.CurrentSawDir = path->substr(0, title);
  return true;
}

void DocumentCommands::Save() {
  if (busy_) return;
  TellWhatFails("Saving", "mnuItemSave", [this] { AskAndSave(); });
}

void DocumentCommands::AskAndSave() {
  const bool mayWrite = Design().FileName == UntitledName ? TakeSaveName(true)
                                                          : MayReplace(Design().SawDir() + Design().FileName);
  if (!mayWrite) return;
  Design().Viewer = false;
  Write("mnuItemSave");
}

void DocumentCommands::SaveAs() {
  if (busy_) return;
  TellWhatFails("Saving", "mnuItemSaveAs", [this] { AskAndSaveAs(); });
}

void DocumentCommands::AskAndSaveAs() {
  if (!TakeSaveName(true)) return;
  Design().Viewer = false;
  if (!Write("mnuItemSaveAs")) return;
  desk_.Process.AddToRecent();
  desk_.Window.ShowRecentFiles();
}

bool DocumentCommands::SaveBeforeLeaving() {
  bool written = false;
  TellWhatFails("Saving", "SaveBeforeLeaving", [&] { written = AskAndSaveBeforeLeaving(); });
  return written;
}

bool DocumentCommands::AskAndSaveBeforeLeaving() {
  if (!TakeSaveName(false)) return false;
  Design().Viewer = true;  // and stays until a command writes the caption anew
  if (!Write("SaveBeforeLeaving")) return false;
  desk_.Process.AddToRecent();
  desk_.Window.ShowRecentFiles();
  return true;
}

bool DocumentCommands::Write(std::string_view procedure) {
  desk_.Window.ShowCaption();
  std::error_code failure;
  {
    Work work(*this);
    work.ShowAnimation();
    failure = SaveBandSaw(Design().Saw, FilePath(Design().SawDir() + Design().FileName));
    if (!failure) Design().KeepAsSaved();
  }
  if (failure) {
    TellFailure(failure, procedure);
  } else {
    desk_.Process.Copies.Saved(Design());
  }
  return !failure;
}

void DocumentCommands::TellFailure(std::error_code failure, std::string_view procedure) const {
  Ask(FailureBox("Saving", failure, procedure));
}

bool DocumentCommands::MayClose() {
  if (busy_ || !MayLeave(ChangedAtClose)) return false;
  desk_.Process.SaveSettings();
  desk_.Process.Copies.End();
  return true;
}

// ---- export

void DocumentCommands::ExportDxf() {
  if (busy_) return;
  TellWhatFails("Saving", "mnuItemExport", [this] { ExportDrawing(); });
}

void DocumentCommands::ExportDrawing() {
  const std::optional<std::string> path = AskExportPath(desk_.Process.Out.Files, desk_.Process.Out.Say,
                                                        {.Filter = std::string(DxfFilter),
                                                         .Folder = Design().SawDir(),
                                                         .Name = ExportName(Design().FileName, DxfExtension),
                                                         .WarnBeforeReplacing = true},
                                                        DxfExtension);
  if (!path) return;
  {
    const Work work(*this);
    Design().Recalculate(desk_.Process.Out.Say);
    WriteDxf(Design().Lines, FilePath(*path), Design().Settings.Calculation, desk_.Process.Out.Say,
             [this] { desk_.Window.LetEventsRun(); });
  }
  desk_.Panels.DrawSaw();
}

void DocumentCommands::SaveText() {
  if (busy_) return;
  const std::optional<std::string> path = AskSavePath(desk_.Process.Out.Files, desk_.Process.Out.Say,
                                                      {.Filter = std::string(TextFilter),
                                                       .Folder = Design().SawDir(),
                                                       .Name = ExportName(Design().FileName, ".txt"),
                                                       .WarnBeforeReplacing = true},
                                                      ".txt", HasExtension);
  if (!path) return;
  const SawInfo rows = BuildSawInfo(Design().Saw, Design().Format(), 0);
  (void)SaveTextFile(rows, Design().FileName, FilePath(*path));  // says nothing of its own
}

// ---- direction of teeth

void DocumentCommands::SetTeethDirection(std::int16_t direction) {
  std::int16_t& inForce = Design().Settings.Calculation.TeethDirection;
  const bool isRightToLeft = inForce == RightToLeft;
  if (busy_ || isRightToLeft == (direction == RightToLeft)) return;
  inForce = direction;
  desk_.Window.ShowTeethDirection();
  Recalculate();
}

void DocumentCommands::Recalculate() {
  Design().Recalculate(desk_.Process.Out.Say);
  desk_.Panels.DrawSaw();
}

}  // namespace tarnwick
