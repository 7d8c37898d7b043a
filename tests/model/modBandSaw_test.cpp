#include "model/modBandSaw.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <functional>
#include <limits>
#include <set>
#include <string>
#include <vector>

#include "model/modFields.h"

namespace tarnwick {
namespace {

// ---- comparing two designs

/// A design that differs from it in the field counts as changed.
const std::set<std::string> Compared{
    "ContainsInfo.General",
    "ContainsInfo.Teeth",
    "ContainsInfo.Power",
    "ContainsInfo.Machine",
    "ToothStyle",
    "Length",
    "Width",
    "Pitch",
    "NumTeeth",
    "TipClear",
    "HookAngle",
    "ClearAngle",
    "SeatInfo.State",
    "SeatInfo.Width",
    "SeatInfo.Height",
    "GulletInfo.Radius",
    "GulletInfo.Depth",
    "GulletInfo.MinDepth",
    "GulletInfo.Area",
    "GulletInfo.BackAngle",
    "GulletInfo.BackRadius",
    "GulletInfo.Radius1",
    "GulletInfo.Radius2",
    "GulletInfo.Radius3",
    "GulletInfo.Width",
    "GulletInfo.Bite",
    "GulletInfo.Capacity",
    "GulletInfo.AreaBelowTip",
    "GulletInfo.BottomAngle",
    "GulletInfo.Sharpangle",
    "BothEdges",
    "GeneralInfo.TipSize",
    "GeneralInfo.TipType",
    "GeneralInfo.PlateThick",
    "GeneralInfo.Kerf",
    "GeneralInfo.SideClear",
    "GeneralInfo.TopBevel",
    "GeneralInfo.Tension",
    "GeneralInfo.SpareText1",
    "GeneralInfo.SpareText2",
    "GeneralInfo.SpareText3",
    "GeneralInfo.Quantity",
    "GeneralInfo.ShaftSpeed",
    "GeneralInfo.DepthOfCut",
    "GeneralInfo.FeedRate",
    "GeneralInfo.WoodType",
    "GeneralInfo.HorsePower",
    "GeneralInfo.SavedAs",
    "GeneralInfo.VariablePitch",
    "GeneralInfo.NumVariables",
    "GeneralInfo.VarPitch",
    "GeneralInfo.VariableDepth",
    "GeneralInfo.VarDepth",
    "DesignInfo.SegmentLength",
    "DesignInfo.JoinStyle",
    "DesignInfo.SawVelocity",
    "DesignInfo.Comment1",
    "DesignInfo.Comment2",
    "DesignInfo.Comment3",
    "MachineInfo.WheelDia",
    "MachineInfo.Width",
    "MachineInfo.CenterToCenter",
    "MachineInfo.InCenterOut",
    "CustomerInfo.CustName",
    "CustomerInfo.DesignBy",
    "ImpMetric",
};

/// Left out on purpose.
const std::set<std::string> NotCompared{
    "ContainsInfo.Spare",     "GulletInfo.SpareByte",   "GulletInfo.FaceLength",  "GulletInfo.FrostWidth",
    "GulletInfo.FrostHeight", "GulletInfo.FrostRadius", "GulletInfo.FrostAngle",  "GulletInfo.Spare",
    "DesignInfo.VarPattern",  "DesignInfo.VarArea",     "DesignInfo.MaxFeedRate", "DesignInfo.SpareText4",
    "DesignInfo.SpareText5",  "MachineInfo.Spare",      "CustomerInfo.Spare",
};

/// One way of making a field differ from 0.
struct Change {
  std::string What;
  bool Counts = true;  // within a field that is compared
};

template <class Number>
void Changes(Number& field, const std::function<void(const Change&)>& done) {
  const Number old = field;
  field = static_cast<Number>(1);
  done({"set to 1"});
  field = old;
}
void Changes(double& field, const std::function<void(const Change&)>& done) {
  const double old = field;
  field = std::nextafter(old, 1e9);
  done({"set to the next number"});
  field = old;
}
void Changes(SegmentMeasures& field, const std::function<void(const Change&)>& done) {
  for (std::size_t i = 0; i < field.size(); ++i) {
    field[i] = 0.5;
    done({"element " + std::to_string(i + 1), i < UsedSegmentMeasures});
    field[i] = 0;
  }
}
template <std::size_t N>
void Changes(FixedText<N>& field, const std::function<void(const Change&)>& done) {
  for (const std::size_t i : {std::size_t{0}, N / 2, N - 1}) {
    field.Bytes[i] = ' ';
    done({"byte " + std::to_string(i)});
    field.Bytes[i] = '\0';
  }
}

TEST(SameSaw, ComparesEveryFieldThatCountsAndNoOther) {
  const BandSaw blank;
  BandSaw changed;
  ForEachField(changed, [&](const char* name, auto& field) {
    SCOPED_TRACE(name);
    const bool compared = Compared.contains(name);
    ASSERT_NE(compared, NotCompared.contains(name)) << "say of a new field whether it counts";
    Changes(field, [&](const Change& change) {
      const bool same = !(compared && change.Counts);
      EXPECT_EQ(SameSaw(blank, changed), same) << change.What;
      EXPECT_EQ(SameSaw(changed, blank), same) << change.What << ", the other way round";
    });
    EXPECT_TRUE(SameSaw(blank, changed)) << "the change was taken back";
  });
}

TEST(SameSaw, KnowsNoFieldThatIsGone) {
  std::set<std::string> all = Compared;
  all.insert(NotCompared.begin(), NotCompared.end());
  const BandSaw saw;
  ForEachField(saw, [&](const char* name, const auto&) { all.erase(name); });
  EXPECT_TRUE(all.empty()) << *all.begin();
}

TEST(SameSaw, HasNoTolerance) {
  BandSaw a, b;
  a.Width = 0.3;
  b.Width = 0.1 + 0.2;
  EXPECT_FALSE(SameSaw(a, b));
}

TEST(SameSaw, SeesThePaddingOfTexts) {
  BandSaw a, b;
  a.DesignInfo.Comment1.Assign("");
  EXPECT_FALSE(SameSaw(a, b)) << "40 blanks are another text than one that was never assigned";
  b.DesignInfo.Comment1.Assign("");
  EXPECT_TRUE(SameSaw(a, b));
}

TEST(SameSaw, TakesFlagsByTheirValue) {
  BandSaw a, b;
  a.BothEdges = True;
  b.BothEdges = 1;
  EXPECT_FALSE(SameSaw(a, b));
}

// ---- a new design

TEST(BandSaw, IsAllZeroWhenItIsNew) {
  const BandSaw saw;
  ForEachField(saw, [](const char* name, const auto& field) {
    EXPECT_EQ(field, std::decay_t<decltype(field)>{}) << name;
  });
  EXPECT_EQ(saw.CustomerInfo.CustName.View(), std::string(50, '\0'));
  EXPECT_EQ(saw.ToothStyle, NoStyle);
}

TEST(BandSaw, IsCopiedWhole) {
  BandSaw saw;
  saw.GeneralInfo.VarPitch[9] = 1.5;
  saw.CustomerInfo.Spare.Bytes[511] = 'x';
  const BandSaw copy = saw;
  saw = BandSaw{};
  EXPECT_EQ(copy.GeneralInfo.VarPitch[9], 1.5);
  EXPECT_EQ(copy.CustomerInfo.Spare.Bytes[511], 'x');
}

// ---- variable pitch

TEST(ResetVariablePitch, ClearsWhatMakesTheBandAVariableOne) {
  BandSaw saw;
  saw.GeneralInfo.VariablePitch = True;
  saw.GeneralInfo.VariableDepth = True;
  saw.GeneralInfo.NumVariables = 5;
  saw.GeneralInfo.VarPitch.fill(1.5);
  saw.GeneralInfo.VarDepth.fill(0.5);
  saw.DesignInfo.SegmentLength = 7.5;
  saw.DesignInfo.VarPattern = 3;
  saw.DesignInfo.VarArea.fill(0.25);
  saw.Pitch = 1.75;

  ResetVariablePitch(saw);

  EXPECT_EQ(saw.GeneralInfo.VariablePitch, False);
  EXPECT_EQ(saw.GeneralInfo.VariableDepth, False);
  EXPECT_EQ(saw.GeneralInfo.NumVariables, 0);
  EXPECT_EQ(saw.DesignInfo.SegmentLength, 0);
  EXPECT_EQ(saw.DesignInfo.VarPattern, 0);
  const SegmentMeasures pitches{0, 0, 0, 0, 0, 0, 0, 1.5, 1.5, 1.5};
  const SegmentMeasures depths{0, 0, 0, 0, 0, 0, 0, 0.5, 0.5, 0.5};
  SegmentMeasures areas;
  areas.fill(0.25);
  EXPECT_EQ(saw.GeneralInfo.VarPitch, pitches) << "elements 8 to 10 are never used";
  EXPECT_EQ(saw.GeneralInfo.VarDepth, depths);
  EXPECT_EQ(saw.DesignInfo.VarArea, areas) << "the areas stay";
  EXPECT_EQ(saw.Pitch, 1.75);
}

// ---- names

TEST(ToothStyleName, NamesTheEightStyles) {
  const std::array<const char*, 11> names{nullptr,         "Square Back",   "Round Back",  nullptr,
                                          "Double Radius", "Triple Radius", "Flat Bottom", "Narrow Style",
                                          "O Shape",       "Frost Tooth",   nullptr};
  for (int style = 0; style < 11; ++style)
    EXPECT_STREQ(ToothStyleName(style), names[static_cast<std::size_t>(style)]) << "style " << style;
  EXPECT_EQ(ToothStyleName(-1), nullptr);
}

}  // namespace
}  // namespace tarnwick
