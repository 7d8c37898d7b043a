#pragma once

#include "geometry/modTooth.h"
#include "model/modBandSaw.h"
#include "platform/Messages.h"

// What all measurements share: bands of any number of teeth, and their drawings.
namespace tarnwick::bench {

inline constexpr int UsualTeeth = 137;  // of a 20 ft band at 1 3/4 in
inline constexpr int ManyTeeth = 1000;
inline constexpr int ExportedTeeth = 8000;  // close to what a drawing file may hold
inline constexpr int MostTeeth = 32000;     // close to what the record can count

/// Pairs for the longest band with teeth on both edges: past what a user can set, so that its text can be
/// measured too.
inline constexpr CalculationSettings RoomySettings{.MemorySize = 4'000'000};

class NobodyListens final : public Messages {
 public:
  Button Show(const Box& box) override { return box.Default; }
};

/// A resaw band of `teeth` teeth 1 3/4 in apart, long enough to hold them. Every style takes of the measures
/// what it needs.
inline BandSaw ResawBand(ToothStyleNumber style, int teeth) {
  BandSaw saw;
  saw.ToothStyle = style;
  saw.Pitch = 1.75;
  saw.Length = teeth * saw.Pitch / 12;
  saw.Width = 4;
  saw.HookAngle = 20;
  saw.ClearAngle = 12;
  saw.GulletInfo.Radius = 0.3125;
  saw.GulletInfo.Depth = 0.55;
  saw.GulletInfo.BackAngle = 16;
  saw.GulletInfo.BackRadius = 0.2;
  saw.GulletInfo.Radius1 = 0.18;
  saw.GulletInfo.Radius2 = 0.45;
  saw.GulletInfo.Radius3 = style == TripleRadius ? 0.25 : 0;
  saw.GulletInfo.Width = 0.6;
  saw.GulletInfo.FrostRadius = 0.05;
  saw.GulletInfo.FrostWidth = 0.12;
  saw.GulletInfo.FrostHeight = 0.15;
  saw.GulletInfo.FrostAngle = 25;
  saw.GeneralInfo.PlateThick = 0.042;
  return saw;
}

/// The same with segments of five teeth of different pitch and depth.
inline BandSaw VariableBand(ToothStyleNumber style, int segments) {
  constexpr SegmentMeasures pitches = {1.65, 1.85, 1.75, 1.6, 1.9};
  constexpr SegmentMeasures depths = {0.55, 0.6, 0.58, 0.56, 0.62};
  BandSaw saw = ResawBand(style, 5 * segments);
  saw.GeneralInfo.VariablePitch = True;
  saw.GeneralInfo.NumVariables = 5;
  saw.GeneralInfo.VarPitch = pitches;
  saw.GeneralInfo.VariableDepth = True;
  saw.GeneralInfo.VarDepth = depths;
  return saw;
}

/// The style with the most arcs, on both edges: the dearest list there is.
inline BandSaw DearestBand(int teeth) {
  BandSaw saw = ResawBand(TripleRadius, teeth);
  saw.GulletInfo.Radius1 = 0.25;
  saw.GulletInfo.Radius2 = 0.5;
  saw.GulletInfo.Radius3 = 0.375;
  saw.BothEdges = True;
  return saw;
}

inline EntityList DrawingOf(BandSaw saw) {
  NobodyListens nobody;
  return CalculateSaw(saw, RoomySettings, nobody);
}

inline std::size_t BytesOf(const EntityList& list) { return list.Entities.size() * sizeof(Entity); }

}  // namespace tarnwick::bench
