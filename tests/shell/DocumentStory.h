#pragma once

#include <gtest/gtest.h>

#include <functional>

#include "platform/CollectedMessages.h"
#include "support/Designs.h"
#include "support/DocumentDesk.h"

// Document commands from their first question to the last file, each as a story: who is asked what, in which
// order, and how it ends.
namespace tarnwick::story {

using test::DocumentDesk;
using test::Texts;

inline constexpr auto Yes = Button::Yes;
inline constexpr auto No = Button::No;
inline constexpr auto Cancel = Button::Cancel;

// ---- the words

inline const std::string SaveFileEnd =
    "\n\nDo you want to save this file?               [yes no cancel|question|yes] -> ";
inline const std::string BandsawChanged = "Save File.:      Bandsaw file has changed!" + SaveFileEnd;
inline const std::string BandawChanged = "Save File.:      Bandaw file has changed!" + SaveFileEnd;
inline const std::string SawChanged = "Save File.:      Saw file has changed!" + SaveFileEnd;
inline const std::string AlreadyOpen =
    "File open!:      File already open!  Save file before opening? [yes no cancel|no icon|yes] -> ";
inline const std::string NoBandSaw = "Tarnwick: Not a valid Band Saw File      [ok|no icon|ok]";
inline const std::string Incomplete =
    "Tarnwick: File is incomplete. What could be read is shown. [ok|no icon|ok]";
inline const std::string NewerVersion =
    "Tarnwick: File was saved in a newer version of this program!\n"
    "Some information may not be available to the version\n"
    "you are currently using!\n"
    "Contact www.tarnwick.example for an update. [ok|no icon|ok]";
inline const std::string NoSettings = "Error: Unable to save config file [ok|no icon|ok]";

inline std::string Replace(const std::string& path) {
  return "Save: " + path +
         "\nThis file already exists.\nDo you want to replace it? [yes no|exclamation|no] -> ";
}

inline std::string OpenDialog(const std::string& folder, const std::string& name) {
  return "open Band Saw Files (*.bsw)|*.bsw in " + folder + " on " + name + " -> ";
}
inline std::string SaveDialog(const std::string& folder, const std::string& name) {
  return "save, warning, All Files (*.bsw)|*.bsw in " + folder + " on " + name + " -> ";
}
inline std::string LeavingDialog(const std::string& folder, const std::string& name) {
  return "save All Files (*.bsw)|*.bsw in " + folder + " on " + name + " -> ";
}

// ---- pieces of a transcript

inline Texts Script(std::initializer_list<Texts> parts) {
  Texts whole;
  for (const Texts& part : parts) whole.insert(whole.end(), part.begin(), part.end());
  return whole;
}

/// From the caption to the animation: a file is about to be read.
inline Texts Begins(const std::string& name) {
  return {"caption " + name + " - Tarnwick", "busy", "rows blank", "boxes blank", "animation"};
}

inline Texts Shows(const std::string& mark) {
  return {"units imperial", "draw " + mark, "panel 1", "rows " + mark,
          "boxes " + mark,  "no animation", "not busy"};
}

inline Texts Lists(const std::string& recent) { return {"settings written", "recent " + recent}; }

inline Texts Reads(const std::string& name, const std::string& mark, const std::string& recent) {
  return Script({Begins(name), Shows(mark), Lists(recent)});
}

/// What is left of a file that was refused: a blank design without a name.
inline Texts IsBlank() { return Script({{"caption untitled.bsw - Tarnwick"}, Shows("blank")}); }

inline Texts Writes(const std::string& caption) {
  return {"caption " + caption, "busy", "animation", "no animation", "not busy"};
}

inline Texts BlankIn(const std::string& units) {
  return {"caption untitled.bsw - Tarnwick",
          "units " + units,
          "rows blank",
          "boxes blank",
          "panel 1",
          "draw blank"};
}
inline const Texts NewDesign = BlankIn("imperial");

// ---- the scene

inline BandSaw WithHook(double hook) {
  BandSaw saw = test::PlainDesign();
  saw.HookAngle = hook;
  return saw;
}

inline std::string WithVersion(std::string bytes, std::string_view version) {
  bytes.replace(25, 25, std::string(version) + std::string(25 - version.size(), ' '));
  return bytes;
}

inline void SetScene(DocumentDesk& desk) {
  desk.Keep("head.bsw", WithHook(10));
  desk.Keep("cut.bsw", WithHook(12));
  desk.Keep("list.bsw", "Shopping list");
  desk.Keep("early.bsw", WithVersion(BandSawText(WithHook(10)), "0.99"));
  desk.Keep("later.bsw", WithVersion(BandSawText(WithHook(20)), "1.02"));
  desk.Keep("torn.bsw", BandSawText(WithHook(15)).substr(0, 400));
}

inline void OpenFile(DocumentDesk& desk, const std::string& name) {
  desk.Commands.OpenNamedFile(name, desk.Folder());
  desk.Process.Design.ViewAll();  // so that true size is seen to come back
  desk.Transcript();
}

inline void ChangeHook(DocumentDesk& desk, double hook) { desk.Process.Design.Saw.HookAngle = hook; }

using Act = std::function<void(DocumentDesk&)>;

// Ways in which a story begins.
inline void Blank(DocumentDesk&) {}
inline void BlankChanged(DocumentDesk& desk) { ChangeHook(desk, 7); }
inline void Head(DocumentDesk& desk) { OpenFile(desk, "head.bsw"); }
inline void HeadChanged(DocumentDesk& desk) {
  Head(desk);
  ChangeHook(desk, 11);
}
/// Two files on the list, the older of them to come.
inline void HeadAfterCut(DocumentDesk& desk) {
  OpenFile(desk, "cut.bsw");
  Head(desk);
}
inline void HeadChangedAfterCut(DocumentDesk& desk) {
  HeadAfterCut(desk);
  ChangeHook(desk, 11);
}

// What is done.
inline void New(DocumentDesk& desk) { desk.Commands.New(); }
inline void StepByStep(DocumentDesk& desk) { desk.Commands.NewStepByStep(); }
inline void Open(DocumentDesk& desk) { desk.Commands.Open(); }
inline void Save(DocumentDesk& desk) { desk.Commands.Save(); }
inline void SaveAs(DocumentDesk& desk) { desk.Commands.SaveAs(); }
inline void ExportDxf(DocumentDesk& desk) { desk.Commands.ExportDxf(); }
inline void SaveText(DocumentDesk& desk) { desk.Commands.SaveText(); }
inline void CloseAndStay(DocumentDesk& desk) { EXPECT_FALSE(desk.Commands.MayClose()); }
inline void CloseAndGo(DocumentDesk& desk) { EXPECT_TRUE(desk.Commands.MayClose()); }

inline Act OpenRecent(std::size_t index) {
  return [index](DocumentDesk& desk) { desk.Commands.OpenRecent(index); };
}

/// The path of the scene's folder, or nothing to cancel.
struct Choice {
  const char* Path = nullptr;
};
inline constexpr Choice Nothing{};

struct Story {
  const char* Name;
  Act Begin;
  std::vector<Button> Answers;
  std::vector<Choice> Choices;
  Act Command;
  Texts Told;
  std::string State;  // the scale is left out: true size after what reads a file, as it was otherwise
  Texts Disk = {};

