#include "store/modImage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

#include "model/modFields.h"

namespace tarnwick {
namespace {

struct FieldPlace {
  const char* Name;
  std::size_t Offset, Size;  // bytes of the image
  friend void PrintTo(const FieldPlace& place, std::ostream* out) { *out << place.Name; }
};

/// Where every field lies. Files of all versions depend on it.
constexpr FieldPlace Places[] = {
    FieldPlace{"ContainsInfo.General", 0, 2},
    FieldPlace{"ContainsInfo.Teeth", 2, 2},
    FieldPlace{"ContainsInfo.Power", 4, 2},
    FieldPlace{"ContainsInfo.Machine", 6, 2},
    FieldPlace{"ContainsInfo.Spare", 8, 98},
    FieldPlace{"ToothStyle", 106, 2},
    FieldPlace{"Length", 108, 8},
    FieldPlace{"Width", 116, 8},
    FieldPlace{"Pitch", 124, 8},
    FieldPlace{"NumTeeth", 132, 2},
    FieldPlace{"TipClear", 134, 8},
    FieldPlace{"HookAngle", 142, 8},
    FieldPlace{"ClearAngle", 150, 8},
    FieldPlace{"SeatInfo.State", 158, 2},
    FieldPlace{"SeatInfo.Width", 160, 8},
    FieldPlace{"SeatInfo.Height", 168, 8},
    FieldPlace{"GulletInfo.Radius", 176, 8},
    FieldPlace{"GulletInfo.Depth", 184, 8},
    FieldPlace{"GulletInfo.MinDepth", 192, 8},
    FieldPlace{"GulletInfo.Area", 200, 8},
    FieldPlace{"GulletInfo.BackAngle", 208, 8},
    FieldPlace{"GulletInfo.BackRadius", 216, 8},
    FieldPlace{"GulletInfo.Radius1", 224, 8},
    FieldPlace{"GulletInfo.Radius2", 232, 8},
    FieldPlace{"GulletInfo.Radius3", 240, 8},
    FieldPlace{"GulletInfo.Width", 248, 8},
    FieldPlace{"GulletInfo.Bite", 256, 8},
    FieldPlace{"GulletInfo.Capacity", 264, 8},
    FieldPlace{"GulletInfo.AreaBelowTip", 272, 8},
    FieldPlace{"GulletInfo.BottomAngle", 280, 8},
    FieldPlace{"GulletInfo.Sharpangle", 288, 8},
    FieldPlace{"GulletInfo.SpareByte", 296, 1},
    FieldPlace{"GulletInfo.FaceLength", 297, 8},
    FieldPlace{"GulletInfo.FrostWidth", 305, 8},
    FieldPlace{"GulletInfo.FrostHeight", 313, 8},
    FieldPlace{"GulletInfo.FrostRadius", 321, 8},
    FieldPlace{"GulletInfo.FrostAngle", 329, 8},
    FieldPlace{"GulletInfo.Spare", 337, 212},
    FieldPlace{"BothEdges", 549, 2},
    FieldPlace{"GeneralInfo.TipSize", 551, 8},
    FieldPlace{"GeneralInfo.TipType", 559, 2},
    FieldPlace{"GeneralInfo.PlateThick", 561, 8},
    FieldPlace{"GeneralInfo.Kerf", 569, 8},
    FieldPlace{"GeneralInfo.SideClear", 577, 8},
    FieldPlace{"GeneralInfo.TopBevel", 585, 8},
    FieldPlace{"GeneralInfo.Tension", 593, 8},
    FieldPlace{"GeneralInfo.SpareText1", 601, 15},
    FieldPlace{"GeneralInfo.SpareText2", 616, 15},
    FieldPlace{"GeneralInfo.SpareText3", 631, 25},
    FieldPlace{"GeneralInfo.Quantity", 656, 4},
    FieldPlace{"GeneralInfo.ShaftSpeed", 660, 4},
    FieldPlace{"GeneralInfo.DepthOfCut", 664, 8},
    FieldPlace{"GeneralInfo.FeedRate", 672, 8},
    FieldPlace{"GeneralInfo.WoodType", 680, 30},
    FieldPlace{"GeneralInfo.HorsePower", 710, 8},
    FieldPlace{"GeneralInfo.SavedAs", 718, 2},
    FieldPlace{"GeneralInfo.VariablePitch", 720, 2},
    FieldPlace{"GeneralInfo.NumVariables", 722, 2},
    FieldPlace{"GeneralInfo.VarPitch", 724, 80},
    FieldPlace{"GeneralInfo.VariableDepth", 804, 2},
    FieldPlace{"GeneralInfo.VarDepth", 806, 80},
    FieldPlace{"DesignInfo.SegmentLength", 886, 8},
    FieldPlace{"DesignInfo.VarPattern", 894, 2},
    FieldPlace{"DesignInfo.VarArea", 896, 80},
    FieldPlace{"DesignInfo.SawVelocity", 976, 4},
    FieldPlace{"DesignInfo.MaxFeedRate", 980, 8},
    FieldPlace{"DesignInfo.JoinStyle", 988, 2},
    FieldPlace{"DesignInfo.Comment1", 990, 40},
    FieldPlace{"DesignInfo.Comment2", 1030, 40},
    FieldPlace{"DesignInfo.Comment3", 1070, 40},
    FieldPlace{"DesignInfo.SpareText4", 1110, 808},
    FieldPlace{"DesignInfo.SpareText5", 1918, 255},
    FieldPlace{"MachineInfo.WheelDia", 2173, 8},
    FieldPlace{"MachineInfo.Width", 2181, 8},
    FieldPlace{"MachineInfo.CenterToCenter", 2189, 8},
    FieldPlace{"MachineInfo.InCenterOut", 2197, 2},
    FieldPlace{"MachineInfo.Spare", 2199, 512},
    FieldPlace{"CustomerInfo.CustName", 2711, 50},
    FieldPlace{"CustomerInfo.DesignBy", 2761, 50},
    FieldPlace{"CustomerInfo.Spare", 2811, 512},
    FieldPlace{"ImpMetric", 3323, 2},
};

BandSaw RecordOf(std::string_view image) {
  ByteReader reader(image);
  return TakeRecord(reader);
}

std::string ImageOf(const BandSaw& saw) {
  std::string image;
  AppendRecord(image, saw);
  return image;
}

struct IsZero {
  template <class Value>
  requires std::is_arithmetic_v<Value>
  bool operator()(Value value) const { return value == 0; }
  bool operator()(const SegmentMeasures& measures) const {
    return std::all_of(measures.begin(), measures.end(), *this);
  }
  template <std::size_t N>
  bool operator()(const FixedText<N>& text) const {
    return text == FixedText<N>{};
  }
};

std::vector<std::string> FieldsSet(const BandSaw& saw) {
  std::vector<std::string> names;
  ForEachField(saw, [&names](const char* name, const auto& field) {
    if (!IsZero{}(field)) names.emplace_back(name);
  });
  return names;
}

class EveryField : public testing::TestWithParam<FieldPlace> {};

TEST_P(EveryField, IsReadFromItsOwnBytesAndNoOthers) {
  const FieldPlace& place = GetParam();
  for (std::size_t byte = place.Offset; byte < place.Offset + place.Size; ++byte) {
    std::string image(RecordImageSize, '\0');
    image[byte] = 0x11;
    EXPECT_EQ(FieldsSet(RecordOf(image)), std::vector<std::string>{place.Name}) << "byte " << byte;
    EXPECT_EQ(ImageOf(RecordOf(image)), image) << "byte " << byte;
  }
}

INSTANTIATE_TEST_SUITE_P(Places, EveryField, testing::ValuesIn(Places), [](const auto& row) {
  std::string name = row.param.Name;
  std::replace(name.begin(), name.end(), '.', '_');
  return name;
});

TEST(RecordImage, HasEachFieldBehindTheOtherWithoutGaps) {
  std::size_t next = 0;
  for (const FieldPlace& place : Places) {
    EXPECT_EQ(place.Offset, next) << place.Name;
    next += place.Size;
  }
  EXPECT_EQ(next, RecordImageSize);
  EXPECT_EQ(ImageOf({}).size(), RecordImageSize);
}

TEST(RecordImage, IsLittleEndian) {
  BandSaw saw;
  saw.ToothStyle = 0x0102;
  saw.GeneralInfo.Quantity = -2;
  saw.Length = 1.5;  // 0x3FF8000000000000
  saw.ContainsInfo.Teeth = True;
  const std::string image = ImageOf(saw);
  EXPECT_EQ(image.substr(106, 2), "\x02\x01");
  EXPECT_EQ(image.substr(656, 4), "\xFE\xFF\xFF\xFF");
  EXPECT_EQ(image.substr(108, 8), std::string("\0\0\0\0\0\0\xF8\x3F", 8));
  EXPECT_EQ(image.substr(2, 2), "\xFF\xFF");
}

TEST(RecordImage, KeepsEveryBitOfAnyBytes) {
  std::mt19937 random(2);
  for (int round = 0; round < 200; ++round) {
    std::string image(RecordImageSize, '\0');
    for (char& byte : image) byte = static_cast<char>(random());
    ASSERT_EQ(ImageOf(RecordOf(image)), image);
  }
}

TEST(RecordImage, KeepsTheBitsOfNumbersThatAreNone) {
  std::string image(RecordImageSize, '\0');
  image.replace(108, 8, "\x01\x00\x00\x00\x00\x00\xF0\x7F", 8);  // a signalling one
  EXPECT_EQ(ImageOf(RecordOf(image)), image);
}

TEST(RecordImage, ReadsAsZerosFromWhereTheBytesEnd) {
  const std::string whole(RecordImageSize, '\x11');
  for (const std::size_t size : {std::size_t{0}, std::size_t{1}, std::size_t{109}, RecordImageSize - 1}) {
    ByteReader reader(std::string_view(whole).substr(0, size));
    const BandSaw saw = TakeRecord(reader);
    EXPECT_FALSE(reader.Complete()) << size;
    EXPECT_EQ(ImageOf(saw), whole.substr(0, size) + std::string(RecordImageSize - size, '\0')) << size;
  }
}

TEST(RecordImage, LeavesWhatFollowsItToTheNextReader) {
  const std::string two = std::string(RecordImageSize, '\x11') + std::string(RecordImageSize, '\x22');
  ByteReader reader(two);
  EXPECT_EQ(TakeRecord(reader).ToothStyle, 0x1111);
  EXPECT_EQ(TakeRecord(reader).ToothStyle, 0x2222);
  EXPECT_TRUE(reader.Complete());
}

}  // namespace
}  // namespace tarnwick
