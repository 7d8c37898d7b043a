#include "entry/modParameter.h"

#include <algorithm>
#include <iterator>

#include "model/modDecim.h"

namespace tarnwick {
namespace {

using enum StoreRule;

template <typename T>
constexpr RecordField At(T& (*field)(BandSaw&)) {
  return field;
}

// clang-format off
// One row, one dialog. Some prompts shout and some do not: they are told apart by that.
const ParameterRow Table[] = {
    {Parameter::ToothStyle, "SqrBack", "BandSaw Tooth Style", "Select BandSaw Tooth Style.",
     9, 200, StyleCode, PlainNumber, At(+[](BandSaw& s) -> auto& { return s.ToothStyle; })},
    {Parameter::BandLength, "Length", "Band Saw Length", "Enter or Select Band Saw Length",
     1, 201, MetresToFeet, Feet, At(+[](BandSaw& s) -> auto& { return s.Length; })},
    {Parameter::Pitch, "Pitch", "Tooth Pitch", "Enter or Select Average Tooth Pitch",
     11, 202, CentimetresToInches, Inches, At(+[](BandSaw& s) -> auto& { return s.Pitch; })},
    {Parameter::ToothSpace, "", "Tooth Space", "Enter or Select Tooth Spacing.",
     11, 202, CentimetresToInches, Inches, {}},
    {Parameter::BandWidth, "Width", "Band Saw Width", "Enter or Select Band Saw Width",
     10, 33, CentimetresToInches, Inches, At(+[](BandSaw& s) -> auto& { return s.Width; })},
    {Parameter::NumTeeth, "NumTeeth", "Number of Teeth", "Enter or Select Number of Teeth",
     2, 203, Integer, PlainNumber, At(+[](BandSaw& s) -> auto& { return s.NumTeeth; })},
    {Parameter::TipClearance, "TipClear", "Tip Clearance",
     "Enter or Select the Tip Clearance. Value to \nremove from width of BandSaw for tips.",
     13, 215, MillimetresToInches, FineInches, At(+[](BandSaw& s) -> auto& { return s.TipClear; })},
    {Parameter::SeatWidth, "SeatWide", "Seat Width", "Enter or Select Width of Seat!",
     3, 217, MillimetresToInches, FineInches, At(+[](BandSaw& s) -> auto& { return s.SeatInfo.Width; })},
    {Parameter::SeatHeight, "SeatHigh", "Seat Height", "Enter or Select Height of Seat!",
     4, 218, MillimetresToInches, FineInches, At(+[](BandSaw& s) -> auto& { return s.SeatInfo.Height; })},
    {Parameter::HookAngle, "Hook", "Hook Angle", "Enter or Select the Hook Angle of Band Saw!",
     5, 204, AsTyped, Degrees, At(+[](BandSaw& s) -> auto& { return s.HookAngle; })},
    {Parameter::ClearanceAngle, "ClrAngle", "Clearance Angle", "Enter or Select Clearance Angle!",
     5, 205, AsTyped, Degrees, At(+[](BandSaw& s) -> auto& { return s.ClearAngle; })},
    {Parameter::GulletRadius, "GuRadius", "Gullet Radius", "Enter or Select Gullet Radius!",
     7, 206, CentimetresToInches, Inches, At(+[](BandSaw& s) -> auto& { return s.GulletInfo.Radius; })},
    {Parameter::FirstGulletRadius, "", "First Gullet Radius", "Enter or Select First Gullet Radius!",
     7, 207, CentimetresToInches, Inches, At(+[](BandSaw& s) -> auto& { return s.GulletInfo.Radius1; })},
    {Parameter::SecondGulletRadius, "", "Second Gullet Radius", "Enter or Select Second Gullet Radius!",
     14, 208, CentimetresToInches, Inches, At(+[](BandSaw& s) -> auto& { return s.GulletInfo.Radius2; })},
    {Parameter::ThirdGulletRadius, "Gu3rdRd", "Third Gullet Radius", "Enter or Select Third Gullet Radius!",
     7, 209, CentimetresToInches, Inches, At(+[](BandSaw& s) -> auto& { return s.GulletInfo.Radius3; })},
    {Parameter::GulletBottomAngle, "GuBotAng", "Gullet Bottom Angle", "Enter or Select Gullet Bottom Angle!",
     12, 210, AsTyped, Degrees, At(+[](BandSaw& s) -> auto& { return s.GulletInfo.BottomAngle; })},
    {Parameter::GulletWidth, "", "Gullet Width", "Enter or Select Gullet Width!",
     7, 211, CentimetresToInches, Inches, At(+[](BandSaw& s) -> auto& { return s.GulletInfo.Width; })},
    {Parameter::GulletDepth, "GuDepth", "Gullet Depth", "Enter or Select Gullet Depth!",
     8, 213, CentimetresToInches, Inches, At(+[](BandSaw& s) -> auto& { return s.GulletInfo.Depth; })},
    {Parameter::GulletBackAngle, "GuBkAngl", "Gullet Back Angle", "Enter or Select Gullet Back Angle!",
     5, 212, AsTyped, Degrees, At(+[](BandSaw& s) -> auto& { return s.GulletInfo.BackAngle; })},
    {Parameter::GulletBackRadius, "GuBkRad", "Gullet Back Radius", "Enter or Select Gullet Back Radius!",
     7, 214, CentimetresToInches, Inches, At(+[](BandSaw& s) -> auto& { return s.GulletInfo.BackRadius; })},
    {Parameter::FrostNotchWidth, "FrostWidth", "Frost Notch Width", "Enter or Select Frost Notch Width!",
     24, 0, MillimetresToInches, FineInches, At(+[](BandSaw& s) -> auto& { return s.GulletInfo.FrostWidth; })},
    {Parameter::FrostNotchHeight, "FrostHeight", "Frost Notch Height", "Enter or Select Frost Notch Height!",
     25, 0, MillimetresToInches, FineInches, At(+[](BandSaw& s) -> auto& { return s.GulletInfo.FrostHeight; })},
    {Parameter::FrostNotchRadius, "FrostRadius", "Frost Notch Radius", "Enter or Select Frost Notch Radius!",
     26, 0, MillimetresToInches, FineInches, At(+[](BandSaw& s) -> auto& { return s.GulletInfo.FrostRadius; })},
    {Parameter::FrostNotchAngle, "FrostAngle", "Frost Notch Angle", "Enter or Select Frost Notch Angle!",
     27, 0, AsTyped, Degrees, At(+[](BandSaw& s) -> auto& { return s.GulletInfo.FrostAngle; })},
    {Parameter::WheelRpm, "", "Wheel RPMs", "Enter or Select the Wheel RPMs",
     19, 407, Integer, RevolutionsPerMinute, At(+[](BandSaw& s) -> auto& { return s.GeneralInfo.ShaftSpeed; })},
    {Parameter::FeedRate, "", "Feed Rate", "Enter or Select the Feed Rate",
     20, 410, AsTyped, FeetPerMinute, At(+[](BandSaw& s) -> auto& { return s.GeneralInfo.FeedRate; })},
    // Stored as typed in metric too, though its list is in centimetres there: meant.
    {Parameter::DepthOfCut, "CutDepth", "Maximum Depth of Cut", "Enter or Select the Maximum Depth of Cut",
     21, 409, AsTyped, Inches, At(+[](BandSaw& s) -> auto& { return s.GeneralInfo.DepthOfCut; })},
    {Parameter::TypeOfWood, "", "Type of Wood", "Enter or Select the Type of Wood",
     22, 412, Text, PlainNumber, At(+[](BandSaw& s) -> auto& { return s.GeneralInfo.WoodType; })},
    {Parameter::TipKerf, "TipKerf", "Tip Kerf", "Enter or Select the Tip Kerf.",
     17, 36, MillimetresToInches, FineInches, At(+[](BandSaw& s) -> auto& { return s.GeneralInfo.Kerf; })},
    {Parameter::PlateThickness, "PlateThk", "Plate Thickness", "Enter or Select the Plate Thickness.",
     17, 35, MillimetresToInches, FineInches, At(+[](BandSaw& s) -> auto& { return s.GeneralInfo.PlateThick; })},
    {Parameter::TipType, "", "BandSaw Tip Type", "Select BandSaw Type of Tip",
     18, 34, TipCode, PlainNumber, At(+[](BandSaw& s) -> auto& { return s.GeneralInfo.TipType; })},
    {Parameter::JoinStyle, "RightAng", "BandSaw Join Style", "Select Style to Join Bandsaw Ends",
     23, 37, JoinCode, PlainNumber, At(+[](BandSaw& s) -> auto& { return s.DesignInfo.JoinStyle; })},
    {Parameter::WheelDiameter, "WheelDia", "Wheel Diameter", "Enter Wheel Diameter",
     15, 500, MetresToFeet, Feet, At(+[](BandSaw& s) -> auto& { return s.MachineInfo.WheelDia; })},
    {Parameter::RimWidth, "RimWidth", "Rim Width", "Enter Wheel Rim Width",
     10, 502, CentimetresToInches, Inches, At(+[](BandSaw& s) -> auto& { return s.MachineInfo.Width; })},
    {Parameter::CenterToCenter, "CenToCen", "Center to Center", "Enter Wheel Center to Center",
     16, 501, MetresToFeet, Feet, At(+[](BandSaw& s) -> auto& { return s.MachineInfo.CenterToCenter; })},
};
// clang-format on

struct KeyOfStyle {
  Parameter Id;
  std::int16_t ToothStyle;
  std::string_view Key;
};

// The gullets differ so much that these measures have a picture for each style that knows them.
constexpr KeyOfStyle KeysByStyle[] = {
    {Parameter::FirstGulletRadius, DoubleRadius, "Gu1stRd"},
    {Parameter::FirstGulletRadius, TripleRadius, "Gu1stRd"},
    {Parameter::FirstGulletRadius, FlatBottom, "GuF1stRd"},
    {Parameter::FirstGulletRadius, OShape, "GuO1stRd"},
    {Parameter::SecondGulletRadius, DoubleRadius, "GuDRad2"},
    {Parameter::SecondGulletRadius, TripleRadius, "Gu2ndRd"},
    {Parameter::SecondGulletRadius, FlatBottom, "GuFRad2"},
    {Parameter::GulletWidth, DoubleRadius, "GuWidth"},
    {Parameter::GulletWidth, TripleRadius, "GuWidth"},
    {Parameter::GulletWidth, FlatBottom, "GuFWidth"},
    {Parameter::GulletWidth, OShape, "GuOWidth"},
};

constexpr int SeatTopic = 216;

constexpr ChoiceName Styles[] = {
    {"Square Back", SquareBack, "SqrBack"},
    {"Round Back", RoundBack, "RndBack"},
    {"Double Radius", DoubleRadius, "GuDouble"},
    {"Triple Radius", TripleRadius, "GuTriple"},
    {"Flat Bottom", FlatBottom, "GuFlatBo"},
    {"Narrow Style", NarrowStyle, "GuNarrow"},
    {"O Shape", OShape, "GuOShape"},
    {"Frost Tooth", FrostTooth, ""},
};
constexpr ChoiceName Tips[] = {
    {"None", 0, "TipNone"}, {"Stellite", 1, "TipStel"}, {"Swagged", 2, "TipSwag"}, {"Carbide", 3, "TipCarb"}};
constexpr ChoiceName Joins[] = {{"Right Angle Join", RightAngleJoin, "RightAng"},
                                {"Overlaped Join", OverlapJoin, "Overlap"}};

}  // namespace

std::span<const ParameterRow> Parameters() { return Table; }

const ParameterRow& RowOf(Parameter parameter) { return Table[static_cast<std::size_t>(parameter)]; }

std::string_view PictureKey(Parameter parameter, int toothStyle) {
  for (const KeyOfStyle& row : KeysByStyle) {
    if (row.Id == parameter && row.ToothStyle == toothStyle) return row.Key;
  }
  return RowOf(parameter).Key;
}

int HelpTopicOfTitle(std::string_view title) {
  if (title == SeatTitle) return SeatTopic;
  const auto* const row = std::find_if(std::begin(Table), std::end(Table),
                                       [title](const ParameterRow& r) { return r.Title == title; });
  return row == std::end(Table) ? 0 : row->HelpTopic;
}

bool IsChoice(StoreRule rule) { return rule == Text || !ChoiceNames(rule).empty(); }

std::span<const ChoiceName> ChoiceNames(StoreRule rule) {
  switch (rule) {
    case StyleCode:
      return Styles;
    case TipCode:
      return Tips;
    case JoinCode:
      return Joins;
    case MetresToFeet:
    case CentimetresToInches:
    case MillimetresToInches:
    case AsTyped:
    case Integer:
    case Text:
      break;
  }
  return {};
}

const ChoiceName* FindChoice(StoreRule rule, std::string_view name) {
  for (const ChoiceName& choice : ChoiceNames(rule)) {
    if (choice.Name == name) return &choice;
  }
  return nullptr;
}

double StoredNumber(StoreRule rule, std::string_view text, const DisplayFormat& format) {
  if (!format.IsMetric()) return ReadNumber(text);
  switch (rule) {
    case MetresToFeet:
      return ReadNumber(MToFt(text, format.DecimalPlaces));
    case CentimetresToInches:
      return ReadNumber(CmToIn(text, format.DecimalPlaces));
    case MillimetresToInches:
      return ReadNumber(MmToIn(text, format.DecimalPlaces));
    case AsTyped:
    case Integer:
    case Text:
    case StyleCode:
    case TipCode:
    case JoinCode:
      break;
  }
  return ReadNumber(text);
}

}  // namespace tarnwick
