#include "window/modPanelField.h"

#include "model/modDecim.h"
#include "shell/modString.h"
#include "store/modCodePage.h"
#include "window/modRowText.h"

namespace tarnwick {
namespace {

using enum BoxAct;

constexpr int NoHint = 0;
constexpr int MustUseToothShape = 100, MustUseBandLength = 101, MustUseVariable = 102, MustUsePower = 103,
              MustUseGeneral = 104;
constexpr Parameter None{};  // where nothing is asked

// ---- what a box shows; nothing for zero, which is a measure that is not set

template <auto Get, UnitKind Kind>
std::string Measure(const BandSaw& saw, const DisplayFormat& format) {
  const double value = Get(saw);
  return value == 0 ? std::string() : FormatNumber(value, Kind, format);
}

template <auto Get>
std::string Whole(const BandSaw& saw, const DisplayFormat&) {
  const auto value = Get(saw);
  return value == 0 ? std::string() : DecimalText(value);
}

/// A typed number has no blank ahead: the caret would stand behind it.
std::string Quantity(const BandSaw& saw, const DisplayFormat&) {
  return saw.GeneralInfo.Quantity == 0 ? std::string() : std::to_string(saw.GeneralInfo.Quantity);
}

template <auto Get>
std::string Words(const BandSaw& saw, const DisplayFormat&) {
  return Get(saw);
}

/// A typed text without its padding, which is not the user's.
template <auto Get>
std::string Typed(const BandSaw& saw, const DisplayFormat&) {
  const std::string_view bytes = Get(saw).View();
  const std::size_t end = bytes.find_last_not_of(std::string_view(" \0", 2));
  return end == std::string_view::npos ? std::string() : Utf8OfCodePage(bytes.substr(0, end + 1));
}

/// A text that was never there stays that: an empty box does not assign it.
template <auto Get>
void TakeText(BandSaw& saw, std::string_view utf8) {
  auto& text = Get(saw);
  if (utf8.empty() && text == std::decay_t<decltype(text)>{}) return;
  text.Assign(NearestCodePageText(utf8));
}

void TakeQuantity(BandSaw& saw, std::string_view text) {
  saw.GeneralInfo.Quantity = WholeNumber<std::int32_t>(ReadNumber(text)).value_or(saw.GeneralInfo.Quantity);
}

// clang-format off
constexpr PanelField Tooth[] = {
    {"txtToothStyle", "Tooth Style:", "Band", Ask, Parameter::ToothStyle, 1, Words<[](const BandSaw& s) { return ToothStyleText(s); }>},
    {"txtLength", "Length:", "Band", Ask, Parameter::BandLength, 2, Measure<[](const BandSaw& s) { return s.Length; }, Feet>},
    {"txtNumTeeth", "Number Of Teeth:", "Band", Ask, Parameter::NumTeeth, 3, Whole<[](const BandSaw& s) { return s.NumTeeth; }>},
    {"txtPitch", "Tooth Spacing:", "Band", Ask, Parameter::Pitch, 15, Measure<[](const BandSaw& s) { return s.Pitch; }, Inches>},
    {"txtWidth", "Band Saw Width:", "Band", Ask, Parameter::BandWidth, 14, Measure<[](const BandSaw& s) { return s.Width; }, Inches>},
    {"txtHook", "Hook Angle:", "Angles", Ask, Parameter::HookAngle, 4, Measure<[](const BandSaw& s) { return s.HookAngle; }, Degrees>},
    {"txtClear", "Clearance Angle:", "Angles", Ask, Parameter::ClearanceAngle, 6, Measure<[](const BandSaw& s) { return s.ClearAngle; }, Degrees>},
    {"txtFrostWidth", "Frost Notch Width:", "Gullet", Ask, Parameter::FrostNotchWidth, NoHint, Measure<[](const BandSaw& s) { return s.GulletInfo.FrostWidth; }, FineInches>},
    {"txtFrostHeight", "Frost Notch Height:", "Gullet", Ask, Parameter::FrostNotchHeight, NoHint, Measure<[](const BandSaw& s) { return s.GulletInfo.FrostHeight; }, FineInches>},
    {"txtFrostRadius", "Frost Notch Radius:", "Gullet", Ask, Parameter::FrostNotchRadius, NoHint, Measure<[](const BandSaw& s) { return s.GulletInfo.FrostRadius; }, FineInches>},
    {"txtFrostAngle", "Frost Notch Angle:", "Gullet", Ask, Parameter::FrostNotchAngle, NoHint, Measure<[](const BandSaw& s) { return s.GulletInfo.FrostAngle; }, Degrees>},
    {"txtGulletRadius", "Gullet Radius:", "Gullet", Ask, Parameter::GulletRadius, 7, Measure<[](const BandSaw& s) { return s.GulletInfo.Radius; }, Inches>},
    {"txt1stGulletRad", "1st Gullet Radius:", "Gullet", Ask, Parameter::FirstGulletRadius, 8, Measure<[](const BandSaw& s) { return s.GulletInfo.Radius1; }, Inches>},
    {"txt2ndGulletRad", "2nd Gullet Radius:", "Gullet", Ask, Parameter::SecondGulletRadius, 9, Measure<[](const BandSaw& s) { return s.GulletInfo.Radius2; }, Inches>},
    {"txt3rdGulletRad", "3rd Gullet Radius:", "Gullet", Ask, Parameter::ThirdGulletRadius, 10, Measure<[](const BandSaw& s) { return s.GulletInfo.Radius3; }, Inches>},
    {"txtGulletBottomAngle", "Gullet Bottom Angle:", "Gullet", Ask, Parameter::GulletBottomAngle, 13, Measure<[](const BandSaw& s) { return s.GulletInfo.BottomAngle; }, Degrees>},
    {"txtGulletWidth", "Gullet Width:", "Gullet", Ask, Parameter::GulletWidth, 16, Measure<[](const BandSaw& s) { return s.GulletInfo.Width; }, Inches>},
    {"txtGulletBackAngle", "Gullet Back Angle:", "Gullet", Ask, Parameter::GulletBackAngle, 17, Measure<[](const BandSaw& s) { return s.GulletInfo.BackAngle; }, Degrees>},
    {"txtGulletDepth", "Gullet Depth:", "Gullet", Ask, Parameter::GulletDepth, 11, Measure<[](const BandSaw& s) { return s.GulletInfo.Depth; }, Inches>},
    {"txtGulletBackRadius", "Gullet Back Radius:", "Gullet", Ask, Parameter::GulletBackRadius, 12, Measure<[](const BandSaw& s) { return s.GulletInfo.BackRadius; }, Inches>},
    {"txtTipClearance", "Tip Clearance:", "Seat", Ask, Parameter::TipClearance, 18, Measure<[](const BandSaw& s) { return s.TipClear; }, FineInches>},
    {"txtSeat", "Seat:", "Seat", AskSeat, None, 19, Words<[](const BandSaw& s) { return SeatText(s); }>},
    {"txtSeatWidth", "Seat Width:", "Seat", Ask, Parameter::SeatWidth, 20, Measure<[](const BandSaw& s) { return s.SeatInfo.Width; }, FineInches>},
    {"txtSeatHeight", "Seat Height:", "Seat", Ask, Parameter::SeatHeight, 21, Measure<[](const BandSaw& s) { return s.SeatInfo.Height; }, FineInches>},
    {"txtToothTipType", "Type of Tip:", "Tip and Plate", MustUse, None, MustUseGeneral, Words<[](const BandSaw& s) { return TipText(s); }>},
    {"txtToothPlateThick", "Plate Thickness:", "Tip and Plate", MustUse, None, MustUseGeneral, Measure<[](const BandSaw& s) { return s.GeneralInfo.PlateThick; }, FineInches>},
    {"txtToothKerf", "Cut Width (Kerf):", "Tip and Plate", MustUse, None, MustUseGeneral, Measure<[](const BandSaw& s) { return s.GeneralInfo.Kerf; }, FineInches>},
    {"txtSharpAngle", "Sharpness Angle:", "Results", ReadOnly, None, NoHint, Measure<[](const BandSaw& s) { return s.GulletInfo.Sharpangle; }, Degrees>},
    {"txtFaceLength", "Face Length:", "Results", ReadOnly, None, NoHint, Measure<[](const BandSaw& s) { return s.GulletInfo.FaceLength; }, FineInches>},
    {"txtGulletArea", "Gullet Area:", "Results", ReadOnly, None, 45, Measure<[](const BandSaw& s) { return s.GulletInfo.Area; }, SquareInches>},
    {"txtAreaBelowTip", "Area Below Tip:", "Results", ReadOnly, None, 46, Measure<[](const BandSaw& s) { return s.GulletInfo.AreaBelowTip; }, SquareInches>},
};

constexpr int CommentHint = -1;  // has words of its own

constexpr PanelField General[] = {
    {"txtDesignBy", "Designed By:", "Customer", Type, None, 37, Typed<[](const BandSaw& s) -> auto& { return s.CustomerInfo.DesignBy; }>, TakeText<[](BandSaw& s) -> auto& { return s.CustomerInfo.DesignBy; }>, 50},
    {"txtCustName", "Customer:", "Customer", Type, None, 38, Typed<[](const BandSaw& s) -> auto& { return s.CustomerInfo.CustName; }>, TakeText<[](BandSaw& s) -> auto& { return s.CustomerInfo.CustName; }>, 50},
    {"txtQuantity", "Number Of Saws:", "Customer", Type, None, 39, Quantity, TakeQuantity, 10},
    {"txtTipType", "Type of Tip:", "Tip and Plate", Ask, Parameter::TipType, 40, Words<[](const BandSaw& s) { return TipText(s); }>},
    {"txtPlateThick", "Plate Thickness:", "Tip and Plate", Ask, Parameter::PlateThickness, 41, Measure<[](const BandSaw& s) { return s.GeneralInfo.PlateThick; }, FineInches>},
    {"txtKerf", "Cut Width (Kerf):", "Tip and Plate", Ask, Parameter::TipKerf, 42, Measure<[](const BandSaw& s) { return s.GeneralInfo.Kerf; }, FineInches>},
    {"txtSideClear", "Side Clearance:", "Tip and Plate", ReadOnly, None, NoHint, Measure<[](const BandSaw& s) { return s.GeneralInfo.SideClear; }, FineInches>},
    {"txtJoinStyle", "Join Bandsaw Ends:", "Tip and Plate", Ask, Parameter::JoinStyle, NoHint, Words<[](const BandSaw& s) { return JoinText(s); }>},
    {"chkBothEdges", "Teeth on Both Edges", "Tip and Plate", Tick, None, NoHint, Words<[](const BandSaw& s) { return std::string(s.BothEdges ? " Yes" : ""); }>},
    {"txtAdditional1st", "1st Line:", "Additional Information", Type, None, CommentHint, Typed<[](const BandSaw& s) -> auto& { return s.DesignInfo.Comment1; }>, TakeText<[](BandSaw& s) -> auto& { return s.DesignInfo.Comment1; }>, 40},
    {"txtAdditional2nd", "2nd Line:", "Additional Information", Type, None, CommentHint, Typed<[](const BandSaw& s) -> auto& { return s.DesignInfo.Comment2; }>, TakeText<[](BandSaw& s) -> auto& { return s.DesignInfo.Comment2; }>, 40},
    {"txtAdditional3rd", "3rd Line:", "Additional Information", Type, None, CommentHint, Typed<[](const BandSaw& s) -> auto& { return s.DesignInfo.Comment3; }>, TakeText<[](BandSaw& s) -> auto& { return s.DesignInfo.Comment3; }>, 40},
    {"txtGenToothStyle", "Tooth Style:", "Teeth", MustUse, None, MustUseToothShape, Words<[](const BandSaw& s) { return ToothStyleText(s); }>},
    {"txtGenLength", "Length:", "Teeth", MustUse, None, MustUseToothShape, Measure<[](const BandSaw& s) { return s.Length; }, Feet>},
    {"txtGenWidth", "Band Saw Width:", "Teeth", MustUse, None, MustUseToothShape, Measure<[](const BandSaw& s) { return s.Width; }, Inches>},
    {"txtGenNumTeeth", "Number Of Teeth:", "Teeth", MustUse, None, MustUseToothShape, Whole<[](const BandSaw& s) { return s.NumTeeth; }>},
    {"txtGenPitch", "Tooth Spacing:", "Teeth", MustUse, None, MustUseToothShape, Measure<[](const BandSaw& s) { return s.Pitch; }, Inches>},
    {"txtGenHook", "Hook Angle:", "Teeth", MustUse, None, MustUseToothShape, Measure<[](const BandSaw& s) { return s.HookAngle; }, Degrees>},
    {"txtGenTeethInSegment", "Teeth in Segment:", "Variable Pitch", MustUse, None, MustUseVariable, Whole<[](const BandSaw& s) { return s.GeneralInfo.NumVariables; }>},
    {"txtGenSegmentLength", "Length of Segment:", "Variable Pitch", MustUse, None, MustUseVariable, Measure<[](const BandSaw& s) { return s.DesignInfo.SegmentLength; }, Inches>},
    {"txtGenWheelDia", "Wheel Diameter:", "Machine", MustUse, None, MustUseBandLength, Measure<[](const BandSaw& s) { return s.MachineInfo.WheelDia; }, Feet>},
    {"txtGenCenters", "Center to Center:", "Machine", MustUse, None, MustUseBandLength, Measure<[](const BandSaw& s) { return s.MachineInfo.CenterToCenter; }, Feet>},
    {"txtGenRimWidth", "Wheel Rim Width:", "Machine", MustUse, None, MustUseBandLength, Measure<[](const BandSaw& s) { return s.MachineInfo.Width; }, Inches>},
    {"txtGenShaftSpeed", "Wheel RPMs:", "Power", MustUse, None, MustUsePower, Measure<[](const BandSaw& s) { return s.GeneralInfo.ShaftSpeed; }, RevolutionsPerMinute>},
    {"txtGenDepthOfCut", "Depth of Cut (Max):", "Power", MustUse, None, MustUsePower, Measure<[](const BandSaw& s) { return s.GeneralInfo.DepthOfCut; }, Inches>},
    {"txtGenFeedRate", "Feed Rate:", "Power", MustUse, None, MustUsePower, Measure<[](const BandSaw& s) { return s.GeneralInfo.FeedRate; }, FeetPerMinute>},
    {"txtGenWoodType", "Type of Wood:", "Power", MustUse, None, MustUsePower, Words<[](const BandSaw& s) { return WoodText(s); }>},
    {"txtGenHorsePower", "Horsepower:", "Power", MustUse, None, MustUsePower, Measure<[](const BandSaw& s) { return s.GeneralInfo.HorsePower; }, PlainNumber>},
};
// clang-format on

/// Styles that a box belongs to, a letter for each style from 0 to 9: "+" clickable, "r" read-only, "-"
/// hidden. Boxes that are not named belong to all.
struct StyleRow {
  std::string_view Control, Styles;
};

constexpr StyleRow BoxesByStyle[] = {
    {"txtClear", "+++++++rr+"},              // a result where the top is one line with the back
    {"txtGulletRadius", "++++---+--"},       //
    {"txt1stGulletRad", "----+++-++"},       //
    {"txt2ndGulletRad", "----+++--+"},       //
    {"txt3rdGulletRad", "-----+---+"},       //
    {"txtGulletBottomAngle", "------+---"},  //
    {"txtGulletWidth", "----+++-++"},        //
    {"txtGulletBackAngle", "+++++++--+"},    //
    {"txtGulletBackRadius", "--+-+++--+"},   //
    {"txtFrostWidth", "---------+"},         //
    {"txtFrostHeight", "---------+"},        //
    {"txtFrostRadius", "---------+"},        //
    {"txtFrostAngle", "---------+"},         //
};

bool NeedsSeat(const PanelField& field) {
  return field.Asked == Parameter::SeatWidth || field.Asked == Parameter::SeatHeight;
}

}  // namespace

std::span<const PanelField> ToothFields() { return Tooth; }
std::span<const PanelField> GeneralFields() { return General; }

std::string AcceptedText(const PanelField& field, const BandSaw& saw, const DisplayFormat& format) {
  std::string shown = field.Shown(saw, format);
  if (!shown.empty() || field.Act != Ask) return shown;
  const ParameterRow& asked = RowOf(field.Asked);
  const bool isMeasure = std::holds_alternative<double& (*)(BandSaw&)>(asked.Field);
  return isMeasure ? FormatNumber(0, asked.Kind, format) : shown;
}

BoxState ToothBoxState(const PanelField& field, int toothStyle, bool hasSeat) {
  if (field.Act == ReadOnly) return BoxState::ReadOnly;
  if (field.Act == Ask && NeedsSeat(field)) return hasSeat ? BoxState::Clickable : BoxState::ReadOnly;
  for (const StyleRow& row : BoxesByStyle) {
    if (row.Control != field.Control) continue;
    const bool known = toothStyle >= 0 && toothStyle < static_cast<int>(row.Styles.size());
    const char mark = row.Styles[static_cast<std::size_t>(known ? toothStyle : NoStyle)];
    return mark == '+' ? BoxState::Clickable : mark == 'r' ? BoxState::ReadOnly : BoxState::Hidden;
  }
  return BoxState::Clickable;
}

int HelpTopicOf(BoxAct act, Parameter asked) {
  switch (act) {
    case Ask:
      return RowOf(asked).HelpTopic;
    case AskSeat:
      return HelpTopicOfTitle(SeatTitle);
    case Type:
    case Tick:
    case MustUse:
    case ReadOnly:
      break;
  }
  return 0;
}

BoxHint HintOfBox(const PanelField& field) {
  constexpr int hookHint = 4, hookSecondHint = 5;
  if (field.Text == CommentHint) return {"For additional comments!", "Maximum 40 characters per line."};
  if (field.Act == MustUse) return {};
  return {NumberedText(field.Text), field.Text == hookHint ? NumberedText(hookSecondHint) : ""};
}

}  // namespace tarnwick
