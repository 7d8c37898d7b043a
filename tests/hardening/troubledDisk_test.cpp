// Every operation on the disk fails in its turn, the disk fills up at every one, and the program dies at
// every one: what the user is told then, and what is left.
#if defined(__linux__) && defined(__x86_64__)

#include "support/TroubledDisk.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <map>

#include "power/PowerCalculator.h"
#include "store/modPowerFile.h"
#include "store/modRecoveryCopy.h"
#include "store/modSave.h"
#include "support/Designs.h"
#include "support/DiskDesk.h"
#include "support/Environment.h"
#include "support/TemporaryFolder.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;
using test::BytesOf;
using test::DiskDesk;
using test::TemporaryFolder;
using test::Trouble;
using test::TroubledRun;
using test::TroubledWork;
using Kind = Trouble::Kind;
using Texts = std::vector<std::string>;

constexpr double Before = 10, Now = 12;  // hook angles, by which designs are told

BandSaw Design(double hook) {
  BandSaw saw = test::PlainDesign();
  saw.Length = 2;
  saw.NumTeeth = 12;
  saw.HookAngle = hook;
  MarkSaved(saw);
  return saw;
}

const char* NameOf(Kind kind) {
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

Texts LinesOf(const std::string& text) {
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
Work Does(const AtDesk& prepare, const AtDesk& act) {
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

const std::string Document = "documents/head.bsw";
const std::string OldDocument = BandSawText(Design(Before));

void WithADocument(const fs::path& folder) {
  const TemporaryFolder other;
  fs::copy_file(other.File("head.bsw", OldDocument), folder / Document);
}

constexpr const char* OwnLines = "# mine\nCity=Old Town\nDecimalPlaces=6\nOwn key = kept\n";

void WithSettings(const fs::path& folder) {
  WithADocument(folder);
  fs::create_directory(folder / "config" / "Tarnwick");
  const TemporaryFolder other;
  fs::copy_file(other.File("Settings", OwnLines), folder / "config" / "Tarnwick" / "Settings");
}

/// head.bsw is open and has changed, and the copy for the day after a crash knows it.
void ChangeDocument(DiskDesk& desk) {
  desk.OpenSaved(Design(Before), "head.bsw");
  desk.Process.Design.Saw.HookAngle = Now;
  desk.Process.Design.Recalculate(desk);
  desk.Commands.NoteForRecovery();
}

// ---- what is promised

bool IsSavingFailed(const std::string& box, const std::string& procedure) {
  return box.starts_with("Saving: Error Number: ") && box.ends_with("|Sub Program " + procedure);
}

constexpr int Reasons[] = {EACCES, EIO, ENOSPC};

/// Settings that could not be written are told of by a number and in words.
void ExpectSettingsFailure(const Texts& told) {
  ASSERT_EQ(told.size(), 2u);
  const bool isTheReason = std::any_of(std::begin(Reasons), std::end(Reasons), [&told](int reason) {
    return told.front() == "Tarnwick: Error " + std::to_string(reason);
  });
  EXPECT_TRUE(isTheReason) << told.front();
  EXPECT_EQ(told.back(), "Error: Unable to save config file");
}

/// The settings are as they were, or as they were to be, and so are the lines that the user has added.
void ExpectWholeSettings(const Left& left) {
  const std::string file = left.File("config/Tarnwick/Settings").value_or("");
  if (file == OwnLines) return;
  EXPECT_TRUE(file.starts_with("# mine\n")) << file;
  EXPECT_NE(file.find("Own key = kept\n"), std::string::npos) << file;
  EXPECT_NE(file.find("\nGulletFeedIndex="), std::string::npos) << file;
}

/// A program that starts now finds the design: in its file, or in the copy, which it offers; and saves it.
void ExpectFoundAtTheNextStart(const Left& left, const std::string& document) {
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
void ExpectSavedOrTold(const Left& left, const std::string& document, const std::string& procedure,
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

const auto AllKinds = {Kind::Fails, Kind::DiskFull, Kind::Dies};

// ---- the document

TEST_F(OnATroubledDisk, SaveWritesTheWholeDesignOrTellsAndKeepsIt) {
  const auto save = [](DiskDesk& desk) { desk.Commands.Save(); };
  Sweep(AllKinds, WithADocument, Does(ChangeDocument, save), [](const Left& left) {
    ExpectSavedOrTold(left, Document, "mnuItemSave", OldDocument);
    EXPECT_FALSE(left.File("config/Tarnwick/Settings")) << "Save has nothing to do with them";
  });
}

TEST_F(OnATroubledDisk, SaveOfANewDesignDoesSoToo) {
  const auto prepare = [](DiskDesk& desk) {
    ChangeDocument(desk);
    desk.Process.Design.FileName = UntitledName;
    desk.Commands.NoteForRecovery();
    desk.Choose("new.bsw");
  };
  const auto save = [](DiskDesk& desk) { desk.Commands.Save(); };
  Sweep({Kind::Fails, Kind::DiskFull}, WithADocument, Does(prepare, save), [](const Left& left) {
    ExpectSavedOrTold(left, "documents/new.bsw", "mnuItemSave", "");
    EXPECT_EQ(left.File(Document), OldDocument);
  });
}

TEST_F(OnATroubledDisk, SaveAsLosesNeitherTheDesignNorTheSettings) {
  const auto prepare = [](DiskDesk& desk) {
    ChangeDocument(desk);
    desk.Choose("new.bsw");
  };
  const auto save = [](DiskDesk& desk) { desk.Commands.SaveAs(); };
  Sweep(AllKinds, WithSettings, Does(prepare, save), [](const Left& left) {
    ExpectSavedOrTold(left, "documents/new.bsw", "mnuItemSaveAs", "");
    ExpectWholeSettings(left);
    EXPECT_EQ(left.File(Document), OldDocument);
  });
}

TEST_F(OnATroubledDisk, NewStopsWhenTheDesignInHandCannotBeSaved) {
  const auto prepare = [](DiskDesk& desk) {
    ChangeDocument(desk);
    desk.Choose("head.bsw");
  };
  const auto make = [](DiskDesk& desk) { desk.Commands.New(); };
  Sweep({Kind::Fails, Kind::DiskFull}, WithSettings, Does(prepare, make), [](const Left& left) {
    ExpectWholeSettings(left);
    if (left.State == "saved 0") {
      EXPECT_TRUE(left.Holds(Document, Now));
      if (!left.Told.empty()) ExpectSettingsFailure(left.Told);
    } else {
      ExpectSavedOrTold(left, Document, "SaveBeforeLeaving", OldDocument);
    }
  });
}

TEST_F(OnATroubledDisk, TheWindowStaysOpenWhenTheDesignCannotBeSaved) {
  const auto prepare = [](DiskDesk& desk) {
    ChangeDocument(desk);
    desk.Choose("head.bsw");
  };
  const auto close = [](DiskDesk& desk) {
    if (desk.Commands.MayClose()) desk.Show({.Title = "closed", .Text = {}});
  };
  Sweep(AllKinds, WithSettings, Does(prepare, close), [](const Left& left) {
    ExpectWholeSettings(left);
    if (left.Is == Kind::Dies) return ExpectFoundAtTheNextStart(left, Document);
    if (left.Told.empty() || left.Told.back() != "closed: ") {
      return ExpectSavedOrTold(left, Document, "SaveBeforeLeaving", OldDocument);
    }
    EXPECT_EQ(left.State, "saved 12");
    EXPECT_TRUE(left.Holds(Document, Now));
  });
}

TEST_F(OnATroubledDisk, OpenRemovesNothingButWhatItCouldNotRead) {
  const auto prepare = [](DiskDesk& desk) { desk.Choose("head.bsw"); };
  const auto open = [](DiskDesk& desk) { desk.Commands.Open(); };
  Sweep(AllKinds, WithSettings, Does(prepare, open), [](const Left& left) {
    ExpectWholeSettings(left);
    const bool refused =
        left.Is != Kind::Dies && left.State == "saved 0";  // into the trash, which a desktop has
    if (!refused || left.File(Document)) {
      EXPECT_EQ(left.File(Document), OldDocument);
    }
    if (left.Is == Kind::Dies) return;
    EXPECT_TRUE(left.State == "saved 10" || refused) << left.State;
    if (!left.Told.empty()) ExpectSettingsFailure(left.Told);
  });
}

TEST_F(OnATroubledDisk, TheCopyGoesWhenTheDesignIsOnTheDiskAndNoSooner) {
  const auto save = [](DiskDesk& desk) { desk.Commands.Save(); };
  Undisturbed(WithADocument, Does(ChangeDocument, save), [](const Left& left) {
    const Texts& done = left.Run.Operations;
    const auto at = [&done](std::string_view operation) {
      return std::find_if(done.begin(), done.end(), [&](const auto& o) { return o.starts_with(operation); });
    };
    const auto onDisk = at("fsync " + Document), gone = at("unlink state/Tarnwick/recovery-");
    EXPECT_NE(gone, done.end());
    EXPECT_LT(onDisk, gone) << "a power cut between the two would take the design along";
  });
}

// ---- settings

TEST_F(OnATroubledDisk, SettingsAreWrittenWholeOrTheOldOnesStay) {
  const auto prepare = [](DiskDesk& desk) { desk.Process.Design.Settings.Customer.City = "New Town"; };
  const auto save = [](DiskDesk& desk) { desk.Process.SaveSettings(); };
  Sweep(AllKinds, WithSettings, Does(prepare, save), [](const Left& left) {
    ExpectWholeSettings(left);
    if (left.Is == Kind::Dies) return;
    left.ExpectNoLeavings();
    const std::string file = left.File("config/Tarnwick/Settings").value_or("");
    const bool isNew = file.find("\nCity=New Town\n") != std::string::npos;
    if (left.Told.empty()) {
      EXPECT_TRUE(isNew);
      EXPECT_EQ(left.File("config/Tarnwick/Customer"), "Name=\n");
    } else {
      ExpectSettingsFailure(left.Told);
    }
  });
}

TEST_F(OnATroubledDisk, SettingsThatAreALinkStayOne) {
  const auto scene = [](const fs::path& folder) {
    WithSettings(folder);
    const fs::path settings = folder / "config" / "Tarnwick" / "Settings";
    fs::rename(settings, folder / "documents" / "kept elsewhere");
    fs::create_symlink("../../documents/kept elsewhere", settings);
  };
  const auto save = [](DiskDesk& desk) { desk.Process.SaveSettings(); };
  Sweep(AllKinds, scene, Does([](DiskDesk&) {}, save), [](const Left& left) {
    EXPECT_TRUE(fs::is_symlink(left.Folder / "config" / "Tarnwick" / "Settings"));
    ExpectWholeSettings(left);
    if (left.Is == Kind::Dies) return;
    left.ExpectNoLeavings();
    if (!left.Told.empty()) ExpectSettingsFailure(left.Told);
  });
}

TEST_F(OnATroubledDisk, TheFirstSettingsComeWholeOrNotAtAll) {
  const auto save = [](DiskDesk& desk) { desk.Process.SaveSettings(); };
  Sweep(AllKinds, WithADocument, Does([](DiskDesk&) {}, save), [](const Left& left) {
    const auto file = left.File("config/Tarnwick/Settings");
    if (file) {
      EXPECT_TRUE(file->starts_with("SawLineColor=") && file->ends_with("\nGulletFeedIndex= .7\n"));
    }
    if (left.Is == Kind::Dies) return;
    left.ExpectNoLeavings();
    if (left.Told.empty()) {
      EXPECT_TRUE(file);
    } else {
      ExpectSettingsFailure(left.Told);
    }
  });
}

// ---- exports

/// An export is whole, or it is told of, where telling is due, and there is nothing by its name.
class Exports {
 public:
  Exports(std::string name, std::string old) : name_(std::move(name)), old_(std::move(old)) {}

  /// @return whether the export is there, whole
  bool Judge(const Left& left) {
    if (left.Is == Kind::None) whole_ = left.File(name_).value_or("");
    EXPECT_FALSE(whole_.empty());
    left.ExpectNoLeavings();
    const bool isWhole = left.File(name_) == whole_;
    EXPECT_TRUE(isWhole || left.IsGoneOr(name_, old_)) << "a part of the file";
    return isWhole;
  }

 private:
  std::string name_, old_, whole_;
};

AtDesk Chooses(const std::string& name) {
  return [name](DiskDesk& desk) {
    ChangeDocument(desk);
    desk.Choose(name);
  };
}

/// An older export lies there.
Scene With(const std::string& name) {
  return [name](const fs::path& folder) {
    WithADocument(folder);
    const TemporaryFolder other;
    fs::copy_file(other.File("old", "old"), folder / "documents" / name);
  };
}

TEST_F(OnATroubledDisk, ADrawingIsExportedWholeOrToldOf) {
  Exports exported("documents/head.dxf", "old");
  const auto act = [](DiskDesk& desk) { desk.Commands.ExportDxf(); };
  Sweep({Kind::Fails, Kind::DiskFull}, With("head.dxf"), Does(Chooses("head.dxf"), act),
        [&](const Left& left) {
          const bool isWhole = exported.Judge(left);
          EXPECT_EQ(left.State, "changed 12");
          EXPECT_EQ(left.Told.size(), isWhole ? 0u : 1u);
          if (!isWhole) {
            EXPECT_TRUE(left.Told.front().starts_with("Tarnwick: Error ")) << left.Told.front();
          }
        });
}

TEST_F(OnATroubledDisk, AListingIsExportedWholeOrNotAtAll) {
  Exports exported("documents/head.txt", "old");
  const auto act = [](DiskDesk& desk) { desk.Commands.SaveText(); };
  Sweep({Kind::Fails, Kind::DiskFull}, With("head.txt"), Does(Chooses("head.txt"), act),
        [&](const Left& left) {
          (void)exported.Judge(left);
          EXPECT_EQ(left.State, "changed 12");
          EXPECT_EQ(left.Told, Texts()) << "this one is silent";
        });
}

TEST_F(OnATroubledDisk, APowerFileIsSavedWholeOrToldOf) {
  Exports saved("documents/head.bsp", "old");
  const auto act = [](DiskDesk& desk) {
    PowerCalculator calculator(desk.Process, desk);
    calculator.GetSawPowerData(desk.Process.Design.Saw);
    calculator.PressSave();
    const bool isNamed = calculator.Caption() == "head.bsp - Power Calculator";
    desk.Show({.Title = isNamed ? "named" : "untitled", .Text = {}});
  };
  Sweep({Kind::Fails, Kind::DiskFull}, With("head.bsp"), Does(Chooses("head.bsp"), act),
        [&](const Left& left) {
          const bool isWhole = saved.Judge(left);
          ASSERT_EQ(left.Told.size(), isWhole ? 1u : 2u);
          EXPECT_EQ(left.Told.back(), isWhole ? "named: " : "untitled: ");
          if (!isWhole) {
            EXPECT_TRUE(IsSavingFailed(left.Told.front(), "cmdSave")) << left.Told.front();
          }
        });
}

// ---- the copy for the day after a crash

void ChangeAgain(DiskDesk& desk) {
  desk.Process.Design.Saw.HookAngle = Now + 1;
  desk.Commands.NoteForRecovery();
}

TEST_F(OnATroubledDisk, TheCopyOfADesignIsTheNewOneOrTheOneBefore) {
  Sweep(AllKinds, WithADocument, Does(ChangeDocument, ChangeAgain), [](const Left& left) {
    EXPECT_TRUE(left.Copy() == Now || left.Copy() == Now + 1) << left.Copy();
    EXPECT_EQ(left.Told, Texts());
    if (left.Is != Kind::Dies) left.ExpectNoLeavings();
  });
}

TEST_F(OnATroubledDisk, ACopyThatCouldNotBeWrittenIsWrittenAfterTheNextChange) {
  const auto act = [](DiskDesk& desk) {
    ChangeDocument(desk);
    ChangeAgain(desk);
  };
  Sweep({Kind::Fails}, WithADocument, Does([](DiskDesk&) {}, act), [](const Left& left) {
    EXPECT_TRUE(left.Copy() == Now || left.Copy() == Now + 1) << left.Copy();
    EXPECT_EQ(left.Told, Texts());
  });
}

TEST_F(OnATroubledDisk, ACopyOutlivesEveryStartUntilTheDesignIsSaved) {
  const auto scene = [](const fs::path& folder) {
    WithADocument(folder);
    DiskDesk desk(folder);
    ChangeDocument(desk);  // and here it ended, with nothing saved
  };
  const auto start = [](DiskDesk& desk) {
    desk.Commands.Begin();
    desk.Commands.NoteForRecovery();
  };
  Sweep(AllKinds, scene, Does([](DiskDesk&) {}, start), [](const Left& left) {
    EXPECT_EQ(left.Copy(), Now);
    EXPECT_EQ(left.Told, Texts());
    if (left.Is == Kind::Dies) return ExpectFoundAtTheNextStart(left, Document);
    EXPECT_TRUE(left.State == "changed 12" || left.State == "saved 0") << left.State;
  });
}

// ---- the command line tool

/// What the tool printed lies in a folder of its own, where nothing is in trouble.
class ToolOnATroubledDisk : public OnATroubledDisk {
 protected:
  void SweepTool(Texts arguments, const std::string& output) {
    Exports written(output, "old");
    const auto scene = [&output](const fs::path& folder) {
      WithADocument(folder);
      fs::create_directories((folder / output).parent_path());
      const TemporaryFolder other;
      fs::copy_file(other.File("old", "old"), folder / output);
    };
    const auto work = [&](const fs::path& folder) {
      Texts command{fs::absolute(TARNWICK_CLI), arguments.front(), "--defaults", folder / Document};
      for (std::size_t i = 1; i < arguments.size(); ++i) {
        const bool isOption = arguments[i].starts_with('-');
        command.push_back(isOption ? arguments[i] : (folder / arguments[i]).string());
      }
      return test::OtherProgram(command, streams_ / "out", streams_ / "err");
    };
    Sweep({Kind::Fails, Kind::DiskFull}, scene, work, [&](const Left& left) {
      const std::string told = BytesOf(streams_ / "err");
      if (!left.Run.Ended()) return;
      EXPECT_EQ(left.Run.ExitCode(), written.Judge(left) ? 0 : 1) << told;
      EXPECT_EQ(LinesOf(told).size(), static_cast<std::size_t>(left.Run.ExitCode())) << told;
      if (!told.empty()) {
        EXPECT_TRUE(told.starts_with("tarnwick-cli: ")) << told;
      }
      EXPECT_EQ(BytesOf(streams_ / "out"), "");
      EXPECT_EQ(left.File(Document), OldDocument);
    });
  }

 private:
  TemporaryFolder streams_;
};

TEST_F(ToolOnATroubledDisk, WritesAWholeDrawingOrTells) { SweepTool({"dxf", "-o", "out.dxf"}, "out.dxf"); }

TEST_F(ToolOnATroubledDisk, WritesAWholePictureOrTells) {
  SweepTool({"svg", "--out-dir", "pictures"}, "pictures/head.svg");
}

TEST_F(ToolOnATroubledDisk, WritesAWholeDesignOrTells) {
  SweepTool({"bsw", "--calculate", "--out-dir", "designs"}, "designs/head.bsw");
}

}  // namespace
}  // namespace tarnwick

#endif
