#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "entry/modFormat.h"
#include "model/modBandSaw.h"

namespace tarnwick {

/// Every measure and choice that has a value dialog.
enum class Parameter {
  ToothStyle,
  BandLength,
  Pitch,
  ToothSpace,  // pitch of one tooth of a segment
  BandWidth,
  NumTeeth,
  TipClearance,
  SeatWidth,
  SeatHeight,
  HookAngle,
  ClearanceAngle,
  GulletRadius,
  FirstGulletRadius,
  SecondGulletRadius,
  ThirdGulletRadius,
  GulletBottomAngle,
  GulletWidth,
  GulletDepth,
  GulletBackAngle,
  GulletBackRadius,
  FrostNotchWidth,
  FrostNotchHeight,
  FrostNotchRadius,
  FrostNotchAngle,
  WheelRpm,
  FeedRate,
  DepthOfCut,
  TypeOfWood,
  TipKerf,
  PlateThickness,
  TipType,
  JoinStyle,
  WheelDiameter,
  RimWidth,
  CenterToCenter,
};

/// How the text that a dialog returns becomes what the record stores.
enum class StoreRule {
  MetresToFeet,         // in metric, as below
  CentimetresToInches,  //
  MillimetresToInches,  //
  AsTyped,              // no conversion in either system
  Integer,              // the nearest whole number, ties to even
  Text,
  StyleCode,
  TipCode,
  JoinCode,
};

/// Where a parameter lives in the record.
using RecordField = std::variant<std::monostate, double& (*)(BandSaw&), std::int16_t& (*)(BandSaw&),
                                 std::int32_t& (*)(BandSaw&), FixedText<30>& (*)(BandSaw&)>;

/// One row of the table that drives every value dialog: no other place knows a prompt.
struct ParameterRow {
  Parameter Id;
  std::string_view Key;  // of the picture; empty: none, or one that depends on the tooth style
  std::string_view Title;
  std::string_view Prompt;
  int List;       // of ShowListValues
  int HelpTopic;  // 0: none of its own
  StoreRule Store;
  UnitKind Kind;      // how the stored number is shown
  RecordField Field;  // std::monostate: a tooth of a segment, the caller says which
};

[[nodiscard]] std::span<const ParameterRow> Parameters();
[[nodiscard]] const ParameterRow& RowOf(Parameter parameter);

/// Key of the picture for a band of this tooth style; empty: no picture.
[[nodiscard]] std::string_view PictureKey(Parameter parameter, int toothStyle);

/// Help topic of the dialog with this title; 0 for a title that nobody has.
[[nodiscard]] int HelpTopicOfTitle(std::string_view title);

/// The seat question, the one parameter that is answered by yes or no.
inline constexpr std::string_view SeatKey = "Seat";
inline constexpr std::string_view SeatTitle = "Seat";
inline constexpr std::string_view SeatPrompt = "Does Band Saw Have a Seat?\nSelect Yes or No!";

/// Whether the parameter is chosen among names instead of typed as a number.
[[nodiscard]] bool IsChoice(StoreRule rule);

/// The names of a choice, in the order of their codes, with the pictures that show them.
struct ChoiceName {
  std::string_view Name;
  std::int16_t Code;
  std::string_view Key;  // empty: no picture
};
[[nodiscard]] std::span<const ChoiceName> ChoiceNames(StoreRule rule);

/// The name chosen; nullptr for a text that is none of them.
[[nodiscard]] const ChoiceName* FindChoice(StoreRule rule, std::string_view name);

/// The number to store for the text that a dialog has returned, by one of the four rules for measures.
[[nodiscard]] double StoredNumber(StoreRule rule, std::string_view text, const DisplayFormat& format);

}  // namespace tarnwick
