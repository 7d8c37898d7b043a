#include "model/modFields.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <type_traits>
#include <vector>

namespace tarnwick {
namespace {

// Bytes of a field in a design file.
std::size_t WidthOf(std::int16_t) { return 2; }
std::size_t WidthOf(std::int32_t) { return 4; }
std::size_t WidthOf(std::uint8_t) { return 1; }
std::size_t WidthOf(double) { return 8; }
std::size_t WidthOf(const SegmentMeasures& field) { return 8 * field.size(); }
template <std::size_t N>
std::size_t WidthOf(const FixedText<N>&) {
  return N;
}

struct FieldPlace {
  std::string Name;
  std::size_t Offset, Width;
  bool operator==(const FieldPlace&) const = default;
  friend void PrintTo(const FieldPlace& place, std::ostream* out) {
    *out << place.Name << " at " << place.Offset << ", " << place.Width << " bytes";
  }
};

/// The image of a design in a file, byte by byte: files of all times have it.
const std::vector<FieldPlace> Image{
    {"ContainsInfo.General", 0, 2},
    {"ContainsInfo.Teeth", 2, 2},
    {"ContainsInfo.Power", 4, 2},
    {"ContainsInfo.Machine", 6, 2},
    {"ContainsInfo.Spare", 8, 98},
    {"ToothStyle", 106, 2},
    {"Length", 108, 8},
    {"Width", 116, 8},
    {"Pitch", 124, 8},
    {"NumTeeth", 132, 2},
    {"TipClear", 134, 8},
    {"HookAngle", 142, 8},
    {"ClearAngle", 150, 8},
    {"SeatInfo.State", 158, 2},
    {"SeatInfo.Width", 160, 8},
    {"SeatInfo.Height", 168, 8},
    {"GulletInfo.Radius", 176, 8},
    {"GulletInfo.Depth", 184, 8},
    {"GulletInfo.MinDepth", 192, 8},
    {"GulletInfo.Area", 200, 8},
    {"GulletInfo.BackAngle", 208, 8},
    {"GulletInfo.BackRadius", 216, 8},
    {"GulletInfo.Radius1", 224, 8},
    {"GulletInfo.Radius2", 232, 8},
    {"GulletInfo.Radius3", 240, 8},
    {"GulletInfo.Width", 248, 8},
    {"GulletInfo.Bite", 256, 8},
    {"GulletInfo.Capacity", 264, 8},
    {"GulletInfo.AreaBelowTip", 272, 8},
    {"GulletInfo.BottomAngle", 280, 8},
    {"GulletInfo.Sharpangle", 288, 8},
    {"GulletInfo.SpareByte", 296, 1},
    {"GulletInfo.FaceLength", 297, 8},
    {"GulletInfo.FrostWidth", 305, 8},
    {"GulletInfo.FrostHeight", 313, 8},
    {"GulletInfo.FrostRadius", 321, 8},
    {"GulletInfo.FrostAngle", 329, 8},
    {"GulletInfo.Spare", 337, 212},
    {"BothEdges", 549, 2},
    {"GeneralInfo.TipSize", 551, 8},
    {"GeneralInfo.TipType", 559, 2},
    {"GeneralInfo.PlateThick", 561, 8},
    {"GeneralInfo.Kerf", 569, 8},
    {"GeneralInfo.SideClear", 577, 8},
    {"GeneralInfo.TopBevel", 585, 8},
    {"GeneralInfo.Tension", 593, 8},
    {"GeneralInfo.SpareText1", 601, 15},
    {"GeneralInfo.SpareText2", 616, 15},
    {"GeneralInfo.SpareText3", 631, 25},
    {"GeneralInfo.Quantity", 656, 4},
    {"GeneralInfo.ShaftSpeed", 660, 4},
    {"GeneralInfo.DepthOfCut", 664, 8},
    {"GeneralInfo.FeedRate", 672, 8},
    {"GeneralInfo.WoodType", 680, 30},
    {"GeneralInfo.HorsePower", 710, 8},
    {"GeneralInfo.SavedAs", 718, 2},
    {"GeneralInfo.VariablePitch", 720, 2},
    {"GeneralInfo.NumVariables", 722, 2},
    {"GeneralInfo.VarPitch", 724, 80},
    {"GeneralInfo.VariableDepth", 804, 2},
    {"GeneralInfo.VarDepth", 806, 80},
    {"DesignInfo.SegmentLength", 886, 8},
    {"DesignInfo.VarPattern", 894, 2},
    {"DesignInfo.VarArea", 896, 80},
    {"DesignInfo.SawVelocity", 976, 4},
    {"DesignInfo.MaxFeedRate", 980, 8},
    {"DesignInfo.JoinStyle", 988, 2},
    {"DesignInfo.Comment1", 990, 40},
    {"DesignInfo.Comment2", 1030, 40},
    {"DesignInfo.Comment3", 1070, 40},
    {"DesignInfo.SpareText4", 1110, 808},
    {"DesignInfo.SpareText5", 1918, 255},
    {"MachineInfo.WheelDia", 2173, 8},
    {"MachineInfo.Width", 2181, 8},
    {"MachineInfo.CenterToCenter", 2189, 8},
    {"MachineInfo.InCenterOut", 2197, 2},
    {"MachineInfo.Spare", 2199, 512},
    {"CustomerInfo.CustName", 2711, 50},
    {"CustomerInfo.DesignBy", 2761, 50},
    {"CustomerInfo.Spare", 2811, 512},
    {"ImpMetric", 3323, 2},
};

TEST(ForEachField, GoesThroughTheImageOfADesignFile) {
  std::vector<FieldPlace> visited;
  std::size_t offset = 0;
  const BandSaw saw;
  ForEachField(saw, [&](const char* name, const auto& field) {
    visited.push_back({name, offset, WidthOf(field)});
    offset += WidthOf(field);
  });
  ASSERT_EQ(visited.size(), Image.size());
  for (std::size_t i = 0; i < Image.size(); ++i) EXPECT_EQ(visited[i], Image[i]);
  EXPECT_EQ(offset, 3325u);
  EXPECT_EQ(RecordImageSize, 3325u);
}

TEST(ForEachField, VisitsEachFieldOnce) {
  BandSaw saw;
  std::set<const void*> places;
  std::set<std::string> names;
  ForEachField(saw, [&](const char* name, auto& field) {
    EXPECT_TRUE(places.insert(&field).second) << name;
    EXPECT_TRUE(names.insert(name).second) << name;
  });
  EXPECT_EQ(places.size(), Image.size());
}

TEST(ForEachField, GivesTheFieldThatItNames) {
  BandSaw saw;
  saw.GulletInfo.Width = 1.25;
  saw.MachineInfo.Width = 2.5;
  saw.SeatInfo.Width = 0.5;
  saw.Width = 7;
  std::map<std::string, double> widths;
  ForEachField(saw, [&](const std::string& name, const auto& field) {
    if constexpr (std::is_same_v<std::decay_t<decltype(field)>, double>) {
      if (name.ends_with("Width")) widths[name] = field;
    }
  });
  const std::map<std::string, double> wanted{{"GulletInfo.Width", 1.25},
                                             {"GulletInfo.FrostWidth", 0},
                                             {"MachineInfo.Width", 2.5},
                                             {"SeatInfo.Width", 0.5},
                                             {"Width", 7}};
  EXPECT_EQ(widths, wanted);
}

}  // namespace
}  // namespace tarnwick
