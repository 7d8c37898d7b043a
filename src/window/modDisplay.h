#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "entry/modFormat.h"
#include "model/modBandSaw.h"

namespace tarnwick {

/// What a row of the information panel shows; the quick click goes by it.
enum class RowCode : std::int16_t {
  Blank = 0,
  Header = 2,
  ToothStyle = 10,
  Length,
  Width,
  NumTeeth,
  Pitch,
  HookAngle,
  ClearAngle,
  SharpAngle,
  GulletRadius,
  Radius1,
  Radius2,
  Radius3,
  BottomAngle,
  GulletWidth,
  BackAngle,
  FrostWidth,
  FrostHeight,
  FrostRadius,
  FrostAngle,
  GulletDepth,
  BackRadius,
  GulletArea,
  Seat,
  SeatWidth,
  SeatHeight,
  TipClearance,
  FaceLength,
  TeethInSegment = 40,
  SegmentLength,
  FirstTooth,  // 42, and on by four rows a tooth: its heading, pitch, depth, area
  LastTooth = 69,
  Quantity = 70,
  TipType,
  JoinStyle,
  BothEdges,
  PlateThick,
  Kerf,
  SideClear,
  WheelDia = 80,
  CenterToCenter,
  RimWidth,
  ShaftSpeed = 90,
  SawVelocity,
  DepthOfCut,
  FeedRate,
  Bite,
  WoodType,
  HorsePower,
};

/// A row's place on the surface, in pixels of 1/96 inch; Y downward.
struct RowBox {
  double Left{}, Top{}, Right{}, Bottom{};
};

/// One row of what is known of a design.
struct InfoRow {
  std::int16_t Row{};  // place in the list, from 1
  RowCode Code{};
  std::string Caption;  // with its colon; empty in a row that only sets sections apart
  std::string Value;    // as shown, one blank ahead; empty in a heading
  bool Header{};
  RowBox Box;
};

using SawInfo = std::vector<InfoRow>;

/// Height of a row: 250 units of 15 to the pixel.
inline constexpr double RowHeight = 250.0 / 15;

/// The rows of a design, section by section; none for a blank one.
/// @param width  of the surface, in pixels: a row is as wide
[[nodiscard]] SawInfo BuildSawInfo(const BandSaw& saw, const DisplayFormat& format, double width);

}  // namespace tarnwick
