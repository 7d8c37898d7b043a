#include "variable/VariableEditor.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <set>
#include <string>
#include <vector>

#include "platform/CollectedMessages.h"
#include "support/Designs.h"
#include "support/FieldChanges.h"
#include "support/RandomDesigns.h"
#include "support/ScriptedDialogHost.h"

namespace tarnwick {
namespace {

using test::Cancels;
using test::Enters;
using test::PlainDesign;
using Names = std::set<std::string>;
using Measures = std::vector<double>;

constexpr int ThreeTeeth = 1, FourTeeth = 2, FiveTeeth = 3, SixTeeth = 4;  // entries of a band of 120 teeth

/// The editor on a band of 120 teeth of 2 inches, with gullets 0.7 deep.
class VariableEditing : public testing::Test {
 protected:
  VariableEditing() { Open(PlainDesign()); }

  void Open(const BandSaw& saw) {
    design_.Saw = saw;
    design_.Recalculate(say_);
    before_ = design_.Saw;
    editor_.FillFromRecord();
    recalculated_.clear();
  }

  void OpenTeeth(std::int16_t teeth) {
    BandSaw saw = PlainDesign();
    saw.NumTeeth = teeth;
    saw.Length = teeth * 2 / 12.0;
    Open(saw);
  }

  void ClickPitch(int k, test::ValueAct act) {
    host_.Values.push_back(std::move(act));
    editor_.ClickPitch(k, Asking());
  }
  void ClickDepth(int k, test::ValueAct act) {
    host_.Values.push_back(std::move(act));
    editor_.ClickDepth(k, Asking());
  }
  Questions Asking() {
    return {host_, say_, design_.Format(), [this] { ++settingsSaved_; }};
  }

  Measures Pitches() const {
    return {editor_.ToothPitch.begin(), editor_.ToothPitch.begin() + editor_.SegmentTeeth};
  }
  Measures Depths() const {
    return {editor_.ToothDepth.begin(), editor_.ToothDepth.begin() + editor_.SegmentTeeth};
  }
  static Measures Seven(const SegmentMeasures& measures) { return {measures.begin(), measures.begin() + 7}; }

  const BandSaw::General& General() const { return design_.Saw.GeneralInfo; }
  Names Changed() const { return test::ChangedFields(before_, design_.Saw); }

  void TearDown() override { EXPECT_TRUE(host_.Values.empty()); }

