#include "power/PowerCalculator.h"

#include <gtest/gtest.h>

#include <map>

#include "support/FieldChanges.h"
#include "support/FolderAsFile.h"
#include "support/PowerDesign.h"
#include "support/ScriptedDialogHost.h"
#include "support/TestProgram.h"

namespace tarnwick {
namespace {

using enum PowerBox;
using test::BytesOf;
using test::Cancels;
using test::ChangedFields;
using test::Enters;
using test::PowerDesign;
using Names = std::set<std::string>;
using Texts = std::vector<std::string>;
using TextOf = std::map<std::string, std::string>;

class PowerCalculatorTest : public testing::Test {
 protected:
  PowerCalculatorTest() { program_.Start(); }

  void Accept(PowerBox box, std::size_t side, std::string_view typed) {
    host_.Values.push_back(Enters(typed));
    calculator_.Click(box, side);
  }

  /// The boxes of a side that are not empty, by their names without "txt".
  TextOf Filled(std::size_t side) const {
    TextOf filled;
    for (const PowerBoxRow& row : PowerCalculatorBoxes()) {
      const std::string& text = calculator_.Text(row.Box, side);
      if (!text.empty()) filled[std::string(row.Control.substr(3))] = text;
    }
    return filled;
  }

  const BandSaw& Saw(std::size_t side) const { return calculator_.Saws()[side]; }
  std::string Path(std::string_view name) const { return (folder_ / name).string(); }
  void Choose(const std::optional<std::string>& path) { program_.Files.Paths.emplace_back(path); }

