#if defined(__linux__) && defined(__x86_64__)

#include "hardening/TroubledDesk.h"

namespace tarnwick {
namespace {

using namespace troubled;

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

}  // namespace
}  // namespace tarnwick

#endif