  CollectedMessages say_;
  test::ScriptedDialogHost host_;
  OpenDesign design_;
  BandSaw before_;
  std::vector<BandSaw> recalculated_;  // the record as each recalculation found it
  int settingsSaved_ = 0;
  VariableEditor editor_{design_, [this] {
                           recalculated_.push_back(design_.Saw);
                           design_.Recalculate(say_);
                         }};
};

using VariableFilling = VariableEditing;
using VariableCounts = VariableEditing;
using VariablePattern = VariableEditing;
using SegmentPitch = VariableEditing;
using SegmentDepth = VariableEditing;
using VariableReset = VariableEditing;
using VariableTexts = VariableEditing;

void ExpectNear(const Measures& got, const Measures& wanted) {
  ASSERT_EQ(got.size(), wanted.size());
  for (std::size_t k = 0; k < got.size(); ++k) EXPECT_NEAR(got[k], wanted[k], 1e-12) << "tooth " << k;
}

// ---- filling

TEST_F(VariableFilling, TakesAverageAndLimitsFromTheBand) {
  EXPECT_EQ(editor_.AveragePitch, 2);
  EXPECT_EQ(editor_.MaxPitch, 2.6);
  EXPECT_EQ(editor_.MinPitch, 1.4);
  EXPECT_EQ(editor_.BaseDepth, 0.7);
  EXPECT_EQ(editor_.MinToothDepth, design_.Saw.GulletInfo.MinDepth);
  EXPECT_EQ(editor_.MaxToothDepth, 1.183);
}

TEST_F(VariableFilling, CutsTheLimitsToTheDecimalPlaces) {
  design_.Settings.Calculation.DecimalPlaces = 3;
  BandSaw saw = PlainDesign();
  saw.Length = 19;
  Open(saw);
  EXPECT_EQ(editor_.AveragePitch, 1.9);
  EXPECT_EQ(editor_.MaxPitch, 2.47);
  EXPECT_EQ(editor_.MinPitch, 1.33);
  design_.Settings.Calculation.DecimalPlaces = 1;
  editor_.FillFromRecord();
  EXPECT_EQ(editor_.MaxPitch, 2.4) << "cut, not rounded to the nearest";
  EXPECT_EQ(editor_.MinPitch, 1.3);
}

TEST_F(VariableFilling, OpensAConstantBandOnTheFirstCountThatDividesItsTeeth) {
  OpenTeeth(100);
  EXPECT_EQ(editor_.Entry, 1);
  EXPECT_EQ(editor_.SegmentTeeth, 4);
  EXPECT_EQ(editor_.NumSegments, 25);
  EXPECT_EQ(editor_.SegmentSize, 8);
  EXPECT_EQ(editor_.Pattern, NoPattern);
  EXPECT_FALSE(editor_.DepthIsVariable);
  EXPECT_EQ(Pitches(), Measures(4, 2.0));
  EXPECT_EQ(Depths(), Measures(4, 0.7));
}

TEST_F(VariableFilling, OpensOnSevenTeethWhereOnlySevenDivide) {
  OpenTeeth(98);
  EXPECT_EQ(editor_.SegmentTeeth, 7);
}

TEST_F(VariableFilling, StoresTheLengthOfTheSegmentAndNothingElse) {
  EXPECT_EQ(Changed(), Names{"DesignInfo.SegmentLength"});
  EXPECT_EQ(design_.Saw.DesignInfo.SegmentLength, 6);
  EXPECT_TRUE(recalculated_.empty());
}

TEST_F(VariableFilling, LeavesABandWithoutTeethWithNone) {
  Open({});
  EXPECT_EQ(editor_.Entries, std::vector<std::string>{"None"});
  EXPECT_EQ(editor_.Entry, 0);
  EXPECT_EQ(editor_.SegmentTeeth, 0);
  EXPECT_EQ(editor_.SegmentSize, 0);
  EXPECT_EQ(Changed(), Names{});
}

TEST_F(VariableFilling, ShowsTheSegmentOfAVariableBand) {
  BandSaw saw = PlainDesign();
  saw.GeneralInfo.VariablePitch = True;
  saw.GeneralInfo.NumVariables = 4;
  saw.GeneralInfo.VarPitch = {2.1, 2.0, 1.8, 2.1};
  saw.GeneralInfo.VariableDepth = True;
  saw.GeneralInfo.VarDepth = {0.75, 0.7, 0.65, 0.75};
  saw.DesignInfo.VarPattern = RightToLeftPattern;
  Open(saw);
  EXPECT_EQ(editor_.Entry, FourTeeth);
  EXPECT_EQ(editor_.Pattern, RightToLeftPattern);
  EXPECT_TRUE(editor_.DepthIsVariable);
  EXPECT_EQ(Pitches(), (Measures{2.1, 2.0, 1.8, 2.1}));
  EXPECT_EQ(Depths(), (Measures{0.75, 0.7, 0.65, 0.75}));
}

TEST_F(VariableFilling, PutsTheGulletDepthInPlaceOfADepthThatIsNotSet) {
  BandSaw saw = PlainDesign();
  saw.GeneralInfo.VariablePitch = True;
  saw.GeneralInfo.NumVariables = 3;
  saw.GeneralInfo.VarPitch = {2, 2, 2};
  saw.GeneralInfo.VarDepth = {0.75, 0, -1};
  Open(saw);
  EXPECT_EQ(Depths(), (Measures{0.75, 0.7, 0.7}));
}

TEST_F(VariableFilling, SelectsNothingForACountThatNoLongerDivides) {
  BandSaw saw = PlainDesign();
  saw.NumTeeth = 119;
  saw.GeneralInfo.VariablePitch = True;
  saw.GeneralInfo.NumVariables = 5;
  Open(saw);
  EXPECT_EQ(editor_.Entry, VariableValues::NoEntry);
  EXPECT_EQ(editor_.SegmentTeeth, 0);
  EXPECT_EQ(General().NumVariables, 5) << "until somebody chooses";
}

TEST_F(VariableFilling, KeepsTheOptionThatIsSetForAPatternThatNobodyKnows) {
  editor_.ClickPattern(MixedPattern);
  for (const std::int16_t stored : {std::int16_t{-1}, std::int16_t{4}, std::int16_t{99}}) {
    design_.Saw.DesignInfo.VarPattern = stored;
    editor_.FillFromRecord();
    EXPECT_EQ(editor_.Pattern, MixedPattern);
  }
}

TEST_F(VariableFilling, LeavesTheEighthToothAlone) {
  EXPECT_EQ(editor_.ToothPitch[7], 0);
  EXPECT_EQ(editor_.ToothDepth[7], 0);
}

TEST_F(VariableFilling, EndsWithControlsThatWork) {
  EXPECT_FALSE(editor_.Loading);
  EXPECT_TRUE(editor_.IsFilled);
}

TEST_F(VariableFilling, LetsNoControlActMeanwhile) {
  editor_.DepthIsVariable = true;
  editor_.Loading = true;
  const VariableValues values = editor_;
  const BandSaw saw = design_.Saw;
  editor_.ChooseEntry(FourTeeth);
  editor_.ClickPattern(MixedPattern);
  editor_.TickVarDepth(false);
  editor_.ClickPitch(0, Asking());
  editor_.ClickDepth(0, Asking());
  editor_.PressReset();
  EXPECT_TRUE(static_cast<const VariableValues&>(editor_) == values);
  EXPECT_EQ(test::ChangedFields(saw, design_.Saw), Names{});
  EXPECT_TRUE(recalculated_.empty());
}

// ---- rows

struct RowsRow {
  const char* Name;
  int Teeth;
  bool Depth;
  const char* Rows;  // of each: pitch and depth open "b", pitch "p", depth "d", none "r", hidden "-"
  friend void PrintTo(const RowsRow& row, std::ostream* out) { *out << row.Name; }
};
class SegmentRows : public testing::TestWithParam<RowsRow> {};

TEST_P(SegmentRows, StandSo) {
  VariableValues values;
  values.SegmentTeeth = static_cast<std::int16_t>(GetParam().Teeth);
  values.DepthIsVariable = GetParam().Depth;
  std::string rows;
  for (int k = 0; k < VariableValues::Rows; ++k) {
    const SegmentRow row = values.Row(k);
    rows += !row.Shown ? '-' : row.PitchOpens ? (row.DepthOpens ? 'b' : 'p') : row.DepthOpens ? 'd' : 'r';
  }
  EXPECT_EQ(rows, GetParam().Rows);
  EXPECT_EQ(values.Row(-1), SegmentRow{});
  EXPECT_EQ(values.Row(VariableValues::Rows), SegmentRow{});
}

INSTANTIATE_TEST_SUITE_P(Counts, SegmentRows,
                         testing::Values(RowsRow{"NoTooth", 0, false, "-------"},
                                         RowsRow{"NoToothWithDepth", 0, true, "-------"},
                                         RowsRow{"ThreeTeeth", 3, false, "ppr----"},
                                         RowsRow{"ThreeTeethWithDepth", 3, true, "bbd----"},
                                         RowsRow{"SixTeeth", 6, false, "pppppr-"},
                                         RowsRow{"SevenTeeth", 7, false, "ppppppr"},
                                         RowsRow{"SevenTeethWithDepth", 7, true, "bbbbbbd"}),
                         [](const auto& row) { return std::string(row.param.Name); });

// ---- teeth in the segment

TEST_F(VariableCounts, FollowTheChosenEntry) {
  editor_.ChooseEntry(FiveTeeth);
  EXPECT_EQ(editor_.SegmentTeeth, 5);
  EXPECT_EQ(editor_.NumSegments, 24);
  EXPECT_EQ(editor_.SegmentSize, 10);
  EXPECT_EQ(design_.Saw.DesignInfo.SegmentLength, 10);
  EXPECT_EQ(General().NumVariables, 5);
  EXPECT_EQ(General().VariablePitch, True);
}

TEST_F(VariableCounts, BringTheFirstPresetAlongWhereNoneIsSet) {
  editor_.ChooseEntry(FourTeeth);
  EXPECT_EQ(editor_.Pattern, LeftToRightPattern);
  EXPECT_EQ(design_.Saw.DesignInfo.VarPattern, LeftToRightPattern);
  ExpectNear(Pitches(), {2.36, 2.104, 1.888, 1.648});
  EXPECT_EQ(recalculated_.size(), 2u) << "for the pattern, and last";
}

TEST_F(VariableCounts, ApplyTheSelectedPresetAnew) {
  editor_.ClickPattern(MixedPattern);
  recalculated_.clear();
  editor_.ChooseEntry(FourTeeth);
  ExpectNear(Pitches(), {1.648, 2.104, 2.36, 1.888});
  EXPECT_EQ(recalculated_.size(), 1u);
  EXPECT_EQ(editor_.Pattern, MixedPattern);
}

TEST_F(VariableCounts, ChosenAgainTakeThePresetAnew) {
  editor_.ClickPattern(LeftToRightPattern);
  ClickPitch(0, Enters("2.0"));
  editor_.ChooseEntry(ThreeTeeth);
  ExpectNear(Pitches(), {2.226, 1.992, 1.782});
}

TEST_F(VariableCounts, ClearTheDepthsOfTheOldSegment) {
  editor_.TickVarDepth(true);
  ClickDepth(0, Enters("0.9"));
  editor_.ChooseEntry(SixTeeth);
  for (int k = 0; k < 6; ++k)
    EXPECT_EQ(Depths().at(static_cast<std::size_t>(k)),
              editor_.DepthFromPitch(Pitches().at(static_cast<std::size_t>(k))));
}

TEST_F(VariableCounts, OfNoneMakeTheBandConstant) {
  editor_.ClickPattern(MixedPattern);
  editor_.TickVarDepth(true);
  editor_.ChooseEntry(0);
  EXPECT_EQ(editor_.Pattern, NoPattern);
  EXPECT_EQ(editor_.SegmentTeeth, 0);
  EXPECT_EQ(General().VariablePitch, False);
  EXPECT_EQ(General().VariableDepth, False);
  EXPECT_EQ(General().NumVariables, 0);
  EXPECT_EQ(design_.Saw.DesignInfo.VarPattern, 0);
  EXPECT_EQ(Seven(General().VarPitch), Measures(7, 2.0));
  EXPECT_EQ(recalculated_.back().GeneralInfo.VariablePitch, False) << "stored ahead of the drawing";
}

TEST_F(VariableCounts, OfNoneLeaveTheSeventhDepthAsItWas) {
  BandSaw saw = PlainDesign();
  saw.GeneralInfo.VarDepth = {9, 9, 9, 9, 9, 9, 9, 9, 9, 9};
  Open(saw);
  editor_.ChooseEntry(0);
  EXPECT_EQ(Seven(General().VarDepth), (Measures{0.7, 0.7, 0.7, 0.7, 0.7, 0.7, 9}));
}

TEST_F(VariableCounts, OfNoneAreDrawnOnceWhereNoPatternWasSet) {
  editor_.ChooseEntry(0);
  EXPECT_EQ(recalculated_.size(), 1u);
  editor_.ChooseEntry(0);
  EXPECT_EQ(recalculated_.size(), 2u);
}

TEST_F(VariableCounts, OfNoneKeepTheLengthOfTheLastSegment) {
  editor_.ChooseEntry(FiveTeeth);
  editor_.ChooseEntry(0);
  EXPECT_EQ(editor_.NumSegments, 24);
  EXPECT_EQ(editor_.SegmentSize, 10);
  EXPECT_EQ(design_.Saw.DesignInfo.SegmentLength, 10);
}

TEST_F(VariableCounts, ThatAreNotOfferedAreNoChoice) {
  const BandSaw saw = design_.Saw;
  for (const int entry : {-1, 5, 99}) editor_.ChooseEntry(entry);
  EXPECT_EQ(test::ChangedFields(saw, design_.Saw), Names{});
  EXPECT_TRUE(recalculated_.empty());
}

// ---- patterns

TEST_F(VariablePattern, SharesTheLengthOfTheSegment) {
  OpenTeeth(98);
  editor_.ClickPattern(MixedPattern);
  ExpectNear(Pitches(), {14 * 0.124, 14 * 0.159, 14 * 0.183, 14 * 0.143, 14 * 0.108, 14 * 0.175, 14 * 0.108});
  EXPECT_EQ(Seven(General().VarPitch), Pitches());
  EXPECT_EQ(General().VariablePitch, True);
  EXPECT_EQ(General().VariableDepth, False);
  EXPECT_EQ(Seven(General().VarDepth), Measures(7, 0.7));
  EXPECT_EQ(recalculated_.size(), 1u);
  EXPECT_EQ(recalculated_[0].GeneralInfo.NumVariables, 7) << "stored ahead of the drawing";
}

TEST_F(VariablePattern, OfNoneTakesTheAverage) {
  editor_.ClickPattern(MixedPattern);
  editor_.ClickPattern(NoPattern);
  EXPECT_EQ(Pitches(), Measures(3, 2.0));
  EXPECT_EQ(design_.Saw.DesignInfo.VarPattern, NoPattern);
  EXPECT_EQ(General().VariablePitch, True) << "a segment of equal teeth";
}

TEST_F(VariablePattern, OfNoneRenewsTheDepthOfTheFirstAndTheLastTooth) {
  editor_.ChooseEntry(FourTeeth);
  editor_.TickVarDepth(true);
  const Measures before = Depths();
  editor_.ClickPattern(NoPattern);
  EXPECT_EQ(Depths(), (Measures{0.7, before[1], before[2], 0.7}));
}

TEST_F(VariablePattern, ClickedAgainTakesThePresetAnew) {
  editor_.ClickPattern(LeftToRightPattern);
  ClickPitch(1, Enters("2.3"));
  editor_.ClickPattern(LeftToRightPattern);
  ExpectNear(Pitches(), {2.226, 1.992, 1.782});
}

TEST_F(VariablePattern, RenewsTheDepths) {
  editor_.TickVarDepth(true);
  editor_.ClickPattern(RightToLeftPattern);
  EXPECT_EQ(Depths(), (Measures{editor_.DepthFromPitch(1.782), 0.6972, editor_.DepthFromPitch(2.226)}));
}

TEST_F(VariablePattern, WithoutASegmentIsNotedAndUsedLater) {
  editor_.ChooseEntry(0);
  editor_.ClickPattern(RightToLeftPattern);
  EXPECT_EQ(design_.Saw.DesignInfo.VarPattern, RightToLeftPattern);
  EXPECT_EQ(General().VariablePitch, False);
  editor_.ChooseEntry(ThreeTeeth);
  EXPECT_EQ(editor_.Pattern, RightToLeftPattern);
  ExpectNear(Pitches(), {1.782, 1.992, 2.226});
}

TEST_F(VariablePattern, ThatNobodyKnowsIsNoChoice) {
  const BandSaw saw = design_.Saw;
  for (const int index : {-1, 4}) editor_.ClickPattern(index);
  EXPECT_EQ(test::ChangedFields(saw, design_.Saw), Names{});
}

// ---- the pitch of a tooth

TEST_F(SegmentPitch, IsAskedForByItsDialog) {
  ClickPitch(1, Enters("2.25"));
  EXPECT_EQ(host_.Titles, std::vector<std::string>{"Tooth Space"});
  EXPECT_EQ(host_.Prompts, std::vector<std::string>{"\nEnter or Select Tooth Spacing."});
  EXPECT_EQ(settingsSaved_, 1);
  EXPECT_EQ(Pitches(), (Measures{2, 2.25, 1.75}));
  EXPECT_EQ(Seven(General().VarPitch), (Measures{2, 2.25, 1.75, 2, 2, 2, 2}));
  EXPECT_EQ(General().VariablePitch, True);
  EXPECT_EQ(recalculated_.size(), 1u);
  EXPECT_EQ(recalculated_[0].GeneralInfo.VarPitch[1], 2.25);
}

TEST_F(SegmentPitch, IsCutToItsLimits) {
  ClickPitch(0, Enters("9"));
  ExpectNear(Pitches(), {2.6, 2, 1.4});
  ClickPitch(0, Enters("0"));
  ExpectNear(Pitches(), {1.4, 2, 2.6});
}

TEST_F(SegmentPitch, MayMoveOtherTeeth) {
  ClickPitch(0, Enters("2.6"));
  ClickPitch(1, Enters("2.25"));
  ExpectNear(Pitches(), {2.35, 2.25, 1.4});  // the first, as the largest, has given
}

TEST_F(SegmentPitch, OfTheLastToothIsWorkedOut) {
  for (const int k : {2, 3, 6, 7, -1}) editor_.ClickPitch(k, Asking());
  EXPECT_TRUE(host_.Titles.empty());
  EXPECT_EQ(settingsSaved_, 0);
}

TEST_F(SegmentPitch, StaysWhenTheDialogIsCancelled) {
  const BandSaw saw = design_.Saw;
  ClickPitch(0, Cancels());
  EXPECT_EQ(test::ChangedFields(saw, design_.Saw), Names{});
  EXPECT_TRUE(recalculated_.empty());
  EXPECT_EQ(settingsSaved_, 1);
}

TEST_F(SegmentPitch, IsTypedInTheUnitsInUse) {
  design_.ImpMetric = Metric;
  ClickPitch(0, Enters("5.334"));
  EXPECT_NEAR(Pitches()[0], 2.1, 1e-9);
}

TEST_F(SegmentPitch, LeavesThePatternAsItIs) {
  editor_.ClickPattern(MixedPattern);
  ClickPitch(0, Enters("2"));
  EXPECT_EQ(editor_.Pattern, MixedPattern);
}

TEST_F(SegmentPitch, RenewsTheDepthOfItsToothAndOfTheLast) {
  editor_.ChooseEntry(FourTeeth);
  editor_.ClickPattern(NoPattern);
  editor_.TickVarDepth(true);
  ClickPitch(0, Enters("2.6"));
  ClickPitch(1, Enters("2.6"));
  ASSERT_LT(Pitches()[0], 2.6) << "has given";
  EXPECT_EQ(Depths()[0], editor_.DepthFromPitch(2.6)) << "stays";
  EXPECT_EQ(Depths()[1], editor_.DepthFromPitch(2.6));
  EXPECT_EQ(Depths()[2], 0.7);
  EXPECT_EQ(Depths()[3], editor_.DepthFromPitch(1.4));
}

// ---- the depth of a tooth

TEST_F(SegmentDepth, IsInProportionToThePitch) {
  EXPECT_EQ(editor_.DepthFromPitch(2), 0.7);
  EXPECT_EQ(editor_.DepthFromPitch(2.5), 0.875);
  EXPECT_EQ(editor_.DepthFromPitch(100), editor_.MaxToothDepth);
  EXPECT_EQ(editor_.DepthFromPitch(0), editor_.MinToothDepth);
}

TEST_F(SegmentDepth, IsTheLeastWithoutAnAverageToGoBy) {
  Open({});
  EXPECT_EQ(editor_.DepthFromPitch(2), 0);
  EXPECT_EQ(editor_.MaxToothDepth, 1.183) << "a quotient that fails leaves the last one";
}

TEST_F(SegmentDepth, ComesWithTheTick) {
  editor_.ClickPattern(LeftToRightPattern);
  recalculated_.clear();
  editor_.TickVarDepth(true);
  EXPECT_EQ(Depths(), (Measures{0.7791, 0.6972, 0.6237}));
  EXPECT_EQ(General().VariableDepth, True);
  EXPECT_EQ(Measures(General().VarDepth.begin(), General().VarDepth.begin() + 3), Depths());
  EXPECT_EQ(recalculated_.size(), 1u);
}

TEST_F(SegmentDepth, GoesWithTheTick) {
  editor_.ClickPattern(LeftToRightPattern);
  editor_.TickVarDepth(true);
  editor_.TickVarDepth(false);
  EXPECT_EQ(Depths(), Measures(3, 0.7));
  EXPECT_EQ(General().VariableDepth, False);
  EXPECT_EQ(Seven(General().VarDepth), Measures(7, 0.7));
}

TEST_F(SegmentDepth, UnticksItselfWithoutASegment) {
  editor_.ChooseEntry(0);
  recalculated_.clear();
  const BandSaw saw = design_.Saw;
  editor_.TickVarDepth(true);
  EXPECT_FALSE(editor_.DepthIsVariable);
  EXPECT_EQ(test::ChangedFields(saw, design_.Saw), Names{});
  EXPECT_TRUE(recalculated_.empty());
}

TEST_F(SegmentDepth, MakesAConstantBandVariable) {
  editor_.TickVarDepth(true);
  EXPECT_EQ(General().VariablePitch, True);
  EXPECT_EQ(General().NumVariables, 3);
}

TEST_F(SegmentDepth, OfAToothIsAskedForByItsDialog) {
  editor_.TickVarDepth(true);
  ClickDepth(2, Enters("0.8"));
  EXPECT_EQ(host_.Titles, std::vector<std::string>{"Gullet Depth"});
  EXPECT_EQ(Depths(), (Measures{0.7, 0.7, 0.8}));
  EXPECT_EQ(General().VarDepth[2], 0.8);
  EXPECT_EQ(recalculated_.back().GeneralInfo.VarDepth[2], 0.8);
}

TEST_F(SegmentDepth, OfAToothIsCutToItsLimits) {
  editor_.TickVarDepth(true);
  ClickDepth(0, Enters("5"));
  ClickDepth(1, Enters("0.01"));
  EXPECT_EQ(Depths(), (Measures{editor_.MaxToothDepth, editor_.MinToothDepth, 0.7}));
}

TEST_F(SegmentDepth, OfAToothStaysWhenTheDialogIsCancelled) {
  editor_.TickVarDepth(true);
  recalculated_.clear();
  ClickDepth(0, Cancels());
  EXPECT_EQ(Depths(), Measures(3, 0.7));
  EXPECT_TRUE(recalculated_.empty());
}

TEST_F(SegmentDepth, OfAToothIsNotAskedForWithoutTheTick) {
  for (int k = -1; k < 8; ++k) editor_.ClickDepth(k, Asking());
  EXPECT_TRUE(host_.Titles.empty());
}

TEST_F(SegmentDepth, ShowsWhatTheCalculationAccepts) {
  editor_.TickVarDepth(true);
  editor_.ToothDepth[1] = 0.01;
  editor_.StoreVariable();
  editor_.ClickDepth(5, Asking());  // beyond the segment: nothing
  ClickPitch(0, Enters("2"));
  EXPECT_EQ(Depths()[1], design_.Saw.GulletInfo.MinDepth);
  EXPECT_EQ(General().VarDepth[1], design_.Saw.GulletInfo.MinDepth);
}

// ---- reset

TEST_F(VariableReset, TakesEverythingBack) {
  editor_.ChooseEntry(SixTeeth);
  editor_.TickVarDepth(true);
  ClickPitch(2, Enters("2.1"));
  recalculated_.clear();
  editor_.PressReset();
  EXPECT_EQ(editor_.Pattern, NoPattern);
  EXPECT_FALSE(editor_.DepthIsVariable);
  EXPECT_EQ(editor_.Entry, 0);
  EXPECT_EQ(General().VariablePitch, False);
  EXPECT_EQ(General().VariableDepth, False);
  EXPECT_EQ(recalculated_.size(), 3u) << "each control that changes draws";
}

TEST_F(VariableReset, DoesNothingASecondTime) {
  editor_.PressReset();
  recalculated_.clear();
  const BandSaw saw = design_.Saw;
  editor_.PressReset();
  EXPECT_EQ(test::ChangedFields(saw, design_.Saw), Names{});
  EXPECT_TRUE(recalculated_.empty());
}

TEST_F(VariableReset, OfThePanelEmptiesItAndTouchesNoDesign) {
  editor_.ChooseEntry(FourTeeth);
  const BandSaw saw = design_.Saw;
  recalculated_.clear();
  editor_.ResetVariable();
  EXPECT_TRUE(static_cast<const VariableValues&>(editor_) == VariableValues{});
  EXPECT_EQ(test::ChangedFields(saw, design_.Saw), Names{});
  EXPECT_TRUE(recalculated_.empty());
  editor_.PressReset();
  editor_.TickVarDepth(true);
  editor_.ChooseEntry(0);
  EXPECT_EQ(test::ChangedFields(saw, design_.Saw), Names{}) << "an empty panel has nothing to give";
}

// ---- texts

TEST_F(VariableTexts, AreInTheUnitsInUse) {
  editor_.ClickPattern(LeftToRightPattern);
  EXPECT_EQ(editor_.PitchText(0, design_.Format()), " 2.226 in");
  EXPECT_EQ(editor_.DepthText(2, design_.Format()), " 0.700 in");
  EXPECT_EQ(editor_.AveragePitchText(design_.Format()), " 2.000 in");
  EXPECT_EQ(editor_.AverageDepthText(design_.Format()), " 0.700 in");
  EXPECT_EQ(editor_.NumTeethText(), " 120");
  EXPECT_EQ(editor_.NumSegmentsText(), " 40");
  EXPECT_EQ(editor_.SegmentSizeText(design_.Format()), " 6.000 in");
  design_.ImpMetric = Metric;
  EXPECT_EQ(editor_.PitchText(0, design_.Format()), " 5.654 cm");
  EXPECT_EQ(editor_.SegmentSizeText(design_.Format()), " 15.240 cm");
}

TEST_F(VariableTexts, OfAPanelThatWasNeverFilledAreEmpty) {
  const VariableValues values;
  for (int k = 0; k < VariableValues::Rows; ++k) {
    EXPECT_EQ(values.PitchText(k, {}), "");
    EXPECT_EQ(values.DepthText(k, {}), "");
  }
  for (const std::string& text :
       {values.AveragePitchText({}), values.AverageDepthText({}), values.NumTeethText(),
        values.NumSegmentsText(), values.SegmentSizeText({})}) {
    EXPECT_EQ(text, "");
  }
}

// ---- whatever somebody does

class AnyEdits : public VariableEditing {
 protected:
  void DoSomething(test::Dice& dice) {
    switch (dice.Whole(0, 9)) {
      case 0:
        return editor_.ChooseEntry(
            dice.Chance(0.1) ? 0 : dice.Whole(0, static_cast<int>(editor_.Entries.size())));
      case 1:
        return editor_.ClickPattern(dice.Whole(0, 3));
      case 2:
        return editor_.TickVarDepth(dice.Chance(0.7));
      case 3:
        return dice.Chance(0.1) ? editor_.PressReset() : editor_.FillFromRecord();
      case 4:
      case 5:
        return Edit(&VariableEditor::ClickDepth, dice.Whole(0, 6), dice.Between(0, 2),
                    &SegmentRow::DepthOpens);
      default:
        return Edit(&VariableEditor::ClickPitch, dice.Whole(0, 6), dice.Between(1, 3),
                    &SegmentRow::PitchOpens);
    }
  }