  friend void PrintTo(const Story& story, std::ostream* out) { *out << story.Name; }
};

class DocumentStory : public testing::TestWithParam<Story> {};

inline const auto NameOf = [](const auto& row) { return std::string(row.param.Name); };

inline const std::string Untitled = "untitled.bsw - Tarnwick | ~/ | blank blank blank | ";
inline const std::string HeadAsItWas = "head.bsw - Tarnwick | ~/ | 11 10 10 | ~/head.bsw | imperial";
inline const std::string OnHead = LeavingDialog("~/", "head.bsw");
inline const std::string OnUntitled = LeavingDialog("~/", "untitled.bsw");
inline const std::string HeadOpen = "head.bsw - Tarnwick | ~/ | 10 10 10 | ~/head.bsw | imperial";

inline void PlanSquareBack(DocumentDesk& desk) {
  using test::Cancels, test::Enters, test::Picks;
  // Style, wheel, length, width, pitch, hook, clearance, tip clearance, tip, plate, radius, depth, back
  // angle.
  desk.Dialogs.Values = {Picks(0),      Cancels(),     Enters("20"), Enters("5"), Enters("2"),
                         Enters("9"),   Enters("8"),   Cancels(),    Cancels(),   Cancels(),
                         Enters("0.3"), Enters("0.7"), Enters("20")};
}

}  // namespace tarnwick::story
