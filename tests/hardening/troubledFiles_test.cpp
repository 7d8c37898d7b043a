#if defined(__linux__) && defined(__x86_64__)

#include "hardening/TroubledDesk.h"
#include "power/PowerCalculator.h"
#include "store/modPowerFile.h"

namespace tarnwick {
namespace {

using namespace troubled;

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
