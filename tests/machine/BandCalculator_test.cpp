#include "machine/BandCalculator.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <optional>

#include "store/modPath.h"
#include "support/BrokenFileDialogs.h"
#include "support/Machines.h"
#include "support/RecordingCanvas.h"
#include "support/ScriptedDialogHost.h"
#include "support/ScriptedMachineHost.h"
#include "support/TestProgram.h"

namespace tarnwick {
namespace {

using test::BytesOf;
using test::Cancels;
using test::Enters;
using test::Machine;
using test::RecordingCanvas;

class Calculator : public testing::Test {
 protected:
  Calculator() { program_.Start(); }

  OpenDesign& Design() { return program_.Process.Design; }

  void Open(const BandSaw& saw) {
    calculator_ = std::make_unique<BandCalculator>(program_.Process, dialogs_, windows_);
    calculator_->GetBandCalcData(saw);
  }
  void Answer(const test::ValueAct& act) { dialogs_.Values.push_back(act); }
  void Enter(Parameter measure, std::string_view typed) {
    Answer(Enters(typed));
    calculator_->Click(measure);
  }

  std::vector<std::string> Texts() const {
    std::vector<std::string> texts;
    for (const MachineBox& box : MachineBoxes()) texts.push_back(calculator_->Text(box.Asked));
    return texts;
  }
  std::vector<std::string> Lengths() const {
    std::vector<std::string> lengths;
    for (int row = 0; row < LengthRows; ++row) lengths.push_back(calculator_->LengthText(row));
    return lengths;
  }
  std::optional<int> Ticked() const {
    std::optional<int> ticked;
    for (int row = 0; row < LengthRows; ++row) {
      if (!calculator_->IsTicked(row)) continue;
      EXPECT_FALSE(ticked) << "two rows are ticked";
      ticked = row;
    }
    return ticked;
  }
  const BandSaw& Saw() const { return calculator_->Saw(); }

  void TearDown() override { EXPECT_TRUE(dialogs_.Values.empty()); }

