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

using EditorRows = EditorsTest;

TEST_F(EditorRows, TakeAMeasureAndAreMadeAnew) {
  host_.Values = {test::Enters("30")};
  editors_.PressRow(Row("Length:"));
  EXPECT_EQ(Steps(), (Told{"DrawSaw", "ShowSawInfo"}));
  EXPECT_EQ(host_.Titles, std::vector<std::string>{"Band Saw Length"});
  EXPECT_EQ(design_.Saw.Length, 30);
  EXPECT_EQ(design_.Saw.NumTeeth, 120);
  EXPECT_EQ(view_.At("ShowSawInfo").Saw.Pitch, 3);
}

TEST_F(EditorRows, LeaveWhatTheLastEditorAcceptedSoThatTheNextAsks) {
  const BandSaw before = design_.SawEdit;
  host_.Values = {test::Enters("30")};
  editors_.PressRow(Row("Length:"));
  EXPECT_EQ(ChangedFields(before, design_.SawEdit), Names{});
  Answer(Button::Cancel);
  editors_.OpenGeneral();
  ASSERT_EQ(program_.Say.Shown.size(), 1u);
  EXPECT_EQ(program_.Say.Shown[0].Title, "Changed");
}

TEST_F(EditorRows, HaveRulesOfTheirOwn) {
  host_.Values = {test::Enters("5")};
  editors_.PressRow(Row("Number Of Teeth:"));
  EXPECT_EQ(design_.Saw.NumTeeth, 5);
  EXPECT_EQ(design_.Saw.Pitch, 48);

  host_.Values = {test::Enters("1.77")};
  editors_.PressRow(Row("Tooth Spacing:"));
  EXPECT_EQ(design_.Saw.NumTeeth, 135);

  host_.Values = {test::Enters("0")};
  editors_.PressRow(Row("Number Of Teeth:"));
  EXPECT_EQ(design_.Saw.Length, 0);
}

TEST_F(EditorRows, OfPlateAndKerfWorkOutTheSideClearance) {
  BandSaw saw = PlainDesign();
  saw.ContainsInfo.General = True;
  saw.GeneralInfo.PlateThick = 0.05;
  saw.GeneralInfo.Kerf = 0.1;
  Open(saw);
  host_.Values = {test::Enters("0.15")};
  editors_.PressRow(Row("Cut Width (Kerf):"));
  EXPECT_EQ(design_.Saw.GeneralInfo.SideClear, 0.05);
  host_.Values = {test::Enters("0.065")};
  editors_.PressRow(Row("Plate Thickness:"));
  EXPECT_EQ(design_.Saw.GeneralInfo.SideClear, 0.0425);
}

TEST_F(EditorRows, OfTheSeatAskForIt) {
  design_.Saw.GeneralInfo.TipType = 3;
  host_.YesNos = {test::Says(true)};
  editors_.PressRow(Row("Seat:"));
  EXPECT_EQ(design_.Saw.SeatInfo.State, True);
  EXPECT_EQ(Steps(), (Told{"DrawSaw", "ShowSawInfo"}));
}

TEST_F(EditorRows, OfStylesWithOneRadiusHaveTheirOwnPictures) {
  Open(PlainDesign(NarrowStyle));
  host_.Values = {test::Cancels()};
  editors_.PressRow(Row("Gullet Radius:"));
  BandSaw saw = PlainDesign(OShape);
  saw.GulletInfo.Radius1 = 0.2;
  Open(saw);
  host_.Values = {test::Cancels()};
  editors_.PressRow(Row("1st Gullet Radius:"));
  EXPECT_EQ(host_.Pictures, (std::vector<std::string>{"GuRadius", "GuO1stRd"}));
}

/// Every figure that a row can show.
BandSaw FullOfRows(int style) {
  BandSaw saw = test::DesignOfEveryField();
  saw.ToothStyle = static_cast<std::int16_t>(style);
  saw.GeneralInfo.NumVariables = 3;
  saw.NumTeeth = 100;
  saw.Length = 20;
  saw.ImpMetric = Imperial;
  return saw;
}

