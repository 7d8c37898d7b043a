#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <vector>

#include "support/EditorsTest.h"
#include "support/FieldChanges.h"

namespace tarnwick {
namespace {

using test::ChangedFields;
using test::EditorsTest;
using test::PlainDesign;
using test::Told;
using Names = std::set<std::string>;

using EditorBoxes = EditorsTest;

TEST_F(EditorBoxes, TakeAMeasureCalculateAndAreFilledAgain) {
  view_.Current = Panel::ToothShape;
  host_.Values = {test::Enters("30")};
  EXPECT_TRUE(editors_.ClickBox(Box("txtLength")));
  EXPECT_EQ(Steps(), (Told{"DrawSaw", "FillBoxes"}));
  EXPECT_EQ(host_.Titles, std::vector<std::string>{"Band Saw Length"});
  EXPECT_EQ(design_.Saw.Length, 30);
  EXPECT_EQ(design_.Saw.NumTeeth, 120);
  EXPECT_EQ(view_.At("FillBoxes").Saw.Pitch, 3) << "the corrected neighbour";
  EXPECT_EQ(design_.SawEdit.Length, 20);
}

TEST_F(EditorBoxes, PutTheirRuleAheadOfTheCalculation) {
  host_.Values = {test::Enters("5")};
  editors_.ClickBox(Box("txtNumTeeth"));
  EXPECT_EQ(design_.Saw.NumTeeth, 12);
  EXPECT_EQ(design_.Saw.Pitch, 20);

  host_.Values = {test::Enters("1.77")};
  editors_.ClickBox(Box("txtPitch"));
  EXPECT_EQ(design_.Saw.NumTeeth, 135) << "cut, where the calculation alone would round to 136";
}

TEST_F(EditorBoxes, HaveTheLeastRadiiOfTheirStyles) {
  Open(PlainDesign(TripleRadius));
  design_.Saw.GulletInfo.Radius1 = 0.1;
  design_.Saw.GulletInfo.Radius3 = 0.1;
  host_.Values = {test::Enters("0.2")};
  editors_.ClickBox(Box("txt2ndGulletRad"));
  EXPECT_EQ(design_.Saw.GulletInfo.Radius2, 0.375);
}

TEST_F(EditorBoxes, ReadAndStoreInTheUnitsOfTheDesign) {
  editors_.SetUnits(Metric);
  host_.Values = {test::Enters("3.048")};
  editors_.ClickBox(Box("txtLength"));
  EXPECT_EQ(design_.Saw.Length, 10);
}

TEST_F(EditorBoxes, ChangeNothingWhenTheDialogIsCancelled) {
  const BandSaw before = design_.Saw;
  for (const auto fields : {ToothFields(), GeneralFields()}) {
    for (const PanelField& field : fields) {
      if (field.Act != BoxAct::Ask) continue;
      if (ToothBoxState(field, SquareBack, false) != BoxState::Clickable) continue;
      host_.Values = {test::Cancels()};
      EXPECT_FALSE(editors_.ClickBox(field)) << field.Control;
      EXPECT_EQ(ChangedFields(before, design_.Saw), Names{}) << field.Control;
      EXPECT_EQ(view_.Log(), Told{}) << field.Control;
      EXPECT_TRUE(host_.Values.empty()) << field.Control;
      host_.Values.clear();
    }
  }
  host_.YesNos = {test::DeclinesToSay()};
  editors_.ClickBox(Box("txtSeat"));
  EXPECT_EQ(ChangedFields(before, design_.Saw), Names{});
  EXPECT_EQ(view_.Log(), Told{});
}

TEST_F(EditorBoxes, WriteTheSettingsAfterEachDialog) {
  std::size_t written = SettingsWritten();
  host_.Values = {test::Enters("30")};
  editors_.ClickBox(Box("txtLength"));
  EXPECT_GT(SettingsWritten(), written);

  written = SettingsWritten();
  host_.Values = {test::Cancels()};
  editors_.ClickBox(Box("txtLength"));
  EXPECT_GT(SettingsWritten(), written) << "cancelled ones too";

  written = SettingsWritten();
  host_.YesNos = {test::DeclinesToSay()};
  editors_.ClickBox(Box("txtSeat"));
  EXPECT_GT(SettingsWritten(), written);
}

TEST_F(EditorBoxes, AskWhetherThereIsASeat) {
  host_.YesNos = {test::Says(true)};
  editors_.ClickBox(Box("txtSeat"));
  EXPECT_EQ(host_.Titles, std::vector<std::string>{"Seat"});
  EXPECT_EQ(host_.OpenedOn, std::vector<bool>{false});
  EXPECT_EQ(design_.Saw.SeatInfo.State, True);
  EXPECT_EQ(Steps(), (Told{"DrawSaw", "FillBoxes"}));

  host_.YesNos = {test::Says(false)};
  editors_.ClickBox(Box("txtSeat"));
  EXPECT_EQ(host_.OpenedOn, (std::vector<bool>{false, true}));
  EXPECT_EQ(design_.Saw.SeatInfo.State, False);
}

TEST_F(EditorBoxes, OfAResultDoNothing) {
  const auto doesNothing = [this](const char* control) {
    editors_.ClickBox(Box(control));
    EXPECT_EQ(view_.Log(), Told{}) << control;
    EXPECT_TRUE(host_.Titles.empty()) << control;
  };
  for (const char* control : {"txtSharpAngle", "txtFaceLength", "txtGulletArea", "txtAreaBelowTip",
                              "txtSideClear", "txtSeatWidth", "txtSeatHeight"})
    doesNothing(control);
  design_.Saw.ToothStyle = NarrowStyle;
  doesNothing("txtClear");
  design_.Saw.ToothStyle = OShape;
  doesNothing("txtClear");
}

TEST_F(EditorBoxes, OfTheSeatAskOnceThereIsOne) {
  design_.Saw.SeatInfo.State = True;
  host_.Values = {test::Enters("0.05"), test::Enters("0.2")};
  editors_.ClickBox(Box("txtSeatWidth"));
  editors_.ClickBox(Box("txtSeatHeight"));
  EXPECT_EQ(host_.Titles, (std::vector<std::string>{"Seat Width", "Seat Height"}));
}

TEST_F(EditorBoxes, OfOtherEditorsNameThem) {
  const std::map<int, std::string> texts{
      {100, "To change this value you must use the tooth shape editor."},
      {101, "To change this value you must use the bandsaw length calculator."},
      {102, "To change this value you must use the variable pitch editor."},
      {103, "To change this value you must use the power requirements editor."},
      {104, "To change this value you must use the general information editor."}};
  int clicked = 0;
  for (const auto fields : {ToothFields(), GeneralFields()}) {
    for (const PanelField& field : fields) {
      if (field.Act != BoxAct::MustUse) continue;
      editors_.ClickBox(field);
      EXPECT_EQ(view_.Log(), Told{"ShowStatus " + texts.at(field.Text) + "|"}) << field.Control;
      ++clicked;
    }
  }
  EXPECT_EQ(clicked, 19);
  EXPECT_TRUE(SameSaw(design_.Saw, design_.SawSaved));
}

TEST_F(EditorBoxes, GiveAFrostToothItsNotch) {
  host_.Values = {test::Picks(7)};
  editors_.ClickBox(Box("txtToothStyle"));
  const auto calculated = view_.At("DrawSaw");
  EXPECT_EQ(calculated.Saw.ToothStyle, FrostTooth);
  EXPECT_EQ(design_.Saw.GulletInfo.Radius1, 0.3);
  EXPECT_EQ(design_.Saw.GulletInfo.FrostAngle, 25);
  EXPECT_EQ(design_.Saw.GulletInfo.FrostRadius, 0.03937);
  EXPECT_EQ(design_.Saw.ContainsInfo.Teeth, True);
  EXPECT_EQ(Steps(), (Told{"DrawSaw", "FillBoxes"}));
}

TEST_F(EditorBoxes, LeaveTheNotchAloneForAnotherStyle) {
  host_.Values = {test::Picks(1)};
  editors_.ClickBox(Box("txtToothStyle"));
  EXPECT_EQ(design_.Saw.ToothStyle, RoundBack);
  EXPECT_EQ(design_.Saw.GulletInfo.FrostAngle, 0);
  EXPECT_EQ(design_.Saw.GulletInfo.FrostRadius, 0);
  EXPECT_EQ(design_.Saw.GulletInfo.Radius1, 0);
}

TEST_F(EditorBoxes, OfTheGeneralInformationFillThatSection) {
  for (const char* control : {"txtTipType", "txtPlateThick", "txtKerf", "txtJoinStyle"}) {
    design_.Saw.ContainsInfo.General = False;
    host_.Values = {test::Picks(1)};
    editors_.ClickBox(Box(control));
    EXPECT_EQ(design_.Saw.ContainsInfo.General, True) << control;
    EXPECT_EQ(Steps(), (Told{"DrawSaw", "FillBoxes"})) << control;
  }
  EXPECT_EQ(design_.Saw.GeneralInfo.TipType, 1);
  EXPECT_EQ(design_.Saw.DesignInfo.JoinStyle, OverlapJoin);
}

TEST_F(EditorBoxes, OfTheGeneralInformationLeaveTheSectionAloneWhenCancelled) {
  host_.Values = {test::Cancels()};
  editors_.ClickBox(Box("txtKerf"));
  EXPECT_EQ(design_.Saw.ContainsInfo.General, False);
}

TEST_F(EditorBoxes, OfTheToothAreNoGeneralInformation) {
  host_.Values = {test::Enters("30"), test::Enters("12")};
  editors_.ClickBox(Box("txtLength"));
  editors_.ClickBox(Box("txtHook"));
  EXPECT_EQ(design_.Saw.ContainsInfo.General, False);
}

TEST_F(EditorBoxes, TakeWhatIsTyped) {
  editors_.TypeInto(Box("txtDesignBy"), "A. Filer");
  EXPECT_EQ(design_.Saw.CustomerInfo.DesignBy.Trimmed(), "A. Filer");
  EXPECT_EQ(design_.Saw.ContainsInfo.General, True);
  editors_.TypeInto(Box("txtQuantity"), "12");
  EXPECT_EQ(design_.Saw.GeneralInfo.Quantity, 12);
  editors_.TypeInto(Box("txtAdditional2nd"), "sharp");
  EXPECT_EQ(design_.Saw.DesignInfo.Comment2.Trimmed(), "sharp");
  EXPECT_TRUE(host_.Titles.empty());
}

TEST_F(EditorBoxes, ThatAreFilledByTheProgramChangeNothing) {
  BandSaw saw = PlainDesign();
  saw.CustomerInfo.CustName.Assign("Oak & Sons");
  saw.GeneralInfo.Quantity = 3;
  Open(saw);
  for (const PanelField& field : GeneralFields()) {
    if (field.Act != BoxAct::Type) continue;
    editors_.TypeInto(field, field.Shown(design_.Saw, design_.Format()));
    EXPECT_EQ(ChangedFields(design_.SawSaved, design_.Saw), Names{}) << field.Control;
  }
}

TEST_F(EditorBoxes, TickTeethOnBothEdges) {
  const std::size_t oneEdge = design_.Lines.Count();
  editors_.TickBothEdges(true);
  EXPECT_EQ(design_.Saw.BothEdges, True);
  EXPECT_EQ(design_.Saw.ContainsInfo.General, True);
  EXPECT_GT(design_.Lines.Count(), oneEdge);
  EXPECT_TRUE(view_.WasTold("DrawSaw"));
  editors_.TickBothEdges(false);
  EXPECT_EQ(design_.Saw.BothEdges, False);
  EXPECT_EQ(design_.Lines.Count(), oneEdge);
}

TEST_F(EditorBoxes, TickedByTheProgramChangeNothing) {
  editors_.TickBothEdges(false);
  EXPECT_EQ(ChangedFields(design_.SawSaved, design_.Saw), Names{});
}

}  // namespace
}  // namespace tarnwick