  test::TestProgram program_;
  test::ScriptedDialogHost dialogs_;
  test::ScriptedMachineHost windows_;
  std::unique_ptr<BandCalculator> calculator_;
};

using Strings = std::vector<std::string>;

BandSaw WithLength(BandSaw saw, double feet) {
  saw.Length = feet;
  return saw;
}

// ---- opening

TEST_F(Calculator, OpensEmptyOnADesignWithoutAMachine) {
  Open({});
  EXPECT_EQ(Texts(), (Strings{"", "", "", ""}));
  EXPECT_EQ(Lengths(), (Strings{"", "", "", ""}));
  EXPECT_EQ(Ticked(), OwnLength);
  EXPECT_FALSE(calculator_->HasPicture());
  RecordingCanvas canvas({700, 960});
  calculator_->DrawPicture(canvas);
  EXPECT_EQ(canvas.Calls.size(), 1U);  // cleared
}

TEST_F(Calculator, OpensOnWhatTheDesignHas) {
  BandSaw saw = WithLength(Machine(5, 10, 0.05), 36);
  saw.MachineInfo.Width = 6.5;
  Open(saw);
  EXPECT_EQ(Texts(), (Strings{" 5.000 ft", " 6.500 in", " 10.000 ft", " 0.050 in"}));
  EXPECT_EQ(Lengths(), (Strings{" 36.000 ft", " 35.865 ft", " 36.022 ft", " 36.179 ft"}));
  EXPECT_TRUE(calculator_->HasPicture());
  EXPECT_TRUE(dialogs_.Titles.empty());
}

TEST_F(Calculator, OpensWithTheOwnLengthTickedWhateverWasChosenBefore) {
  BandSaw saw = Machine(5, 10, 0.05);
  for (const int before : {0, 1, 3, 7, -4}) {
    saw.MachineInfo.InCenterOut = static_cast<std::int16_t>(before);
    Open(saw);
    EXPECT_EQ(Ticked(), OwnLength) << before;
  }
}

TEST_F(Calculator, ShowsTheInsideAloneWithoutAPlate) {
  Open(Machine(5, 10));
  EXPECT_EQ(Lengths(), (Strings{"", " 35.708 ft", "", ""}));
  EXPECT_EQ(calculator_->Text(Parameter::PlateThickness), "");
}

TEST_F(Calculator, ShowsMetricUnitsInAMetricDesign) {
  Design().ImpMetric = Metric;
  BandSaw saw = WithLength(Machine(5, 10, 0.05), 36);
  saw.MachineInfo.Width = 6.5;
  Open(saw);
  EXPECT_EQ(Texts(), (Strings{" 1.524 m", " 16.510 cm", " 3.048 m", " 1.270 mm"}));
  EXPECT_EQ(Lengths(), (Strings{" 10.973 m", " 10.932 m", " 10.980 m", " 11.027 m"}));
}

TEST_F(Calculator, CorrectsWheelsOutOfTheirLimitsAtOnce) {
  Open(Machine(20, 5));
  EXPECT_EQ(calculator_->Text(Parameter::WheelDiameter), " 15.000 ft");
  EXPECT_EQ(calculator_->Text(Parameter::CenterToCenter), " 15.300 ft");
  EXPECT_EQ(Saw().MachineInfo.WheelDia, 15);
}

TEST_F(Calculator, WorksOnACopy) {
  Design().Saw = Machine(20, 5);
  Open(Design().Saw);
  EXPECT_EQ(Design().Saw.MachineInfo.WheelDia, 20);
}

// ---- the boxes

struct Question {
  Parameter Measure;
  const char *Title, *Prompt, *Picture;
};

TEST_F(Calculator, AsksEachBoxsQuestion) {
  Open({});
  const Question questions[] = {
      {Parameter::WheelDiameter, "Wheel Diameter", "Enter Wheel Diameter", "WheelDia"},
      {Parameter::RimWidth, "Rim Width", "Enter Wheel Rim Width", "RimWidth"},
      {Parameter::CenterToCenter, "Center to Center", "Enter Wheel Center to Center", "CenToCen"},
      {Parameter::PlateThickness, "Plate Thickness", "Enter or Select the Plate Thickness.", "PlateThk"},
  };
  for (const Question& question : questions) {
    Answer(Cancels());
    calculator_->Click(question.Measure);
    EXPECT_EQ(dialogs_.Titles.back(), question.Title);
    EXPECT_EQ(dialogs_.Prompts.back(), std::string("\n") + question.Prompt);
    EXPECT_EQ(dialogs_.Pictures.back(), question.Picture);
  }
  EXPECT_EQ(Texts(), (Strings{"", "", "", ""}));
}

TEST_F(Calculator, WorksOutLengthsAndPictureOnceItHasWheelsAndCentres) {
  Open({});
  Enter(Parameter::WheelDiameter, "5 ft");
  EXPECT_EQ(Lengths(), (Strings{"", "", "", ""}));
  EXPECT_FALSE(calculator_->HasPicture());
  Enter(Parameter::CenterToCenter, "10");
  EXPECT_EQ(Lengths(), (Strings{"", " 35.708 ft", "", ""}));
  EXPECT_TRUE(calculator_->HasPicture());
  Enter(Parameter::PlateThickness, ".05 in");
  EXPECT_EQ(Lengths(), (Strings{"", " 35.865 ft", " 36.022 ft", " 36.179 ft"}));
  Enter(Parameter::RimWidth, "6 1/2");
  EXPECT_EQ(Texts(), (Strings{" 5.000 ft", " 6.500 in", " 10.000 ft", " 0.050 in"}));
}

TEST_F(Calculator, TakesMetricAnswersInMetresCentimetresAndMillimetres) {
  Design().ImpMetric = Metric;
  Open({});
  Enter(Parameter::WheelDiameter, "1.524");
  Enter(Parameter::RimWidth, "16.51");
  Enter(Parameter::CenterToCenter, "3.048");
  Enter(Parameter::PlateThickness, "1.27");
  EXPECT_NEAR(Saw().MachineInfo.WheelDia, 5, 1e-5);
  EXPECT_NEAR(Saw().MachineInfo.Width, 6.5, 1e-5);
  EXPECT_NEAR(Saw().MachineInfo.CenterToCenter, 10, 1e-5);
  EXPECT_NEAR(Saw().GeneralInfo.PlateThick, 0.05, 1e-5);
}

TEST_F(Calculator, CorrectsWhatIsEntered) {
  Open(Machine(5, 10));
  Enter(Parameter::WheelDiameter, "20");
  EXPECT_EQ(calculator_->Text(Parameter::WheelDiameter), " 15.000 ft");
  EXPECT_EQ(calculator_->Text(Parameter::CenterToCenter), " 15.300 ft");
  Enter(Parameter::CenterToCenter, "1000");
  EXPECT_EQ(calculator_->Text(Parameter::CenterToCenter), " 90.000 ft");
  Enter(Parameter::WheelDiameter, ".1");
  EXPECT_EQ(calculator_->Text(Parameter::WheelDiameter), " 0.500 ft");
  EXPECT_EQ(calculator_->Text(Parameter::CenterToCenter), " 3.000 ft");
}

TEST_F(Calculator, KeepsLengthsAndPictureWhenTheWheelsAreTakenAway) {
  Open(Machine(5, 10));
  Enter(Parameter::WheelDiameter, "0");
  EXPECT_EQ(calculator_->Text(Parameter::WheelDiameter), "");
  EXPECT_EQ(Lengths(), (Strings{"", " 35.708 ft", "", ""}));
  EXPECT_TRUE(calculator_->HasPicture());
}

TEST_F(Calculator, EmptiesTheRowsOfAPlateThatIsTakenAway) {
  Open(Machine(5, 10, 0.05));
  calculator_->TickLength(OutsideLength);
  Enter(Parameter::PlateThickness, "0");
  EXPECT_EQ(Lengths(), (Strings{"", " 35.708 ft", "", ""}));
  EXPECT_EQ(Ticked(), OwnLength);
}

TEST_F(Calculator, KeepsTheTickWhenTheLengthsChange) {
  Open(Machine(5, 10, 0.05));
  calculator_->TickLength(MiddleLength);
  Enter(Parameter::WheelDiameter, "4");
  EXPECT_EQ(Ticked(), MiddleLength);
  Enter(Parameter::PlateThickness, "0");
  calculator_->TickLength(InsideLength);
  Enter(Parameter::PlateThickness, ".06");
  EXPECT_EQ(Ticked(), InsideLength);
}

TEST_F(Calculator, ChangesNothingOnACancelledQuestion) {
  Open(Machine(5, 10, 0.05));
  const Strings texts = Texts(), lengths = Lengths();
  for (const MachineBox& box : MachineBoxes()) {
    Answer(Cancels());
    calculator_->Click(box.Asked);
  }
  Answer(Cancels());
  calculator_->ClickLength(OwnLength);
  EXPECT_EQ(Texts(), texts);
  EXPECT_EQ(Lengths(), lengths);
}

TEST_F(Calculator, WritesTheSettingsAfterEachQuestion) {
  Open(Machine(5, 10));
  const std::size_t before = program_.Store.Saved().size();
  Answer(Cancels());
  calculator_->Click(Parameter::RimWidth);
  EXPECT_GT(program_.Store.Saved().size(), before);  // of a cancelled one too
}

// ---- the rows

TEST_F(Calculator, AsksForTheOwnLength) {
  Open(Machine(5, 10));
  Answer(Enters("24 ft 6 in"));
  calculator_->ClickLength(OwnLength);
  EXPECT_EQ(dialogs_.Titles.back(), "Band Saw Length");
  EXPECT_EQ(calculator_->LengthText(OwnLength), " 24.500 ft");
  EXPECT_EQ(Saw().Length, 24.5);
}

TEST_F(Calculator, AsksForNoOtherLength) {
  Open(Machine(5, 10, 0.05));
  for (const int row : {InsideLength, MiddleLength, OutsideLength}) calculator_->ClickLength(row);
  calculator_->ClickLength(4);
  calculator_->ClickLength(-1);
  EXPECT_TRUE(dialogs_.Titles.empty());
}

TEST_F(Calculator, HasOneRowTicked) {
  Open(Machine(5, 10, 0.05));
  for (const int row : {2, 1, 3, 0, 2}) {
    calculator_->TickLength(row);
    EXPECT_EQ(Ticked(), row);
    EXPECT_EQ(Saw().MachineInfo.InCenterOut, row);
  }
}

TEST_F(Calculator, KeepsATickedRowTicked) {
  Open(Machine(5, 10, 0.05));
  calculator_->TickLength(InsideLength);
  calculator_->TickLength(InsideLength);
  EXPECT_EQ(Ticked(), InsideLength);
}

TEST_F(Calculator, TicksNoRowWithoutALength) {
  Open(Machine(5, 10));
  calculator_->TickLength(InsideLength);
  for (const int row : {MiddleLength, OutsideLength}) {
    calculator_->TickLength(static_cast<LengthRow>(row));
    EXPECT_EQ(Ticked(), InsideLength);
  }
  Open({});
  calculator_->TickLength(InsideLength);
  EXPECT_EQ(Ticked(), OwnLength);
}

TEST_F(Calculator, TicksTheOwnRowAlways) {
  Open(Machine(5, 10));
  calculator_->TickLength(InsideLength);
  calculator_->TickLength(OwnLength);
  EXPECT_EQ(Ticked(), OwnLength);
}

TEST_F(Calculator, TicksNoRowThatThereIsNot) {
  Open(Machine(5, 10, 0.05));
  calculator_->TickLength(4);
  calculator_->TickLength(-1);
  EXPECT_EQ(Ticked(), OwnLength);
}

// ---- OK and Cancel

TEST_F(Calculator, TakesTheTickedLengthAsItIsShown) {
  Open(Machine(5, 10, 0.05));
  for (const auto& [row, length] : {std::pair{1, 35.865}, {2, 36.022}, {3, 36.179}}) {
    calculator_->TickLength(row);
    calculator_->SetMachineVariables();
    EXPECT_EQ(Saw().Length, length);  // three decimals, as the text has them
  }
}

TEST_F(Calculator, TakesAMetricLengthFromItsMetres) {
  Design().ImpMetric = Metric;
  Open(Machine(5, 10));
  calculator_->TickLength(InsideLength);
  EXPECT_EQ(calculator_->LengthText(InsideLength), " 10.884 m");
  calculator_->SetMachineVariables();
  EXPECT_EQ(Saw().Length, 35.70866);  // 10.884 / 0.3048, rounded
}

TEST_F(Calculator, TakesAsManyDecimalsAsAreShown) {
  Design().Settings.Calculation.DisplayPlaces = 5;
  Open(Machine(5, 10));
  calculator_->TickLength(InsideLength);
  calculator_->SetMachineVariables();
  EXPECT_EQ(Saw().Length, 35.70796);
}

TEST_F(Calculator, LeavesTheLengthAloneWithTheOwnRow) {
  Open(WithLength(Machine(5, 10), 12.3456789));
  calculator_->PressOk();
  EXPECT_EQ(Saw().Length, 12.3456789);
  EXPECT_EQ(Saw().ContainsInfo.Teeth, True);
}

TEST_F(Calculator, LeavesTheTeethFlagAloneWithoutAnyLength) {
  BandSaw saw = Machine(5, 10);
  Open(saw);
  calculator_->PressOk();
  EXPECT_EQ(Saw().ContainsInfo.Teeth, False);
  saw.ContainsInfo.Teeth = True;
  Open(saw);
  calculator_->PressOk();
  EXPECT_EQ(Saw().ContainsInfo.Teeth, True);
}

TEST_F(Calculator, NotesTheMachineByAnyOfItsMeasures) {
  BandSaw rim;
  rim.MachineInfo.Width = 6;
  for (const BandSaw& saw : {Machine(5, 0), Machine(0, 10), rim}) {
    Open(saw);
    calculator_->PressOk();
    EXPECT_EQ(Saw().ContainsInfo.Machine, True);
  }
  Open({});
  calculator_->PressOk();
  EXPECT_EQ(Saw().ContainsInfo.Machine, False);
}

TEST_F(Calculator, NotesTeethByTheWidthAndGeneralByThePlate) {
  BandSaw saw;
  saw.Width = 5;
  Open(saw);
  calculator_->PressOk();
  EXPECT_EQ(Saw().ContainsInfo.Teeth, True);
  EXPECT_EQ(Saw().ContainsInfo.General, False);
  Open(Machine(0, 0, 0.05));
  calculator_->PressOk();
  EXPECT_EQ(Saw().ContainsInfo.Teeth, False);
  EXPECT_EQ(Saw().ContainsInfo.General, True);
}

TEST_F(Calculator, TakesNoFlagAway) {
  BandSaw saw;
  saw.ContainsInfo = {.General = True, .Teeth = True, .Power = True, .Machine = True, .Spare = {}};
  Open(saw);
  calculator_->PressOk();
  EXPECT_EQ(Saw().ContainsInfo.General, True);
  EXPECT_EQ(Saw().ContainsInfo.Teeth, True);
  EXPECT_EQ(Saw().ContainsInfo.Machine, True);
}

TEST_F(Calculator, IsAcceptedByOkAlone) {
  Open(Machine(5, 10));
  EXPECT_TRUE(calculator_->IsOpen());
  calculator_->PressOk();
  EXPECT_FALSE(calculator_->IsOpen());
  EXPECT_TRUE(calculator_->IsAccepted());
  Open(Machine(5, 10));
  calculator_->PressCancel();
  EXPECT_FALSE(calculator_->IsOpen());
  EXPECT_FALSE(calculator_->IsAccepted());
}

// ---- the drawing file

class CalculatorExport : public Calculator {
 protected:
  std::string Export(std::string_view name) {
    const std::filesystem::path path = program_.Documents / name;
    program_.Files.Paths.emplace_back(PathText(path));
    calculator_->PressExportDxf();
    return BytesOf(path);
  }
};

TEST_F(CalculatorExport, AsksWhereToInTheFolderOfDesigns) {
  Open(Machine(5, 10));
  program_.Files.Paths.emplace_back(std::nullopt);
  calculator_->PressExportDxf();
  ASSERT_EQ(program_.Files.Asked.size(), 1U);
  const FileQuestion& asked = program_.Files.Asked[0];
  EXPECT_EQ(program_.Files.Modes[0], "save");
  EXPECT_EQ(asked.Filter, "DXF Files (*.dxf)|*.dxf|All Files (*.*)|*.*");
  EXPECT_EQ(asked.Name, "untitled.dxf");
  EXPECT_EQ(asked.Folder, Design().SawDir());
  EXPECT_TRUE(asked.WarnBeforeReplacing);
  EXPECT_TRUE(program_.Say.Shown.empty());
  EXPECT_TRUE(windows_.Hourglass.empty());
}

TEST_F(CalculatorExport, WritesWheelsThenDimension) {
  Open(Machine(5, 10, 0.05));
  const std::string text = Export("mill.dxf");
  const std::size_t circle = text.find("CIRCLE"), words = text.find(" 10.000 ft          \r\n"),
                    solid = text.find("SOLID");
  EXPECT_NE(words, std::string::npos);
  EXPECT_LT(circle, words);
  EXPECT_LT(words, solid);
  EXPECT_NE(text.find("EOF\r\n"), std::string::npos);
  EXPECT_TRUE(program_.Say.Shown.empty());
  EXPECT_EQ(windows_.Hourglass, (std::vector<bool>{true, false}));
}

TEST_F(CalculatorExport, KnowsNoExtents) {
  Open(Machine(5, 10));
  const std::string text = Export("mill.dxf");
  EXPECT_NE(text.find("$EXTMAX\r\n 10 \r\n0\r\n 20 \r\n0\r\n"), std::string::npos);
  EXPECT_NE(text.find("$VIEWCTR\r\n 10 \r\n0\r\n 20 \r\n0\r\n"), std::string::npos);
  EXPECT_NE(text.find("$VIEWSIZE\r\n 40 \r\n0\r\n"), std::string::npos);
}

TEST_F(CalculatorExport, AddsTheEndingThatIsMissing) {
  Open(Machine(5, 10));
  EXPECT_EQ(Export("mill"), "");
  EXPECT_FALSE(BytesOf(program_.Documents / "mill.dxf").empty());
  EXPECT_FALSE(Export("other.DXF").empty());
  EXPECT_FALSE(std::filesystem::exists(program_.Documents / "other.DXF.dxf"));
  EXPECT_FALSE(Export("a.dxf.bak").empty());
}

TEST_F(CalculatorExport, AsksBeforeReplacingANameThatTheDialogDidNotSee) {
  Open(Machine(5, 10));
  const std::filesystem::path path = program_.Documents.File("mill.dxf", "before");
  program_.Say.Answers = {Button::No, Button::Yes};
  Export("mill");
  EXPECT_EQ(BytesOf(path), "before");
  Export("mill");
  EXPECT_NE(BytesOf(path), "before");
  ASSERT_EQ(program_.Say.Shown.size(), 2U);
  EXPECT_EQ(program_.Say.Shown[0].Text,
            PathText(path) + "\nThis file already exists.\nDo you want to replace it?");
}

TEST_F(CalculatorExport, WritesAnEmptyDrawingWithoutAMachine) {
  Open({});
  const std::string text = Export("none.dxf");
  EXPECT_NE(text.find("ENTITIES\r\n 0 \r\nENDSEC\r\n"), std::string::npos);
}

TEST_F(CalculatorExport, TellsOfAFileThatCannotBeWritten) {
  Open(Machine(5, 10));
  std::filesystem::create_directory(program_.Documents / "folder.dxf");
  program_.Files.Paths.emplace_back(PathText(program_.Documents / "folder.dxf"));
  calculator_->PressExportDxf();
  ASSERT_EQ(program_.Say.Shown.size(), 1U);
  EXPECT_EQ(program_.Say.Shown[0].Text.substr(0, 6), "Error ");
  EXPECT_EQ(windows_.Hourglass, (std::vector<bool>{true, false}));
}

TEST_F(CalculatorExport, TakesTheColourOfDrawingFiles) {
  Design().Settings.Calculation.DxfSaveColor = 3;
  Open(Machine(5, 10));
  EXPECT_NE(Export("mill.dxf").find(" 62 \r\n3\r\n"), std::string::npos);
}

TEST_F(CalculatorExport, TellsOfAnyOtherFailureInTheMainWindowsWords) {
  test::BrokenFileDialogs broken;
  Surroundings out{program_.Say,  program_.Time, program_.Store, program_.Colors,
                   program_.Help, broken,        program_.Bin};
  Program process(out);
  BandCalculator calculator(process, dialogs_, windows_);
  calculator.PressExportDxf();
  ASSERT_EQ(program_.Say.Shown.size(), 1U);
  EXPECT_EQ(program_.Say.Shown[0].Title, "Saving");
  EXPECT_EQ(program_.Say.Shown[0].Text, broken.Told("mnuItemExport"));
}

// ---- hints

struct HintRow {
  const char *Control, *Hint;
};

TEST(BandCalcHint, SaysWhatEachControlIsFor) {
  const HintRow rows[] = {
      {"chkLength(0)", "Check to select bandsaw length."},
      {"chkLength(3)", "Check to select bandsaw length."},
      {"cmdCancel", "Click to quit bandsaw calculator."},
      {"cmdOk", "Click to select calculated values."},
      {"txtCenters", "Click to select center to center between wheels!"},
      {"lblCenters", "Click to select center to center between wheels!"},
      {"txtPlateThick", "Click to select plate thickness!"},
      {"lblPlateThick", "Click to select plate thickness!"},
      {"txtRimWidth", "Click to select wheel rim width."},
      {"lblRimWidth", "Click to select wheel rim width."},
      {"txtWheelDia", "Click to select wheel diameter!"},
      {"lblWheelDia", "Click to select wheel diameter!"},
      {"txtLength(0)", "Select to choose your own bandsaw length value."},
      {"txtLength(1)", "Select to choose the inside bandsaw length."},
      {"txtLength(2)", "Select to choose the middle of the bandsaw length."},
      {"txtLength(3)", "Select to choose the outside of the bandsaw length."},
      {"picBand", ""},
      {"", ""},
      {"cmdExportDxf", ""},
  };
  for (const HintRow& row : rows) EXPECT_EQ(BandCalcHint(row.Control), row.Hint) << row.Control;
}

}  // namespace
}  // namespace tarnwick