const std::map<std::string, std::string> TitleOfRow{{"Tooth Style:", "BandSaw Tooth Style"},
                                                    {"Length:", "Band Saw Length"},
                                                    {"Band Saw Width:", "Band Saw Width"},
                                                    {"Number Of Teeth:", "Number of Teeth"},
                                                    {"Tooth Spacing:", "Tooth Pitch"},
                                                    {"Hook Angle:", "Hook Angle"},
                                                    {"Clearance Angle:", "Clearance Angle"},
                                                    {"Gullet Radius:", "Gullet Radius"},
                                                    {"1st Gullet Radius:", "First Gullet Radius"},
                                                    {"2nd Gullet Radius:", "Second Gullet Radius"},
                                                    {"3rd Gullet Radius:", "Third Gullet Radius"},
                                                    {"Gullet Bottom Angle:", "Gullet Bottom Angle"},
                                                    {"Gullet Width:", "Gullet Width"},
                                                    {"Gullet Back Angle:", "Gullet Back Angle"},
                                                    {"Frost Notch Width:", "Frost Notch Width"},
                                                    {"Frost Notch Height:", "Frost Notch Height"},
                                                    {"Frost Notch Radius:", "Frost Notch Radius"},
                                                    {"Frost Notch Angle:", "Frost Notch Angle"},
                                                    {"Gullet Depth:", "Gullet Depth"},
                                                    {"Gullet Back Radius:", "Gullet Back Radius"},
                                                    {"Seat:", "Seat"},
                                                    {"Seat Width:", "Seat Width"},
                                                    {"Seat Height:", "Seat Height"},
                                                    {"Tip Clearance:", "Tip Clearance"},
                                                    {"Type of Tip:", "BandSaw Tip Type"},
                                                    {"Join Bandsaw Ends:", "BandSaw Join Style"},
                                                    {"Plate Thickness:", "Plate Thickness"},
                                                    {"Cut Width (Kerf):", "Tip Kerf"}};

const std::map<std::string, std::string> OwnerOfRow{
    {"Teeth in Segment:", "variable pitch editor"},    {"Length of Segment:", "variable pitch editor"},
    {"1st Tooth:", "variable pitch editor"},           {"2nd Tooth:", "variable pitch editor"},
    {"3rd Tooth:", "variable pitch editor"},           {"    Pitch:", "variable pitch editor"},
    {"    Depth:", "variable pitch editor"},           {"    Area:", "variable pitch editor"},
    {"Number Of Saws:", "general information editor"}, {"Teeth on Both Edges:", "general information editor"},
    {"Wheel Diameter:", "bandsaw length calculator"},  {"Center to Center:", "bandsaw length calculator"},
    {"Wheel Rim Width:", "bandsaw length calculator"}, {"Wheel RPMs:", "power requirements editor"},
    {"Tooth Speed:", "power requirements editor"},     {"Depth of Cut (Max):", "power requirements editor"},
    {"Feed Rate:", "power requirements editor"},       {"Bite:", "power requirements editor"},
    {"Type of Wood:", "power requirements editor"},    {"Horsepower:", "power requirements editor"}};

class EditorRowsOfStyle : public EditorsTest, public testing::WithParamInterface<int> {};

TEST_P(EditorRowsOfStyle, EachDoWhatBecomesTheirFigure) {
  const BandSaw saw = FullOfRows(GetParam());
  design_.Saw = design_.SawEdit = saw;
  design_.ImpMetric = Imperial;
  const bool clearanceIsAResult = GetParam() == NarrowStyle || GetParam() == OShape;
  int dialogs = 0, owners = 0, nothing = 0;
  for (const InfoRow& row : BuildSawInfo(saw, design_.Format(), 300)) {
    SCOPED_TRACE(row.Caption);
    host_.Titles.clear();
    const auto title = TitleOfRow.find(row.Caption);
    const auto owner = OwnerOfRow.find(row.Caption);
    if (title != TitleOfRow.end() && !(clearanceIsAResult && row.Code == RowCode::ClearAngle)) {
      (row.Caption == "Seat:" ? void(host_.YesNos = {test::DeclinesToSay()})
                              : void(host_.Values = {test::Cancels()}));
      editors_.PressRow(row);
      EXPECT_EQ(host_.Titles, std::vector<std::string>{title->second});
      EXPECT_FALSE(view_.WasTold("DrawSaw"));
      static_cast<void>(view_.Log());
      ++dialogs;
    } else if (owner != OwnerOfRow.end()) {
      editors_.PressRow(row);
      EXPECT_EQ(view_.Log(),
                Told{"ShowStatus To change this value you must use the " + owner->second + ".|"});
      EXPECT_TRUE(host_.Titles.empty());
      ++owners;
    } else {
      editors_.PressRow(row);
      EXPECT_EQ(view_.Log(), Told{});
      EXPECT_TRUE(host_.Titles.empty());
      ++nothing;
    }
    EXPECT_EQ(ChangedFields(saw, design_.Saw), Names{});
  }
  EXPECT_GE(dialogs, 17);
  EXPECT_EQ(owners, 14 + 2 + 3 + 7);
  EXPECT_GE(nothing, 5 + 4 + 4);  // headings, empty rows, and four results
}

INSTANTIATE_TEST_SUITE_P(Each, EditorRowsOfStyle, testing::Values(1, 2, 4, 5, 6, 7, 8, 9),
                         testing::PrintToStringParamName());

TEST_F(EditorRows, WriteTheSettingsAfterEachDialog) {
  std::size_t written = SettingsWritten();
  host_.Values = {test::Enters("30")};
  editors_.PressRow(Row("Length:"));
  EXPECT_GT(SettingsWritten(), written);
  written = SettingsWritten();
  host_.Values = {test::Cancels()};
  editors_.PressRow(Row("Length:"));
  EXPECT_GT(SettingsWritten(), written);
}

}  // namespace
}  // namespace tarnwick