  void Edit(void (VariableEditor::*click)(int, const Questions&), int k, double value,
            bool SegmentRow::*opens) {
    if (editor_.Row(k).*opens) host_.Values.push_back(Enters(std::to_string(value)));
    (editor_.*click)(k, Asking());
  }

  void ExpectWhatAlwaysHolds() {
    const int n = editor_.SegmentTeeth;
    ASSERT_EQ(General().VariablePitch != False, General().NumVariables != 0);
    if (General().NumVariables == 0) return;
    ASSERT_EQ(General().NumVariables, n);
    ASSERT_EQ(design_.Saw.NumTeeth % n, 0);
    const Measures pitches = Pitches();
    ASSERT_NEAR(std::accumulate(pitches.begin(), pitches.end(), 0.0), n * editor_.AveragePitch, 1e-11);
    for (int k = 0; k < n; ++k) {
      const auto at = static_cast<std::size_t>(k);
      ASSERT_GE(pitches[at], editor_.MinPitch);
      ASSERT_LE(pitches[at], editor_.MaxPitch);
      ASSERT_GE(editor_.ToothDepth[at], editor_.MinToothDepth);
      ASSERT_LE(editor_.ToothDepth[at], editor_.MaxToothDepth);
      ASSERT_EQ(General().VarPitch[at], pitches[at]);
      ASSERT_EQ(General().VarDepth[at], editor_.ToothDepth[at]);
      if (!editor_.DepthIsVariable) {
        ASSERT_EQ(editor_.ToothDepth[at], editor_.BaseDepth);
      }
    }
  }
};

TEST_F(AnyEdits, KeepTheSegmentWithinItsLengthAndItsLimits) {
  test::Dice dice(7);
  for (int band = 0; band < 60; ++band) {
    BandSaw saw = PlainDesign(dice.Chance(0.5) ? SquareBack : RoundBack);
    constexpr int counts[] = {12, 15, 20, 21, 28, 30, 35, 42, 60};
    saw.NumTeeth = static_cast<std::int16_t>(dice.Choice(counts));
    saw.Length = saw.NumTeeth * dice.Between(1.6, 2.4) / 12;
    Open(saw);
    for (int i = 0; i < 80; ++i) {
      DoSomething(dice);
      ASSERT_NO_FATAL_FAILURE(ExpectWhatAlwaysHolds()) << "band " << band << ", edit " << i;
    }
  }
}

}  // namespace
}  // namespace tarnwick
