#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "model/modFixedText.h"

namespace tarnwick {

/// A stored yes or no: a 16-bit integer, `True` is -1. Whatever else a file brings counts as set, and keeps
/// its value.
using Flag = std::int16_t;
inline constexpr Flag True = -1;
inline constexpr Flag False = 0;

/// Values of `BandSaw::ToothStyle`. 3 is a hole in the numbering: a design may carry it, no tooth comes of
/// it.
enum ToothStyleNumber : std::int16_t {
  NoStyle = 0,
  SquareBack = 1,
  RoundBack = 2,
  DoubleRadius = 4,
  TripleRadius = 5,
  FlatBottom = 6,
  NarrowStyle = 7,
  OShape = 8,
  FrostTooth = 9,
};

/// Values of `DesignInfo.JoinStyle`. Only the overlap takes an allowance at the ends of the band.
enum JoinStyleNumber : std::int16_t { RightAngleJoin = 0, OverlapJoin = 1 };

/// Measures of each tooth of a variable segment. Room for ten; a segment holds at most seven teeth.
using SegmentMeasures = std::array<double, 10>;
inline constexpr int UsedSegmentMeasures = 7;

/// One blade design: everything that a user enters and everything that the calculation derives. The document
/// itself.
///
/// A plain value, copied whole by assignment. A new design is the all-zero record; 0 means "not set". All
/// measures are imperial whatever the display shows: lengths in inches unless feet are named, angles in
/// degrees.
struct BandSaw {
  struct Contains {
    Flag General{};  // the general data have been filled in
    Flag Teeth{};    // a tooth has been calculated to a complete profile
    Flag Power{};    // the power data have been filled in
    Flag Machine{};  // the machine data have been filled in
    FixedText<98> Spare;
  } ContainsInfo;

  std::int16_t ToothStyle{};  // ToothStyleNumber, or whatever a file holds
  double Length{};            // ft, length of the band
  double Width{};             // in, back edge to the nominal tooth line
  double Pitch{};             // in, tip to tip
  std::int16_t NumTeeth{};    // teeth on the band
  double TipClear{};          // in, the tip stands this far below Width
  double HookAngle{};         // deg, face against the perpendicular of the band, positive leaning forward
  double ClearAngle{};        // deg, clearance of the tooth top; a result in styles 7 and 8

  struct Seat {
    Flag State{};     // the tooth has a seat, a step in the face under the tip
    double Width{};   // in, square to the face
    double Height{};  // in, along the face
    bool operator==(const Seat&) const = default;
  } SeatInfo;

  struct Gullet {
    double Radius{};        // in, styles 1, 2, 7 and the fallback of 9
    double Depth{};         // in, tip to gullet bottom
    double MinDepth{};      // in, smallest depth that the radii allow; derived
    double Area{};          // in², derived
    double BackAngle{};     // deg, of the tooth back
    double BackRadius{};    // in, fillet between back and top; 0 = sharp corner
    double Radius1{};       // in, styles 4, 5, 6, 8, 9
    double Radius2{};       // in, styles 4, 5, 6, 9
    double Radius3{};       // in, styles 5, 9
    double Width{};         // in
    double Bite{};          // in, bite per tooth; power
    double Capacity{};      // in², gullet capacity that the cut requires; power
    double AreaBelowTip{};  // in², working area; derived
    double BottomAngle{};   // deg, slope of a flat bottom, 0 to 45 (style 6)
    double Sharpangle{};    // deg, 90 - ClearAngle - HookAngle; derived
    std::uint8_t SpareByte{};
    double FaceLength{};   // in, derived
    double FrostWidth{};   // in, notch of a Frost tooth
    double FrostHeight{};  // in
    double FrostRadius{};  // in
    double FrostAngle{};   // deg
    FixedText<212> Spare;
  } GulletInfo;

  Flag BothEdges{};  // teeth on both edges of the band

  struct General {
    double TipSize{};  // kept and compared; no calculation reads it
    std::int16_t TipType{};
    double PlateThick{};  // in
    double Kerf{};        // in, cut width
    double SideClear{};   // in
    double TopBevel{};    // kept and compared
    double Tension{};     // kept and compared
    FixedText<15> SpareText1;
    FixedText<15> SpareText2;
    FixedText<25> SpareText3;
    std::int32_t Quantity{};
    std::int32_t ShaftSpeed{};  // rpm
    double DepthOfCut{};        // in
    double FeedRate{};          // ft/min
    FixedText<30> WoodType;
    double HorsePower{};          // hp; derived
    std::int16_t SavedAs{};       // 2 once written to a file
    Flag VariablePitch{};         // a segment of teeth of different pitch repeats
    std::int16_t NumVariables{};  // teeth in a segment, 3 to 7
    SegmentMeasures VarPitch{};   // in
    Flag VariableDepth{};         // the teeth of the segment differ in depth too
    SegmentMeasures VarDepth{};   // in
  } GeneralInfo;

  struct Design {
    double SegmentLength{};      // in
    std::int16_t VarPattern{};   // chosen pattern of the segment
    SegmentMeasures VarArea{};   // in², gullet area of each tooth of the segment; derived
    std::int32_t SawVelocity{};  // ft/min; derived
    double MaxFeedRate{};        // ft/min; derived
    std::int16_t JoinStyle{};    // JoinStyleNumber
    FixedText<40> Comment1;
    FixedText<40> Comment2;
    FixedText<40> Comment3;
    FixedText<808> SpareText4;
    FixedText<255> SpareText5;
  } DesignInfo;

  struct Machine {
    double WheelDia{};           // ft
    double Width{};              // in, rim of the wheel
    double CenterToCenter{};     // ft
    std::int16_t InCenterOut{};  // position of the strain wheel
    FixedText<512> Spare;
  } MachineInfo;

  struct Customer {
    FixedText<50> CustName;
    FixedText<50> DesignBy;
    FixedText<512> Spare;
  } CustomerInfo;

  std::int16_t ImpMetric{};  // display system that the design was saved with: 0 imperial, 1 metric
};

/// Bytes of one record in a design file: every field at its own width, no gaps.
inline constexpr std::size_t RecordImageSize = 3325;

/// Whether two designs count as the same: the one test behind every "has changed" question.
///
/// Numbers exactly, texts byte by byte. Left out on purpose, so that a design that differs only in them is
/// unchanged: FaceLength and the frost measures, VarPattern, VarArea, MaxFeedRate, the spare fields, elements
/// 8 to 10 of arrays. The three SpareTexts of GeneralInfo are no such spare fields: they count.
[[nodiscard]] bool SameSaw(const BandSaw& a, const BandSaw& b);

/// Clears all that makes the band a variable one: flags, count, segment length, pattern, the seven used
/// pitches and depths.
void ResetVariablePitch(BandSaw& saw);

/// "Square Back" ... "Frost Tooth"; nullptr for a number without a style.
[[nodiscard]] const char* ToothStyleName(int style);

}  // namespace tarnwick
