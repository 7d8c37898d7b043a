#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <map>

#include "store/modRecoveryCopy.h"
#include "store/modSave.h"
#include "support/Designs.h"
#include "support/DiskDesk.h"
#include "support/Environment.h"
#include "support/TemporaryFolder.h"
#include "support/TroubledDisk.h"

// Every operation on the disk fails in its turn, the disk fills up at every one, and the program dies at
// every one: what the user is told then, and what is left.
namespace tarnwick::troubled {

namespace fs = std::filesystem;
using test::BytesOf;
using test::DiskDesk;
using test::TemporaryFolder;
using test::Trouble;
using test::TroubledRun;
using test::TroubledWork;
using Kind = Trouble::Kind;
using Texts = std::vector<std::string>;

inline constexpr double Before = 10, Now = 12;  // hook angles, by which designs are told

inline BandSaw Design(double hook) {
  BandSaw saw = test::PlainDesign();
  saw.Length = 2;
  saw.NumTeeth = 12;
  saw.HookAngle = hook;
  MarkSaved(saw);
  return saw;
}

inline const char* NameOf(Kind kind) {
  switch (kind) {
    case Kind::None:
      return "undisturbed";
    case Kind::Fails:
      return "failing";
    case Kind::DiskFull:
      return "disk full";
    case Kind::Dies:
      return "dying";
  }
  return "";
}

inline Texts LinesOf(const std::string& text) {
  Texts lines;
  for (std::size_t from = 0; from < text.size();) {
    const std::size_t end = std::min(text.find('\n', from), text.size());
    lines.push_back(text.substr(from, end - from));
    from = end + 1;
  }
  return lines;
}

/// What a run left.
class Left {
 public:
  Left(const fs::path& folder, Kind kind, const TroubledRun& run) : Folder(folder), Is(kind), Run(run) {
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
      if (entry.is_regular_file()) files_[entry.path().lexically_relative(folder)] = BytesOf(entry.path());
    }
    Told = LinesOf(run.Told);
    if (Told.empty()) return;
    State = Told.front();
    Told.erase(Told.begin());
  }

  const fs::path& Folder;
  Kind Is;
  const TroubledRun& Run;
  std::string State;  // how the design is in the program: "saved 12"
  Texts Told;         // boxes that only tell, "title: text"

  /// The file's bytes; nothing when it is not there.
  [[nodiscard]] std::optional<std::string> File(const std::string& name) const {
    const auto found = files_.find(name);
    return found == files_.end() ? std::nullopt : std::optional(found->second);
  }
  /// Whether the design of that hook angle is in that file, whole.
  [[nodiscard]] bool Holds(const std::string& name, double hook) const {
    const BandSawBytes read = ReadBandSaw(File(name).value_or(""));
    return read.State == ReadState::Complete && read.Saw.HookAngle == hook;
  }
  /// A failed save: no file at all, or the old one, which could not be deleted. Never a part of the new one.
  [[nodiscard]] bool IsGoneOr(const std::string& name, const std::string& old) const {
    return !File(name) || File(name) == old;
  }
  /// Hook angle of the design in the copy that is kept for the day after a crash; 0: there is none.
  [[nodiscard]] double Copy() const {
    for (const auto& [name, bytes] : files_) {
      if (!name.ends_with(".copy")) continue;
      const auto copy = ReadRecovery(bytes);
      EXPECT_TRUE(copy) << name << " is no whole copy";
      return copy ? copy->Saw.HookAngle : 0;
    }
    return 0;
  }
  /// Nothing but what has a use lies about.
  void ExpectNoLeavings() const {
    for (const auto& [name, bytes] : files_) EXPECT_FALSE(name.ends_with(".new")) << name;
  }

 private:
  std::map<std::string, std::string> files_;
};

using Scene = std::function<void(const fs::path& folder)>;
using Work = std::function<TroubledWork(const fs::path& folder)>;
using Judge = std::function<void(const Left&)>;
using AtDesk = std::function<void(DiskDesk&)>;

/// A work of the program's own. It answers with the state of the design at its end, and with all that was
/// told.
inline Work Does(const AtDesk& prepare, const AtDesk& act) {
  return [=](const fs::path& folder) -> TroubledWork {
    return [=] {
      auto desk = std::make_shared<DiskDesk>(folder);
      prepare(*desk);
      return [=] {
        act(*desk);
        const OpenDesign& design = desk->Process.Design;
        return std::string(SameSaw(design.Saw, design.SawSaved) ? "saved " : "changed ") +
               std::to_string(std::lround(design.Saw.HookAngle)) + (desk->IsBusy ? " busy" : "") + '\n' +
               desk->Told();
      };
    };
  };
}

class OnATroubledDisk : public testing::Test {
 protected:
  /// Sets the scene and does the work, once undisturbed, then with each kind of trouble at each operation
  /// that there is. It always comes to an end, and leaves what the judge says.
  void Sweep(std::initializer_list<Kind> kinds, const Scene& scene, const Work& work, const Judge& judge) {
    RunOnce({}, scene, work, judge);
    for (const Kind kind : kinds) {
      std::size_t at = 1;
      for (;; ++at) {
        const std::size_t met = RunOnce({kind, at}, scene, work, judge);
        if (met == 0) break;
        at = met;
      }
      EXPECT_TRUE(at > 1 || HasFailure()) << NameOf(kind) << ": nothing was seen of the work";
    }
  }

  /// The work, with nothing in its way.
  void Undisturbed(const Scene& scene, const Work& work, const Judge& judge) {
    RunOnce({}, scene, work, judge);
  }

  void TearDown() override { RecordProperty("troubles", troubles_); }