  test::TestProgram program_;
  test::TemporaryFolder folder_;
  test::ScriptedDialogHost host_;
  PowerCalculator calculator_{program_.Process, host_};
};

// ---- opening

TEST_F(PowerCalculatorTest, ShowsTheDesignAsFirstCalculationAndAnEmptySecond) {
  BandSaw saw = PowerDesign();
  saw.MachineInfo.CenterToCenter = 12;
  saw.DesignInfo.SawVelocity = 8000;  // as stored, whatever it would come out as
  saw.GeneralInfo.HorsePower = 61;
  calculator_.GetSawPowerData(saw);
  EXPECT_EQ(Filled(0), (TextOf{{"HPSawOD", " 5.000 ft"},
                               {"Centers", " 12.000 ft"},
                               {"Length", " 40.000 ft"},
                               {"ToothPitch", " 2.000 in"},
                               {"NumTeeth", " 240"},
                               {"HPPlateThick", " 0.065 in"},
                               {"HPToothWidth", " 0.150 in"},
                               {"RPMs", " 510 rpms"},
                               {"SawVelocity", " 8000 fpm"},
                               {"MaxDepth", " 10.000 in"},
                               {"FeedRate", " 100 fpm"},
                               {"SpecificEnergy", "Oak (White)"},
                               {"HPGulletArea", " 1.000 in²"},
                               {"HorsePower", " 61.000"}}));
  EXPECT_EQ(Filled(1), TextOf());
  EXPECT_EQ(ChangedFields(Saw(0), saw), Names());
  EXPECT_EQ(ChangedFields(Saw(1), BandSaw()), Names());
  EXPECT_EQ(calculator_.Caption(), "Power Calculator");
  EXPECT_EQ(calculator_.Path(), "untitled.bsp");
}

TEST_F(PowerCalculatorTest, ShowsEmptyBoxesForAnEmptyDesign) {
  calculator_.GetSawPowerData({});
  EXPECT_EQ(Filled(0), TextOf());
}

// ---- clicks on boxes

TEST_F(PowerCalculatorTest, AsksForEveryBoxThatIsNoResult) {
  for (const PowerBoxRow& row : PowerCalculatorBoxes()) {
    if (row.Asked) host_.Values.push_back(Cancels());
    calculator_.Click(row.Box, 1);
  }
  EXPECT_EQ(host_.Titles, (Texts{"Wheel Diameter", "Center to Center", "Band Saw Length", "Tooth Pitch",
                                 "Number of Teeth", "Plate Thickness", "Tip Kerf", "Wheel RPMs",
                                 "Maximum Depth of Cut", "Feed Rate", "Type of Wood"}));
  EXPECT_EQ(Filled(1), TextOf());
  EXPECT_EQ(ChangedFields(Saw(1), BandSaw()), Names());
  calculator_.Click(MaxFeedRate, 0);  // no box of this window
  calculator_.Click(RPMs, 2);         // no side of it
}

TEST_F(PowerCalculatorTest, WorksOutTheChainOfTheSideThatWasClicked) {
  calculator_.GetSawPowerData(PowerDesign());
  calculator_.PressCopy();
  const TextOf second = Filled(1);
  Accept(FeedRate, 0, "200");
  EXPECT_EQ(calculator_.Text(FeedRate, 0), " 200 fpm");
  EXPECT_EQ(calculator_.Text(SawVelocity, 0), " 8011 fpm");
  EXPECT_EQ(calculator_.Text(Bite, 0), " 0.050 in");
  EXPECT_EQ(calculator_.Text(Capacity, 0), " 0.499 in²");
  EXPECT_EQ(calculator_.Text(HorsePower, 0), " 125.000");
  EXPECT_EQ(calculator_.Text(SideClearance, 0), "");  // of plate and kerf alone
  EXPECT_EQ(Saw(0).DesignInfo.MaxFeedRate, 0);
  EXPECT_EQ(Filled(1), second);
}

struct DependentRow {
  const char* Name;
  PowerBox Box;
  const char* Typed;
  Names Changed;  // beside what the chain works out
  void (*Holds)(const BandSaw&);
  friend void PrintTo(const DependentRow& row, std::ostream* out) { *out << row.Name; }
};

class PowerCalculatorClick : public PowerCalculatorTest, public testing::WithParamInterface<DependentRow> {};

TEST_P(PowerCalculatorClick, SetsWhatDependsOnTheBox) {
  BandSaw saw = PowerDesign();
  saw.MachineInfo.CenterToCenter = 12;
  saw.DesignInfo.SawVelocity = 8011;
  calculator_.GetSawPowerData(saw);
  Accept(GetParam().Box, 0, GetParam().Typed);
  Names changed = ChangedFields(saw, Saw(0));
  for (const char* figure :
       {"DesignInfo.SawVelocity", "GulletInfo.Bite", "GulletInfo.Capacity", "GeneralInfo.HorsePower"}) {
    changed.erase(figure);
  }
  EXPECT_EQ(changed, GetParam().Changed);
  GetParam().Holds(Saw(0));
}

INSTANTIATE_TEST_SUITE_P(
    Boxes, PowerCalculatorClick,
    testing::Values(
        DependentRow{"Speed",
                     RPMs,
                     "600",
                     {"GeneralInfo.ShaftSpeed"},
                     [](const BandSaw& s) { EXPECT_EQ(s.DesignInfo.SawVelocity, 9425); }},
        DependentRow{"Wood",
                     SpecificEnergy,
                     "Redwood",
                     {"GeneralInfo.WoodType"},
                     [](const BandSaw& s) { EXPECT_EQ(s.GeneralInfo.HorsePower, 39.58333); }},
        DependentRow{"Plate",
                     HPPlateThick,
                     "0.05",
                     {"GeneralInfo.PlateThick", "GeneralInfo.SideClear"},
                     [](const BandSaw& s) { EXPECT_EQ(s.GeneralInfo.SideClear, 0.05); }},
        DependentRow{"Kerf",
                     HPToothWidth,
                     "0.125",
                     {"GeneralInfo.Kerf", "GeneralInfo.SideClear"},
                     [](const BandSaw& s) { EXPECT_EQ(s.GeneralInfo.SideClear, 0.03); }},
        DependentRow{"Wheel",
                     HPSawOD,
                     "6",
                     {"MachineInfo.WheelDia", "Length"},
                     [](const BandSaw& s) { EXPECT_EQ(s.Length, 42.84955); }},
        DependentRow{"Centers",
                     Centers,
                     "10",
                     {"MachineInfo.CenterToCenter", "Length"},
                     [](const BandSaw& s) { EXPECT_EQ(s.Length, 35.70796); }},
        DependentRow{"NoWheelKeepsTheLength",
                     HPSawOD,
                     "0",
                     {"MachineInfo.WheelDia"},
                     [](const BandSaw& s) { EXPECT_EQ(s.Length, 40); }},
        DependentRow{
            "Length", Length, "50", {"Length", "Pitch"}, [](const BandSaw& s) { EXPECT_EQ(s.Pitch, 2.5); }},
        DependentRow{"Teeth",
                     NumTeeth,
                     "137",
                     {"NumTeeth", "Pitch"},
                     [](const BandSaw& s) { EXPECT_EQ(s.Pitch, 3.50365); }},
        DependentRow{"NoTeethKeepThePitch",
                     NumTeeth,
                     "0",
                     {"NumTeeth"},
                     [](const BandSaw& s) { EXPECT_EQ(s.Pitch, 2); }},
        DependentRow{"PitchCutsTheTeeth",
                     ToothPitch,
                     "1.75",
                     {"Pitch", "NumTeeth"},
                     [](const BandSaw& s) { EXPECT_EQ(s.NumTeeth, 274); }},  // of 274.28
        DependentRow{"PitchOfWholeTeeth",
                     ToothPitch,
                     "1.6",
                     {"Pitch", "NumTeeth"},
                     [](const BandSaw& s) { EXPECT_EQ(s.NumTeeth, 300); }},
        DependentRow{"NoPitchKeepsTheTeeth",
                     ToothPitch,
                     "0",
                     {"Pitch"},
                     [](const BandSaw& s) { EXPECT_EQ(s.NumTeeth, 240); }},
        DependentRow{"MoreTeethThanFitKeepTheirNumber",
                     ToothPitch,
                     "0.01",
                     {"Pitch"},
                     [](const BandSaw& s) { EXPECT_EQ(s.NumTeeth, 240); }}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST_F(PowerCalculatorTest, LeavesTheBoxesEmptyForATeethOfZeroOnAnEmptySide) {
  Accept(NumTeeth, 1, "0");
  EXPECT_EQ(Filled(1), TextOf());
  EXPECT_EQ(program_.Say.Texts(), Texts());
}

TEST_F(PowerCalculatorTest, ConvertsWhatIsTypedInMetric) {
  program_.Process.Design.ImpMetric = Metric;
  Accept(Length, 1, "12");
  EXPECT_EQ(Saw(1).Length, 39.37007);
  EXPECT_EQ(calculator_.Text(Length, 1), " 12.000 m");
}

// ---- feed index

TEST_F(PowerCalculatorTest, HasAFeedIndexOfItsOwn) {
  EXPECT_EQ(calculator_.FeedIndexEntry(), 12U);
  calculator_.SelectFeedIndex(0);
  EXPECT_EQ(calculator_.FeedIndex(), 0.1);
  EXPECT_EQ(calculator_.FeedIndexEntry(), 0U);
  EXPECT_EQ(program_.Process.Design.Settings.GulletFeedIndex, 0.7);
  calculator_.SelectFeedIndex(19);  // no such entry
  EXPECT_EQ(calculator_.FeedIndex(), 0.1);
}

TEST_F(PowerCalculatorTest, WorksOutBothSidesWithANewFeedIndex) {
  calculator_.GetSawPowerData(PowerDesign());  // shown as stored: no bite
  calculator_.PressCopy();
  calculator_.SelectFeedIndex(0);
  for (const std::size_t side : {0U, 1U}) EXPECT_EQ(calculator_.Text(Bite, side), " 0.025 in") << side;
}

TEST_F(PowerCalculatorTest, ChoosesNoEntryForAnIndexBetweenThem) {
  program_.Process.Design.Settings.GulletFeedIndex = 0.72;
  const PowerCalculator calculator(program_.Process, host_);
  EXPECT_EQ(calculator.FeedIndex(), 0.72);
  EXPECT_EQ(calculator.FeedIndexEntry(), std::nullopt);
}

// ---- clear, copy, new

TEST_F(PowerCalculatorTest, ClearsOneSideAlone) {
  calculator_.GetSawPowerData(PowerDesign());
  calculator_.PressCopy();
  const TextOf second = Filled(1);
  calculator_.PressClear(0);
  EXPECT_EQ(Filled(0), TextOf());
  EXPECT_EQ(ChangedFields(Saw(0), BandSaw()), Names());
  EXPECT_EQ(Filled(1), second);
  calculator_.PressClear(2);
  EXPECT_EQ(Filled(1), second);
}

TEST_F(PowerCalculatorTest, CopiesTheFirstOverTheSecond) {
  calculator_.GetSawPowerData(PowerDesign());
  calculator_.PressCopy();
  EXPECT_EQ(ChangedFields(Saw(0), Saw(1)), Names());
  EXPECT_EQ(Filled(1), Filled(0));
}

TEST_F(PowerCalculatorTest, BeginsANewDocumentWithoutAQuestion) {
  calculator_.GetSawPowerData(PowerDesign());
  calculator_.PressCopy();
  Choose(Path("oak.bsp"));
  calculator_.PressSave();
  calculator_.PressNew();
  EXPECT_EQ(calculator_.Caption(), "Power Calculator");
  EXPECT_EQ(calculator_.Path(), "untitled.bsp");
  for (const std::size_t side : {0U, 1U}) {
    EXPECT_EQ(Filled(side), TextOf());
    EXPECT_EQ(ChangedFields(Saw(side), BandSaw()), Names());
  }
  EXPECT_EQ(program_.Say.Texts(), Texts());
}

// ---- files

TEST_F(PowerCalculatorTest, SavesBothCalculationsAndNamesThem) {
  calculator_.GetSawPowerData(PowerDesign());
  Accept(Length, 1, "33");
  Choose(Path("oak.bsp"));
  calculator_.PressSave();
  EXPECT_EQ(calculator_.Caption(), "oak.bsp - Power Calculator");
  EXPECT_EQ(calculator_.Path(), Path("oak.bsp"));
  EXPECT_EQ(BytesOf(folder_ / "oak.bsp"), PowerFileText(calculator_.Saws()));
  ASSERT_EQ(program_.Files.Modes, Texts{"save"});
  EXPECT_EQ(program_.Files.Asked[0].Filter, "Bandsaw Power Files (*.bsp)|*.bsp");
  EXPECT_EQ(program_.Files.Asked[0].Name, "untitled.bsp");
  EXPECT_EQ(program_.Files.Asked[0].Folder, program_.Process.Design.SawDir());
  EXPECT_TRUE(program_.Files.Asked[0].WarnBeforeReplacing);
}

TEST_F(PowerCalculatorTest, AddsTheExtensionThatANameLacks) {
  for (const auto& [typed, written] :
       {std::pair{"oak", "oak.bsp"}, std::pair{"oak.old", "oak.old.bsp"}, std::pair{"FIR.BSP", "FIR.BSP"},
        std::pair{"a.bsp.x", "a.bsp.x.bsp"}}) {
    Choose(Path(typed));
    calculator_.PressSave();
    EXPECT_EQ(calculator_.Path(), Path(written));
    EXPECT_EQ(BytesOf(folder_ / written).size(), PowerFileSize) << written;
  }
}

TEST_F(PowerCalculatorTest, AsksBeforeAnExtensionLeadsToAnotherFile) {
  folder_.File("oak.bsp", "something");
  Choose(Path("oak"));
  program_.Say.Answers = {Button::No};
  calculator_.PressSave();
  ASSERT_EQ(program_.Say.Shown.size(), 1U);
  EXPECT_EQ(program_.Say.Shown[0].Text,
            Path("oak.bsp") + "\nThis file already exists.\nDo you want to replace it?");
  EXPECT_EQ(program_.Say.Shown[0].Default, Button::No);
  EXPECT_EQ(BytesOf(folder_ / "oak.bsp"), "something");
  EXPECT_EQ(calculator_.Caption(), "Power Calculator");
  Choose(Path("oak"));
  program_.Say.Answers = {Button::Yes};
  calculator_.PressSave();
  EXPECT_EQ(BytesOf(folder_ / "oak.bsp").size(), PowerFileSize);
}

TEST_F(PowerCalculatorTest, TellsWhyItCannotSave) {
  Choose(Path("missing/oak.bsp"));
  calculator_.PressSave();
  ASSERT_EQ(program_.Say.Shown.size(), 1U);
  const Box& box = program_.Say.Shown[0];
  EXPECT_EQ(box.Title, "Saving");
  EXPECT_EQ(box.Text.find("Error Number: "), 0U) << box.Text;
  EXPECT_TRUE(box.Text.ends_with("\nSub Program cmdSave")) << box.Text;
  EXPECT_EQ(calculator_.Caption(), "Power Calculator");
}

TEST_F(PowerCalculatorTest, OpensAFileAndWorksItOut) {
  BandSaw first = PowerDesign(), second = PowerDesign();
  second.GeneralInfo.FeedRate = 200;
  ASSERT_FALSE(SavePowerFile({first, second}, folder_ / "oak.bsp"));
  Choose(Path("oak.bsp"));
  calculator_.PressOpen();
  EXPECT_EQ(calculator_.Caption(), "oak.bsp - Power Calculator");
  EXPECT_EQ(calculator_.Path(), Path("oak.bsp"));
  EXPECT_EQ(calculator_.Text(HorsePower, 0), " 62.500");
  EXPECT_EQ(calculator_.Text(HorsePower, 1), " 125.000");
  EXPECT_EQ(program_.Files.Modes, Texts{"open"});
  EXPECT_EQ(program_.Files.Asked[0].Filter, "Bandsaw Power Files (*.bsp)|*.bsp");
  EXPECT_EQ(program_.Say.Texts(), Texts());

  Choose(std::nullopt);
  calculator_.PressSave();
  EXPECT_EQ(program_.Files.Asked[1].Name, "oak.bsp");
}

TEST_F(PowerCalculatorTest, DoesNothingWhenAFileDialogIsCancelled) {
  calculator_.GetSawPowerData(PowerDesign());
  const TextOf first = Filled(0);
  Choose(std::nullopt);
  calculator_.PressOpen();
  Choose(std::nullopt);
  calculator_.PressSave();
  EXPECT_EQ(Filled(0), first);
  EXPECT_EQ(calculator_.Caption(), "Power Calculator");
}

TEST_F(PowerCalculatorTest, KeepsItsCalculationsWhenAFileIsRefused) {
  calculator_.GetSawPowerData(PowerDesign());
  const TextOf first = Filled(0);
  const std::string file = folder_.File("other.bsp", "something else").string();
  Choose(file);
  calculator_.PressOpen();
  EXPECT_EQ(program_.Say.Texts(), Texts{"Not a valid Power File     "});
  EXPECT_EQ(Filled(0), first);
  EXPECT_EQ(calculator_.Caption(), "Power Calculator");
  EXPECT_EQ(calculator_.Path(), "untitled.bsp");
  EXPECT_TRUE(std::filesystem::exists(folder_ / "other.bsp"));  // nothing is ever removed here

  Choose(Path("missing.bsp"));
  calculator_.PressOpen();
  EXPECT_EQ(program_.Say.Shown.size(), 1U);
  EXPECT_EQ(Filled(0), first);
}

TEST_F(PowerCalculatorTest, SavesNothingOnExitAndAsksNothing) {
  Accept(Length, 0, "33");
  calculator_.PressExit();
  EXPECT_FALSE(calculator_.IsOpen());
  EXPECT_EQ(program_.Say.Texts(), Texts());
  EXPECT_EQ(program_.Files.Modes, Texts());
}

// ---- paper

TEST_F(PowerCalculatorTest, PrintsNothingWithoutData) {
  EXPECT_FALSE(calculator_.MayPrint());
  ASSERT_EQ(program_.Say.Shown.size(), 1U);
  EXPECT_EQ(program_.Say.Shown[0].Title, "Print Canceled");
  EXPECT_EQ(program_.Say.Shown[0].Text, "No power information available to print!");
  BandSaw blank;
  blank.ImpMetric = Metric;
  blank.Width = 5;  // on no line of the print-out
  calculator_.GetSawPowerData(blank);
  EXPECT_FALSE(calculator_.MayPrint());
}

TEST_F(PowerCalculatorTest, PrintsWhenOneSideHoldsData) {
  Accept(SpecificEnergy, 1, "Redwood");
  EXPECT_TRUE(calculator_.MayPrint());
  EXPECT_EQ(program_.Say.Texts(), Texts());
}

TEST_F(PowerCalculatorTest, PrintsBothCalculationsWithTheFeedIndexOfTheMoment) {
  calculator_.GetSawPowerData(PowerDesign());
  calculator_.SelectFeedIndex(8);
  const PowerLines lines = calculator_.PaperLines();
  ASSERT_EQ(lines.size(), 41U);
  EXPECT_EQ(lines[0], (PowerLine{PowerLine::Role::Heading, "Power Calculation # 1"}));
  EXPECT_EQ(lines[18], (PowerLine{PowerLine::Role::Figure, "Gullet Feed Index:", " 50 Percent"}));
  EXPECT_EQ(lines[19], (PowerLine{PowerLine::Role::Figure, "Horsepower:", " 62.500"}));
  EXPECT_EQ(lines[20], (PowerLine{PowerLine::Role::Blank, ""}));
  EXPECT_EQ(lines[21], (PowerLine{PowerLine::Role::Heading, "Power Calculation # 2"}));
  EXPECT_EQ(lines[39], (PowerLine{PowerLine::Role::Figure, "Gullet Feed Index:", " 50 Percent"}));
  EXPECT_EQ(lines[40], (PowerLine{PowerLine::Role::Figure, "Horsepower:", " 0.000"}));
}

}  // namespace
}  // namespace tarnwick
