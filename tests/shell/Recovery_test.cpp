#include "shell/Recovery.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <thread>

#include "geometry/modTooth.h"
#include "store/modRecoveryCopy.h"
#include "store/modSave.h"
#include "support/CollectedMessages.h"
#include "support/Designs.h"
#include "support/OpenPath.h"
#include "support/TemporaryFolder.h"
#ifndef _WIN32
#include <sys/stat.h>

#include "support/FullDisk.h"
#include "support/KilledProcess.h"
#endif
#ifdef __linux__
#include "support/OrdinaryUser.h"
#endif

namespace tarnwick {
namespace {

namespace fs = std::filesystem;
using test::BytesOf;
using test::CollectedMessages;
using test::PlainDesign;
using test::TemporaryFolder;
using Paths = std::vector<fs::path>;

/// The state of a user, and a folder with his designs. A program that crashes is one whose Recovery goes
/// without having ended.
class RecoveryOf : public testing::Test {
 protected:
  [[nodiscard]] fs::path Folder() const { return state_ / "Tarnwick"; }

  [[nodiscard]] Paths Files(const char* extension) const {
    Paths files;
    std::error_code none;
    for (const auto& entry : fs::directory_iterator(Folder(), none)) {
      if (entry.path().extension() == extension) files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
  }
  [[nodiscard]] Paths Copies() const { return Files(".copy"); }
  [[nodiscard]] bool NothingLeft() const { return !fs::exists(Folder()) || fs::is_empty(Folder()); }

  /// What a copy's file holds; a blank one when there is not exactly one copy.
  [[nodiscard]] RecoveryCopy TheCopy() const {
    const Paths copies = Copies();
    EXPECT_EQ(copies.size(), 1U);
    const auto copy = ReadRecovery(copies.size() == 1 ? BytesOf(copies[0]) : std::string());
    EXPECT_TRUE(copy);
    return copy.value_or(RecoveryCopy());
  }

  /// A design opened from a file, and then changed.
  OpenDesign Changed(const char* name = "head.bsw", double depth = 0.8) {
    OpenDesign design;
    const fs::path file = documents_.File(name, BandSawText(PlainDesign()));
    EXPECT_TRUE(test::OpenPath(design, PathText(fs::path(file).make_preferred()), say_));
    design.Saw.GulletInfo.Depth = depth;
    design.Recalculate(say_);
    EXPECT_FALSE(SameSaw(design.Saw, design.SawSaved));
    return design;
  }

  void CrashWith(const OpenDesign& design) const { Recovery(state_.Path()).Note(design); }

  /// The answers of the user to come.
  void Answer(std::initializer_list<Button> answers) { user_.Answers.assign(answers); }

  TemporaryFolder state_, documents_;
  CollectedMessages say_;   // of the opening of designs
  CollectedMessages user_;  // whom copies are offered
};

// ---- Keeping the copy

TEST_F(RecoveryOf, ADesignAsSavedMakesNothing) {
  Recovery recovery(state_.Path());
  recovery.Note(OpenDesign());
  EXPECT_FALSE(fs::exists(Folder()));
  recovery.End();
  EXPECT_FALSE(fs::exists(Folder()));
}

TEST_F(RecoveryOf, AChangedDesignIsKeptWithNameAndFolder) {
  const OpenDesign design = Changed();
  Recovery recovery(state_.Path());
  recovery.Note(design);
  const RecoveryCopy copy = TheCopy();
  EXPECT_EQ(copy.FileName, "head.bsw");
  EXPECT_EQ(copy.Folder, design.SawDir());
  EXPECT_EQ(BandSawText(copy.Saw), BandSawText(design.Saw));
}

TEST_F(RecoveryOf, NothingIsPutBesideTheDocument) {
  const OpenDesign design = Changed();
  const std::string before = BytesOf(documents_ / "head.bsw");
  CrashWith(design);
  EXPECT_EQ(BytesOf(documents_ / "head.bsw"), before);
  EXPECT_EQ(std::distance(fs::directory_iterator(documents_.Path()), {}), 1);
}

TEST_F(RecoveryOf, TheCopyFollowsEveryChange) {
  OpenDesign design = Changed();
  Recovery recovery(state_.Path());
  for (const double depth : {0.5, 0.6, 0.65}) {
    design.Saw.GulletInfo.Depth = depth;
    recovery.Note(design);
    EXPECT_EQ(TheCopy().Saw.GulletInfo.Depth, depth);
  }
  design.Saw.GulletInfo.FrostWidth += 1;  // which does not count as a change of the design, yet is part of it
  recovery.Note(design);
  EXPECT_EQ(TheCopy().Saw.GulletInfo.FrostWidth, design.Saw.GulletInfo.FrostWidth);
  design.FileName = "other.bsw";
  recovery.Note(design);
  EXPECT_EQ(TheCopy().FileName, "other.bsw");
  EXPECT_EQ(Files(".new"), Paths());
}

TEST_F(RecoveryOf, ADesignThatIsAsNotedIsNotWrittenAgain) {
  OpenDesign design = Changed();
  Recovery recovery(state_.Path());
  recovery.Note(design);
  const fs::path copy = Copies().at(0);
  fs::remove(copy);  // a write would bring it back
  for (int i = 0; i < 1000; ++i) recovery.Note(design);
  EXPECT_FALSE(fs::exists(copy));
  design.Saw.GulletInfo.Depth = 0.5;
  recovery.Note(design);
  EXPECT_TRUE(fs::exists(copy));
}

TEST_F(RecoveryOf, TheCopyGoesWhenTheDesignIsSaved) {
  OpenDesign design = Changed();
  Recovery recovery(state_.Path());
  recovery.Note(design);
  ASSERT_FALSE(SaveBandSaw(design.Saw, documents_ / "head.bsw"));
  design.KeepAsSaved();
  recovery.Saved(design);
  EXPECT_EQ(Copies(), Paths());
  EXPECT_EQ(Files(".lock").size(), 1U);  // the program is running
  design.Saw.Width = 6;
  recovery.Note(design);
  EXPECT_EQ(Copies().size(), 1U);
}

TEST_F(RecoveryOf, TheCopyGoesWhenTheChangesAreTakenBackOrGivenUp) {
  OpenDesign design = Changed();
  Recovery recovery(state_.Path());
  recovery.Note(design);
  const BandSaw changed = std::exchange(design.Saw, design.SawSaved);
  recovery.Note(design);
  EXPECT_EQ(Copies(), Paths());
  design.Saw = changed;
  recovery.Note(design);
  EXPECT_EQ(Copies().size(), 1U);
  design.ClearSaw();
  design.KeepAsSaved();
  recovery.Note(design);
  EXPECT_EQ(Copies(), Paths());
}

TEST_F(RecoveryOf, NothingIsLeftOfAProgramThatEnded) {
  Recovery recovery(state_.Path());
  recovery.Note(Changed());
  recovery.End();
  EXPECT_TRUE(NothingLeft());
  recovery.End();
  EXPECT_TRUE(NothingLeft());
}

// ---- Offering it

TEST_F(RecoveryOf, TheQuestionIsThis) {
  CrashWith(Changed());
  OpenDesign design;
  Answer({Button::No});
  Recovery(state_.Path()).Offer(design, user_);
  ASSERT_EQ(user_.Shown.size(), 1U);
  const Box& box = user_.Shown[0];
  EXPECT_EQ(box.Title, "Recovery");
  EXPECT_EQ(box.Text, "A design was open when the program ended unexpectedly.\nDo you wish to recover it?");
  EXPECT_EQ(box.Offer, Buttons::YesNo);
  EXPECT_EQ(box.Default, Button::Yes);
  EXPECT_EQ(box.Shown, Icon::Question);
}

TEST_F(RecoveryOf, NothingIsAskedWithoutACrash) {
  OpenDesign design;
  EXPECT_FALSE(Recovery(state_.Path()).Offer(design, user_));
  Recovery ended(state_.Path());
  ended.Note(Changed());
  ended.End();
  EXPECT_FALSE(Recovery(state_.Path()).Offer(design, user_));
  EXPECT_TRUE(user_.Shown.empty());
}

TEST_F(RecoveryOf, ARecoveredDesignIsAsItWas) {
  OpenDesign lost = Changed();
  lost.Saw.ImpMetric = Metric;
  CrashWith(lost);
  OpenDesign design;
  design.View.SetSurface({10, 7});
  ASSERT_TRUE(Recovery(state_.Path()).Offer(design, user_));
  EXPECT_EQ(design.FileName, "head.bsw");
  EXPECT_EQ(design.SawDir(), lost.SawDir());
  EXPECT_EQ(BandSawText(design.Saw), BandSawText(lost.Saw));
  EXPECT_TRUE(SameSaw(design.SawEdit, lost.Saw));
  EXPECT_TRUE(SameSaw(design.SawSaved, lost.SawSaved));
  EXPECT_EQ(design.ImpMetric, Metric);
  EXPECT_EQ(design.Lines.Count(), lost.Lines.Count());
  EXPECT_GT(design.Lines.Count(), 0U);
  EXPECT_EQ(design.View.ScaleText(), "1.0");
  EXPECT_EQ(user_.Shown.size(), 1U);
}

TEST_F(RecoveryOf, ADesignWithoutAFileComesBackAgainstTheBlankOne) {
  OpenDesign lost;
  lost.Settings.CurrentSawDir = PathText(documents_.Path() / "");
  lost.Saw = PlainDesign();
  CrashWith(lost);
  OpenDesign design;
  design.Settings.MainImpMetric = Metric;
  ASSERT_TRUE(Recovery(state_.Path()).Offer(design, user_));
  EXPECT_EQ(design.FileName, UntitledName);
  EXPECT_EQ(design.ImpMetric, Imperial);
  OpenDesign blank;
  blank.Settings.MainImpMetric = Metric;
  blank.ClearSaw();
  EXPECT_TRUE(SameSaw(design.SawSaved, blank.Saw));
  EXPECT_FALSE(SameSaw(design.Saw, design.SawSaved));
}

TEST_F(RecoveryOf, ADesignWhoseFileWasRemovedCountsAsChanged) {
  const OpenDesign lost = Changed();
  CrashWith(lost);
  fs::remove(documents_ / "head.bsw");
  OpenDesign design;
  ASSERT_TRUE(Recovery(state_.Path()).Offer(design, user_));
  EXPECT_EQ(design.FileName, "head.bsw");
  EXPECT_EQ(design.SawDir(), lost.SawDir());
  EXPECT_TRUE(SameSaw(design.SawSaved, BandSaw{}));
  EXPECT_FALSE(SameSaw(design.Saw, design.SawSaved));
  EXPECT_FALSE(fs::exists(documents_ / "head.bsw"));
}

TEST_F(RecoveryOf, AFileThatIsNoDesignAnyMoreIsPassedOverInSilence) {
  CrashWith(Changed());
  documents_.File("head.bsw", "Shopping list");
  OpenDesign design;
  ASSERT_TRUE(Recovery(state_.Path()).Offer(design, user_));
  EXPECT_TRUE(SameSaw(design.SawSaved, BandSaw{}));
  EXPECT_EQ(user_.Shown.size(), 1U);
}

TEST_F(RecoveryOf, ADesignIsHeldAgainstItsFileAsThatIsNow) {
  CrashWith(Changed());
  BandSaw newer = PlainDesign();
  newer.Width = 7;
  documents_.File("head.bsw", BandSawText(newer));
  OpenDesign design;
  ASSERT_TRUE(Recovery(state_.Path()).Offer(design, user_));
  static_cast<void>(CalculateSaw(newer, design.Settings.Calculation, say_));
  EXPECT_TRUE(SameSaw(design.SawSaved, newer));
}

TEST_F(RecoveryOf, ARecoveredDesignIsSafeFromTheNextCrash) {
  CrashWith(Changed());
  const Paths before = Copies();
  for (int i = 0; i < 3; ++i) {
    OpenDesign design;
    ASSERT_TRUE(Recovery(state_.Path()).Offer(design, user_));
    EXPECT_EQ(Copies(), before);
    EXPECT_EQ(Files(".lock").size(), 1U);
  }
}

TEST_F(RecoveryOf, ARecoveredDesignIsNotWrittenBeforeItChanges) {
  CrashWith(Changed());
  OpenDesign design;
  Recovery recovery(state_.Path());
  ASSERT_TRUE(recovery.Offer(design, user_));
  const fs::path copy = Copies().at(0);
  fs::remove(copy);
  recovery.Note(design);
  EXPECT_FALSE(fs::exists(copy));
  design.Saw.GulletInfo.Depth = 0.5;
  recovery.Note(design);
  EXPECT_EQ(TheCopy().Saw.GulletInfo.Depth, 0.5);
}

TEST_F(RecoveryOf, TheCopyOfARecoveredDesignGoesWithItsSave) {
  CrashWith(Changed());
  OpenDesign design;
  Recovery recovery(state_.Path());
  ASSERT_TRUE(recovery.Offer(design, user_));
  recovery.Note(design);
  ASSERT_EQ(Copies().size(), 1U);
  design.KeepAsSaved();
  recovery.Saved(design);
  EXPECT_EQ(Copies(), Paths());
  recovery.End();
  EXPECT_TRUE(NothingLeft());
}

// ---- When it is not wanted

TEST_F(RecoveryOf, ADeclinedCopyStaysUntilTheNextSave) {
  CrashWith(Changed());
  const std::string kept = BytesOf(Copies().at(0));
  OpenDesign design;
  Recovery recovery(state_.Path());
  Answer({Button::No});
  EXPECT_FALSE(recovery.Offer(design, user_));
  EXPECT_EQ(design.FileName, UntitledName);
  EXPECT_TRUE(SameSaw(design.Saw, BandSaw{}));
  recovery.Note(design);  // as saved, but nothing has been saved
  EXPECT_EQ(BytesOf(Copies().at(0)), kept);
  design = Changed("other.bsw");
  recovery.Note(design);
  EXPECT_EQ(Copies().size(), 2U);
  design.KeepAsSaved();
  recovery.Saved(design);
  EXPECT_EQ(Copies(), Paths());
  recovery.End();
  EXPECT_TRUE(NothingLeft());
}

TEST_F(RecoveryOf, ADeclinedCopyIsOfferedAgainWhenNothingWasSaved) {
  CrashWith(Changed());
  OpenDesign design;
  Answer({Button::No, Button::Yes});
  Recovery first(state_.Path());
  EXPECT_FALSE(first.Offer(design, user_));
  first.End();
  EXPECT_TRUE(Recovery(state_.Path()).Offer(design, user_));
  EXPECT_EQ(design.Saw.GulletInfo.Depth, 0.8);
}

TEST_F(RecoveryOf, ADeclinedCopyThatAnotherProgramWantedIsNotRemoved) {
  CrashWith(Changed());
  OpenDesign design, others;
  Answer({Button::No, Button::Yes});
  Recovery recovery(state_.Path());
  EXPECT_FALSE(recovery.Offer(design, user_));
  {
    Recovery other(state_.Path());
    EXPECT_TRUE(other.Offer(others, user_));
    recovery.Saved(design);
    EXPECT_EQ(Copies().size(), 1U);
    others.Saw.GulletInfo.Depth = 0.5;
    other.Note(others);
  }
  recovery.Saved(design);  // after the other's crash, with more in the copy than was declined
  EXPECT_EQ(TheCopy().Saw.GulletInfo.Depth, 0.5);
}

// ---- Many programs, many copies

TEST_F(RecoveryOf, TheCopyOfARunningProgramIsNotOffered) {
  Recovery running(state_.Path());
  running.Note(Changed());
  OpenDesign design;
  Recovery second(state_.Path());
  EXPECT_FALSE(second.Offer(design, user_));
  EXPECT_TRUE(user_.Shown.empty());
  second.Note(Changed("other.bsw"));
  EXPECT_EQ(Copies().size(), 2U);
  second.End();
  EXPECT_EQ(TheCopy().FileName, "head.bsw");
}

TEST_F(RecoveryOf, ACopyIsOfferedToOneProgramAtATime) {
  CrashWith(Changed());
  /// While one program asks, another one starts.
  struct SecondStart : Messages {
    explicit SecondStart(fs::path state) : State(std::move(state)) {}
    Button Show(const Box&) override {
      OpenDesign design;
      CollectedMessages other;
      EXPECT_FALSE(Recovery(State).Offer(design, other));
      EXPECT_TRUE(other.Shown.empty());
      return Button::Yes;
    }
    fs::path State;
  };
  SecondStart asked(state_.Path());
  OpenDesign design;
  EXPECT_TRUE(Recovery(state_.Path()).Offer(design, asked));
}

TEST_F(RecoveryOf, ManyCopiesAreOfferedLatestFirst) {
  constexpr int many = 20;
  for (int i = 0; i < many; ++i) {
    const Paths before = Copies();
    CrashWith(Changed("head.bsw", 0.5 + i / 100.0));
    for (const fs::path& copy : Copies()) {
      if (std::count(before.begin(), before.end(), copy) > 0) continue;
      fs::last_write_time(copy, fs::file_time_type::clock::now() - std::chrono::hours(many - i));
    }
  }
  EXPECT_EQ(Copies().size(), std::size_t{many});
  OpenDesign design;
  Answer({Button::No, Button::No, Button::Yes});
  Recovery recovery(state_.Path());
  ASSERT_TRUE(recovery.Offer(design, user_));
  EXPECT_EQ(user_.Shown.size(), 3U);
  EXPECT_EQ(design.Saw.GulletInfo.Depth, 0.67);
  recovery.Note(design);
  EXPECT_EQ(Copies().size(), std::size_t{many});
  design.KeepAsSaved();
  recovery.Saved(design);  // the recovered one and the two that were declined
  EXPECT_EQ(Copies().size(), std::size_t{many - 3});
}

TEST_F(RecoveryOf, ManyProgramsKeepTheirCopiesApart) {
  const OpenDesign design = Changed();
  std::vector<Recovery> programs;
  for (int i = 0; i < 50; ++i) programs.emplace_back(state_.Path()).Note(design);
  EXPECT_EQ(Copies().size(), programs.size());
  for (Recovery& program : programs) program.End();
  EXPECT_TRUE(NothingLeft());
}

TEST_F(RecoveryOf, ProgramsThatStartAndEndAtOnceKeepOutOfEachOthersWay) {
  const OpenDesign changed = Changed();
  const auto days = [&] {
    for (int i = 0; i < 30; ++i) {
      OpenDesign design;
      CollectedMessages user;
      Recovery recovery(state_.Path());
      EXPECT_FALSE(recovery.Offer(design, user));
      recovery.Note(changed);
      recovery.End();
    }
  };
  std::thread other(days);
  days();
  other.join();
  EXPECT_TRUE(NothingLeft());
}

// ---- What lies about

TEST_F(RecoveryOf, ATornOrForeignCopyIsPassedOverInSilence) {
  CrashWith(Changed());
  const fs::path copy = Copies().at(0);
  const std::string whole = BytesOf(copy);
  for (const std::string& bytes :
       {whole.substr(0, whole.size() - 1), std::string(), std::string("Shopping list"),
        BandSawText(PlainDesign()), std::string(2 << 20, 'x')}) {
    state_.File("Tarnwick/" + copy.filename().string(), bytes);
    OpenDesign design;
    EXPECT_FALSE(Recovery(state_.Path()).Offer(design, user_));
    EXPECT_EQ(BytesOf(copy), bytes);
  }
  EXPECT_TRUE(user_.Shown.empty());
}

TEST_F(RecoveryOf, OtherFilesAreLeftAlone) {
  CrashWith(Changed());
  Paths others;
  const std::string copy = BytesOf(Copies().at(0));
  for (const char* name :
       {"Tarnwick/Settings", "Tarnwick/recovery-0123456789abcdeX.copy", "Tarnwick/notes.copy",
        "Tarnwick/recovery-0123456789abcdef0.copy", "Tarnwick/recovery-0123456789abcdef"}) {
    others.push_back(state_.File(name, copy));
  }
  fs::create_directories(Folder() / "recovery-00000000000000aa.copy" / "inside");
  OpenDesign design;
  Recovery recovery(state_.Path());
  Answer({Button::No});
  EXPECT_FALSE(recovery.Offer(design, user_));
  EXPECT_EQ(user_.Shown.size(), 1U);
  recovery.Saved(design);
  recovery.End();
  for (const fs::path& other : others) EXPECT_TRUE(fs::exists(other)) << other;
  EXPECT_TRUE(fs::exists(Folder() / "recovery-00000000000000aa.copy" / "inside"));
}

TEST_F(RecoveryOf, ACopyWhoseLockIsMissingIsOffered) {
  CrashWith(Changed());
  fs::remove(Files(".lock").at(0));
  OpenDesign design;
  EXPECT_TRUE(Recovery(state_.Path()).Offer(design, user_));
}

TEST_F(RecoveryOf, WhatACrashLeftBesideACopyIsClearedAway) {
  fs::create_directory(Folder());
  state_.File("Tarnwick/recovery-00000000000000aa.lock", "");  // crashed with its design saved
  state_.File("Tarnwick/recovery-00000000000000bb.lock", "");  // crashed while it wrote its first copy
  state_.File("Tarnwick/recovery-00000000000000bb.copy.77.new", "Tarn");
  OpenDesign design;
  EXPECT_FALSE(Recovery(state_.Path()).Offer(design, user_));
  EXPECT_TRUE(user_.Shown.empty());
  EXPECT_TRUE(NothingLeft());
}

// ---- Without a place for it

/// All that a program does in a day, where there is no recovery.
void ADayWithout(const fs::path& state, const OpenDesign& changed) {
  Recovery recovery(state);
  OpenDesign design;
  CollectedMessages user;
  EXPECT_FALSE(recovery.Offer(design, user));
  recovery.Note(changed);
  recovery.Saved(changed);
  recovery.Note(design);
  recovery.Note(changed);
  recovery.End();
  EXPECT_TRUE(user.Shown.empty());
}

TEST_F(RecoveryOf, WithoutAStateFolderThereIsNone) { ADayWithout({}, Changed()); }

TEST_F(RecoveryOf, WhereAFileHasTheNameOfTheFolderThereIsNone) {
  state_.File("Tarnwick", "x");
  ADayWithout(state_.Path(), Changed());
  EXPECT_EQ(BytesOf(Folder()), "x");
  ADayWithout(Folder(), Changed());
}

TEST_F(RecoveryOf, AStateFolderThatIsNotThereYetIsMade) {
  const fs::path deep = state_ / "home/.local/state";
  OpenDesign design;
  {
    Recovery recovery(deep);
    EXPECT_FALSE(recovery.Offer(design, user_));
    EXPECT_FALSE(fs::exists(state_ / "home"));
    recovery.Note(Changed());
  }
  EXPECT_TRUE(Recovery(deep).Offer(design, user_));
}

#ifndef _WIN32

TEST_F(RecoveryOf, DesignsAreNobodyElsesToRead) {
  CrashWith(Changed());
  EXPECT_EQ(fs::status(Folder()).permissions(), fs::perms::owner_all);
}

TEST_F(RecoveryOf, ACopyThatIsALinkOrAPipeIsNone) {
  CrashWith(Changed());
  const fs::path copy = Copies().at(0);
  fs::rename(copy, state_ / "elsewhere");
  OpenDesign design;
  fs::create_symlink(state_ / "elsewhere", copy);
  EXPECT_FALSE(Recovery(state_.Path()).Offer(design, user_));
  fs::remove(copy);
  ASSERT_EQ(mkfifo(copy.c_str(), 0600), 0);
  EXPECT_FALSE(Recovery(state_.Path()).Offer(design, user_));
  EXPECT_TRUE(user_.Shown.empty());
}

TEST_F(RecoveryOf, ADesignWhoseFileIsAPipeNowDoesNotWaitForIt) {
  CrashWith(Changed());
  fs::remove(documents_ / "head.bsw");
  ASSERT_EQ(mkfifo((documents_ / "head.bsw").c_str(), 0600), 0);
  OpenDesign design;
  EXPECT_TRUE(Recovery(state_.Path()).Offer(design, user_));
  EXPECT_TRUE(SameSaw(design.SawSaved, BandSaw{}));
}

TEST_F(RecoveryOf, AFullDiskLeavesTheOlderCopyUntilTheNextChange) {
  OpenDesign design = Changed();
  Recovery recovery(state_.Path());
  recovery.Note(design);
  {
    const test::FullDisk full(1000);
    design.Saw.GulletInfo.Depth = 0.5;
    recovery.Note(design);
  }
  EXPECT_EQ(TheCopy().Saw.GulletInfo.Depth, 0.8);
  design.Saw.GulletInfo.Depth = 0.6;
  recovery.Note(design);
  EXPECT_EQ(TheCopy().Saw.GulletInfo.Depth, 0.6);
}

TEST_F(RecoveryOf, AKilledProgramIsACrashAndARunningOneIsNot) {
  const OpenDesign changed = Changed();
  Recovery inOther(state_.Path());
  test::KilledProcess other([&] { inOther.Note(changed); });
  ASSERT_TRUE(other.Ready());
  OpenDesign design;
  EXPECT_EQ(Copies().size(), 1U);
  EXPECT_FALSE(Recovery(state_.Path()).Offer(design, user_));
  EXPECT_TRUE(user_.Shown.empty());
  other.Kill();
  EXPECT_TRUE(Recovery(state_.Path()).Offer(design, user_));
  EXPECT_TRUE(SameSaw(design.Saw, changed.Saw));
}

TEST_F(RecoveryOf, AProgramKilledAmongManyWritesLeavesAWholeCopy) {
  OpenDesign changed = Changed();
  Recovery inOther(state_.Path());
  test::KilledProcess other([&] {
    inOther.Note(changed);
    std::thread([&] {
      for (int i = 0;; ++i) {
        changed.Saw.GulletInfo.Depth = i;
        inOther.Note(changed);
      }
    }).detach();
  });
  ASSERT_TRUE(other.Ready());
  std::this_thread::sleep_for(std::chrono::milliseconds(20));
  other.Kill();
  EXPECT_EQ(TheCopy().FileName, "head.bsw");
  OpenDesign design;
  Recovery recovery(state_.Path());
  EXPECT_TRUE(recovery.Offer(design, user_));
  recovery.End();
  EXPECT_TRUE(NothingLeft());
}

#endif

#ifdef __linux__

TEST_F(RecoveryOf, WhereNothingMayBeWrittenThereIsNone) {
  const OpenDesign changed = Changed();
  const test::OrdinaryUser user;
  const auto closed = fs::perms::owner_read | fs::perms::owner_exec;
  fs::permissions(state_.Path(), closed);
  ADayWithout(state_.Path(), changed);
  fs::permissions(state_.Path(), fs::perms::owner_all);
  EXPECT_FALSE(fs::exists(Folder()));
  fs::create_directory(Folder());
  fs::permissions(Folder(), closed);
  ADayWithout(state_.Path(), changed);
  fs::permissions(Folder(), fs::perms::owner_all);
  EXPECT_TRUE(fs::is_empty(Folder()));
}

TEST_F(RecoveryOf, ACopyThatMayNotBeReadIsPassedOver) {
  CrashWith(Changed());
  const test::OrdinaryUser user;
  fs::permissions(Copies().at(0), fs::perms::none);
  OpenDesign design;
  EXPECT_FALSE(Recovery(state_.Path()).Offer(design, user_));
  EXPECT_EQ(Copies().size(), 1U);
  fs::permissions(Folder(), fs::perms::none);
  ADayWithout(state_.Path(), OpenDesign());
  fs::permissions(Folder(), fs::perms::owner_all);
}

#endif

}  // namespace
}  // namespace tarnwick
