#include "window/modSelect.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarnwick {
namespace {

// ---- FindRow

/// Two rows with a gap between them.
SawInfo TwoRows() {
  InfoRow first, second;
  first.Row = 1;
  first.Box = {10, 20, 110, 36};
  second.Row = 2;
  second.Box = {10, 40, 110, 56};
  return {first, second};
}

TEST(FindRow, FindsTheRowUnderThePointer) {
  const SawInfo rows = TwoRows();
  EXPECT_EQ(FindRow(rows, 50, 28), &rows[0]);
  EXPECT_EQ(FindRow(rows, 11, 21), &rows[0]);
  EXPECT_EQ(FindRow(rows, 109, 35), &rows[0]);
  EXPECT_EQ(FindRow(rows, 50, 48), &rows[1]);
}

TEST(FindRow, FindsNothingBesideTheRows) {
  const SawInfo rows = TwoRows();
  EXPECT_EQ(FindRow(rows, 9, 28), nullptr);
  EXPECT_EQ(FindRow(rows, 111, 28), nullptr);
  EXPECT_EQ(FindRow(rows, 50, 19), nullptr);
  EXPECT_EQ(FindRow(rows, 50, 38), nullptr) << "between the rows";
  EXPECT_EQ(FindRow(rows, 50, 57), nullptr);
  EXPECT_EQ(FindRow(rows, -50, -28), nullptr);
  EXPECT_EQ(FindRow({}, 50, 28), nullptr);
}

TEST(FindRow, CountsTheUpperLeftCornerIn) {
  const SawInfo rows = TwoRows();
  EXPECT_EQ(FindRow(rows, 10, 20), &rows[0]);
}

TEST(FindRow, TakesTheFirstOfTwoRowsAtOnePlace) {
  SawInfo rows = TwoRows();
  rows[1].Box = rows[0].Box;
  EXPECT_EQ(FindRow(rows, 50, 28), &rows[0]);
}

TEST(FindRow, LeavesNoPixelOfTheListOut) {
  BandSaw saw;
  saw.ContainsInfo.Teeth = True;
  saw.Length = 20;
  saw.Width = 5;
  const SawInfo rows = BuildSawInfo(saw, {}, 200);
  ASSERT_EQ(rows.size(), 7u);
  EXPECT_EQ(FindRow(rows, 0, 0), &rows[0]);
  EXPECT_EQ(FindRow(rows, 199, 16), &rows[0]);
  EXPECT_EQ(FindRow(rows, 100, 17), &rows[1]);  // rows are 16.67 pixels high
  EXPECT_EQ(FindRow(rows, 100, 33), &rows[1]);
  EXPECT_EQ(FindRow(rows, 100, 34), &rows[2]);
  EXPECT_EQ(FindRow(rows, 100, 116), &rows[6]);
  EXPECT_EQ(FindRow(rows, 100, 117), nullptr);
  EXPECT_EQ(FindRow(rows, 100, -1), nullptr);
  EXPECT_EQ(FindRow(rows, -1, 5), nullptr);
  EXPECT_EQ(FindRow(rows, 201, 5), nullptr);
  for (int y = 0; y <= 116; ++y) EXPECT_NE(FindRow(rows, 100, y), nullptr) << y;
}

// ---- ActOfRow

struct Asked {
  RowCode Code;
  Parameter Opens;
};

TEST(RowAct, AsksForEveryFigureThatHasADialog) {
  const std::vector<Asked> asked{{RowCode::ToothStyle, Parameter::ToothStyle},
                                 {RowCode::Length, Parameter::BandLength},
                                 {RowCode::Width, Parameter::BandWidth},
                                 {RowCode::NumTeeth, Parameter::NumTeeth},
                                 {RowCode::Pitch, Parameter::Pitch},
                                 {RowCode::HookAngle, Parameter::HookAngle},
                                 {RowCode::GulletRadius, Parameter::GulletRadius},
                                 {RowCode::Radius1, Parameter::FirstGulletRadius},
                                 {RowCode::Radius2, Parameter::SecondGulletRadius},
                                 {RowCode::Radius3, Parameter::ThirdGulletRadius},
                                 {RowCode::BottomAngle, Parameter::GulletBottomAngle},
                                 {RowCode::GulletWidth, Parameter::GulletWidth},
                                 {RowCode::BackAngle, Parameter::GulletBackAngle},
                                 {RowCode::FrostWidth, Parameter::FrostNotchWidth},
                                 {RowCode::FrostHeight, Parameter::FrostNotchHeight},
                                 {RowCode::FrostRadius, Parameter::FrostNotchRadius},
                                 {RowCode::FrostAngle, Parameter::FrostNotchAngle},
                                 {RowCode::GulletDepth, Parameter::GulletDepth},
                                 {RowCode::BackRadius, Parameter::GulletBackRadius},
                                 {RowCode::SeatWidth, Parameter::SeatWidth},
                                 {RowCode::SeatHeight, Parameter::SeatHeight},
                                 {RowCode::TipClearance, Parameter::TipClearance},
                                 {RowCode::TipType, Parameter::TipType},
                                 {RowCode::JoinStyle, Parameter::JoinStyle},
                                 {RowCode::PlateThick, Parameter::PlateThickness},
                                 {RowCode::Kerf, Parameter::TipKerf}};
  for (int style = 0; style <= 9; ++style) {
    for (const Asked& row : asked) {
      const RowAct act = ActOfRow(row.Code, style);
      EXPECT_EQ(act.Act, BoxAct::Ask) << static_cast<int>(row.Code) << " style " << style;
      EXPECT_EQ(act.Asked, row.Opens) << static_cast<int>(row.Code) << " style " << style;
    }
  }
}

TEST(RowAct, AsksForTheClearanceAngleUnlessItIsAResult) {
  for (int style = 0; style <= 9; ++style) {
    const RowAct act = ActOfRow(RowCode::ClearAngle, style);
    if (style == NarrowStyle || style == OShape) {
      EXPECT_EQ(act.Act, BoxAct::ReadOnly) << style;
    } else {
      EXPECT_EQ(act.Act, BoxAct::Ask) << style;
      EXPECT_EQ(act.Asked, Parameter::ClearanceAngle) << style;
    }
  }
}

TEST(RowAct, AsksWhetherThereIsASeat) { EXPECT_EQ(ActOfRow(RowCode::Seat, 1).Act, BoxAct::AskSeat); }

TEST(RowAct, NamesTheOwnerOfAFigureWithoutADialog) {
  const auto owner = [](int code) {
    const RowAct act = ActOfRow(static_cast<RowCode>(code), SquareBack);
    EXPECT_EQ(act.Act, BoxAct::MustUse) << code;
    return act.MustUse;
  };
  for (int code = 40; code <= 69; ++code) EXPECT_EQ(owner(code), 102) << code;
  for (int code = 80; code <= 82; ++code) EXPECT_EQ(owner(code), 101) << code;
  for (int code = 90; code <= 96; ++code) EXPECT_EQ(owner(code), 103) << code;
  EXPECT_EQ(owner(70), 104);
  EXPECT_EQ(owner(73), 104);
}

TEST(RowAct, IsNothingForResultsHeadingsAndEmptyRows) {
  for (const RowCode code : {RowCode::Blank, RowCode::Header, RowCode::SharpAngle, RowCode::GulletArea,
                             RowCode::FaceLength, RowCode::SideClear})
    EXPECT_EQ(ActOfRow(code, SquareBack).Act, BoxAct::ReadOnly) << static_cast<int>(code);
}

TEST(RowAct, IsNothingForACodeThatNoRowHas) {
  for (const int code : {1, 3, 9, 37, 39, 77, 83, 97, 200, -1})
    EXPECT_EQ(ActOfRow(static_cast<RowCode>(code), SquareBack).Act, BoxAct::ReadOnly) << code;
}

// ---- HintOfRow

struct Hinted {
  RowCode Code;
  const char* Status;
};

TEST(RowHint, IsThatOfTheBoxOfTheSameFigure) {
  const std::vector<Hinted> hints{{RowCode::ToothStyle, "Click to activate tooth style input box."},
                                  {RowCode::Length, "Click to activate bandSaw length input box."},
                                  {RowCode::Width, "Click to activate the bandsaw width input box."},
                                  {RowCode::NumTeeth, "Click to activate number of teeth input box."},
                                  {RowCode::Pitch, "Click to activate the tooth pitch input box."},
                                  {RowCode::ClearAngle, "Click to activate clearance angle input box."},
                                  {RowCode::GulletRadius, "Click to activate gullet radius input box."},
                                  {RowCode::Radius1, "Click to activate the first gullet radius input box."},
                                  {RowCode::Radius2, "Click to activate the second gullet radius input box."},
                                  {RowCode::Radius3, "Click to activate the third gullet radius input box."},
                                  {RowCode::BottomAngle, "Click to activate the bottom angle input box."},
                                  {RowCode::GulletWidth, "Click to activate the gullet width input box."},
                                  {RowCode::BackAngle, "Click to activate the tooth back angle input box."},
                                  {RowCode::GulletDepth, "Click to activate the gullet depth input box."},
                                  {RowCode::BackRadius, "Click to activate the back radius input box."},
                                  {RowCode::Seat, "Click to activate the seat input box."},
                                  {RowCode::SeatWidth, "Click to activate the seat width input box."},
                                  {RowCode::SeatHeight, "Click to activate the seat height input box."},
                                  {RowCode::TipClearance, "Click to activate the tip clearance input box."},
                                  {RowCode::TipType, "Click to activate the type of tip input box."},
                                  {RowCode::PlateThick, "Click to activate the plate thickness input box."},
                                  {RowCode::Kerf, "Click to activate the tip kerf input box."},
                                  {RowCode::GulletArea, "The area or average area of the tooth gullet."},
                                  {RowCode::Quantity, "Type the number of bandsaws required."}};
  for (const Hinted& row : hints) {
    const BoxHint hint = HintOfRow(row.Code);
    EXPECT_EQ(hint.Status, row.Status) << row.Status;
    EXPECT_EQ(hint.Hint, "");
  }
}

TEST(RowHint, OfTheHookSpeaksOfTheSeat) {
  const BoxHint hint = HintOfRow(RowCode::HookAngle);
  EXPECT_EQ(hint.Status, "Click to activate hook angle input box.");
  EXPECT_EQ(hint.Hint, "Hint: Add one degree to hook if BandSaw has a seat.");
}

TEST(RowHint, IsEmptyWhereNoBoxHasOne) {
  for (const RowCode code :
       {RowCode::Blank,          RowCode::Header,      RowCode::SharpAngle,  RowCode::FaceLength,
        RowCode::FrostWidth,     RowCode::FrostHeight, RowCode::FrostRadius, RowCode::FrostAngle,
        RowCode::JoinStyle,      RowCode::BothEdges,   RowCode::SideClear,   RowCode::WheelDia,
        RowCode::CenterToCenter, RowCode::RimWidth,    RowCode::ShaftSpeed,  RowCode::SawVelocity,
        RowCode::DepthOfCut,     RowCode::FeedRate,    RowCode::Bite,        RowCode::WoodType,
        RowCode::HorsePower}) {
    const BoxHint hint = HintOfRow(code);
    EXPECT_EQ(hint.Status, "") << static_cast<int>(code);
    EXPECT_EQ(hint.Hint, "") << static_cast<int>(code);
  }
}

}  // namespace
}  // namespace tarnwick
