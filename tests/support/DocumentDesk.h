#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <deque>
#include <filesystem>
#include <initializer_list>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "shell/DocumentCommands.h"
#include "store/modFiles.h"
#include "store/modPath.h"
#include "store/modRecoveryCopy.h"
#include "store/modReg.h"
#include "store/modSave.h"
#include "support/MemoryStore.h"
#include "support/RecordingHelpViewer.h"
#include "support/ScriptedColorDialog.h"
#include "support/ScriptedDialogHost.h"
#include "support/StoppedClock.h"
#include "support/TemporaryFolder.h"

namespace tarnwick::test {

using Texts = std::vector<std::string>;

/// A program with somebody in front of it who answers as planned, in a folder of his own. All that the
/// document commands show, ask and keep is written down in one list, in its order and word for word.
///
/// In that list, and in State and Disk, the folder reads "~/", separators read '/', and a design is told by
/// its hook angle: "10", or "blank".
class DocumentDesk final : public Messages,
                           public FileDialogs,
                           public Trash,
                           public MainView,
                           public DocumentView {
 public:
  DocumentDesk() {
    Process.Start(PathText(documents_.Path()), {});
    Process.Design.Settings.CurrentSawDir = Folder();
    Process.Design.View.SetSurface({8, 6});
    // What the start has made is no part of the story.
    known_ = Files();
    Transcript();
  }

  // ---- before and between commands

  [[nodiscard]] std::string Folder() const { return PathText(documents_.Path()) + PathSeparator; }

  /// A path in this folder, written with '/'.
  [[nodiscard]] std::string Path(std::string_view name) const {
    std::string path(name);
    std::replace(path.begin(), path.end(), '/', PathSeparator);
    return Folder() + path;
  }

  /// Puts a file there that belongs to the scene. Folders are made as needed.
  void Keep(std::string_view name, std::string_view bytes) {
    const std::filesystem::path path = FilePath(Path(name));
    std::filesystem::create_directories(path.parent_path());
    static_cast<void>(WriteWholeFile(path, bytes));
    known_ = Files();
  }
  void Keep(std::string_view name, const BandSaw& saw) { Keep(name, BandSawText(saw)); }

  /// Plans the answers to the boxes to come.
  void Answer(std::initializer_list<Button> buttons) { answers_.insert(answers_.end(), buttons); }
  /// Plans a choice in the next file dialog.
  void Choose(std::string_view name) { paths_.emplace_back(Path(name)); }
  void ChooseNothing() { paths_.emplace_back(std::nullopt); }

  // ---- afterwards

  /// What was written down since the last time of asking. Plans that were not needed fail the test.
  Texts Transcript() {
    NoteSettings();
    EXPECT_TRUE(answers_.empty()) << "fewer questions than planned";
    EXPECT_TRUE(paths_.empty()) << "fewer file dialogs than planned";
    EXPECT_TRUE(Dialogs.Values.empty()) << "fewer dialogs than planned";
    EXPECT_EQ(busy_, 0) << "the hourglass stays";
    EXPECT_EQ(animations_, 0) << "the animation stays";
    return std::exchange(log_, {});
  }

  /// "caption | folder | Saw SawEdit SawSaved | recent files | units | scale". A star marks a copy of the
  /// design that differs from Saw in more than its hook angle.
  [[nodiscard]] std::string State() const {
    const OpenDesign& design = Process.Design;
    return Homely(design.Caption() + " | " + design.SawDir() + " | " + Mark(design.Saw) + ' ' +
                  CopyMark(design.SawEdit) + ' ' + CopyMark(design.SawSaved) + " | " + Recent() + " | " +
                  Units() + " | " + design.View.ScaleText());
  }

  /// What became of the files since the scene was set: "+" new, "-" gone, "~" another content.
  [[nodiscard]] Texts Disk() const {
    const std::map<std::string, std::string> now = Files();
    Texts changes;
    for (const auto& [name, bytes] : known_)
      if (now.count(name) == 0) changes.push_back("- " + name);
    for (const auto& [name, bytes] : now) {
      const auto before = known_.find(name);
      if (before == known_.end()) changes.push_back("+ " + name + ContentMark(bytes));
      if (before != known_.end() && before->second != bytes)
        changes.push_back("~ " + name + ContentMark(bytes));
    }
    return changes;
  }

  /// The value of a key in the settings as they were written last.
  [[nodiscard]] std::string Setting(const std::string& key) { return Homely(Store.Settings()[key]); }

  [[nodiscard]] static std::string Mark(const BandSaw& saw) {
    BandSaw blank;
    blank.ImpMetric = saw.ImpMetric;
    blank.GeneralInfo.SavedAs = saw.GeneralInfo.SavedAs;
    return SameSaw(saw, blank) ? "blank" : std::to_string(std::lround(saw.HookAngle));
  }

  // ---- the surroundings

  Button Show(const Box& box) override {
    const Button answer = answers_.empty() ? box.Default : answers_.front();
    if (!answers_.empty())
      answers_.pop_front();
    else if (box.Offer != Buttons::Ok)
      ADD_FAILURE() << "nobody expected the question \"" << box.Text << '"';
    std::string line = box.Title + ": " + box.Text + " [" + Name(box.Offer) + '|' + Name(box.Shown) + '|' +
                       Name(box.Default) + ']';
    Note(box.Offer == Buttons::Ok ? line : line + " -> " + Name(answer));
    return answer;
  }

  std::optional<std::string> AskOpen(const FileQuestion& question) override { return Ask("open", question); }
  std::optional<std::string> AskSave(const FileQuestion& question) override {
    return Ask(question.WarnBeforeReplacing ? "save, warning," : "save", question);
  }

  void Remove(const std::string& path) override {
    Note("trash " + path);
    std::filesystem::remove(FilePath(path));
  }

  void ShowPanel(Panel panel) override { Note("panel " + std::to_string(static_cast<int>(panel))); }
  [[nodiscard]] Panel CurrentPanel() const override { return Panel::Main; }
  void ShowSawInfo() override { Note("rows " + Mark(Process.Design.Saw)); }
  void FillBoxes() override { Note("boxes " + Mark(Process.Design.Saw)); }
  void ShowUnits() override { Note("units " + Units()); }
  void DrawSaw() override { Note("draw " + Mark(Process.Design.Saw)); }
  void ShowStatus(std::string_view, std::string_view) override {}
  void ShowCaption() override { Note("caption " + Process.Design.Caption()); }
  void ShowRecentFiles() override { Note("recent " + Recent()); }
  void ShowTeethDirection() override {
    Note("direction " + std::to_string(Process.Design.Settings.Calculation.TeethDirection));
  }
  void SetBusy(bool busy) override {
    busy_ += busy ? 1 : -1;
    Note(busy ? "busy" : "not busy");
  }
  void ShowAnimation() override {
    ++animations_;
    Note("animation");
  }
  void HideAnimation() override {
    --animations_;
    Note("no animation");
  }
  void LetEventsRun() override {}

  /// A program died here, and had a design open that was not saved.
  void LeaveCopy(const std::string& fileName, const BandSaw& saw) {
    std::filesystem::create_directories(state_ / ApplicationKey);
    const std::string bytes = RecoveryText(fileName, Folder(), saw);
    static_cast<void>(WriteWholeFile(Copy(), bytes));
  }
  [[nodiscard]] std::filesystem::path Copy() const {
    return (state_ / ApplicationKey) / "recovery-0123456789abcdef.copy";
  }

  StoppedClock Time;
  MemoryStore Store;
  ScriptedColorDialog Colors;
  RecordingHelpViewer Help;

 private:
  TemporaryFolder documents_, state_;

  /// The dialogs that ask for a value, among the rest.
  class NotedDialogs final : public ScriptedDialogHost {
   public:
    explicit NotedDialogs(DocumentDesk& desk) : desk_(desk) {}
    void Run(ValueDialog& dialog) override {
      desk_.Note("asks " + dialog.Title());
      ScriptedDialogHost::Run(dialog);
    }
    void Run(YesNoDialog& dialog) override {
      desk_.Note("asks " + dialog.Title());
      ScriptedDialogHost::Run(dialog);
    }

   private:
    DocumentDesk& desk_;
  };

 public:
  NotedDialogs Dialogs{*this};
  Program Process{{*this, Time, Store, Colors, Help, *this, *this}, state_.Path()};
  DocumentCommands Commands{{Process, Dialogs, *this, *this}};

 private:
  static const char* Name(Button button) {
    constexpr const char* names[] = {"ok", "yes", "no", "cancel"};
    return names[static_cast<int>(button)];
  }
  static const char* Name(Buttons offer) {
    constexpr const char* names[] = {"ok", "yes no", "yes no cancel"};
    return names[static_cast<int>(offer)];
  }
  static const char* Name(Icon icon) {
    constexpr const char* names[] = {"no icon", "information", "question", "exclamation", "error"};
    return names[static_cast<int>(icon)];
  }

  std::optional<std::string> Ask(const std::string& mode, const FileQuestion& question) {
    std::optional<std::string> path;
    if (paths_.empty()) {
      ADD_FAILURE() << "nobody planned this dialog to " << mode;
    } else {
      path = paths_.front();
      paths_.pop_front();
    }
    Note(mode + ' ' + question.Filter + " in " + question.Folder + " on " + question.Name + " -> " +
         path.value_or("cancel"));
    return path;
  }

  void Note(const std::string& line) {
    NoteSettings();
    log_.push_back(Homely(line));
  }

  void NoteSettings() {
    const auto times = static_cast<std::size_t>(
        std::count(Store.Finished.begin(), Store.Finished.end(), std::string("Settings")));
    for (; settingsWritten_ < times; ++settingsWritten_) log_.emplace_back("settings written");
  }

  [[nodiscard]] std::string Homely(std::string text) const {
    const std::string folder = Folder();
    for (std::size_t at = text.find(folder); at != std::string::npos; at = text.find(folder)) {
      text.replace(at, folder.size(), "~/");
    }
    if (PathSeparator != '/') std::replace(text.begin(), text.end(), PathSeparator, '/');
    return text;
  }

  [[nodiscard]] std::string CopyMark(const BandSaw& copy) const {
    const std::string mark = Mark(copy);
    const BandSaw& saw = Process.Design.Saw;
    return mark == Mark(saw) && !SameSaw(copy, saw) ? mark + '*' : mark;
  }

  [[nodiscard]] std::string Recent() const {
    std::string list;
    for (const RecentFile& file : Process.Design.Settings.Recent) {
      list += (list.empty() ? "" : ", ") + file.Path();
    }
    return list.empty() ? "none" : Homely(list);
  }

  [[nodiscard]] std::string Units() const {
    return Process.Design.ImpMetric == Metric ? "metric" : "imperial";
  }

  /// " 10" for a design of that hook angle.
  static std::string ContentMark(const std::string& bytes) {
    const BandSawBytes read = ReadBandSaw(bytes);
    return read.State == ReadState::Complete ? ' ' + Mark(read.Saw) : std::string();
  }

  /// Bytes by name. The folders that the program makes for itself are empty.
  [[nodiscard]] std::map<std::string, std::string> Files() const {
    std::map<std::string, std::string> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(documents_.Path())) {
      if (entry.is_regular_file()) files[Homely(PathText(entry.path()))] = BytesOf(entry.path());
    }
    return files;
  }

  std::map<std::string, std::string> known_;
  std::deque<Button> answers_;
  std::deque<std::optional<std::string>> paths_;
  Texts log_;
  std::size_t settingsWritten_ = 0;
  int busy_ = 0, animations_ = 0;
};

}  // namespace tarnwick::test