 private:
  /// @return the operation that met the trouble; 0: none
  std::size_t RunOnce(Trouble trouble, const Scene& scene, const Work& work, const Judge& judge) {
    const TemporaryFolder folder;
    for (const char* name : {"documents", "config", "state"}) fs::create_directory(folder / name);
    scene(folder.Path());
    const TroubledRun run = test::RunTroubled(folder.Path(), trouble, work(folder.Path()));
    if (trouble.Is != Kind::None && run.MetAt == 0) return 0;
    troubles_ += trouble.Is == Kind::None ? 0 : 1;
    SCOPED_TRACE(std::string(NameOf(trouble.Is)) + " at " + std::to_string(run.MetAt) + ", " + run.Met() +
                 "; told: " + run.Told);
    if (trouble.Is == Kind::Dies) {
      EXPECT_TRUE(run.WasKilled());
    } else {
      EXPECT_TRUE(run.Ended()) << "crashed, or hung: " << run.Status;
    }
    judge({folder.Path(), trouble.Is, run});
    return run.MetAt;
  }

  // In memory, where the platform has such a place: it is the asking that counts here, and thousands of
  // files.
  const test::EnvironmentVariable place_{"TMPDIR", access("/dev/shm", W_OK) == 0 ? "/dev/shm" : "/tmp"};
  int troubles_ = 0;
};

// ---- the scenes

inline const std::string Document = "documents/head.bsw";
inline const std::string OldDocument = BandSawText(Design(Before));

inline void WithADocument(const fs::path& folder) {
  const TemporaryFolder other;
  fs::copy_file(other.File("head.bsw", OldDocument), folder / Document);
}

inline constexpr const char* OwnLines = "# mine\nCity=Old Town\nDecimalPlaces=6\nOwn key = kept\n";

inline void WithSettings(const fs::path& folder) {
  WithADocument(folder);
  fs::create_directory(folder / "config" / "Tarnwick");
  const TemporaryFolder other;
  fs::copy_file(other.File("Settings", OwnLines), folder / "config" / "Tarnwick" / "Settings");
}

/// head.bsw is open and has changed, and the copy for the day after a crash knows it.
inline void ChangeDocument(DiskDesk& desk) {
  desk.OpenSaved(Design(Before), "head.bsw");
  desk.Process.Design.Saw.HookAngle = Now;
  desk.Process.Design.Recalculate(desk);
  desk.Commands.NoteForRecovery();
}

// ---- what is promised

inline bool IsSavingFailed(const std::string& box, const std::string& procedure) {
  return box.starts_with("Saving: Error Number: ") && box.ends_with("|Sub Program " + procedure);
}

inline constexpr int Reasons[] = {EACCES, EIO, ENOSPC};

/// Settings that could not be written are told of by a number and in words.
inline void ExpectSettingsFailure(const Texts& told) {
  ASSERT_EQ(told.size(), 2u);
  const bool isTheReason = std::any_of(std::begin(Reasons), std::end(Reasons), [&told](int reason) {
    return told.front() == "Tarnwick: Error " + std::to_string(reason);
  });
  EXPECT_TRUE(isTheReason) << told.front();
  EXPECT_EQ(told.back(), "Error: Unable to save config file");
}

/// The settings are as they were, or as they were to be, and so are the lines that the user has added.
inline void ExpectWholeSettings(const Left& left) {
  const std::string file = left.File("config/Tarnwick/Settings").value_or("");
  if (file == OwnLines) return;
  EXPECT_TRUE(file.starts_with("# mine\n")) << file;
  EXPECT_NE(file.find("Own key = kept\n"), std::string::npos) << file;
  EXPECT_NE(file.find("\nGulletFeedIndex="), std::string::npos) << file;
}

/// A program that starts now finds the design: in its file, or in the copy, which it offers; and saves it.
inline void ExpectFoundAtTheNextStart(const Left& left, const std::string& document) {
  EXPECT_TRUE(left.Holds(document, Now) || left.Copy() == Now) << "the design is lost";
  DiskDesk desk(left.Folder);
  desk.Commands.Begin();
  const OpenDesign& design = desk.Process.Design;
  if (left.Copy() == 0) return;
  EXPECT_EQ(design.Saw.HookAngle, Now);
  const std::string itsFile = "documents/" + design.FileName;
  EXPECT_EQ(SameSaw(design.Saw, design.SawSaved), left.Holds(itsFile, Now));
  desk.Commands.Save();
  EXPECT_EQ(desk.Told(), "");
  EXPECT_TRUE(SameSaw(design.Saw, design.SawSaved));
  EXPECT_EQ(BytesOf(left.Folder / itsFile), BandSawText(design.Saw));
  EXPECT_TRUE(desk.Commands.MayClose());
  for (const auto& entry : fs::recursive_directory_iterator(left.Folder / "state")) {
    EXPECT_FALSE(entry.is_regular_file()) << entry.path();
  }
}

/// After the saving of the changed design under a name.
inline void ExpectSavedOrTold(const Left& left, const std::string& document, const std::string& procedure,
                              const std::string& old) {
  if (left.Is == Kind::Dies) return ExpectFoundAtTheNextStart(left, document);
  left.ExpectNoLeavings();
  if (!left.Told.empty() && IsSavingFailed(left.Told.front(), procedure)) {
    EXPECT_EQ(left.Told.size(), 1u);
    EXPECT_EQ(left.State, "changed 12");
    EXPECT_TRUE(left.IsGoneOr(document, old));
    EXPECT_EQ(left.Copy(), Now) << "and if the program died now?";
    return;
  }
  EXPECT_EQ(left.State, "saved 12");
  EXPECT_TRUE(left.Holds(document, Now));
  if (!left.Told.empty()) ExpectSettingsFailure(left.Told);
}

inline const auto AllKinds = {Kind::Fails, Kind::DiskFull, Kind::Dies};

}  // namespace tarnwick::troubled
